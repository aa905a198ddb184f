#include "GLOX/GLWindow2.h"

#include "GLBridge/Bridge.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace GLOX {

namespace {
// GUI thread: the native window. It tells the host side of every close that
// went through, and ends with the GUI thread's application when that quits
// first (widgets must not outlive it).
class WindowWidget : public QWidget {
public:
    explicit WindowWidget(GLUV::Emitter<void (*)()> *closed) : m_closed(closed)
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        if (QCoreApplication *app = QCoreApplication::instance())
            connect(app, &QCoreApplication::aboutToQuit, this, [this] { delete this; });
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        QWidget::closeEvent(event);
        if (event->isAccepted()) m_closed->send();
    }

private:
    GLUV::Emitter<void (*)()> *m_closed;
};
} // namespace

template <typename F>
void GLWindow2::onGui(F fn)
{
    QPointer<QWidget> widget = m_widget;
    if (widget.isNull()) return;
    // The widget is read on the GUI thread, where it may have gone already.
    GLBridge::getBridge("qt")->runOnGui([widget, fn] {
        if (!widget.isNull()) fn(widget.data());
    }, true);
}

GLWindow2::GLWindow2(StringID const &id, GLObject *parent) : GLWidget2(id, parent)
{
    // Before anybody else connects: the window knows it is hidden before
    // its other listeners hear of the close.
    m_closed.connect(this, [this] { m_visible = false; });
    GLBridge::Bridge *bridge = GLBridge::getBridge("qt");
    if (!bridge || !bridge->isRunning()) return;
    GLUV::Emitter<void (*)()> *closed = &m_closed;
    bridge->runOnGui([this, closed] {
        m_widget = new WindowWidget(closed);
        registerGui(this, m_widget.data());
    }, true);
}

GLWindow2::~GLWindow2()
{
    disconnectAll();
    // The widget goes before the emitter its close events send on.
    QPointer<QWidget> widget = m_widget;
    if (!widget.isNull()) GLBridge::getBridge("qt")->runOnGui([widget] { delete widget.data(); }, true);
}

void GLWindow2::addWidget(GLWidget2 *child)
{
    onGui([child](QWidget *window) {
        auto *widget = qobject_cast<QWidget *>(lookup(child));
        if (!widget || widget->parentWidget() == window) return;
        QLayout *layout = window->layout();
        while (QLayoutItem *item = layout->takeAt(0)) {
            if (QWidget *old = item->widget()) old->hide();
            delete item;
        }
        widget->setParent(window);
        layout->addWidget(widget);
        widget->show();
    });
}

void GLWindow2::setPosition(int x, int y, int width, int height)
{
    onGui([=](QWidget *window) { window->setGeometry(x, y, width, height); });
}

void GLWindow2::setTitle(std::string const &title)
{
    onGui([title](QWidget *window) { window->setWindowTitle(QString::fromStdString(title)); });
}

void GLWindow2::show()
{
    m_visible = true;
    onGui([](QWidget *window) {
        window->show();
        window->raise();
    });
}

void GLWindow2::hide()
{
    m_visible = false;
    onGui([](QWidget *window) { window->hide(); });
}

} // namespace GLOX
