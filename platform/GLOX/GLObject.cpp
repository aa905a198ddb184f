#include "GLOX/GLObject.h"

#include <QObject>
#include <QPointer>

#include <algorithm>
#include <mutex>
#include <unordered_map>

namespace GLOX {

namespace {
struct GuiTable {
    std::mutex mutex;
    std::unordered_map<GLObject const *, QPointer<QObject>> objects;
};

GuiTable &guiTable()
{
    static GuiTable *table = new GuiTable; // lives as long as any widget may
    return *table;
}
} // namespace

GLObject::GLObject(StringID const &id, GLObject *parent) : m_id(id), m_parent(parent)
{
    if (m_parent) m_parent->m_children.push_back(this);
}

GLObject::~GLObject()
{
    for (GLObject *child : m_children) child->m_parent = nullptr;
    if (m_parent) {
        auto &siblings = m_parent->m_children;
        siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
    }
    registerGui(this, nullptr);
}

void registerGui(GLObject const *object, QObject *gui)
{
    GuiTable &table = guiTable();
    std::lock_guard<std::mutex> lock(table.mutex);
    if (gui)
        table.objects[object] = gui;
    else
        table.objects.erase(object);
}

QObject *lookup(GLObject const *object)
{
    if (!object) return nullptr;
    GuiTable &table = guiTable();
    std::lock_guard<std::mutex> lock(table.mutex);
    auto it = table.objects.find(object);
    return it == table.objects.end() ? nullptr : it->second.data();
}

} // namespace GLOX
