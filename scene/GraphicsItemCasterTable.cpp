#include "scene/GraphicsItemCasterTable.h"

#include <QGraphicsItem>

namespace VOR2 {

GraphicsItemCasterTable &GraphicsItemCasterTable::instance()
{
    static GraphicsItemCasterTable table;
    return table;
}

void GraphicsItemCasterTable::registerCaster(int type, Caster caster)
{
    size_t index = size_t(type - QGraphicsItem::UserType);
    if (type < QGraphicsItem::UserType) return;
    if (index >= m_casters.size()) m_casters.resize(index + 1, nullptr);
    if (!m_casters[index]) m_casters[index] = caster;
}

NodeImpl *GraphicsItemCasterTable::cast(QGraphicsItem const *item) const
{
    if (!item) return nullptr;
    int type = item->type();
    if (type < QGraphicsItem::UserType) return nullptr;
    size_t index = size_t(type - QGraphicsItem::UserType);
    if (index >= m_casters.size() || !m_casters[index]) return nullptr;
    return m_casters[index](const_cast<QGraphicsItem *>(item));
}

} // namespace VOR2
