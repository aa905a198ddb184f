#include "GLOX/CustomCursors.h"

#include <QPixmap>
#include <map>
#include <mutex>
#include <vector>

namespace GLOX {

namespace {

struct Entry {
    std::string name;
    QImage image;
    QPoint hot;
};

struct Register {
    std::mutex mutex;
    std::vector<Entry> entries; // shape FirstShape + i
};

Register &reg()
{
    static Register r;
    return r;
}

Entry const *entryOf(Register &r, int shape)
{
    int i = shape - CustomCursors::FirstShape;
    return i >= 0 && i < int(r.entries.size()) ? &r.entries[i] : nullptr;
}

} // namespace

Cursor CustomCursors::registerCursor(std::string const &name, std::string const &path, int hotX, int hotY)
{
    QImage image(QString::fromStdString(path));
    if (image.isNull() || name.empty()) return Cursor();
    Register &r = reg();
    std::lock_guard<std::mutex> lock(r.mutex);
    std::size_t i = 0;
    while (i < r.entries.size() && r.entries[i].name != name) ++i;
    if (i == r.entries.size()) r.entries.push_back({name, QImage(), QPoint()});
    r.entries[i].image = image;
    r.entries[i].hot = QPoint(hotX, hotY);
    return Cursor(FirstShape + int(i));
}

Cursor CustomCursors::find(std::string const &name)
{
    Register &r = reg();
    std::lock_guard<std::mutex> lock(r.mutex);
    for (std::size_t i = 0; i < r.entries.size(); ++i)
        if (r.entries[i].name == name) return Cursor(FirstShape + int(i));
    return Cursor();
}

std::string CustomCursors::name(int shape)
{
    Register &r = reg();
    std::lock_guard<std::mutex> lock(r.mutex);
    Entry const *e = entryOf(r, shape);
    return e ? e->name : std::string();
}

bool CustomCursors::contains(int shape)
{
    Register &r = reg();
    std::lock_guard<std::mutex> lock(r.mutex);
    return entryOf(r, shape) != nullptr;
}

QCursor CustomCursors::toQCursor(int shape)
{
    Register &r = reg();
    std::lock_guard<std::mutex> lock(r.mutex);
    Entry const *e = entryOf(r, shape);
    if (!e) return QCursor();
    return QCursor(QPixmap::fromImage(e->image), e->hot.x(), e->hot.y());
}

} // namespace GLOX
