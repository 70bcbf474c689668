#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/model/changeMarks.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <memory>
#include <unordered_map>
#include <vector>

class DocumentImpl;
class NodeImpl;

/// The text of a document's nodes in pieces: one for each part with everything in it, two (what stands before the
/// children and after them) for the model, for spaces and for parts that hold a pop-up or very many subparts. Only
/// pieces that changed are written again, in stretches as short as wanted.
class ZKCORE_EXPORT DocumentPieces
{
public:
    /// Not owned; must outlive this object.
    explicit DocumentPieces(const DocumentImpl& document);
    ~DocumentPieces();

    /// Has the pieces written again in which something changed.
    void mark(const ChangeMarks::Marked& marked);
    /// Writes pieces until all are up to date, or the time is over. True when none is left. To be called while the
    /// document is not changing.
    bool update(int milliseconds);
    /// The pieces in the order of the document as it is now: put together they are its "model". All must have been
    /// written. The texts are shared, not copied.
    std::vector<QByteArray> list();
    size_t pieceCount() const { return m_pieces.size(); }

private:
    struct Piece
    {
        QByteArray start; // of a piece that is not split: everything
        QByteArray end;
        unsigned int listed = 0;
        bool split = false;
        bool dirty = false;
    };
    class Output;

    /// The node whose piece holds this one.
    static const NodeImpl* ownerOf(const NodeImpl* node);
    void markAll();
    /// Forgets the pieces of all that is in the node.
    void forgetInside(const NodeImpl& node);
    void enqueue(const NodeImpl* owner);
    void write(const NodeImpl& node);
    void append(const NodeImpl& node, std::vector<QByteArray>& out);

    const DocumentImpl& m_document;
    std::unique_ptr<Output> m_output;
    std::unordered_map<InstanceId, Piece> m_pieces;
    std::vector<InstanceId> m_marked; // not yet looked at
    std::vector<InstanceId> m_queue;  // dirty pieces, each once
    unsigned int m_lists = 0;
    size_t m_listedPieces = 0;
};
