#include <GLCanvas>
#include <Viewer>

#include "GLOX/GLWindow2.h"
#include "GLServices/EventManagement.h"
#include "GLServices/GLService.h"

#include <algorithm>
#include <string>

namespace VOR2 {

namespace {
std::vector<Viewer *> &openSet()
{
    static std::vector<Viewer *> open;
    return open;
}

void leaveOpenSet(Viewer *viewer)
{
    auto &open = openSet();
    open.erase(std::remove(open.begin(), open.end(), viewer), open.end());
}

// Viewers whose end has been posted and not yet run; one that dies before
// is taken out, so the posted end finds nothing to do.
std::vector<Viewer *> &endingSet()
{
    static std::vector<Viewer *> ending;
    return ending;
}

GLOX::StringID nextWindowId()
{
    static unsigned counter = 0;
    return GLOX::StringID("VOR2.Viewer." + std::to_string(++counter));
}
} // namespace

Viewer::Viewer() = default;

Viewer::Viewer(Scene *scene)
{
    if (scene) getCanvas()->setScene(scene);
}

Viewer::~Viewer()
{
    disconnectAll();
    leaveOpenSet(this);
    auto &ending = endingSet();
    ending.erase(std::remove(ending.begin(), ending.end(), this), ending.end());
    // The canvas's widget sits in the window's: the canvas goes first, so
    // it ends its own widget.
    if (m_canvas) m_canvas->destroy();
    m_canvas = nullptr;
    m_window.reset();
}

GLCanvas *Viewer::getCanvas()
{
    if (!m_canvas) m_canvas = new GLCanvas(GLOX::StringID("VOR2.Viewer.canvas"));
    return m_canvas;
}

Scene *Viewer::getScene() const { return m_canvas ? m_canvas->getScene() : nullptr; }

void Viewer::setScene(Scene *scene)
{
    if (scene == getScene()) return;
    getCanvas()->setScene(scene);
}

void Viewer::show() { showAt(GLOX::GLRect<double>(200, 200, 400, 400)); }

void Viewer::showAt(GLOX::GLRect<double> const &rect)
{
    if (!m_window) {
        m_window = std::make_unique<GLOX::GLWindow2>(nextWindowId());
        m_window->setTitle("VOR2");
        m_window->addWidget(getCanvas());
        m_window->getCloseEmitter().connect(this, &Viewer::onCloseEvent);
    }
    m_window->setPosition(int(rect.x), int(rect.y), int(rect.width), int(rect.height));
    if (!m_window->isVisible()) {
        m_window->show();
        auto &open = openSet();
        if (std::find(open.begin(), open.end(), this) == open.end()) open.push_back(this);
    }
}

void Viewer::hide()
{
    if (m_window) m_window->hide();
}

void Viewer::close() { onClose(); }

bool Viewer::isOpen() const
{
    auto const &open = openSet();
    return std::find(open.begin(), open.end(), this) != open.end();
}

bool Viewer::isVisible() const { return m_window && m_window->isVisible(); }

void Viewer::onClose()
{
    if (m_window && m_window->isVisible()) m_window->hide();
    leaveOpenSet(this);
    endIfUnheld();
}

void Viewer::onCloseEvent() { onClose(); }

void Viewer::closeOpenViewers()
{
    // Each close changes the set: walk a copy.
    std::vector<Viewer *> const open = openSet();
    for (Viewer *viewer : open) viewer->onClose();
}

std::vector<Viewer *> Viewer::openViewers() { return openSet(); }

bool Viewer::isCppManagingLifespan() const { return !m_scriptOwned || isOpen(); }

void Viewer::adoptByScript() { m_scriptOwned = true; }

void Viewer::scriptAttached() { m_scriptHeld = true; }

void Viewer::scriptDetached()
{
    m_scriptHeld = false;
    endIfUnheld();
}

void Viewer::endIfUnheld()
{
    if (m_scriptHeld || isCppManagingLifespan()) return;
    auto &ending = endingSet();
    if (std::find(ending.begin(), ending.end(), this) != ending.end()) return;
    // Not at once: this may run inside the viewer's own close delivery or
    // the registry's release.
    auto *events = GLServices::GLService<GLServices::EventManagement>::get();
    if (!events) {
        delete this;
        return;
    }
    ending.push_back(this);
    events->postCallback(events->createCallback([viewer = this] {
        auto &pending = endingSet();
        auto it = std::find(pending.begin(), pending.end(), viewer);
        if (it == pending.end()) return;
        pending.erase(it);
        if (!viewer->m_scriptHeld && !viewer->isCppManagingLifespan()) delete viewer;
    }));
}

} // namespace VOR2
