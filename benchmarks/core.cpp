// What opening, saving, editing and binding cost, for documents of three sizes. Each figure stands beside another one
// of the same run: a bare XML reader or writer over the same bytes, or the same work on fewer nodes.
#include "benchmarks/support/bareObjects.h"
#include "benchmarks/support/measuring.h"
#include "tests/support/documentGenerator.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/observerStringCheckbox.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <functional>
#include <iterator>
#include <malloc.h>
#include <memory>
#include <set>
#include <unistd.h>
#include <vector>

namespace {

constexpr size_t sizes[] = {1'000, 10'000, 100'000};

using Figures = std::vector<double>;

/// All elements of a document that have a property, except those that are locked for the user.
std::set<NodeImpl*> nodesWith(DocumentImpl& document, PropertyKey key)
{
    std::set<NodeImpl*> found;
    const std::function<void(NodeImpl*)> visit = [&](NodeImpl* node) {
        const bool element = node->kind() == NodeKind::Part || node->kind() == NodeKind::Subpart;
        if (element && static_cast<ElementImpl*>(node)->isEffectivelyLocked(LockPropertyValues))
            return;
        if (node->hasProperty(key))
            found.insert(node);
        for (NodeImpl* child : node->children())
            visit(child);
    };
    visit(document.getModel());
    return found;
}

QString writeGenerated(const QTemporaryDir& folder, size_t nodes)
{
    const QString name = folder.filePath(QString::number(nodes) + QStringLiteral(".zkdoc"));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(generatedDocument(nodes)) < 0)
        qFatal("cannot write %s", qPrintable(name));
    return name;
}

void readBare(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(fileName));
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        qFatal("%s", qPrintable(reader.errorString()));
}

/// The tokens of a file, kept so that writing them costs no reading.
struct XmlToken
{
    QXmlStreamReader::TokenType type;
    QString text;
    QXmlStreamAttributes attributes;
};

std::vector<XmlToken> tokensOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(fileName));
    std::vector<XmlToken> tokens;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType type = reader.readNext();
        if (type == QXmlStreamReader::StartElement)
            tokens.push_back({type, reader.name().toString(), reader.attributes()});
        else if (type == QXmlStreamReader::EndElement || (reader.isCharacters() && !reader.isWhitespace()))
            tokens.push_back({type, reader.text().toString(), {}});
    }
    return tokens;
}

void writeBare(const QString& fileName, const std::vector<XmlToken>& tokens)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(fileName));
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
    writer.writeStartDocument();
    for (const XmlToken& token : tokens) {
        if (token.type == QXmlStreamReader::StartElement) {
            writer.writeStartElement(token.text);
            writer.writeAttributes(token.attributes);
        } else if (token.type == QXmlStreamReader::EndElement) {
            writer.writeEndElement();
        } else {
            writer.writeCharacters(token.text);
        }
    }
    writer.writeEndDocument();
    if (!file.commit())
        qFatal("%s", qPrintable(file.errorString()));
}

void load(DocumentImpl& document, const QString& fileName)
{
    if (!document.load(fileName))
        qFatal("%s", qPrintable(document.lastError()));
}

double residentBytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// What the program runs as when it is to measure the memory of a document in a process of its own.
int reportResidentBytes(const QString& fileName)
{
    DocumentImpl document; // the classes of the packages are in memory from here on
    const double before = residentBytes();
    load(document, fileName);
    std::printf("%.0f\n", residentBytes() - before);
    return 0;
}

double residentBytesOf(const QString& fileName)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--resident"), fileName});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("the process that measures memory failed");
    return process.readAllStandardOutput().trimmed().toDouble();
}

struct FileFigures
{
    Figures open, openBare, save, saveBare, resident;
};

