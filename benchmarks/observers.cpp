// What it costs to bind each kind of observer to many properties, to follow a change of all of them, and to let go; and
// what the controls that replace ones of the toolkit cost to make.
#include "benchmarks/support/bareObjects.h"
#include "benchmarks/support/measuring.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/confirmingObserverCheckbox.h"
#include "zkeditor/widgets/observerButton.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerColorpicker.h"
#include "zkeditor/widgets/observerCombobox.h"
#include "zkeditor/widgets/observerGroupBox.h"
#include "zkeditor/widgets/observerLabel.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/observerPoint.h"
#include "zkeditor/widgets/observerRadiogroup.h"
#include "zkeditor/widgets/observerSlider.h"
#include "zkeditor/widgets/observerSpinbox.h"
#include "zkeditor/widgets/observerStringCheckbox.h"
#include "zkeditor/widgets/propertyLabel.h"
#include "zkeditor/widgets/radioButton.h"
#include "zkeditor/widgets/unitChooser.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QUndoStack>
#include <QVBoxLayout>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr size_t sizes[] = {1, 1'000, 100'000};
constexpr size_t growthFrom = 1; // a single property costs what the control itself costs

using Figures = std::vector<double>;
using Nodes = std::set<NodeImpl*>;

/// A document of gallery parts, which have a property for every control.
struct Gallery
{
    explicit Gallery(size_t count)
    {
        NodeImpl* scene = *document.getModel()->children().begin();
        std::vector<NodeSnapshot> parts;
        for (size_t i = 0; i < count; ++i)
            parts.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString("core/gallery")));
        const Value added = document.executeCommand(new AddNodesCommand(Node(scene), std::move(parts)));
        for (const Value& part : added.toValueVector())
            nodes.insert(part.toNode().impl());
        if (nodes.size() != count)
            qFatal("%s", qPrintable(document.lastError()));
    }

    /// Gives all of them the value in one command, which takes its time; nanoseconds.
    double change(PropertyKey key, const Value& value)
    {
        auto command = std::make_unique<SetValueCommand>();
        for (const NodeImpl* node : nodes)
            command->addAddress({node->instanceId(), INVALID_CID, key}, value);
        Best time;
        time.add([&] {
            if (!document.executeCommand(command.release()).isValid())
                qFatal("%s", qPrintable(document.lastError()));
        });
        document.undoStack()->clear();
        return time.nanoseconds();
    }

    DocumentImpl document;
    Nodes nodes;
};

template <typename Observer> std::unique_ptr<QWidget> make(const char* key)
{
    auto observer = std::make_unique<Observer>();
    observer->setModelProperty(QString::fromLatin1(key));
    return observer;
}

std::unique_ptr<QWidget> makeStringCheckBox(const char* key)
{
    auto box = std::make_unique<ObserverStringCheckBox>();
    box->setModelProperty(QString::fromLatin1(key));
    box->setOnValue(QStringLiteral("loud"));
    box->setOffValue(QStringLiteral("quiet"));
    return box;
}

std::unique_ptr<QWidget> makeToggleButton(const char* key)
{
    auto button = std::make_unique<ObserverButton>();
    button->setModelProperty(QString::fromLatin1(key));
    button->setCheckable(true);
    return button;
}

std::unique_ptr<QWidget> makeRadioGroup(const char* key)
{
    auto group = std::make_unique<ObserverRadioGroup>();
    group->setModelProperty(QString::fromLatin1(key));
    auto* layout = new QVBoxLayout(group.get());
    for (const char* text : {"small", "medium", "large", "own"}) {
        auto* button = new RadioButton;
        button->setText(QString::fromLatin1(text));
        layout->addWidget(button);
    }
    return group;
}

struct Kind
{
    const char* name;
    std::function<std::unique_ptr<QWidget>(const char*)> make;
    const char* key;
    Value one;
    Value other;
};

