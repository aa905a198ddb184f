#include "scene/RenderViewScope.h"

#include <GlobalViewerInfo>

namespace VOR2 {

namespace {
char const RENDER_VIEW_KEY = 0; // its address is the key
} // namespace

RenderViewScope::RenderViewScope(double scale)
    : m_previousKey(GlobalViewerInfo::instance()->getKey()),
      m_previousScale(GlobalViewerInfo::instance()->getViewerScale())
{
    GlobalViewerInfo::instance()->setCurrentView(&RENDER_VIEW_KEY, scale);
}

RenderViewScope::~RenderViewScope()
{
    GlobalViewerInfo::instance()->setCurrentView(m_previousKey, m_previousScale);
}

} // namespace VOR2
