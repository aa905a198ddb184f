#pragma once
// GLOX::ImageCompositor: a cache of raster images by key, so that every user
// of one source shares one QImage.
//
// A key names a source: the canonical absolute path of an image file, or a
// text of the client's own under which a QImage is registered (such keys
// begin with "customsrc-"). The Manager keeps one Node per key for as long
// as anyone holds it: its table is weak, and a Node leaves it when its last
// Holder goes. A file is read on first need, not when its Node is made.
//
// Threads: the host thread only. Counts are plain, the table has no lock.

#include "GLOX/Holder.h"
#include "GLOX/ReferencedTemplate.h"

#include <QImage>
#include <string>
#include <unordered_map>

namespace GLOX {
namespace ImageCompositor {

// The key of a source: "" for "", the text itself for "customsrc-..." keys,
// else the path made absolute, canonical when the file exists.
std::string buildKey(std::string const &source);

// One cached image. Counted; made by the Manager, held in Holders.
class Node : public ReferencedTemplate<unsigned int> {
public:
    Node(Node const &) = delete;
    Node &operator=(Node const &) = delete;

    std::string const &key() const { return m_key; }

    // True once the image exists (loaded or registered).
    bool hasImage() const { return !m_image.isNull(); }
    // True while there is a file to make the image from: one that existed
    // when the node was made and has not failed to load.
    bool hasSource() const { return !m_path.isEmpty(); }

    // Makes the image if it does not exist yet, by reading the file in any
    // format Qt can read. A file that cannot be read leaves the image null
    // and drops the source, so that it is tried once. True when the node
    // has an image afterwards.
    bool doCreateImage();

    // The image as it stands: null until made.
    QImage const &image() const { return m_image; }

private:
    friend class Manager;
    Node(std::string key, QString path, QImage image);
    ~Node() override = default;
    void destroy() override;

    std::string m_key;
    QString m_path;
    QImage m_image;
};

class Manager {
public:
    // The process-wide manager; it lives to the end of the process, so that
    // nodes released late still find it.
    static Manager &instance();

    // The shared node of `key`, made when nobody holds one. Never null: a
    // key with neither a file nor a registered image gives a node with no
    // image and no source.
    Holder<Node> nodeForKey(std::string const &key);

    // Puts `image` (a shallow copy) under `key` in a new node, which replaces
    // the key's entry; nodes handed out before keep their own image. The
    // entry lasts while the returned node is held.
    [[nodiscard]] Holder<Node> registerImage(std::string const &key, QImage const &image);

    // How many keys have a live node.
    std::size_t size() const { return m_nodes.size(); }

private:
    friend class Node;
    Manager() = default;
    void forget(Node const *node);

    std::unordered_map<std::string, Node *> m_nodes; // weak
};

} // namespace ImageCompositor
} // namespace GLOX
