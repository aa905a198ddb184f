#include "GLOX/ImageCompositor.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace GLOX {
namespace ImageCompositor {

namespace {
char const CUSTOM_PREFIX[] = "customsrc-";

bool isCustomKey(std::string const &text) { return text.rfind(CUSTOM_PREFIX, 0) == 0; }

// Decoded once, drawn many times: keep the image in a format Qt's raster
// engine draws without converting.
QImage drawableImage(QImage const &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}
} // namespace

std::string buildKey(std::string const &source)
{
    if (source.empty() || isCustomKey(source)) return source;
    QFileInfo info(QString::fromStdString(source));
    QString canonical = info.canonicalFilePath();
    return (canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical).toStdString();
}

// ------------------------------------------------------------------- Node

Node::Node(std::string key, QString path, QImage image)
    : m_key(std::move(key)), m_path(std::move(path)), m_image(std::move(image))
{
}

bool Node::doCreateImage()
{
    if (hasImage()) return true;
    if (!hasSource()) return false;
    QImageReader reader(m_path);
    reader.setAutoTransform(true); // photographs upright, as their viewers show them
    QImage loaded = reader.read();
    if (loaded.isNull()) {
        m_path.clear();
        return false;
    }
    m_image = drawableImage(loaded);
    return true;
}

void Node::destroy()
{
    Manager::instance().forget(this);
    delete this;
}

// ---------------------------------------------------------------- Manager

Manager &Manager::instance()
{
    static Manager *manager = new Manager;
    return *manager;
}

Holder<Node> Manager::nodeForKey(std::string const &key)
{
    auto found = m_nodes.find(key);
    // A node that has nothing to show (its file was missing or unreadable)
    // is not handed out again: the file may be there now.
    bool dead = found != m_nodes.end() && !found->second->hasImage() && !found->second->hasSource();
    if (found != m_nodes.end() && !(dead && !isCustomKey(key))) return Holder<Node>(found->second);
    QString path;
    if (!key.empty() && !isCustomKey(key)) {
        QFileInfo info(QString::fromStdString(key));
        if (info.isFile()) path = info.filePath();
    }
    Node *node = new Node(key, path, QImage());
    m_nodes[key] = node;
    return Holder<Node>(node);
}

Holder<Node> Manager::registerImage(std::string const &key, QImage const &image)
{
    Node *node = new Node(key, QString(), drawableImage(image));
    m_nodes[key] = node;
    return Holder<Node>(node);
}

void Manager::forget(Node const *node)
{
    auto found = m_nodes.find(node->key());
    if (found != m_nodes.end() && found->second == node) m_nodes.erase(found);
}

} // namespace ImageCompositor
} // namespace GLOX
