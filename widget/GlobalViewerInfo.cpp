#include <GlobalViewerInfo>

namespace VOR2 {

GlobalViewerInfo *GlobalViewerInfo::instance()
{
    static GlobalViewerInfo info;
    return &info;
}

} // namespace VOR2
