#include <EffectInnerGlow>

#include "effects/GlowImage.h"

#include <QImage>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

EffectInnerGlow::EffectInnerGlow() { setInnerEffect(true); }

void EffectInnerGlow::renderEffectGeneric(NodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                          QWidget *)
{
    double const lod = option->levelOfDetail;
    if (!(lod > 0.0)) return;
    auto scratch = [](QSize size) -> QImage & { return getScratchBuffer({size.width(), size.height()}, false); };
    paintInnerBand(node, *painter, *option, scratch, glowBlurRadius(getScaledSpread(lod), lod), 0, getColor());
}

Bounds EffectInnerGlow::computeBounds(Bounds const &bounds, double) { return bounds; }

LodReach EffectInnerGlow::reachBound() const { return LodReach(); }

GLOX::StringID EffectInnerGlow::getEffectID() const
{
    static GLOX::StringID const id("InnerGlow");
    return id;
}

char const *EffectInnerGlow::getFullyQualifiedTcosTypeName() const { return "VOR2.EffectInnerGlow"; }

} // namespace VOR2
