// What the trees of nodes and of part classes cost: the inspector beside a bare tree of the toolkit with the same rows,
// one node more or less in it, and a search among the part classes.
#include "benchmarks/support/measuring.h"
#include "tests/support/documentGenerator.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/inspector.h"
#include "zkeditor/partsTree.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTreeWidget>
#include <algorithm>
#include <iterator>
#include <limits>
#include <memory>

namespace {

constexpr size_t treeSizes[] = {1'000, 10'000, 100'000};
constexpr size_t classCounts[] = {100, 1'000, 10'000};

using TreeFigures = std::vector<double>;

QTreeWidgetItem* bareRow(const NodeImpl* node)
{
    auto* row =
        new QTreeWidgetItem({findStringForCid(node->classId()), node->valueOfProperty(coreKeys::id()).toQString(),
                             QString::number(node->instanceId())});
    QList<QTreeWidgetItem*> children;
    for (const NodeImpl* child : node->children())
        children.append(bareRow(child));
    if (node->kind() == NodeKind::Part) {
        if (const PopupImpl* popup = static_cast<const PartImpl*>(node)->popup())
            children.append(bareRow(popup));
    }
    row->addChildren(children);
    return row;
}

struct FillFigures
{
    TreeFigures first, again, bare;
};

void measureFill(size_t nodes, FillFigures& figures)
{
    const auto perNode = [nodes](double ns) { return ns / static_cast<double>(nodes); };
    Best first;
    for (int round = 0, rounds = std::max(roundsFor(nodes) / 4, 3); round < rounds; ++round) {
        DocumentImpl fresh;
        loadGeneratedDocument(fresh, nodes);
        Inspector inspector;
        first.add([&] { inspector.setRootElement(Node(fresh.getModel())); });
    }
    DocumentImpl document;
    loadGeneratedDocument(document, nodes);
    Inspector inspector;
    inspector.setRootElement(Node(document.getModel()));
    QTreeWidget tree;
    tree.setColumnCount(3);
    tree.setUniformRowHeights(true);
    Best again, bare;
    for (int round = 0; round < roundsFor(nodes); ++round) {
        inspector.setRootElement(Node());
        again.add([&] { inspector.setRootElement(Node(document.getModel())); });
        tree.clear();
        bare.add([&] {
            tree.addTopLevelItem(bareRow(document.getModel()));
            tree.topLevelItem(0)->setExpanded(true);
            tree.setCurrentItem(tree.topLevelItem(0));
        });
    }
    figures.first.push_back(perNode(first.nanoseconds()));
    figures.again.push_back(perNode(again.nanoseconds()));
    figures.bare.push_back(perNode(bare.nanoseconds()));
}

struct ChangeFigures
{
    TreeFigures add, rename, remove;
};

/// One node is added, renamed and removed, and what is on view is painted, with an inspector or without. Of a removal
/// only what follows the document's signals counts: the command itself looks at every connection.
void measureChanges(size_t nodes, bool inspected, ChangeFigures& figures)
{
    DocumentImpl document;
    loadGeneratedDocument(document, nodes);
    QElapsedTimer timer;
    qint64 following = 0;
    QObject::connect(&document, &DocumentImpl::ElementRemoved, &document, [&timer] { timer.start(); });
    Inspector inspector;
    if (inspected) {
        inspector.setRootElement(Node(document.getModel()));
        auto* tree = inspector.findChild<QTreeWidget*>();
        tree->topLevelItem(0)->child(0)->setExpanded(true);
        inspector.show();
    }
    QObject::connect(&document, &DocumentImpl::ElementRemoved, &document, [&] { following += timer.nsecsElapsed(); });
    QCoreApplication::processEvents();
    const auto execute = [&document](Command* command) {
        const Value result = document.executeCommand(command);
        if (!result.isValid())
            qFatal("%s", qPrintable(document.lastError()));
        return result.toNode().impl();
    };
    SceneImpl* scene = document.getModel()->getScenes().front();
    const ClassId led = getCidForString("electronics/led");
    Best add, rename;
    double leastRemoval = std::numeric_limits<double>::max();
    for (int round = 0; round < 150; ++round) {
        NodeImpl* part = nullptr;
        add.add([&] {
            part = execute(new AddPartCommand(Space(scene), led, {0.01, 0.01}));
            QCoreApplication::processEvents();
        });
        rename.add([&] {
            const QString name = QStringLiteral("renamed%1").arg(round);
            execute(new SetValueCommand(Property(part->getProperty(coreKeys::id())), Value(name), true));
            QCoreApplication::processEvents();
        });
        following = 0;
        execute(new DeleteNodeCommand(Node(part), Command::PushUndo));
        timer.start();
        QCoreApplication::processEvents();
        const auto time = static_cast<double>(following + timer.nsecsElapsed());
        leastRemoval = std::min(leastRemoval, time);
    }
    figures.add.push_back(add.nanoseconds());
    figures.rename.push_back(rename.nanoseconds());
    figures.remove.push_back(leastRemoval);
}

/// All nodes of one flat scene go at once.
double measureRemovalOfAll(size_t parts, bool inspected)
{
    Best best;
    for (int round = 0; round < 2; ++round) {
        DocumentImpl document;
        SceneImpl* scene = document.getModel()->getScenes().front();
        std::vector<NodeSnapshot> snapshots;
        for (size_t i = 0; i < parts; ++i)
            snapshots.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString("core/text")));
        document.executeCommand(new AddNodesCommand(Node(scene), std::move(snapshots)));
        Inspector inspector;
        if (inspected)
            inspector.setRootElement(Node(document.getModel()));
        std::vector<Node> doomed;
        for (NodeImpl* child : scene->children())
            doomed.emplace_back(child);
        best.add([&] { document.executeCommand(new DeleteNodeCommand(doomed, Command::PushUndo)); });
        if (scene->childCount() != 0)
            qFatal("%s", qPrintable(document.lastError()));
    }
    return best.nanoseconds() / static_cast<double>(parts);
}