std::vector<Kind> allKinds()
{
    const auto text = [](const char* value) { return Value(QString::fromLatin1(value)); };
    const Value yes(true);
    const Value no(false);
    return {
        {"ObserverCheckBox", make<ObserverCheckBox>, "switched", yes, no},
        {"ConfirmingObserverCheckBox", make<ConfirmingObserverCheckBox>, "trusted", yes, no},
        {"ObserverStringCheckBox", makeStringCheckBox, "loudness", text("loud"), text("quiet")},
        {"ObserverButton", makeToggleButton, "latched", yes, no},
        {"ObserverComboBox", make<ObserverComboBox>, "weather", text("rain"), text("wind")},
        {"ObserverLineEdit", make<ObserverLineEdit>, "remark", text("one"), text("other")},
        {"ObserverSpinBox", make<ObserverSpinBox>, "weight", Value(0.5), Value(2.0)},
        {"ObserverPoint", make<ObserverPoint>, "place", Value(zk::Point{0.1, 0.2}), Value(zk::Point{0.3, 0.2})},
        {"ObserverSlider", make<ObserverSlider>, "level", Value(10), Value(20)},
        {"ObserverColorPicker", make<ObserverColorPicker>, "paint", Value(QColor(Qt::red)), Value(QColor(Qt::blue))},
        {"ObserverRadioGroup", makeRadioGroup, "format", text("small"), text("large")},
        {"ObserverGroupBox", make<ObserverGroupBox>, "guarded", yes, no},
        {"ObserverLabel", make<ObserverLabel>, "weight", Value(0.5), Value(2.0)},
        {"PropertyLabel", make<PropertyLabel>, "weight", Value(0.5), Value(2.0)},
        {"UnitChooser", make<UnitChooser>, "weight", Value(0.5), Value(2.0)},
    };
}

struct KindFigures
{
    Figures bind, change, unbound, unbind;
};

void measureKind(const Kind& kind, Gallery& gallery, KindFigures& figures)
{
    const std::unique_ptr<QWidget> widget = kind.make(kind.key);
    auto* observer = dynamic_cast<PaneWidget*>(widget.get());
    widget->show();
    QApplication::processEvents();
    const PropertyKey key = PropertyKey::fromString(kind.key);
    gallery.change(key, kind.one);
    observer->bind(&gallery.document, gallery.nodes); // makes the properties
    observer->unbind();
    Best bind, unbind;
    double change = std::numeric_limits<double>::max();
    double unbound = change;
    for (int round = 0; round < roundsFor(gallery.nodes.size()); ++round) {
        unbound = std::min(unbound, gallery.change(key, kind.other));
        gallery.change(key, kind.one);
        bind.add([&] { observer->bind(&gallery.document, gallery.nodes); });
        change = std::min(change, gallery.change(key, kind.other));
        QApplication::processEvents();
        unbind.add([&] { observer->unbind(); });
        gallery.change(key, kind.one);
    }
    const auto count = static_cast<double>(gallery.nodes.size());
    figures.bind.push_back(bind.nanoseconds() / count);
    figures.change.push_back(change / count);
    figures.unbound.push_back(unbound / count);
    figures.unbind.push_back(unbind.nanoseconds() / count);
}

struct BareFigures
{
    Figures connect, notify, disconnect;
};

enum class Heap { Fresh, Used };

/// The growth that the memory of the machine alone causes: the same kind of work on bare objects of the toolkit. In a
/// heap that is in use, the allocator has put together what was free between other things, as commands make it do.
void measureBareObjects(size_t count, Heap heap, BareFigures& figures)
{
    std::vector<std::unique_ptr<BareObject>> objects;
    BareReceiver receiver;
    for (size_t i = 0; i < count; ++i) {
        objects.push_back(std::make_unique<BareObject>());
        if (heap == Heap::Used)
            receiver.connectTo(objects.back());
    }
    receiver.disconnectFrom(objects);
    Best connect, notify, disconnect;
    for (int round = 0; round < roundsFor(count); ++round) {
        const QString text = QStringLiteral("round %1").arg(round);
        std::vector<std::vector<char>> large;
        for (size_t size = 1; heap == Heap::Used && size <= count; size *= 2)
            large.emplace_back(size * 64);
        connect.add([&] { receiver.connectTo(objects); });
        notify.add([&] {
            for (const auto& object : objects)
                object->setText(text);
        });
        disconnect.add([&] { receiver.disconnectFrom(objects); });
    }
    const auto all = static_cast<double>(count);
    figures.connect.push_back(connect.nanoseconds() / all);
    figures.notify.push_back(notify.nanoseconds() / all);
    figures.disconnect.push_back(disconnect.nanoseconds() / all);
}

