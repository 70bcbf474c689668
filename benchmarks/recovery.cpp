// What keeping a document for recovery costs the user while it is edited: the stretches in which nothing else can
// happen, and noting what changed. Beside each figure stands a whole save, or the same command without the notes, of
// the same run.
#include "benchmarks/support/measuring.h"
#include "tests/support/documentGenerator.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/changeMarks.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/documentPieces.h"

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace {

constexpr size_t recoverySizes[] = {1'000, 10'000, 100'000};
constexpr int stretch = 10; // milliseconds, as the program asks for

using Figures = std::vector<double>;

std::vector<InstanceId> partsOf(DocumentImpl& document)
{
    std::vector<InstanceId> parts;
    for (SceneImpl* scene : document.getModel()->getScenes()) {
        for (const NodeImpl* part : scene->children()) {
            if (!static_cast<const ElementImpl*>(part)->isEffectivelyLocked(LockPropertyValues))
                parts.push_back(part->instanceId());
        }
    }
    return parts;
}

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// What one picture of the document took.
struct Picture
{
    double total = 0;
    double longest = 0;
};

Picture takePicture(ChangeMarks& marks, DocumentPieces& pieces)
{
    Picture picture;
    QElapsedTimer timer;
    const auto add = [&] {
        picture.total += milliseconds(timer);
        picture.longest = std::max(picture.longest, milliseconds(timer));
    };
    for (bool done = false; !done;) {
        timer.start();
        pieces.mark(marks.take());
        done = pieces.update(stretch);
        add();
    }
    timer.start();
    const std::vector<QByteArray> list = pieces.list();
    add();
    return picture;
}

struct RecoveryFigures
{
    Figures save, first, all, one, longest, command, marked;
};

void measure(size_t nodes, RecoveryFigures& figures)
{
    DocumentImpl document;
    loadGeneratedDocument(document, nodes);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.zkdoc"));
    const int rounds = roundsFor(nodes);
    figures.save.push_back(bestOf(rounds, [&] { document.save(file); }) / 1e6);

    const std::vector<InstanceId> parts = partsOf(document);
    const PropertyKey title = PropertyKey::fromString("title");
    int number = 0;
    const auto change = [&](size_t count) {
        auto command = std::make_unique<SetValueCommand>();
        const Value text(QStringLiteral("title %1").arg(++number));
        for (size_t i = 0; i < count; ++i)
            command->addAddress({parts[i], INVALID_CID, title}, text);
        QElapsedTimer timer;
        timer.start();
        if (!document.executeCommand(command.release()).isValid())
            qFatal("%s", qPrintable(document.lastError()));
        return milliseconds(timer);
    };

    Best first, all, one;
    double longest = 0;
    double plain = 1e9;
    double marked = 1e9;
    for (int round = 0; round < rounds; ++round) {
        document.setChangeMarks(nullptr);
        plain = std::min(plain, change(parts.size()));
        ChangeMarks marks([] {});
        DocumentPieces pieces(document);
        document.setChangeMarks(&marks);
        const auto look = [&] { longest = std::max(longest, takePicture(marks, pieces).longest); };
        first.add(look);
        marked = std::min(marked, change(parts.size()));
        all.add(look);
        change(1);
        one.add(look);
        document.setChangeMarks(nullptr);
    }
    figures.first.push_back(first.nanoseconds() / 1e6);
    figures.all.push_back(all.nanoseconds() / 1e6);
    figures.one.push_back(one.nanoseconds() / 1e6);
    figures.longest.push_back(longest);
    figures.command.push_back(plain);
    figures.marked.push_back(marked);
}

Figures ratios(const Figures& a, const Figures& b)
{
    Figures result;
    for (size_t i = 0; i < a.size(); ++i)
        result.push_back(a[i] / b[i]);
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const Table table({std::begin(recoverySizes), std::end(recoverySizes)});
    RecoveryFigures figures;
    for (const size_t nodes : recoverySizes)
        measure(nodes, figures);
    table.section("Keeping a document for recovery, milliseconds");
    table.row("one whole save", figures.save);
    table.row("first picture, all stretches together", figures.first);
    table.ratioRow("times the save", ratios(figures.first, figures.save), 2);
    table.row("picture after one command over all parts", figures.all);
    table.ratioRow("times the save", ratios(figures.all, figures.save), 2);
    table.row("picture after a change of one part", figures.one);
    table.ratioRow("times the save", ratios(figures.one, figures.save), 0.2);
    table.limitRow("longest stretch of all these", figures.longest, 50);
    table.ratioRow("times the save", ratios(figures.longest, figures.save), 2);
    table.section("One command over all parts, milliseconds");
    table.row("nothing noted", figures.command);
    table.row("changes noted", figures.marked);
    table.ratioRow("times", ratios(figures.marked, figures.command), 1.2);
    return 0;
}
