// The demo's tour: builds a small diagram, works its tree, z-order, tags
// and queries, and prints what it did. Rectangles are printed in scene
// coordinates.

#include "DemoTour.h"

#include <VOR2>

#include <cstdio>
#include <string>

using namespace VOR2;

namespace demo {

namespace {
std::string describe(Node const &n)
{
    if (!n.isValid()) return "(none)";
    GLOX::GLRect<double> r = n.mapLocalToScene(n.getBounds()).boundingRect();
    std::string tags;
    for (GLOX::StringID const &t : n.getTags()) tags += (tags.empty() ? "" : ",") + t.str();
    char text[160];
    std::snprintf(text, sizeof text, "%s [%g %g %g %g] z=%g tags={%s}", n.getFullyQualifiedTcosTypeName(), r.x,
                  r.y, r.width, r.height, n.getZValue(), tags.c_str());
    return text;
}

void list(char const *title, GLOX::GList<Node> const &nodes)
{
    std::printf("%s: %d node(s)\n", title, int(nodes.size()));
    for (Node const &n : nodes) std::printf("    %s\n", describe(n).c_str());
}

RectNode box(double x, double y, double w, double h, GLOX::Color fill, char const *tag)
{
    RectNode n(GLOX::GLRect<double>(x, y, w, h));
    n.setFill(Fill(fill));
    n.addTag(tag);
    return n;
}
} // namespace

void runTour()
{
    std::printf("VOR2 demo: a diagram of boxes\n\n");

    GLOX::Holder<Scene> scene = Scene::createScene();
    scene->setBackground(Background(GLOX::Color(1, 1, 1)));

    // Three top-level boxes, each with two children.
    GLOX::GList<Node> groups;
    for (int g = 0; g < 3; ++g) {
        RectNode group = box(0, 0, 100, 100, GLOX::Color(0.8, 0.8, 1.0), "group");
        group.setPosition({g * 120.0, 0});
        scene->addNode(group);
        for (int c = 0; c < 2; ++c) {
            RectNode child = box(10 + c * 45.0, 10, 35, 35, GLOX::Color(1.0, 0.6, 0.2), c ? "port" : "label");
            child.setParent(group);
        }
        groups.append(group);
    }
    list("Top-level nodes after building", scene->getTopLevelNodes());
    std::printf("All nodes: %d; nodes alive: %d\n\n", int(scene->getAllNodes().size()),
                Diagnostics::intValue("Node:Node instance count"));

    // Z-order: raise the first group above the others, then sink the last.
    groups[0].toTop();
    groups[2].toBottom();
    std::printf("After toTop(first) and toBottom(last):\n");
    for (Node const &g : groups) std::printf("    %s\n", describe(g).c_str());

    // Overlap two groups and ask what lies where.
    groups[1].setPosition({60, 20});
    std::printf("\nSecond group moved to (60, 20).\n");
    std::printf("Node at (80, 40): %s\n", describe(scene->getNodeAt({80, 40})).c_str());
    list("Nodes at (80, 40), topmost first", scene->getNodesAtScenePos({80, 40}));
    list("Nodes wholly inside (0, 0, 110, 110)", scene->getNodesWithinRect({0, 0, 110, 110}));

    // Tags: a scene search finds descendants, never top-level nodes.
    list("\nNodes tagged 'port'", scene->getNodesWithTag("port"));
    list("Nodes tagged 'group' (top-level only, so none)", scene->getNodesWithTag("group"));

    // Reparent a port into another group, then remove a whole group.
    Node port = groups[2].getChildrenWithTag("port").first();
    port.setParent(groups[0]);
    std::printf("\nMoved a port into the first group: it now has %d children.\n",
                int(groups[0].getChildren().size()));
    Node removed = scene->removeNode(groups[1]);
    std::printf("Removed the second group: the scene holds %d nodes; the removed group keeps %d children.\n",
                int(scene->getAllNodes().size()), int(removed.getChildren().size()));

    // Errors are values of the catalogue, and nothing changes on a refusal.
    try {
        groups[0].setParent(port);
    } catch (Error const &e) {
        std::printf("\nRefused: %s (%s)\n", e.text().c_str(), e.catalogueId().c_str());
    }

    groups.clear();
    port = Node();
    removed = Node();
    scene.reset();
    std::printf("\nScene destroyed; nodes alive: %d\n", Diagnostics::intValue("Node:Node instance count"));
}

} // namespace demo
