#include <LayerStack>
#include <Scene>

namespace VOR2 {

namespace {
ScenePrivate const *sceneOf(Layer const *layer)
{
    return layer->getScene() ? layer->getScene()->getPrivate() : nullptr;
}
} // namespace

LayerStack::~LayerStack() { removeAllLayers(); }

GLOX::StringID const &LayerStack::baseLayerId()
{
    static GLOX::StringID const id("BaseLayer");
    return id;
}

Layer *LayerStack::getLayer(int index) const
{
    return index >= 0 && index < m_layers.size() ? m_layers[index].get() : nullptr;
}

Layer *LayerStack::getLayer(GLOX::StringID const &tag) const
{
    for (GLOX::Holder<Layer> const &layer : m_layers)
        if (layer->getTag() == tag) return layer.get();
    return nullptr;
}

// A stack holds a handful of layers: a walk is quicker than a table, and a
// scene shown on several canvases finds each canvas's own layer.
Layer *LayerStack::getLayer(ScenePrivate const *scene) const
{
    if (!scene) return nullptr;
    for (GLOX::Holder<Layer> const &layer : m_layers)
        if (sceneOf(layer.get()) == scene) return layer.get();
    return nullptr;
}

void LayerStack::insertLayer(int index, GLOX::Holder<Layer> const &layer)
{
    index = std::max(0, std::min(index, int(m_layers.size())));
    m_layers.insert(index, layer);
    renumberFrom(index);
    layerAdded.sendWith(GLUV::SendBlocking, index);
}

void LayerStack::removeLayer(int index)
{
    if (index < 0 || index >= m_layers.size()) return;
    layerRemoved.sendWith(GLUV::SendBlocking, index);
    m_layers.removeAt(index);
    renumberFrom(index);
}

void LayerStack::removeAllLayers()
{
    for (int i = m_layers.size() - 1; i >= 0; --i) removeLayer(i);
}

void LayerStack::renumberFrom(int index)
{
    for (int i = index; i < m_layers.size(); ++i) m_layers[i]->m_zValue = i;
}

} // namespace VOR2
