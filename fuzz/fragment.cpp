// What the clipboard and drags bring: adding it to a document and taking it back leaves the document as it was, and a
// fragment written of what was read gives the same again.
#include "fuzz/support/harness.h"
#include "fuzz/support/xmlMutator.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/storage/addPartDrag.h"
#include "zkcore/storage/fragmentXmlWriter.h"

#include "zkcore/model/documentImpl.h"
#include <QMimeData>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray fragment(reinterpret_cast<const char*>(data), qsizetype(size));
    DocumentImpl document;
    std::vector<NodeSnapshot> nodes;
    QString error;
    const bool isRead = FragmentXMLWriter::read(fragment, *document.getNodeDb(), nodes, error);

    QMimeData dragged;
    dragged.setData(FragmentXMLWriter::fragmentMimeType(), fragment);
    std::vector<NodeSnapshot> dropped;
    fuzz::require(AddPartDrag::decode(&dragged, *document.getNodeDb(), dropped) == isRead,
                  "a drag brings what the clipboard brings");
    if (!isRead) {
        fuzz::requirePlaceAndReason(error, QString());
        fuzz::require(nodes.empty() && dropped.empty(), "nothing is left of a fragment that was refused");
        return 0;
    }

    const QByteArray written = FragmentXMLWriter::write(nodes, *document.getNodeDb());
    fuzz::require(FragmentXMLWriter::read(written, *document.getNodeDb(), dropped, error),
                  "a fragment that was written can be read", error + u'\n' + written);
    const QByteArray writtenAgain = FragmentXMLWriter::write(dropped, *document.getNodeDb());
    fuzz::require(writtenAgain == written, "reading a fragment changes nothing", written + "\n---\n" + writtenAgain);

    const QByteArray before = fuzz::bytesOf(document);
    const Space scene(document.getModel()->getScenes().front());
    const bool added = document.executeCommand(new AddNodesCommand(scene, std::move(nodes))).isValid();
    fuzz::require(added == document.lastError().isEmpty(), "a command that fails says why", document.lastError());
    if (!added) {
        fuzz::require(fuzz::bytesOf(document) == before, "a command that fails leaves the document as it was");
        return 0;
    }
    const QByteArray after = fuzz::bytesOf(document);
    DocumentImpl loaded;
    fuzz::require(fuzz::load(loaded, after), "a document with what was pasted can be loaded",
                  loaded.lastError() + u'\n' + after);
    if (!document.canUndo())
        return 0;
    document.undo();
    fuzz::require(fuzz::bytesOf(document) == before, "undo takes back what was pasted", fuzz::bytesOf(document));
    document.redo();
    fuzz::require(fuzz::bytesOf(document) == after, "redo brings back what was pasted",
                  after + "\n---\n" + fuzz::bytesOf(document));
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    return fuzz::mutateXml(data, size, maximum, seed);
}
