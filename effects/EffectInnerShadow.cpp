#include <EffectInnerShadow>

#include "effects/GlowImage.h"

#include <QImage>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

EffectInnerShadow::EffectInnerShadow() { setInnerEffect(true); }

void EffectInnerShadow::renderEffectGeneric(NodeImpl *node, QPainter *painter,
                                            QStyleOptionGraphicsItem const *option, QWidget *)
{
    double const lod = option->levelOfDetail;
    if (!(lod > 0.0)) return;
    // Lit from the top left by the spread itself: the distance is not used.
    int const radius = glowBlurRadius(getScaledSpread(lod), lod);
    auto scratch = [](QSize size) -> QImage & { return getScratchBuffer({size.width(), size.height()}, false); };
    paintInnerBand(node, *painter, *option, scratch, radius, radius, getColor());
}

Bounds EffectInnerShadow::computeBounds(Bounds const &bounds, double) { return bounds; }

LodReach EffectInnerShadow::reachBound() const { return LodReach(); }

GLOX::StringID EffectInnerShadow::getEffectID() const
{
    static GLOX::StringID const id("InnerShadow");
    return id;
}

char const *EffectInnerShadow::getFullyQualifiedTcosTypeName() const { return "VOR2.EffectInnerShadow"; }

} // namespace VOR2