void addClasses(DocumentImpl& document, size_t count)
{
    const NodePrototype* pattern = document.getNodeDb()->lookupPrototype(getCidForString("electronics/led"));
    const char* const words[] = {"Lamp",   "Switch", "Motor", "Gear",  "Sensor",
                                 "Buzzer", "Relay",  "Valve", "Meter", "Pump"};
    for (size_t i = 0; i < count; ++i) {
        auto prototype = std::make_shared<NodePrototype>(*pattern);
        prototype->cid = getCidForString(QStringLiteral("bench/class%1").arg(i));
        prototype->label =
            QStringLiteral("%1 %2 %3")
                .arg(QLatin1String(words[i % 10]), QLatin1String(words[i / 10 % 10]), QString::number(i));
        prototype->group = QStringLiteral("Group %1").arg(i % 40);
        prototype->addMetaProperties();
        document.getNodeDb()->addPrototype(std::move(prototype));
    }
}

struct SearchFigures
{
    TreeFigures first, narrower, cleared;
};

void measureSearch(size_t classes, SearchFigures& figures)
{
    DocumentImpl document;
    addClasses(document, classes);
    PartsTree tree(&document);
    tree.resize(300, 700);
    tree.show();
    QCoreApplication::processEvents();
    const auto type = [&tree](const char* text) {
        tree.setFilter(QString::fromLatin1(text));
        QCoreApplication::processEvents();
    };
    Best first, narrower, cleared;
    for (int round = 0; round < 10; ++round) {
        first.add([&] { type("r"); });
        type("re");
        type("rel");
        narrower.add([&] { type("rela"); });
        cleared.add([&] { type(""); });
    }
    figures.first.push_back(first.nanoseconds() / 1e3);
    figures.narrower.push_back(narrower.nanoseconds() / 1e3);
    figures.cleared.push_back(cleared.nanoseconds() / 1e3);
}

TreeFigures treeRatios(const TreeFigures& a, const TreeFigures& b)
{
    TreeFigures result;
    for (size_t i = 0; i < a.size(); ++i)
        result.push_back(a[i] / b[i]);
    return result;
}

void reportTrees()
{
    Table table({std::begin(treeSizes), std::end(treeSizes)});
    FillFigures fill;
    for (const size_t nodes : treeSizes)
        measureFill(nodes, fill);
    table.section("Inspector filled with all nodes, nanoseconds per node");
    table.row("the first time (makes the id properties)", fill.first);
    table.row("again", fill.again);
    table.row("bare tree widget with the same rows", fill.bare);
    table.ratioRow("the first time, times the bare tree", treeRatios(fill.first, fill.bare), 2);
    table.ratioRow("again, times the bare tree", treeRatios(fill.again, fill.bare), 2);

    ChangeFigures without, with;
    for (const size_t nodes : treeSizes) {
        measureChanges(nodes, false, without);
        measureChanges(nodes, true, with);
    }
    table.section("One node added, renamed, removed, and painted, nanoseconds");
    table.row("add, no inspector", without.add);
    table.growthRow("add, inspector on view", with.add, 1.3);
    table.row("rename, no inspector", without.rename);
    table.growthRow("rename, inspector on view", with.rename, 1.3);
    table.growthRow("follow a removal, inspector on view", with.remove, 1.3);

    TreeFigures removal, inspectedRemoval;
    for (const size_t parts : treeSizes) {
        removal.push_back(measureRemovalOfAll(parts, false));
        inspectedRemoval.push_back(measureRemovalOfAll(parts, true));
    }
    table.section("All parts of one scene deleted by one command, nanoseconds per part");
    table.row("no inspector", removal);
    table.row("inspector", inspectedRemoval);

    std::printf("\n");
    const Table searches({std::begin(classCounts), std::end(classCounts)});
    SearchFigures search;
    for (const size_t classes : classCounts)
        measureSearch(classes, search);
    searches.section("Parts tree, one key stroke in the search field, filtered and painted, microseconds");
    searches.limitRow("first letter", search.first, 16'000);
    searches.limitRow("fourth letter", search.narrower, 16'000);
    searches.limitRow("cleared", search.cleared, 16'000);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    reportTrees();
    return 0;
}
