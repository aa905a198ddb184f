#pragma once
// The foundation's widget event values: what a native widget broadcasts
// about its input, copied by value so that they can cross to the host
// thread. Each names its source, the host-side GLWidget2 of the widget.
// Positions are doubles; `viewportPos` and drag positions are in pixels of
// the widget's drawing area, origin top left.

#include "GLOX/FocusReason.h"
#include "GLOX/GLPoint.h"
#include "GLOX/InputTypes.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <string>

namespace GLOX {

class GLWidget2;

class GLWidgetEvent2 {
public:
    explicit GLWidgetEvent2(GLWidget2 *source = nullptr) : m_source(source) {}
    GLWidget2 *source() const { return m_source; }

private:
    GLWidget2 *m_source;
};

class GLMouseEvent2 : public GLWidgetEvent2 {
public:
    GLMouseEvent2() = default;
    // `rotation`: wheel turn in degrees, 15 per notch, positive away from
    // the user; 0 for other mouse events.
    GLMouseEvent2(GLWidget2 *source, GLPoint<double> const &pos, GLPoint<double> const &viewportPos,
                  GLPoint<double> const &globalPos, int rotation, MouseButton button, GLFlags<MouseButton> buttons,
                  GLFlags<Modifier> modifiers)
        : GLWidgetEvent2(source), m_pos(pos), m_viewportPos(viewportPos), m_globalPos(globalPos),
          m_rotation(rotation), m_button(button), m_buttons(buttons), m_modifiers(modifiers) {}

    // In the widget's own coordinates, frame included.
    GLPoint<double> const &pos() const { return m_pos; }
    GLPoint<double> const &viewportPos() const { return m_viewportPos; }
    GLPoint<double> const &globalPos() const { return m_globalPos; }
    double x() const { return m_pos.x; }
    double y() const { return m_pos.y; }
    int rotation() const { return m_rotation; }
    MouseButton button() const { return m_button; }
    GLFlags<MouseButton> buttons() const { return m_buttons; }
    GLFlags<Modifier> modifiers() const { return m_modifiers; }

private:
    GLPoint<double> m_pos, m_viewportPos, m_globalPos;
    int m_rotation = 0;
    MouseButton m_button = Qt::NoButton;
    GLFlags<MouseButton> m_buttons;
    GLFlags<Modifier> m_modifiers;
};

class GLKeyEvent2 : public GLWidgetEvent2 {
public:
    GLKeyEvent2() = default;
    GLKeyEvent2(GLWidget2 *source, Key key, GLFlags<Modifier> modifiers, std::string text, bool autoRepeat,
                GLFlags<MouseButton> buttons)
        : GLWidgetEvent2(source), m_key(key), m_modifiers(modifiers), m_text(std::move(text)),
          m_autoRepeat(autoRepeat), m_buttons(buttons) {}

    Key key() const { return m_key; }
    GLFlags<Modifier> modifiers() const { return m_modifiers; }
    // UTF-8.
    std::string const &text() const { return m_text; }
    bool isAutoRepeat() const { return m_autoRepeat; }
    GLFlags<MouseButton> buttons() const { return m_buttons; }

private:
    Key m_key = Qt::Key_unknown;
    GLFlags<Modifier> m_modifiers;
    std::string m_text;
    bool m_autoRepeat = false;
    GLFlags<MouseButton> m_buttons;
};

class GLDragEvent2 : public GLWidgetEvent2 {
public:
    using MimeData = QMap<QString, QByteArray>;

    GLDragEvent2() = default;
    GLDragEvent2(GLWidget2 *source, GLPoint<double> const &pos, MimeData data, GLFlags<MouseButton> buttons,
                 GLFlags<Modifier> modifiers)
        : GLWidgetEvent2(source), m_pos(pos), m_data(std::move(data)), m_buttons(buttons), m_modifiers(modifiers) {}

    GLPoint<double> const &getPos() const { return m_pos; }
    // The dragged data by MIME type, copied when the drag reached the widget.
    MimeData const &mimeData() const { return m_data; }
    GLFlags<MouseButton> buttons() const { return m_buttons; }
    GLFlags<Modifier> modifiers() const { return m_modifiers; }

private:
    GLPoint<double> m_pos;
    MimeData m_data;
    GLFlags<MouseButton> m_buttons;
    GLFlags<Modifier> m_modifiers;
};

class GLContextMenuEvent2 : public GLWidgetEvent2 {
public:
    enum Reason { Mouse = 0, Keyboard = 1, Other = 2 };

    GLContextMenuEvent2() = default;
    GLContextMenuEvent2(GLWidget2 *source, int globalX, int globalY, int reason)
        : GLWidgetEvent2(source), m_globalPos(globalX, globalY), m_reason(reason) {}

    // Screen coordinates: a context menu knows nothing else.
    GLPoint<int> const &globalPos() const { return m_globalPos; }
    int reason() const { return m_reason; }

private:
    GLPoint<int> m_globalPos;
    int m_reason = Other;
};

class GLFocusEvent2 : public GLWidgetEvent2 {
public:
    GLFocusEvent2() = default;
    GLFocusEvent2(GLWidget2 *source, FocusReason reason) : GLWidgetEvent2(source), m_reason(reason) {}
    FocusReason reason() const { return m_reason; }

private:
    FocusReason m_reason = OtherFocusReason;
};

} // namespace GLOX
