#pragma once
// TextNodeImpl: the element of a TextNode, a Qt text item. The document
// holds what is shown; `m_text` the text as last set or as the last edit
// left it (the edit reaches it at focus out). Split by concern:
//   TextNodeImpl.cpp       construction, properties, bounds, paint
//   TextNodeAlignment.cpp  alignment, width and the placement they give
//   TextNodeEditing.cpp    focus, input, the shadow document, notifications,
//                          the delete button
//
// Placement: the item's document starts at (0, 0); the node shifts it by
// `m_contentOffset` so that the node's position is the alignment's anchor.
// The shift is applied to bounds, paint and the pointer positions handed
// to Qt; the item's own transform stays the client's.
//
// Host thread only.

#include <AutoSizeMode>

#include "GLOX/Font.h"
#include "GLOX/GLRect.h"
#include "GLOX/TextAlign.h"
#include "GLUV/Listener.h"
#include "scene/TypedNodeImpl.h"

#include <QColor>
#include <QTextDocument>
#include <optional>
#include <string>

class QSyntaxHighlighter;

namespace VOR2 {

class TextNodeImpl : public TypedNodeImpl<QGraphicsTextItem>, public GLUV::Listener {
    Q_OBJECT
public:
    static char const *const TYPE_NAME;
    // Below this many device pixels of line height glyphs are not painted.
    static constexpr double SMALL_TEXT_PIXELS = 5.0;

    TextNodeImpl();
    ~TextNodeImpl() override;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    // --- Properties (TextNodeImpl.cpp) -----------------------------------
    std::string const &getText() const { return m_text; }
    void setText(std::string const &text);
    void setHtml(std::string const &html);
    GLOX::Font getFont() const;
    void setFont(GLOX::Font const &font);
    QColor getColor() const { return defaultTextColor(); }
    void setColor(QColor const &color);
    QColor getBackgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(QColor const &color);
    bool isEditable() const { return m_editable; }
    void setEditable(bool editable);
    bool isUsingTex() const { return m_useTex; }
    void setUseTex(bool useTex);
    bool isFocusSelectAll() const { return m_focusSelectAll; }
    void setFocusSelectAll(bool selectAll) { m_focusSelectAll = selectAll; }
    double getFontHeight() const { return m_fontHeight; }
    QSyntaxHighlighter *getSyntaxHighlighter() const { return m_syntaxHighlighter; }
    void setSyntaxHighlighter(QSyntaxHighlighter *highlighter);

    // --- Alignment and width (TextNodeAlignment.cpp) ----------------------
    GLOX::TextHAlign getHorizontalAlignment() const;
    // Throw VOR2_InvalidConversion for a value that names no alignment Qt
    // can show; the vertical baseline values are among those.
    void setHorizontalAlignment(GLOX::TextHAlign const &align);
    GLOX::TextVAlign getVerticalAlignment() const;
    void setVerticalAlignment(GLOX::TextVAlign const &align);
    int getTextDocumentWidth() const;
    void setTextDocumentWidth(int width);
    AutoSizeMode getWidthAutoSize() const { return m_widthAutoSize; }
    void setWidthAutoSize(AutoSizeMode mode);
    QPointF getContentOffset() const { return m_contentOffset; }

    // --- Editing (TextNodeEditing.cpp) ------------------------------------
    Node getDeleteButtonNode() const { return m_deleteButtonNode; }
    void setDeleteButtonNode(Node const &button);
    // The node's own input: the signals every node sends, then Qt's text
    // handling. While the text has the focus it consumes the pointer and
    // the keys it is handed, so that no tool below acts on them.
    void emitMousePressEvent(MouseEvent &event) override;
    void emitMouseMoveEvent(MouseEvent &event) override;
    void emitMouseReleaseEvent(MouseEvent &event) override;
    void emitKeyPressEvent(KeyEvent &event) override;
    void emitKeyReleaseEvent(KeyEvent &event) override;

    // --- Node -------------------------------------------------------------
    Bounds computeBounds() override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderText method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;

public Q_SLOTS:
    void dispatchContentsChange(int position, int charsRemoved, int charsAdded);
    void dispatchContentsChanged();
    void dispatchLayoutChanged();
    void dispatchEditStarted();
    void dispatchEditComplete();

private Q_SLOTS:
    // Qt's text handling asks for an area of the document to be redrawn
    // (the blinking caret): it is redrawn where the node shows it.
    void repaintDocumentArea(QRectF const &area);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    // Document changes made by the node itself: the document reports them
    // and the node sends no text-changed notification for them.
    class ProgrammaticChange;
    // After the shown text changed: width (G), placement (F), repaint.
    void afterContentChange();
    // A change of look only: repaint.
    void contentChanged();
    void setPlainDocumentText(std::string const &text);
    // Alignment and width.
    void setAlignmentFlags(Qt::Alignment keep, Qt::Alignment add);
    void applyAutoWidth();
    void applyWidth(double width);
    void placeItem();
    // Editing.
    void showDeleteButton();
    void hideDeleteButton();
    void onDeleteButtonPressed(MouseEvent &event);
    void startEditingTool();
    void endEditingTool();
    void sendTextSignal(int which);
    template <typename E>
    bool consumeWhileEditing(E &event);
    void forwardMouse(MouseEvent &event);

    QSyntaxHighlighter *m_syntaxHighlighter = nullptr;
    Node m_deleteButtonNode;
    bool m_useTex = false;
    bool m_focusSelectAll = false;
    std::string m_text;
    bool m_editable = false;
    AutoSizeMode m_widthAutoSize = AutoSizeExpanding;
    QTextDocument m_shadowDocument;
    double m_fontHeight = 0.0;
    QColor m_backgroundColor{0, 0, 0, 0};
    std::optional<GLOX::GLRect<double>> m_texBounds;
    QPointF m_contentOffset;
    int m_programmaticChanges = 0;
    // Between an editable text's focus in and its focus out.
    bool m_editing = false;
    // Where the last press was, for Qt's drag selection.
    QPointF m_pressDocPos;
    QPointF m_pressScenePos;
};

// Counts the node's own document changes, so that the text-changed
// notification stays silent for them; also holds Qt's item updates, since
// the text item marks itself dirty when its document changes.
class TextNodeImpl::ProgrammaticChange {
public:
    explicit ProgrammaticChange(TextNodeImpl *node) : m_node(node)
    {
        m_node->holdQtItemUpdates();
        ++m_node->m_programmaticChanges;
    }
    ~ProgrammaticChange() { --m_node->m_programmaticChanges; }
    ProgrammaticChange(ProgrammaticChange const &) = delete;
    ProgrammaticChange &operator=(ProgrammaticChange const &) = delete;

private:
    TextNodeImpl *m_node;
};

} // namespace VOR2
