// VOR2.Viewer: the ready-made window for one scene, owned by the library.
// A viewer a script makes stays alive while its window is open, even with
// no variable left on it, and ends once it is closed; a viewer that is not
// open ends with its last variable (see include/Viewer).
#include "GLCanvas"
#include "HostRuntime"
#include "Scene"
#include "Viewer"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

#include "GLServices/HostRunLoop.h"

namespace VOR2::script {

namespace {

Value announceViewer(Viewer *viewer) { return BindingRegistry::instance().announceOwned(viewer, "VOR2.Viewer"); }

Value makeViewer(Scene *scene)
{
    auto *viewer = new Viewer(scene);
    viewer->adoptByScript();
    return announceViewer(viewer);
}

// A window just shown has no view size until the GUI thread reports it;
// wait for it (briefly), so that the canvas's view operations work at once.
void awaitView(Viewer &viewer)
{
    GLCanvas *canvas = viewer.getCanvas();
    if (!HostRuntime::isRunning() || !canvas->getWidget()) return;
    HostRuntime::loop().runUntil([canvas] { return canvas->getViewExtents().x > 0; }, std::chrono::seconds(2));
}

ClassInfo cosViewer()
{
    ClassBuilder c("VOR2.Viewer", ClassKind::HostOwned, "",
                   "A window showing one scene in its canvas. VOR2.Viewer() or VOR2.Viewer(scene). An open "
                   "viewer stays alive until it is closed, even when no variable refers to it; one that is not "
                   "open ends with its last variable.");
    c.constructor("", 0, [](Self &, Args const &) { return makeViewer(nullptr); });
    c.constructor("scene", 1, [](Self &, Args const &a) {
        Scene *scene = toObject<Scene>(a[0], "VOR2.Scene");
        return makeViewer(scene);
    });
    c.property("Canvas", "VOR2.Canvas", "The viewer's canvas: its view of the scene (scale, scrolling, margins).",
               [](Self &s) {
                   GLCanvas *canvas = s.object<Viewer>()->getCanvas();
                   return BindingRegistry::instance().announceOwned(static_cast<GLOX::Wrappable *>(canvas),
                                                                    "VOR2.Canvas");
               });
    c.property(
        "Scene", "VOR2.Scene", "The scene the viewer shows, or empty.",
        [](Self &s) {
            return BindingRegistry::instance().announceReferenced(s.object<Viewer>()->getScene(), "VOR2.Scene");
        },
        [](Self &s, Value const &v) {
            Scene *scene = toObject<Scene>(v, "VOR2.Scene");
            s.object<Viewer>()->setScene(scene);
        });
    c.method("show", "Shows the window at [200 200 400 400] on the screen (pixels), or where it is when shown "
                     "already.")
        .overload("", 0, [](Self &s, Args const &) {
            Viewer *viewer = s.object<Viewer>();
            viewer->show();
            awaitView(*viewer);
            return Value();
        });
    c.method("showAt", "Shows the window with its drawing area at [x y width height] on the screen (pixels); on "
                       "a shown window it only moves it.")
        .overload("rect", 1, [](Self &s, Args const &a) {
            auto rect = toRect(a[0]);
            Viewer *viewer = s.object<Viewer>();
            viewer->showAt(rect);
            awaitView(*viewer);
            return Value();
        });
    c.method("hide", "Hides the window; show brings it back.").overload("", 0, [](Self &s, Args const &) {
        s.object<Viewer>()->hide();
        return Value();
    });
    c.method("close", "Closes the window. A closed viewer with no variable left on it ends.")
        .overload("", 0, [](Self &s, Args const &) {
            s.object<Viewer>()->close();
            return Value();
        });
    return c.build();
}

ClassRegistration registration("VOR2.Viewer", &cosViewer);

} // namespace

} // namespace VOR2::script
