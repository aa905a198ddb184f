#include <Layer>
#include <Scene>

namespace VOR2 {

Layer::Layer(Scene *scene, GLOX::StringID const &tag) : m_scene(scene), m_tag(tag)
{
    if (m_scene) m_scene->ref();
}

Layer::~Layer()
{
    if (m_scene) m_scene->unref();
}

} // namespace VOR2
