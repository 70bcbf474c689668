// What a change of the selection costs in the property palette: until the pane of what is selected is bound and
// painted. Beside it stands the loading and painting of the same forms with nothing bound and every section in view,
// and the same work on fewer parts.
#include "benchmarks/support/measuring.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/storage/package.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/propPalette.h"

#include <QApplication>
#include <QMainWindow>
#include <QPixmap>
#include <QVBoxLayout>
#include <cstdio>
#include <iterator>
#include <vector>

namespace {

constexpr size_t sizes[] = {1, 1'000, 10'000, 100'000};
constexpr size_t growthFrom = 1; // a single part costs what the pane itself costs
constexpr const char* ordinaryClass = "electronics/led";

struct SelectionFigures
{
    std::vector<double> first, again, let;
};

ElementImplSet addParts(DocumentImpl& document, const char* cid, size_t count)
{
    NodeImpl* scene = *document.getModel()->children().begin();
    std::vector<NodeSnapshot> parts;
    for (size_t i = 0; i < count; ++i)
        parts.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString(cid)));
    const Value added = document.executeCommand(new AddNodesCommand(Node(scene), std::move(parts)));
    ElementImplSet elements;
    for (const Value& part : added.toValueVector())
        elements.insert(qobject_cast<ElementImpl*>(part.toNode().impl()));
    if (elements.size() != count)
        qFatal("%s", qPrintable(document.lastError()));
    return elements;
}

/// A property palette docked in a window, as in an application.
struct DockedPalette
{
    explicit DockedPalette(DocumentImpl& document) : palette(new PropPalette(&window))
    {
        window.addDockWidget(Qt::LeftDockWidgetArea, palette);
        window.setCentralWidget(new QWidget);
        window.resize(900, 700);
        palette->setDocument(&document);
        window.show();
        QApplication::processEvents();
    }

    QMainWindow window;
    PropPalette* palette;
};

void dropOldPanes()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void measureSelection(size_t count, SelectionFigures& figures)
{
    DocumentImpl document;
    const ElementImplSet parts = addParts(document, ordinaryClass, count);
    const DockedPalette docked(document);
    Best first, again, let;
    // The first time the properties that are listened to are made.
    const auto select = [&] {
        document.setSelection(parts);
        docked.palette->grab();
    };
    first.add(select);
    for (int round = 0; round < roundsFor(count); ++round) {
        let.add([&] {
            document.setSelection({});
            dropOldPanes();
        });
        again.add(select);
    }
    document.setSelection({});
    dropOldPanes();
    docked.palette->setDocument(nullptr);
    const auto all = static_cast<double>(count);
    figures.first.push_back(first.nanoseconds() / all);
    figures.again.push_back(again.nanoseconds() / all);
    figures.let.push_back(let.nanoseconds() / all);
}

/// The forms of the class, one below the other, loaded and painted with nothing bound.
double measureBareForms(const ElementImpl& part)
{
    static const PropertyKey forms = PropertyKey::fromString("meta-controlpane");
    return bestOf(100, [&] {
        QWidget all;
        auto* layout = new QVBoxLayout(&all);
        for (const QString& name : part.valueOfProperty(forms).toStringVector())
            layout->addWidget(loadUIFromResource(Resource(name), &all));
        all.resize(300, all.sizeHint().height());
        all.grab();
    });
}

void reportOnePart(const char* partClass, const char* title)
{
    DocumentImpl document;
    const ElementImplSet parts = addParts(document, partClass, 1);
    const DockedPalette docked(document);
    Best pane;
    for (int round = 0; round < 100; ++round) {
        document.setSelection({});
        dropOldPanes();
        pane.add([&] {
            document.setSelection(parts);
            docked.palette->grab();
        });
    }
    const double bare = measureBareForms(**parts.begin());
    docked.palette->setDocument(nullptr);
    const Table table({1});
    table.section(title);
    table.row("selected, bound and painted", {pane.nanoseconds() / 1e6});
    table.row("its forms loaded and painted, nothing bound", {bare / 1e6});
    table.ratioRow("ratio", {pane.nanoseconds() / bare}, 1.0);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // The platform without a screen warns at every change of a window's smallest size.
    const auto onlyFatal = [](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    };
    qInstallMessageHandler(onlyFatal);
    Package::all();
    reportOnePart(ordinaryClass, "An LED, whose forms have the most sections, milliseconds");
    reportOnePart("core/gallery", "The gallery, all of whose controls stand in one section, milliseconds");
    SelectionFigures figures;
    for (const size_t count : sizes)
        measureSelection(count, figures);
    const Table table({std::begin(sizes), std::end(sizes)}, growthFrom);
    table.section("selection of parts of one class, nanoseconds per part");
    table.row("selected for the first time, bound and painted", figures.first);
    table.growthRow("selected again, bound and painted", figures.again, 1.3);
    table.growthRow("let go of", figures.let, 1.3);
    return 0;
}
