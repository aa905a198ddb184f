// VOR2.NodeEffects: a small object over a node's effect list (see
// binding/EffectConvert.h for its registry entry).
#include "NodeEffects"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value none() { return Value(); }

NodeEffects listOf(Self &s) { return nodeEffectsOf(s.binding()); }

// A method with one overload by id (a char row) and one by effect, each
// answering whether a binding matched.
void byIdOrEffect(ClassBuilder &c, bool (NodeEffects::*byId)(GLOX::StringID const &),
                  bool (NodeEffects::*byEffect)(Effect const *))
{
    c.overload("id", 1,
               [byId](Self &s, Args const &a) {
                   auto id = toStringID(a[0]);
                   NodeEffects list = listOf(s);
                   return Value::logical((list.*byId)(id));
               })
        .overload("effect", 1, [byEffect](Self &s, Args const &a) {
            Effect *effect = toEffect(a[0]);
            NodeEffects list = listOf(s);
            return Value::logical((list.*byEffect)(effect));
        });
}

ClassInfo cosNodeEffects()
{
    ClassBuilder c("VOR2.NodeEffects", ClassKind::Custom, "",
                   "The effects a node paints on top of itself, in the order they were added: node.Effects. Each "
                   "binding has an id (a char row), an effect and its own enabled flag. Once the node is gone "
                   "every method fails with VOR2:EffectReferencesInvalidNode.");
    c.method("add", "Binds an effect to the node under its own id (getEffectType) or under the given id. An id "
                    "that holds another effect gets the new one, painted last.")
        .overload("effect", 1,
                  [](Self &s, Args const &a) {
                      Effect *effect = toEffect(a[0]);
                      listOf(s).add(effect);
                      return none();
                  })
        .overload("effect, id", 2, [](Self &s, Args const &a) {
            Effect *effect = toEffect(a[0]);
            auto id = toStringID(a[1]);
            listOf(s).add(effect, id);
            return none();
        });
    c.method("remove", "Removes the first binding of the id, or every binding of the effect; true when one was "
                       "removed.");
    byIdOrEffect(c, &NodeEffects::remove, &NodeEffects::remove);
    c.method("enable", "Enables the first binding of the id, or every binding of the effect; true when one "
                       "matched.");
    byIdOrEffect(c, &NodeEffects::enable, &NodeEffects::enable);
    c.method("disable", "Disables the first binding of the id, or every binding of the effect, without removing "
                        "it; true when one matched.");
    byIdOrEffect(c, &NodeEffects::disable, &NodeEffects::disable);
    c.method("enableAll", "Enables every binding.").overload("", 0, [](Self &s, Args const &) {
        listOf(s).enableAll();
        return none();
    });
    c.method("disableAll", "Disables every binding.").overload("", 0, [](Self &s, Args const &) {
        listOf(s).disableAll();
        return none();
    });
    c.method("get", "The effect of the first binding of the id, of its own class, or empty.")
        .overload("id", 1, [](Self &s, Args const &a) {
            auto id = toStringID(a[0]);
            return fromEffect(listOf(s).get(id));
        });
    c.method("clear", "Removes every binding.").overload("", 0, [](Self &s, Args const &) {
        listOf(s).clear();
        return none();
    });
    return c.build();
}

ClassRegistration registration("VOR2.NodeEffects", &cosNodeEffects);

} // namespace

} // namespace VOR2::script
