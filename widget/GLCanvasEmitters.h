#pragma once
// GLCanvasEmitters: the input signals of a canvas. The canvas's widget
// fires them on the GUI thread, one per widget event, with the event as a
// foundation value whose source is the canvas; the canvas's
// EventDispatcher listens on the host thread, so every delivery crosses
// threads by a queue. Owned by the GLCanvas, which outlives its widget.

#include "GLOX/Cursor.h"
#include "GLOX/GLWidgetEvents2.h"
#include "GLUV/Emitter.h"

namespace VOR2 {

struct GLCanvasEmitters {
    using Mouse = GLUV::Emitter<void (*)(GLOX::GLMouseEvent2)>;
    using Key = GLUV::Emitter<void (*)(GLOX::GLKeyEvent2)>;
    using Drag = GLUV::Emitter<void (*)(GLOX::GLDragEvent2)>;
    using Focus = GLUV::Emitter<void (*)(GLOX::GLFocusEvent2)>;
    using ContextMenu = GLUV::Emitter<void (*)(GLOX::GLContextMenuEvent2)>;
    using Widget = GLUV::Emitter<void (*)(GLOX::GLWidgetEvent2)>;

    Mouse mouseMoved{GLUV::SendAuto};
    Mouse mouseDoubleClicked{GLUV::SendAuto};
    Mouse mousePressed{GLUV::SendAuto};
    Mouse mouseReleased{GLUV::SendAuto};
    Mouse wheel{GLUV::SendAuto};
    ContextMenu contextMenu{GLUV::SendAuto};
    // The pointer went far enough with the left button down: sent once per
    // press, with the press's position, and only while somebody listens.
    Mouse userDragInit{GLUV::SendAuto};
    Drag dragEntered{GLUV::SendAuto};
    Drag dragMoved{GLUV::SendAuto};
    Drag dropped{GLUV::SendAuto};
    Widget dragLeft{GLUV::SendAuto};
    Key keyPressed{GLUV::SendAuto};
    Key keyReleased{GLUV::SendAuto};
    Focus focusGained{GLUV::SendAuto};
    Focus focusLost{GLUV::SendAuto};
    Widget pointerEntered{GLUV::SendAuto};
    Widget pointerLeft{GLUV::SendAuto};

    // The other way, host to widget: the cursor the scene's tools ask for
    // (invalid: none). The widget listens while it lives.
    GLUV::Emitter<void (*)(GLOX::Cursor)> toolCursorChanged{GLUV::SendAuto};
};

} // namespace VOR2
