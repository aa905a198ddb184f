#pragma once
// An effect that records each paint (the node, the painter's origin and the
// option's level of detail) and grows the bounds by a fixed margin, for
// tests of the effect list and of the node's side of painting.

#include <Effect>
#include <RectNode>

#include "nodes/RectNodeImpl.h"
#include "scene/NodeImpl.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <vector>

namespace VOR2::test {

class RecordingEffect : public Effect {
public:
    struct Paint {
        NodeImpl *node;
        QPointF origin; // where the painter's origin lands, in device pixels
        double levelOfDetail;
        bool typed;     // reached through renderEffectRect
    };

    explicit RecordingEffect(char const *id = "Recording", double margin = 0.0) : m_id(id), m_margin(margin) {}

    void renderEffectGeneric(NodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                             QWidget *) override
    {
        record(node, painter, option, false);
    }
    bool renderEffectRect(RectNodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                          QWidget *) override
    {
        if (!handleRects) return false;
        record(node, painter, option, true);
        return true;
    }
    GLOX::StringID getEffectID() const override { return m_id; }
    bool isIntensiveProcess() const override { return intensive; }
    double getOpacity() const override { return opacity; }
    Bounds computeBounds(Bounds const &b, double) override
    {
        GLOX::GLRect<double> r = b.boundingRect();
        return Bounds(GLOX::GLRect<double>(r.x - m_margin, r.y - m_margin, r.width + 2 * m_margin,
                                           r.height + 2 * m_margin));
    }
    LodReach reachBound() const override { return {m_margin, 0.0}; }
    void changed() { notifyPropertyChanged(); }
    using Effect::getScratchBuffer;

    std::vector<Paint> paints;
    bool handleRects = false;
    bool intensive = false;
    double opacity = 1.0;

private:
    void record(NodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option, bool typed)
    {
        QPointF const origin = painter->worldTransform().map(QPointF(0, 0));
        paints.push_back({node, origin, option->levelOfDetail, typed});
    }

    GLOX::StringID m_id;
    double m_margin;
};

} // namespace VOR2::test