/// Kinds whose name holds the text; all for an empty one.
void reportKinds(const QString& only)
{
    const Table table({std::begin(sizes), std::end(sizes)}, growthFrom);
    for (const Heap heap : {Heap::Fresh, Heap::Used}) {
        BareFigures bare;
        for (const size_t count : sizes)
            measureBareObjects(count, heap, bare);
        table.section(heap == Heap::Fresh ? "For comparison: bare objects of the toolkit, nanoseconds per object"
                                          : "The same in a heap that is in use");
        table.row("connect five signals", bare.connect);
        table.row("write a text and notify", bare.notify);
        table.row("disconnect", bare.disconnect);
    }

    std::vector<Kind> kinds = allKinds();
    std::erase_if(kinds, [&only](const Kind& kind) { return !QString::fromLatin1(kind.name).contains(only); });
    std::vector<KindFigures> figures(kinds.size());
    // All kinds of one size together: the large ones leave the allocator with memory that is scattered.
    for (const size_t size : sizes) {
        for (size_t i = 0; i < kinds.size(); ++i) {
            Gallery gallery(size);
            measureKind(kinds[i], gallery, figures[i]);
        }
    }
    for (size_t i = 0; i < kinds.size(); ++i) {
        table.section((std::string(kinds[i].name) + ", nanoseconds per property").c_str());
        table.growthRow("bind", figures[i].bind, 1.3);
        table.growthRow("change of all in one command", figures[i].change, 1.3);
        table.row("the same change while nothing is bound", figures[i].unbound);
        table.growthRow("unbind", figures[i].unbind, 1.3);
    }
}

/// Nanoseconds for one of the objects that the function makes, uses and destroys.
double timeOf(const std::function<void()>& makeOne)
{
    constexpr int atOnce = 100;
    constexpr int rounds = 50;
    return bestOf(rounds,
                  [&] {
                      for (int i = 0; i < atOnce; ++i)
                          makeOne();
                  }) /
           atOnce;
}

void reportConstruction()
{
    Gallery gallery(1);
    const auto bound = [&gallery](auto& observer, const char* key) {
        observer.setModelProperty(QString::fromLatin1(key));
        observer.bind(&gallery.document, gallery.nodes);
        observer.unbind();
    };
    const QStringList items{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("4"), QStringLiteral("8")};
    const Figures spin{timeOf([] { const QDoubleSpinBox box; }), timeOf([] { const ObserverSpinBox box; }), timeOf([] {
                           QDoubleSpinBox box;
                           box.setRange(0.0, 10000.0);
                           box.setValue(250.0);
                       }),
                       timeOf([&bound] {
                           ObserverSpinBox box;
                           bound(box, "weight");
                       })};
    const Figures combo{timeOf([] { const QComboBox box; }), timeOf([] { const ObserverComboBox box; }),
                        timeOf([&items] {
                            QComboBox box;
                            box.addItems(items);
                        }),
                        timeOf([&bound] {
                            ObserverComboBox box;
                            bound(box, "players");
                        })};
    const auto report = [](const char* title, const Figures& figures) {
        const Table table({1});
        table.section(title);
        table.row("the toolkit's, nanoseconds", {figures[0]});
        table.row("the observer, nanoseconds", {figures[1]});
        table.ratioRow("times", {figures[1] / figures[0]}, 2);
        table.row("the toolkit's with its value or items", {figures[2]});
        table.row("the observer, bound and unbound", {figures[3]});
        table.ratioRow("times", {figures[3] / figures[2]}, 2);
    };
    report("Making an ObserverSpinBox, against a QDoubleSpinBox", spin);
    report("Making an ObserverComboBox, against a QComboBox", combo);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QString only = QCoreApplication::arguments().value(1);
    reportKinds(only);
    if (only.isEmpty())
        reportConstruction();
    return 0;
}