void measureFiles(size_t nodes, FileFigures& figures)
{
    const QTemporaryDir folder;
    const QString fileName = writeGenerated(folder, nodes);
    const QString copy = folder.filePath(QStringLiteral("copy.zkdoc"));
    const int rounds = roundsFor(nodes);
    const auto perNode = [nodes](double ns) { return ns / static_cast<double>(nodes); };

    Best open;
    for (int round = 0; round < rounds; ++round) {
        DocumentImpl opened;
        open.add([&] { load(opened, fileName); });
    }
    figures.open.push_back(perNode(open.nanoseconds()));
    figures.openBare.push_back(perNode(bestOf(rounds, [&] { readBare(fileName); })));
    DocumentImpl document;
    load(document, fileName);
    figures.save.push_back(perNode(bestOf(rounds, [&] {
        if (!document.save(copy))
            qFatal("%s", qPrintable(document.lastError()));
    })));
    const std::vector<XmlToken> tokens = tokensOf(copy);
    const QString bareCopy = folder.filePath(QStringLiteral("bare.zkdoc"));
    figures.saveBare.push_back(perNode(bestOf(rounds, [&] { writeBare(bareCopy, tokens); })));
    figures.resident.push_back(perNode(residentBytesOf(fileName)));
}

struct CommandFigures
{
    Figures execute, undo, redo;
};

void measureCommand(size_t nodes, CommandFigures& figures)
{
    DocumentImpl document;
    loadGeneratedDocument(document, nodes);
    const PropertyKey title = PropertyKey::fromString("title");
    const std::set<NodeImpl*> targets = nodesWith(document, title);
    Best execute, undo, redo;
    for (int round = 0; round < roundsFor(nodes); ++round) {
        auto command = std::make_unique<SetValueCommand>();
        for (const NodeImpl* node : targets)
            command->addAddress({node->instanceId(), INVALID_CID, title}, Value(QStringLiteral("all alike")));
        execute.add([&] {
            if (!document.executeCommand(command.release()).isValid())
                qFatal("%s", qPrintable(document.lastError()));
        });
        undo.add([&] { document.undo(); });
        redo.add([&] { document.redo(); });
        document.undo();
    }
    const auto properties = static_cast<double>(targets.size());
    figures.execute.push_back(execute.nanoseconds() / properties);
    figures.undo.push_back(undo.nanoseconds() / properties);
    figures.redo.push_back(redo.nanoseconds() / properties);
}

enum class Spread { Equal, Different, LastDifferent };

QString titleFor(Spread spread, size_t index, size_t count)
{
    if (spread == Spread::Different)
        return QStringLiteral("title %1").arg(index);
    return spread == Spread::LastDifferent && index + 1 == count ? QStringLiteral("last") : QStringLiteral("off");
}

struct BindingFigures
{
    Figures firstBind, bind, edit, unbind;
};

void measureBinding(size_t nodes, Spread spread, BindingFigures& figures)
{
    DocumentImpl document;
    loadGeneratedDocument(document, nodes);
    const PropertyKey title = PropertyKey::fromString("title");
    const std::set<NodeImpl*> targets = nodesWith(document, title);
    auto prepare = std::make_unique<SetValueCommand>();
    size_t index = 0;
    for (const NodeImpl* node : targets) // the order in which the observer sees them
        prepare->addAddress({node->instanceId(), INVALID_CID, title}, Value(titleFor(spread, index++, targets.size())));
    if (!document.executeCommand(prepare.release()).isValid())
        qFatal("%s", qPrintable(document.lastError()));

    ObserverStringCheckBox box;
    box.setModelProperty(QStringLiteral("title"));
    box.setOnValue(QStringLiteral("on"));
    box.setOffValue(QStringLiteral("off"));
    Best firstBind, bind, edit, unbind;
    firstBind.add([&] { box.bind(&document, targets); });
    box.unbind();
    for (int round = 0; round < roundsFor(nodes); ++round) {
        bind.add([&] { box.bind(&document, targets); });
        edit.add([&] { box.click(); });
        if ((*targets.begin())->valueOfProperty(title).toString() == titleFor(spread, 0, targets.size()))
            qFatal("the click changed nothing");
        unbind.add([&] { box.unbind(); });
        document.undo();
    }
    const auto properties = static_cast<double>(targets.size());
    figures.firstBind.push_back(firstBind.nanoseconds() / properties);
    figures.bind.push_back(bind.nanoseconds() / properties);
    figures.edit.push_back(edit.nanoseconds() / properties);
    figures.unbind.push_back(unbind.nanoseconds() / properties);
}

