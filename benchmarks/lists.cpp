// What the editors of collections cost beside a bare tree view of the toolkit that holds the same texts: filling them,
// following a change, selecting and scrolling.
#include "benchmarks/support/measuring.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/propertyListBox.h"
#include "zkeditor/widgets/resourceListBox.h"
#include "zkeditor/widgets/subpartListView.h"
#include "zkeditor/widgets/valueMapListBox.h"

#include <QApplication>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <functional>
#include <iterator>
#include <memory>

namespace {

constexpr size_t listSizes[] = {1'000, 10'000};
constexpr QSize listSize(300, 400);

using ListFigures = std::vector<double>;

/// A document whose first part has one list of that many rows.
struct ListDocument
{
    ListDocument()
    {
        scene = document.getModel()->getScenes().front();
        add(scene, "core/collections", 1);
        part = static_cast<PartImpl*>(scene->getChildAt(0));
    }

    void add(NodeImpl* parent, const char* cid, size_t count)
    {
        std::vector<NodeSnapshot> nodes;
        for (size_t i = 0; i < count; ++i)
            nodes.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString(cid)));
        execute(new AddNodesCommand(Node(parent), std::move(nodes)));
    }

    void set(NodeImpl* node, const char* key, const Value& value)
    {
        execute(new SetValueCommand(Property(node->getProperty(PropertyKey::fromString(key))), value, true));
    }

    void execute(Command* command)
    {
        if (!document.executeCommand(command).isValid())
            qFatal("%s", qPrintable(document.lastError()));
    }

    DocumentImpl document;
    SceneImpl* scene = nullptr;
    PartImpl* part = nullptr;
};

struct ListCase
{
    const char* name;
    std::function<std::unique_ptr<ListEditor>()> makeEditor; // with its settings
    std::function<void(ListDocument&, size_t rows)> fill;
    std::function<void(ListDocument&, int round)> changeOne;
    std::function<void(ListDocument&)> addOne; // where a row is a node, or comes with one
};

Value tableOf(size_t rows, int changed)
{
    ValueMap table;
    for (size_t i = 0; i < rows; ++i)
        table.emplace_hint(table.end(), QStringLiteral("entry%1").arg(i, 6, 10, QLatin1Char('0')),
                           Value(static_cast<int>(i) == 5 ? changed : static_cast<int>(i)));
    return Value(table);
}

Value albumOf(size_t rows, int changed)
{
    const Resource pictures[] = {Resource("core/images/weather-sun"), Resource("core/images/weather-rain")};
    std::vector<Resource> album;
    for (size_t i = 0; i < rows; ++i)
        album.push_back(pictures[(i + (i == 5 ? static_cast<size_t>(changed) : 0)) % 2]);
    return Value(album);
}

template <typename Editor> std::unique_ptr<ListEditor> editorOf(const char* key)
{
    auto editor = std::make_unique<Editor>();
    editor->setModelProperty(QString::fromLatin1(key));
    return editor;
}

const std::vector<ListCase>& listCases()
{
    static const std::vector<ListCase> cases{
        {"SubpartListView",
         [] {
             auto editor = std::make_unique<SubpartListView>();
             editor->setSubpart(QStringLiteral("controls"));
             return editor;
         },
         [](ListDocument& list, size_t rows) { list.add(list.part, "core/control", rows - 1); },
         [](ListDocument& list, int round) {
             list.set(list.part->getChildAt(9), "id", Value(QStringLiteral("name%1").arg(round)));
         },
         [](ListDocument& list) { list.add(list.part, "core/control", 1); }},
        {"ValueMapListBox", [] { return editorOf<ValueMapListBox>("table"); },
         [](ListDocument& list, size_t rows) { list.set(list.part, "table", tableOf(rows, 0)); },
         [](ListDocument& list, int round) {
             const size_t rows = list.part->valueOfProperty(PropertyKey::fromString("table")).toValueMap().size();
             list.set(list.part, "table", tableOf(rows, round + 1));
         },
         nullptr},
        {"ResourceListBox", [] { return editorOf<ResourceListBox>("album"); },
         [](ListDocument& list, size_t rows) { list.set(list.part, "album", albumOf(rows, 0)); },
         [](ListDocument& list, int round) {
             const PropertyKey key = PropertyKey::fromString("album");
             list.set(list.part, "album",
                      albumOf(list.part->valueOfProperty(key).toResourceVector().size(), round + 1));
         },
         nullptr},
        {"PropertyListBox", [] { return editorOf<PropertyListBox>("level"); },
         [](ListDocument& list, size_t rows) { list.add(list.scene, "core/collections", rows - 1); },
         [](ListDocument& list, int round) { list.set(list.scene->getChildAt(5), "level", Value(round % 90 + 5)); },
         [](ListDocument& list) { list.add(list.scene, "core/collections", 1); }},
    };
    return cases;
}

void showSettled(QWidget& widget)
{
    widget.resize(listSize);
    widget.show();
    QCoreApplication::processEvents();
}

std::vector<QStringList> textsOf(const QAbstractItemModel& model)
{
    std::vector<QStringList> texts(static_cast<size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column)
            texts[static_cast<size_t>(row)].append(model.index(row, column).data().toString());
    }
    return texts;
}

