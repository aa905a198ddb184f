#include "binding/Package.h"

#include "binding/ScriptError.h"

#include <map>
#include <memory>

namespace VOR2::script {

namespace {

// The package's classes in registration order. VOR2.NodeHitTestFunctor is
// published but not registered with the package's list; it comes last.
char const *const ORDER[] = {
    "VOR2.Viewer", "VOR2.Diagnostics", "VOR2.DiagnosticsWindow", "VOR2.Scene", "VOR2.Canvas", "VOR2.Node",
    "VOR2.Fill", "VOR2.Cursor", "VOR2.Stroke", "VOR2.DrawStyle", "VOR2.Background", "VOR2.ContainerNode",
    "VOR2.CompositeNode", "VOR2.RectNode", "VOR2.ShapeNode", "VOR2.LineNode", "VOR2.Gradient",
    "VOR2.NodeEffects", "VOR2.Effect", "VOR2.EffectGlow", "VOR2.EffectInnerGlow", "VOR2.EffectShadow",
    "VOR2.EffectInnerShadow", "VOR2.EffectColorOverlay", "VOR2.EffectStroke", "VOR2.RoundedRectNode",
    "VOR2.TextNode", "VOR2.LineEndDecoration", "VOR2.TestDriver", "VOR2.ImageNode", "VOR2.EllipseNode",
    "VOR2.Ellipse", "VOR2.Shape", "VOR2.LinearPathNode", "VOR2.CurvedPathNode", "VOR2.OpenLinearPathNode",
    "VOR2.OpenCurvedPathNode", "VOR2.ClosedLinearPathNodes", "VOR2.ClosedCurvedPathNode", "VOR2.Vertex",
    "VOR2.Font", "VOR2.Behavior", "VOR2.ResizeBehavior", "VOR2.WeakRef", "VOR2.CustomNode",
    "VOR2.NodeHitTestFunctor",
};

struct Slot {
    ClassRoutine routine = nullptr;
    std::unique_ptr<ClassInfo> built;
};

std::map<std::string, Slot> &slots()
{
    static std::map<std::string, Slot> s;
    return s;
}

} // namespace

ClassRegistration::ClassRegistration(char const *name, ClassRoutine routine) { slots()[name].routine = routine; }

std::vector<std::string> packageClassNames()
{
    std::vector<std::string> names;
    for (char const *name : ORDER) {
        auto it = slots().find(name);
        if (it != slots().end() && it->second.routine) names.push_back(name);
    }
    return names;
}

ClassInfo const &classInfo(std::string const &name)
{
    auto it = slots().find(name);
    if (it == slots().end() || !it->second.routine)
        raise("VOR2:UnknownClass", "The package VOR2 has no class " + name);
    Slot &slot = it->second;
    if (!slot.built) slot.built = std::make_unique<ClassInfo>(slot.routine());
    return *slot.built;
}

PropertyInfo const *findProperty(std::string const &name, std::string const &member)
{
    for (std::string cls = name; !cls.empty();) {
        ClassInfo const &info = classInfo(cls);
        if (PropertyInfo const *p = info.findProperty(member)) return p;
        cls = info.superclass;
    }
    return nullptr;
}

MethodInfo const *findMethod(std::string const &name, std::string const &member)
{
    for (std::string cls = name; !cls.empty();) {
        ClassInfo const &info = classInfo(cls);
        if (MethodInfo const *m = info.findMethod(member)) return m;
        cls = info.superclass;
    }
    return nullptr;
}

} // namespace VOR2::script
