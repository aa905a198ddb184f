#pragma once
// NodeEffectsImpl: the list behind NodeEffects, made by its node on first
// demand and shared, counted, with every handle. The operations
// are NodeEffects'; the rest is what the node calls:
//   draw()                         after the node painted its content,
//   computeEffectsMaximumBounds()  to widen the node's bounds,
//   reachBound()                   to widen the node's index extent,
//   onNodeInvalidated()            when the node dies.
// Every change sets boundsDirty and reports a geometry change of the node
// alone (its bounds and index entry are renewed, its old and new area
// repainted).
//
// Change notifications: the first binding of an effect registers the list
// with it (Effect::BoundLists), and the list stays registered until its
// node dies, also after the binding is removed: a removed effect that
// lives on still repaints the node, deliberately. A registration instead
// of a signal connection per list keeps an effect shared by many nodes
// cheap to bind and to unbind. Host thread only.

#include <Effect>

#include "GLOX/ReferencedTemplate.h"
#include "effects/EffectBoundLists.h"

#include <memory>

#include <vector>

namespace VOR2 {

class NodeImpl;

// Lets NodeEffects and the node hold the list through one counted pointer.
class NodeEffectsImplBase : public GLOX::ReferencedTemplate<unsigned int> {
public:
    ~NodeEffectsImplBase() override = default;
};

class NodeEffectsImpl : public NodeEffectsImplBase {
public:
    // One binding: the list holds a count on the effect while it lasts.
    struct NodeBoundEffect {
        GLOX::StringID effectID;
        double reserved = -1.0;
        Effect *effect = nullptr;
        int enabled = 1;
    };

    explicit NodeEffectsImpl(NodeImpl *node);
    ~NodeEffectsImpl() override;

    void add(Effect *effect);
    void add(Effect *effect, GLOX::StringID const &id);
    bool remove(GLOX::StringID const &id);
    bool remove(Effect const *effect);
    bool enable(GLOX::StringID const &id) { return setEnabled(id, true); }
    bool enable(Effect const *effect) { return setEnabled(effect, true); }
    bool disable(GLOX::StringID const &id) { return setEnabled(id, false); }
    bool disable(Effect const *effect) { return setEnabled(effect, false); }
    void enableAll() { setAllEnabled(true); }
    void disableAll() { setAllEnabled(false); }
    Effect *get(GLOX::StringID const &id) const;
    void clear();
    bool isIntensiveProcess() const { return m_intensiveProcessing; }

    bool hasEffects() const { return !m_effects.empty(); }
    std::vector<NodeBoundEffect *> const &bindings() const { return m_effects; }
    // Paints every enabled binding whose effect has an opacity above 0, in
    // order, with the painter's origin moved to the top-left of the node's
    // bounds at the option's level of detail. Throws when the node is gone.
    void draw(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget);
    // `bounds` united with what every binding, enabled or not, covers.
    Bounds computeEffectsMaximumBounds(Bounds const &bounds, double levelOfDetail);
    // The largest reach of any binding, enabled or not, part by part.
    LodReach reachBound() const;
    void checkValidNodeReference() const;
    // The node is dying: releases every binding and forgets the node.
    void onNodeInvalidated();

    bool boundsDirty() const { return m_boundsDirty; }
    Bounds const &cachedBounds() const { return m_cachedBounds; }

    // A registered effect changed: the node is repainted and its bounds
    // renewed.
    void onEffectPropertyChanged(GLUV::Packet packet);
    // Whether `effect` tells this list of its changes.
    bool hears(Effect const *effect) const;

protected:
    void repaintNode();
    void updateIntensiveProcessingFlag();

private:
    bool setEnabled(GLOX::StringID const &id, bool on);
    bool setEnabled(Effect const *effect, bool on);
    void setAllEnabled(bool on);
    NodeBoundEffect *find(GLOX::StringID const &id) const;
    std::vector<NodeBoundEffect *> bindingsOf(Effect const *effect) const;
    static void release(NodeBoundEffect *binding);
    void listenTo(Effect *effect);
    void stopListening();

    bool m_boundsDirty = true;
    Bounds m_cachedBounds;
    bool m_intensiveProcessing = false;
    NodeImpl *m_node;
    std::vector<NodeBoundEffect *> m_effects;
    // Its registrations with effects: the first in place (one effect is
    // the usual case), the rest on the heap.
    EffectRegistration m_firstRegistration;
    std::vector<std::unique_ptr<EffectRegistration>> m_moreRegistrations;
};

// Throw VOR2_InvalidEffectHandle for a null effect, VOR2_InvalidEffectID
// for an empty id.
void checkEffectHandle(Effect const *effect);
void checkEffectID(GLOX::StringID const &id);

} // namespace VOR2