struct BareFigures
{
    Figures write, connect, notify, disconnect;
};

/// The growth that the memory of the machine alone causes: the same kind of work on bare objects of the toolkit.
void measureBareObjects(size_t count, BareFigures& figures)
{
    std::vector<std::unique_ptr<BareObject>> objects;
    for (size_t i = 0; i < count; ++i) {
        objects.push_back(std::make_unique<BareObject>());
        objects.back()->setText(QStringLiteral("text %1").arg(i));
    }
    BareReceiver receiver;
    Best write, connect, notify, disconnect;
    for (int round = 0; round < roundsFor(count); ++round) {
        std::vector<QString> before;
        const QString text = QStringLiteral("round %1").arg(round);
        const auto writeAll = [&] {
            for (const auto& object : objects) {
                before.push_back(object->text());
                object->setText(text);
            }
        };
        write.add(writeAll);
        connect.add([&] { receiver.connectTo(objects); });
        before.clear();
        notify.add(writeAll);
        disconnect.add([&] { receiver.disconnectFrom(objects); });
    }
    const auto all = static_cast<double>(count);
    figures.write.push_back(write.nanoseconds() / all);
    figures.connect.push_back(connect.nanoseconds() / all);
    figures.notify.push_back(notify.nanoseconds() / all);
    figures.disconnect.push_back(disconnect.nanoseconds() / all);
}

Figures ratios(const Figures& a, const Figures& b)
{
    Figures result;
    for (size_t i = 0; i < a.size(); ++i)
        result.push_back(a[i] / b[i]);
    return result;
}

void reportBinding(Table& table, const char* title, Spread spread)
{
    BindingFigures figures;
    for (const size_t nodes : sizes)
        measureBinding(nodes, spread, figures);
    table.section(title);
    table.row("bind, first time (makes the properties)", figures.firstBind);
    table.growthRow("bind", figures.bind, 1.3);
    table.growthRow("edit", figures.edit, 1.3);
    table.growthRow("unbind", figures.unbind, 1.3);
}

void reportAll()
{
    Table table({std::begin(sizes), std::end(sizes)});
    FileFigures files;
    for (const size_t nodes : sizes)
        measureFiles(nodes, files);
    table.section("Files, nanoseconds per node");
    table.row("open", files.open);
    table.row("bare XML reader over the same bytes", files.openBare);
    table.ratioRow("open, times the bare reader", ratios(files.open, files.openBare), 5);
    table.row("save", files.save);
    table.row("bare XML writer of the same tokens", files.saveBare);
    table.ratioRow("save, times the bare writer", ratios(files.save, files.saveBare), 3);
    table.section("Memory, resident bytes per node");
    table.limitRow("open document", files.resident, 700);

    CommandFigures commands;
    for (const size_t nodes : sizes)
        measureCommand(nodes, commands);
    table.section("One SetValueCommand over all nodes, nanoseconds per property");
    table.growthRow("execute", commands.execute, 1.3);
    table.growthRow("undo", commands.undo, 1.3);
    table.growthRow("redo", commands.redo, 1.3);

    BareFigures bare;
    for (const size_t count : sizes)
        measureBareObjects(count, bare);
    table.section("For comparison: bare objects of the toolkit, nanoseconds per object");
    table.row("write a text, keep the old one", bare.write);
    table.row("connect five signals", bare.connect);
    table.row("write and notify", bare.notify);
    table.row("disconnect", bare.disconnect);

    reportBinding(table, "One observer on all nodes, values equal, nanoseconds per property", Spread::Equal);
    reportBinding(table, "One observer on all nodes, values all different", Spread::Different);
    reportBinding(table, "One observer on all nodes, the last value different", Spread::LastDifferent);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--resident"))
        return reportResidentBytes(arguments.at(2));
    reportAll();
    return 0;
}
