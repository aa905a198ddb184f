#include <LayerStack>
#include <Scene>

#include "GLOX/Containers.h"

namespace VOR2 {

namespace {
struct LayerEntry {
    Layer *layer = nullptr;
    int index = -1;
};

// Scene to layer, shared by every stack, so that a renderer finds the layer
// of a scene at once. A scene shown twice answers its latest entry.
GLOX::GHash<ScenePrivate const *, LayerEntry> &layersByScene()
{
    static GLOX::GHash<ScenePrivate const *, LayerEntry> table;
    return table;
}

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

Layer *LayerStack::getLayer(ScenePrivate const *scene) const { return layersByScene().value(scene).layer; }

void LayerStack::insertLayer(int index, GLOX::Holder<Layer> const &layer)
{
    index = std::max(0, std::min(index, int(m_layers.size())));
    m_layers.insert(index, layer);
    if (ScenePrivate const *scene = sceneOf(layer.get())) layersByScene().insert(scene, {layer.get(), index});
    renumberFrom(index);
    layerAdded.sendWith(GLUV::SendBlocking, index);
}

void LayerStack::removeLayer(int index)
{
    if (index < 0 || index >= m_layers.size()) return;
    layerRemoved.sendWith(GLUV::SendBlocking, index);
    Layer *layer = m_layers[index].get();
    ScenePrivate const *scene = sceneOf(layer);
    if (scene && layersByScene().value(scene).layer == layer) layersByScene().remove(scene);
    m_layers.removeAt(index);
    renumberFrom(index);
}

void LayerStack::removeAllLayers()
{
    for (int i = m_layers.size() - 1; i >= 0; --i) removeLayer(i);
}

void LayerStack::renumberFrom(int index)
{
    for (int i = index; i < m_layers.size(); ++i) {
        m_layers[i]->m_zValue = i;
        if (ScenePrivate const *scene = sceneOf(m_layers[i].get())) {
            auto it = layersByScene().find(scene);
            if (it != layersByScene().end() && it->layer == m_layers[i].get()) it->index = i;
        }
    }
}

} // namespace VOR2
