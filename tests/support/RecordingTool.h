#pragma once
// RecordingTool: a tool for tests that writes down every event it is
// offered, and can be told to consume events, to want a cursor, to want
// auto-repeated keys, or to be done after a number of events. The log is
// shared, so several tools can record into one and show their order.

#include <ContextMenuEvent>
#include <DragEvent>
#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>
#include <Tool>
#include <WidgetEvent>

#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace VOR2::test {

struct RecordedEvent {
    std::string tool;
    EventType type;
    std::uint32_t serialNumber = 0;
    std::optional<GLOX::GLPoint<double>> scenePos; // mouse, drag and menu events
    GLOX::MouseButton button = Qt::NoButton;
    GLOX::GLFlags<GLOX::Modifier> modifiers;
    std::string text; // key events
    std::thread::id thread;
};

using EventLog = std::shared_ptr<std::vector<RecordedEvent>>;

class RecordingTool : public Tool {
public:
    explicit RecordingTool(std::string name, EventLog log = std::make_shared<std::vector<RecordedEvent>>())
        : name(std::move(name)), log(std::move(log)) {}

    std::string const name;
    EventLog const log;
    bool consumes = false;
    bool wantsAutoRepeat = false;
    std::optional<GLOX::Cursor> cursor;
    int doneAfter = -1; // events until done; -1 never
    int added = 0, removed = 0;

    bool isDone() const override { return doneAfter == 0; }
    GLOX::StringID getDefaultRole() const override { return GLOX::StringID(name); }
    bool requiresKeyAutoRepeat() const override { return wantsAutoRepeat; }
    std::optional<GLOX::Cursor> overrideCursor() override { return cursor; }
    void onAddToStack() override { ++added; }
    void onRemoveFromStack() override { ++removed; }

    void handleMouseMoveEvent(MouseEvent &e) override { mouse(e); }
    void handleMousePressEvent(MouseEvent &e) override { mouse(e); }
    void handleMouseReleaseEvent(MouseEvent &e) override { mouse(e); }
    void handleMouseDoubleClickEvent(MouseEvent &e) override { mouse(e); }
    void handleUserDragInitEvent(MouseEvent &e) override { mouse(e); }
    void handleWheelEvent(MouseEvent &e) override { mouse(e); }
    void handleDragEnterEvent(DragEvent &e) override { record(e, e.scenePos()); }
    void handleDragEvent(DragEvent &e) override { record(e, e.scenePos()); }
    void handleDropEvent(DragEvent &e) override { record(e, e.scenePos()); }
    void handleDragLeaveEvent(WidgetEvent &e) override { record(e); }
    void handleFocusInEvent(FocusEvent &e) override { record(e); }
    void handleFocusOutEvent(FocusEvent &e) override { record(e); }
    void handleEnterCanvasEvent(WidgetEvent &e) override { record(e); }
    void handleLeaveCanvasEvent(WidgetEvent &e) override { record(e); }
    void handleContextMenuEvent(ContextMenuEvent &e) override { record(e, e.scenePos()); }
    void handleKeyPressEvent(KeyEvent &e) override { record(e).text = e.text(); }
    void handleKeyReleaseEvent(KeyEvent &e) override { record(e).text = e.text(); }

    // The types this tool saw, in order.
    std::vector<EventType> typesSeen() const
    {
        std::vector<EventType> types;
        for (RecordedEvent const &r : *log)
            if (r.tool == name) types.push_back(r.type);
        return types;
    }

private:
    void mouse(MouseEvent &e)
    {
        RecordedEvent &r = record(e, e.scenePos());
        r.button = e.button();
        r.modifiers = e.modifiers();
    }

    RecordedEvent &record(Event &e, std::optional<GLOX::GLPoint<double>> scenePos = std::nullopt)
    {
        log->push_back({name, e.type(), e.serialNumber(), scenePos, Qt::NoButton, {}, {}, std::this_thread::get_id()});
        if (consumes) e.consume();
        if (doneAfter > 0) --doneAfter;
        return log->back();
    }
};

} // namespace VOR2::test