std::unique_ptr<QStandardItemModel> itemsOf(const std::vector<QStringList>& texts)
{
    auto items = std::make_unique<QStandardItemModel>();
    for (const QStringList& row : texts) {
        QList<QStandardItem*> cells;
        for (const QString& text : row)
            cells.append(new QStandardItem(text));
        items->appendRow(cells);
    }
    return items;
}

double selecting(QTreeView& view)
{
    const int middle = view.model()->rowCount() / 2;
    view.scrollTo(view.model()->index(middle, 0), QAbstractItemView::PositionAtTop);
    int round = 0;
    return bestOf(30, [&] {
        view.setCurrentIndex(view.model()->index(middle + ++round % 5, 0));
        QCoreApplication::processEvents();
    });
}

double scrolling(QTreeView& view)
{
    QScrollBar* bar = view.verticalScrollBar();
    bar->setValue(0);
    return bestOf(30, [&] {
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCoreApplication::processEvents();
    });
}

struct ListTimes
{
    ListFigures fill, bareFill, add, change, changeAlone, bareChange, select, bareSelect, scroll, bareScroll;
};

void measureList(const ListCase& list, size_t rows, ListTimes& times)
{
    ListDocument content;
    list.fill(content, rows);
    int round = 0;
    times.changeAlone.push_back(bestOf(15, [&] { list.changeOne(content, ++round); }) / 1e3);
    Best fill;
    for (int i = 0; i < 7; ++i) {
        const std::unique_ptr<ListEditor> editor = list.makeEditor();
        showSettled(*editor);
        auto* pane = dynamic_cast<PaneWidget*>(editor.get());
        fill.add([&] {
            pane->bind(&content.document, {content.part});
            QCoreApplication::processEvents();
        });
        pane->unbind();
    }
    times.fill.push_back(fill.nanoseconds() / 1e3);
    const std::unique_ptr<ListEditor> editor = list.makeEditor();
    showSettled(*editor);
    auto* pane = dynamic_cast<PaneWidget*>(editor.get());
    pane->bind(&content.document, {content.part});
    QCoreApplication::processEvents();
    QTreeView* view = editor->view();
    if (view->model()->rowCount() < static_cast<int>(rows))
        qFatal("%s has only %d rows", list.name, view->model()->rowCount());
    if (list.addOne) {
        times.add.push_back(bestOf(15,
                                   [&] {
                                       list.addOne(content);
                                       QCoreApplication::processEvents();
                                   }) /
                            1e3);
    }
    const std::vector<QStringList> unchanged = textsOf(*view->model());
    times.change.push_back(bestOf(15,
                                  [&] {
                                      list.changeOne(content, ++round);
                                      QCoreApplication::processEvents();
                                  }) /
                           1e3);
    if (textsOf(*view->model()) == unchanged)
        qFatal("%s does not follow", list.name);
    times.select.push_back(selecting(*view) / 1e3);
    times.scroll.push_back(scrolling(*view) / 1e3);

    QTreeView bare;
    bare.setUniformRowHeights(true);
    bare.setRootIsDecorated(false);
    bare.setItemDelegate(new QStyledItemDelegate(&bare));
    showSettled(bare);
    const std::vector<QStringList> texts = textsOf(*view->model());
    std::unique_ptr<QStandardItemModel> items;
    Best bareFill;
    for (int i = 0; i < 7; ++i) {
        bare.setModel(nullptr);
        bareFill.add([&] {
            items = itemsOf(texts);
            bare.setModel(items.get());
            QCoreApplication::processEvents();
        });
    }
    times.bareFill.push_back(bareFill.nanoseconds() / 1e3);
    times.bareChange.push_back(bestOf(15,
                                      [&] {
                                          items->item(5)->setText(QString::number(++round));
                                          QCoreApplication::processEvents();
                                      }) /
                               1e3);
    times.bareSelect.push_back(selecting(bare) / 1e3);
    times.bareScroll.push_back(scrolling(bare) / 1e3);
    pane->unbind();
}

ListFigures listRatios(const ListFigures& a, const ListFigures& b)
{
    ListFigures result;
    for (size_t i = 0; i < a.size(); ++i)
        result.push_back(a[i] / b[i]);
    return result;
}

void reportList(const ListCase& list)
{
    const Table table({std::begin(listSizes), std::end(listSizes)});
    ListTimes times;
    for (const size_t rows : listSizes)
        measureList(list, rows, times);
    table.section((QByteArray(list.name) + ", painted, microseconds").constData());
    table.row("filled", times.fill);
    table.row("bare tree view filled", times.bareFill);
    table.ratioRow("times the bare view", listRatios(times.fill, times.bareFill), 3);
    table.row("one change by a command, not followed", times.changeAlone);
    table.limitRow("one change by a command, followed", times.change, 16'000);
    if (list.addOne)
        table.limitRow("one node more, followed", times.add, 16'000);
    table.row("one text of the bare view", times.bareChange);
    table.row("another row selected", times.select);
    table.row("the same in the bare view", times.bareSelect);
    table.ratioRow("times the bare view", listRatios(times.select, times.bareSelect), 3);
    table.row("a page scrolled", times.scroll);
    table.row("the same in the bare view", times.bareScroll);
    table.ratioRow("times the bare view", listRatios(times.scroll, times.bareScroll), 3);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QByteArray wanted = argc > 1 ? argv[1] : "";
    for (const ListCase& list : listCases()) {
        if (QByteArray(list.name).contains(wanted))
            reportList(list);
    }
    return 0;
}
