// Document files: what loads can be painted and worked with, and saving and loading it again changes nothing.
#include "fuzz/support/harness.h"
#include "fuzz/support/xmlMutator.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/printing/scenePainter.h"

#include <QImage>
#include <QPainter>

namespace {

constexpr double dotsPerMetre = 300;

void paintScenes(const DocumentImpl& document)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (const SceneImpl* scene : document.getModel()->getScenes()) {
        QPainter painter(&image);
        painter.scale(dotsPerMetre, dotsPerMetre);
        ScenePainter(painter).paintSpace(*scene);
    }
}

/// What was loaded can be worked with.
void addAndUndo(DocumentImpl& document, const QByteArray& before)
{
    const Space scene(document.getModel()->getScenes().front());
    const ClassId cid = getCidForString(QStringLiteral("testkit/box"));
    if (!document.executeCommand(new AddPartCommand(scene, cid, {0.01, 0.01})).isValid()) {
        fuzz::require(!document.lastError().isEmpty(), "a command that fails says why");
        return;
    }
    const QByteArray after = fuzz::bytesOf(document);
    DocumentImpl loaded;
    fuzz::require(fuzz::load(loaded, after), "a document with a new part can be loaded",
                  loaded.lastError() + u'\n' + after);
    document.undo();
    const QByteArray undone = fuzz::bytesOf(document);
    fuzz::require(undone == before, "undo takes back the new part", before + "\n---\n" + undone);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    DocumentImpl document;
    const size_t countBefore = document.nodeCount();
    if (!fuzz::load(document, QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size)))) {
        fuzz::require(document.nodeCount() == countBefore, "a document that is refused leaves the old one as it was");
        return 0;
    }
    fuzz::require(!document.isModified() && !document.canUndo(), "a document just loaded has no changes");
    const QByteArray saved = fuzz::bytesOf(document);
    DocumentImpl again;
    fuzz::require(fuzz::load(again, saved), "what was saved can be loaded", again.lastError() + u'\n' + saved);
    const QByteArray savedAgain = fuzz::bytesOf(again);
    fuzz::require(savedAgain == saved, "saving what was loaded changes nothing", saved + "\n---\n" + savedAgain);
    paintScenes(document);
    addAndUndo(document, saved);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    return fuzz::mutateXml(data, size, maximum, seed);
}
