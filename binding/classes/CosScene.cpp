// VOR2.Scene: the counted scene.
#include "Scene"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value announceScene(Scene *scene) { return BindingRegistry::instance().announceReferenced(scene, "VOR2.Scene"); }

ClassInfo cosScene()
{
    ClassBuilder c("VOR2.Scene", ClassKind::ReferencedHandle, "",
                   "A scene of nodes. VOR2.Scene() makes an empty one.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<Scene> scene = Scene::createScene();
        return announceScene(scene.get());
    });
    c.method("addNode", "Adds a node to the scene at the top level; returns the node.")
        .overload("node", 1, [](Self &s, Args const &a) {
            Node n = toNode(a[0]);
            return fromNode(s.object<Scene>()->addNode(n));
        });
    c.method("removeNode", "Removes a node from the scene; returns the node.")
        .overload("node", 1, [](Self &s, Args const &a) {
            Node n = toNode(a[0]);
            return fromNode(s.object<Scene>()->removeNode(n));
        });
    c.method("nodes", "Every node of the scene, a cell of nodes.", "getAllNodes")
        .overload("", 0, [](Self &s, Args const &) { return fromNodes(s.object<Scene>()->getAllNodes()); });
    c.method("topLevelNodes", "The scene's top-level nodes, a cell of nodes.", "getTopLevelNodes")
        .overload("", 0, [](Self &s, Args const &) { return fromNodes(s.object<Scene>()->getTopLevelNodes()); });
    return c.build();
}

ClassRegistration registration("VOR2.Scene", &cosScene);

} // namespace

} // namespace VOR2::script
