#pragma once
// Effect::BoundLists: the node effect lists that hear of an effect's
// changes, as an intrusive doubly linked list of registrations, so that an
// effect shared by a hundred thousand nodes registers and forgets each list
// in constant time without hashing. A registration belongs to its list
// (NodeEffectsImpl), which makes it at the first binding of the effect and
// drops it when its node dies; an effect that dies first unlinks them all.
// Host thread only.

#include <Effect>

namespace VOR2 {

class NodeEffectsImpl;

struct EffectRegistration {
    Effect *effect = nullptr; // null: not linked
    NodeEffectsImpl *list = nullptr;
    EffectRegistration *prev = nullptr;
    EffectRegistration *next = nullptr;
};

struct Effect::BoundLists {
    EffectRegistration *head = nullptr;

    void link(EffectRegistration *r, Effect *effect)
    {
        r->effect = effect;
        r->prev = nullptr;
        r->next = head;
        if (head) head->prev = r;
        head = r;
    }
    void unlink(EffectRegistration *r)
    {
        (r->prev ? r->prev->next : head) = r->next;
        if (r->next) r->next->prev = r->prev;
        r->effect = nullptr;
        r->prev = r->next = nullptr;
    }
};

} // namespace VOR2
