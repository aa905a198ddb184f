#pragma once
// RenderViewScope: a render outside the live views is a view of its own.
// While the scope lasts, GlobalViewerInfo names the one key of such renders
// at the render's scale, so that per-view node caches filled during it
// (bounds, offscreen images) never mix with a live view's; node caches
// notice a change of scale under a key by themselves. On leaving, the
// previous view comes back. Host thread.

namespace VOR2 {

class RenderViewScope {
public:
    explicit RenderViewScope(double scale);
    ~RenderViewScope();
    RenderViewScope(RenderViewScope const &) = delete;
    RenderViewScope &operator=(RenderViewScope const &) = delete;

private:
    void const *m_previousKey;
    double m_previousScale;
};

} // namespace VOR2
