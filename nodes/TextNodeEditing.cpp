// TextNodeImpl: editing. Focus in and out, the input handed to Qt's text
// handling, the shadow document that measures the width a growing text
// wants, the notifications, the editing tool and the delete button.

#include "nodes/TextNodeImpl.h"

#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>
#include <Scene>
#include <TextSelectionTool>

#include "GLUV/Thread.h"
#include "scene/NodeEmitterTable.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QTextCursor>

namespace VOR2 {

namespace {
GLUV::Thread *hostThread()
{
    GLUV::Thread *named = GLUV::Thread::getNamedThread("TARVO");
    return named ? named : GLUV::Thread::getCurrentThread();
}

QEvent::Type qtMouseType(EventType type)
{
    switch (type) {
    case EventType::MousePress: return QEvent::GraphicsSceneMousePress;
    case EventType::MouseRelease: return QEvent::GraphicsSceneMouseRelease;
    default: return QEvent::GraphicsSceneMouseMove;
    }
}
} // namespace

// ----------------------------------------------------------- notifications

void TextNodeImpl::sendTextSignal(int which)
{
    auto *emitter = NodeEmitterTable::instance().text(NodeEmitterTable::TextSignal(which), this, false);
    if (emitter) emitter->send();
}

void TextNodeImpl::dispatchContentsChange(int position, int charsRemoved, int charsAdded)
{
    if (charsRemoved < 1 && charsAdded < 1) return;
    if (hasFocus() && m_widthAutoSize == AutoSizeExpanding) {
        // The shown document wraps at its present width; the shadow, with
        // no width, tells how wide the text wants to be.
        QTextCursor shadow(&m_shadowDocument);
        int const end = m_shadowDocument.characterCount() - 1;
        shadow.setPosition(qBound(0, position, end));
        shadow.setPosition(qBound(0, position + charsRemoved, end), QTextCursor::KeepAnchor);
        shadow.removeSelectedText();
        if (charsAdded > 0) {
            QTextCursor added(document());
            int const docEnd = document()->characterCount() - 1;
            added.setPosition(qBound(0, position, docEnd));
            added.setPosition(qBound(0, position + charsAdded, docEnd), QTextCursor::KeepAnchor);
            shadow.insertText(added.selectedText());
        }
        prepareItemGeometryChange();
        applyWidth(m_shadowDocument.idealWidth());
        notifyGeometryChanged(false);
    } else if (m_programmaticChanges == 0 && !m_editing) {
        // A change while not editing that the node did not make (a client
        // writing to the document): the width and place follow it. While
        // editing at a fixed width the text wraps at that width.
        afterContentChange();
    }
    if (m_programmaticChanges == 0) dispatchContentsChanged();
}

void TextNodeImpl::dispatchContentsChanged() { sendTextSignal(NodeEmitterTable::TextChanged); }

// Layout changes reach the node through the content changes behind them.
void TextNodeImpl::dispatchLayoutChanged() {}

void TextNodeImpl::dispatchEditStarted() { sendTextSignal(NodeEmitterTable::EditStarted); }

void TextNodeImpl::dispatchEditComplete() { sendTextSignal(NodeEmitterTable::EditComplete); }

// -------------------------------------------------------------------- focus

void TextNodeImpl::focusInEvent(QFocusEvent *event)
{
    // A text that is not editable takes Qt's focus but starts no edit.
    if (!m_editable || m_editing) return;
    m_editing = true;
    if (m_widthAutoSize == AutoSizeExpanding) m_shadowDocument.setPlainText(document()->toPlainText());
    showDeleteButton();
    QTextCursor cursor(document());
    if (m_focusSelectAll) cursor.select(QTextCursor::Document);
    setTextCursor(cursor);
    QGraphicsTextItem::focusInEvent(event);
    if (m_useTex) m_texBounds.reset();
    contentChanged();
    dispatchEditStarted();
    FocusEvent focus(EventType::FocusIn, GLOX::Qt2GL(event->reason()));
    emitFocusInEvent(focus);
    startEditingTool();
}

void TextNodeImpl::focusOutEvent(QFocusEvent *event)
{
    if (!m_editing) return;
    m_editing = false;
    if (m_widthAutoSize == AutoSizeExpanding) m_shadowDocument.clear();
    hideDeleteButton();
    setTextCursor(QTextCursor());
    QGraphicsTextItem::focusOutEvent(event);
    // The one moment an edit reaches the text. The document already shows
    // it, formatting and all: it is not set again.
    std::string const edited = document()->toPlainText().toStdString();
    if (edited != m_text) {
        m_text = edited;
        afterContentChange();
    } else {
        contentChanged();
    }
    endEditingTool();
    dispatchEditComplete();
    FocusEvent focus(EventType::FocusOut, GLOX::Qt2GL(event->reason()));
    emitFocusOutEvent(focus);
}

// The editing tool stands on the scene's stack while the text is edited,
// so that keys and the pointer come here and Escape ends the edit.
void TextNodeImpl::startEditingTool()
{
    Scene *scene = Node(this).getScene();
    if (!scene) return;
    auto *tool = dynamic_cast<TextSelectionTool *>(scene->getToolByRole(TextSelectionTool::staticGetDefaultRole()));
    if (!tool || tool->getTarget() != Node(this) || tool->isDone())
        tool = dynamic_cast<TextSelectionTool *>(scene->addToolByRole(TextSelectionTool::staticGetDefaultRole()));
    if (tool) tool->setTarget(Node(this));
}

void TextNodeImpl::endEditingTool()
{
    Scene *scene = Node(this).getScene();
    if (!scene) return;
    auto *tool = dynamic_cast<TextSelectionTool *>(scene->getToolByRole(TextSelectionTool::staticGetDefaultRole()));
    if (tool && tool->getTarget() == Node(this)) scene->removeTool(tool);
}

// -------------------------------------------------------------------- input

template <typename E>
bool TextNodeImpl::consumeWhileEditing(E &event)
{
    if (!m_editing || !hasFocus()) return false;
    event.consume();
    return true;
}

void TextNodeImpl::emitMousePressEvent(MouseEvent &event)
{
    Node keep(this); // a listener may remove the node from its scene
    NodeImpl::emitMousePressEvent(event);
    forwardMouse(event);
}

void TextNodeImpl::emitMouseMoveEvent(MouseEvent &event)
{
    Node keep(this);
    NodeImpl::emitMouseMoveEvent(event);
    forwardMouse(event);
}

void TextNodeImpl::emitMouseReleaseEvent(MouseEvent &event)
{
    Node keep(this);
    NodeImpl::emitMouseReleaseEvent(event);
    forwardMouse(event);
}

// Qt's text handling, at the position in the document's own coordinates.
void TextNodeImpl::forwardMouse(MouseEvent &event)
{
    if (!consumeWhileEditing(event)) return;
    QPointF const scenePos = GLOX::toQPointF(event.scenePos());
    QPointF const docPos = mapFromScene(scenePos) - m_contentOffset;
    QGraphicsSceneMouseEvent qe(qtMouseType(event.type()));
    qe.setScenePos(scenePos);
    qe.setPos(docPos);
    qe.setLastScenePos(scenePos);
    qe.setLastPos(docPos);
    qe.setScreenPos(GLOX::toQPointF(event.globalPos()).toPoint());
    qe.setLastScreenPos(qe.screenPos());
    if (event.type() == EventType::MousePress) {
        m_pressDocPos = docPos;
        m_pressScenePos = scenePos;
    }
    qe.setButtonDownPos(Qt::LeftButton, m_pressDocPos);
    qe.setButtonDownScenePos(Qt::LeftButton, m_pressScenePos);
    qe.setButton(event.button());
    qe.setButtons(event.buttons());
    qe.setModifiers(event.modifiers());
    qe.setAccepted(true);
    holdQtItemUpdates();
    switch (event.type()) {
    case EventType::MousePress: QGraphicsTextItem::mousePressEvent(&qe); break;
    case EventType::MouseRelease: QGraphicsTextItem::mouseReleaseEvent(&qe); break;
    default: QGraphicsTextItem::mouseMoveEvent(&qe); break;
    }
    contentChanged(); // caret and selection moved
}

void TextNodeImpl::emitKeyPressEvent(KeyEvent &event)
{
    Node keep(this);
    NodeImpl::emitKeyPressEvent(event);
    if (!consumeWhileEditing(event)) return;
    QKeyEvent qe(QEvent::KeyPress, event.key(), event.modifiers(), QString::fromStdString(event.text()),
                 event.isAutoRepeat());
    holdQtItemUpdates();
    keyPressEvent(&qe);
    contentChanged();
}

void TextNodeImpl::emitKeyReleaseEvent(KeyEvent &event)
{
    Node keep(this);
    NodeImpl::emitKeyReleaseEvent(event);
    if (!consumeWhileEditing(event)) return;
    QKeyEvent qe(QEvent::KeyRelease, event.key(), event.modifiers(), QString::fromStdString(event.text()),
                 event.isAutoRepeat());
    keyReleaseEvent(&qe);
}

// ------------------------------------------------------------ delete button

void TextNodeImpl::setDeleteButtonNode(Node const &button)
{
    if (button == m_deleteButtonNode) return;
    if (m_deleteButtonNode.isValid()) m_deleteButtonNode.disconnectFromMousePressEmitter(this);
    m_deleteButtonNode = button;
    if (!button.isValid()) return;
    button.setMovable(false);
    button.setSelectable(false);
    button.setVisible(m_editing);
    NodeEmitterTable::instance()
        .mouse(NodeEmitterTable::MousePress, button.getImpl(), true)
        ->connect(this, &TextNodeImpl::onDeleteButtonPressed, hostThread());
    if (m_editing) showDeleteButton();
}

// Removing the text from its scene also ends its edit.
void TextNodeImpl::onDeleteButtonPressed(MouseEvent &event)
{
    Node self(this);
    if (Scene *scene = self.getScene()) scene->removeNode(self);
    event.consume();
}

// Its bottom-right corner on the text's top-left one, in the text's parent.
void TextNodeImpl::showDeleteButton()
{
    if (!m_deleteButtonNode.isValid()) return;
    Node const &button = m_deleteButtonNode;
    button.setVisible(true);
    GLOX::GLRect<double> const r = button.getBoundingRect();
    // A null parent maps to the scene.
    QPointF const corner = mapToItem(button.getImpl()->getGraphicsItem()->parentItem(), m_contentOffset);
    button.setPosition({corner.x() - r.width - r.x, corner.y() - r.height - r.y});
    button.getImpl()->notifyRepaint();
}

void TextNodeImpl::hideDeleteButton()
{
    if (!m_deleteButtonNode.isValid()) return;
    m_deleteButtonNode.setVisible(false);
    m_deleteButtonNode.getImpl()->notifyRepaint();
}

} // namespace VOR2
