#include "zkcore/storage/documentPieces.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/nodeWriter.h"

#include <QBuffer>
#include <QXmlStreamWriter>
#include <utility>

namespace {

// A part with more subparts is split, so that no piece takes long to write.
constexpr unsigned int maximumWholeChildren = 64;

const PopupImpl* popupOf(const NodeImpl& node)
{
    return node.kind() == NodeKind::Part ? static_cast<const PartImpl&>(node).popup() : nullptr;
}

bool isSplit(const NodeImpl& node)
{
    switch (node.kind()) {
    case NodeKind::Model:
    case NodeKind::Scene:
    case NodeKind::Popup:
        return true;
    default:
        return node.childCount() > maximumWholeChildren || popupOf(node);
    }
}

} // namespace

/// One writer for all pieces: it looks up the texts of classes and keys once.
class DocumentPieces::Output
{
public:
    Output() : m_xml(openBuffer()), m_nodes(m_xml) {}

    QByteArray whole(const NodeImpl& node)
    {
        m_nodes.write(node);
        return take();
    }

    QByteArray start(const NodeImpl& node)
    {
        m_nodes.writeStart(node);
        m_xml.writeCharacters(QString()); // closes the start tag
        return take();
    }

    /// Right after start().
    QByteArray end(const NodeImpl& node)
    {
        m_nodes.writeEnd(node);
        return take();
    }

private:
    QBuffer* openBuffer()
    {
        m_buffer.open(QIODevice::WriteOnly);
        return &m_buffer;
    }

    QByteArray take()
    {
        // As long as the text, without what the buffer keeps in reserve.
        const QByteArray text(m_buffer.data().constData(), m_buffer.pos());
        m_buffer.seek(0);
        return text;
    }

    QBuffer m_buffer;
    QXmlStreamWriter m_xml;
    NodeXml::Writer m_nodes;
};

DocumentPieces::DocumentPieces(const DocumentImpl& document) : m_document(document)
{
    markAll();
}

DocumentPieces::~DocumentPieces() = default;

const NodeImpl* DocumentPieces::ownerOf(const NodeImpl* node)
{
    const NodeImpl* owner = node;
    for (const NodeImpl* at = node; at; at = at->parentNode()) {
        if (!isSplit(*at))
            owner = at;
    }
    return owner;
}

void DocumentPieces::mark(const ChangeMarks::Marked& marked)
{
    if (marked.all)
        markAll();
    // What is there again may have changed since it was last there.
    for (const InstanceId id : marked.added) {
        if (const NodeImpl* node = m_document.nodeById(id)) {
            m_pieces.erase(id);
            forgetInside(*node);
        }
    }
    for (const std::vector<InstanceId>* nodes : {&marked.values, &marked.shapes, &marked.added})
        m_marked.insert(m_marked.end(), nodes->begin(), nodes->end());
}

void DocumentPieces::forgetInside(const NodeImpl& node)
{
    for (const NodeImpl* child : node.children()) {
        m_pieces.erase(child->instanceId());
        forgetInside(*child);
    }
    if (const PopupImpl* popup = popupOf(node)) {
        m_pieces.erase(popup->instanceId());
        forgetInside(*popup);
    }
}

void DocumentPieces::markAll()
{
    m_output = std::make_unique<Output>();
    m_pieces.clear();
    m_queue.clear();
    m_marked.assign(1, m_document.getModel()->instanceId());
}

void DocumentPieces::enqueue(const NodeImpl* owner)
{
    Piece& piece = m_pieces[owner->instanceId()];
    if (std::exchange(piece.dirty, true))
        return;
    m_queue.push_back(owner->instanceId());
}

bool DocumentPieces::update(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (!m_marked.empty() || !m_queue.empty()) {
        if (!m_marked.empty()) {
            const NodeImpl* node = m_document.nodeById(m_marked.back());
            m_marked.pop_back();
            if (node)
                enqueue(ownerOf(node));
        } else {
            const InstanceId id = m_queue.back();
            m_queue.pop_back();
            const auto found = m_pieces.find(id);
            const NodeImpl* node = m_document.nodeById(id);
            if (found == m_pieces.end() || !found->second.dirty)
                continue; // forgotten, or written, since
            const NodeImpl* owner = node ? ownerOf(node) : nullptr;
            if (owner == node && node) {
                write(*node);
            } else {
                m_pieces.erase(found);
                if (owner) // the node stands in the piece of another one since
                    enqueue(owner);
            }
        }
        if (time.elapsed() >= milliseconds)
            break;
    }
    return m_marked.empty() && m_queue.empty();
}

void DocumentPieces::write(const NodeImpl& node)
{
    Piece& piece = m_pieces[node.instanceId()];
    piece.dirty = false;
    const bool wasSplit = std::exchange(piece.split, isSplit(node));
    if (!piece.split) {
        piece.start = m_output->whole(node);
        piece.end.clear();
        if (wasSplit)
            forgetInside(node);
        return;
    }
    piece.start = m_output->start(node);
    piece.end = m_output->end(node);
    if (wasSplit)
        return;
    for (const NodeImpl* child : node.children())
        enqueue(child);
    if (const PopupImpl* popup = popupOf(node))
        enqueue(popup);
}

std::vector<QByteArray> DocumentPieces::list()
{
    std::vector<QByteArray> pieces;
    pieces.reserve(m_pieces.size() + 16);
    ++m_lists;
    m_listedPieces = 0;
    append(*m_document.getModel(), pieces);
    if (m_listedPieces < m_pieces.size())
        std::erase_if(m_pieces, [this](const auto& piece) { return piece.second.listed != m_lists; });
    return pieces;
}

void DocumentPieces::append(const NodeImpl& node, std::vector<QByteArray>& out)
{
    const auto found = m_pieces.find(node.instanceId());
    if (found == m_pieces.end())
        return;
    Piece& piece = found->second;
    piece.listed = m_lists;
    ++m_listedPieces;
    out.push_back(piece.start);
    if (!piece.split)
        return;
    for (const NodeImpl* child : node.children())
        append(*child, out);
    if (const PopupImpl* popup = popupOf(node))
        append(*popup, out);
    out.push_back(piece.end);
}
