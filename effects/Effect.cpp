#include <Effect>

#include "effects/EffectBoundLists.h"
#include "effects/NodeEffectsImpl.h"
#include "scene/NodeImpl.h"

#include <vector>

namespace VOR2 {

Effect::Effect() : m_boundLists(std::make_unique<BoundLists>()) {}

Effect::~Effect()
{
    while (EffectRegistration *r = m_boundLists->head) m_boundLists->unlink(r);
}

Effect::Effect(Effect const &other)
    : GLOX::ReferencedTemplate<unsigned int>(other),
      propertyChangedEmitter(other.propertyChangedEmitter.sendMode()),
      m_boundLists(std::make_unique<BoundLists>()),
      m_outlineType(other.m_outlineType),
      m_renderQuality(other.m_renderQuality),
      m_enabled(other.m_enabled),
      m_isInnerEffect(other.m_isInnerEffect),
      m_scaleFunction(other.m_scaleFunction)
{
}

Effect &Effect::operator=(Effect const &other)
{
    m_outlineType = other.m_outlineType;
    m_renderQuality = other.m_renderQuality;
    m_enabled = other.m_enabled;
    m_isInnerEffect = other.m_isInnerEffect;
    m_scaleFunction = other.m_scaleFunction;
    return *this;
}

void Effect::renderEffectGeneric(NodeImpl *, QPainter *, QStyleOptionGraphicsItem const *, QWidget *) {}

#define VOR2_TYPED_RENDER(Method, Impl)                                                                            \
    bool Effect::Method(Impl *, QPainter *, QStyleOptionGraphicsItem const *, QWidget *) { return false; }
VOR2_TYPED_RENDER(renderEffectRoundedRect, RoundedRectNodeImpl)
VOR2_TYPED_RENDER(renderEffectRect, RectNodeImpl)
VOR2_TYPED_RENDER(renderEffectLine, LineNodeImpl)
VOR2_TYPED_RENDER(renderEffectText, TextNodeImpl)
VOR2_TYPED_RENDER(renderEffectEllipse, EllipseNodeImpl)
VOR2_TYPED_RENDER(renderEffectImage, ImageNodeImpl)
VOR2_TYPED_RENDER(renderEffectCustom, CustomNodeImpl)
VOR2_TYPED_RENDER(renderEffectShape, ShapeNodeImpl)
VOR2_TYPED_RENDER(renderEffectOpenLinearPath, OpenLinearPathNodeImpl)
VOR2_TYPED_RENDER(renderEffectClosedLinearPath, ClosedLinearPathNodeImpl)
VOR2_TYPED_RENDER(renderEffectOpenCurvedPath, OpenCurvedPathNodeImpl)
VOR2_TYPED_RENDER(renderEffectClosedCurvedPath, ClosedCurvedPathNodeImpl)
VOR2_TYPED_RENDER(renderEffectComposite, CompositeNodeImpl)
#undef VOR2_TYPED_RENDER

char const *Effect::getFullyQualifiedTcosTypeName() const { return "VOR2.Effect"; }

GLOX::StringID Effect::getEffectID() const { return GLOX::StringID(); }

bool Effect::isIntensiveProcess() const { return false; }

Bounds Effect::computeBounds(Bounds const &bounds, double) { return bounds; }

LodReach Effect::reachBound() const { return LodReach(); }

double Effect::getOpacity() const { return 1.0; }

void Effect::setOpacity(double) {}

void Effect::notifyPropertyChanged()
{
    GLUV::Packet const packet = GLUV::makeNotification();
    // A list told of the change may run code that ends another list: each
    // is held while the others are told, and told only if it still hears.
    std::vector<NodeEffectsImpl *> lists;
    for (EffectRegistration *r = m_boundLists->head; r; r = r->next) {
        r->list->ref();
        lists.push_back(r->list);
    }
    for (NodeEffectsImpl *list : lists) {
        if (list->hears(this)) list->onEffectPropertyChanged(packet);
        list->unref();
    }
    propertyChangedEmitter.sendWith(GLUV::SendDirect, packet);
}

} // namespace VOR2
