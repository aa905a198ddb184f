#pragma once
// GLOX::Wrappable: the base of library objects that a script host may hold
// without owning them (a viewer, a canvas). The host keeps a table from such
// objects to its script values; an object that dies first tells the table
// through the process-wide retract hook, so that the script values left
// refer to nothing and fail cleanly on their next use instead of reaching a
// dead object.
//
// The host installs the hook once (the script binding's registry does); with
// none installed, dying tells nobody. The script side also says when the
// first script value of an object appears and when the last one goes, so an
// object whose life the script decides can end with it.
//
// Host thread only.

namespace GLOX {

class Wrappable {
public:
    using RetractHook = void (*)(Wrappable const *);

    Wrappable() = default;
    Wrappable(Wrappable const &) = delete;
    Wrappable &operator=(Wrappable const &) = delete;
    // Calls the retract hook with this object, if one is installed.
    virtual ~Wrappable();

    // Installs the hook every dying Wrappable calls (null removes it).
    static void setRetractHook(RetractHook hook);

    // Called by the script side: the object now has script values. Default:
    // nothing.
    virtual void scriptAttached() {}
    // Called by the script side once its last script value of the object is
    // gone and it holds nothing of it any more; the object may delete itself
    // here. Default: nothing (whoever made the object owns it).
    virtual void scriptDetached() {}
};

} // namespace GLOX
