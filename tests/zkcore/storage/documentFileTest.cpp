#include "documentText.h"

#include "tests/support/documentGenerator.h"
#include "tests/support/qtPrinting.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/storage/nodeXml.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <csignal>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sys/resource.h>

namespace {

class DocumentFileTest : public testing::Test
{
protected:
    QString write(const QByteArray& bytes)
    {
        QFile file(m_folder.filePath("house.zkdoc"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QByteArray content(const QString& fileName)
    {
        QFile file(fileName);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    /// Loads the bytes and gives what saving makes of them.
    QByteArray savedAgain(const QByteArray& bytes)
    {
        EXPECT_TRUE(m_document.load(write(bytes))) << m_document.lastError().toStdString();
        EXPECT_TRUE(m_document.save(m_folder.filePath("saved.zkdoc"))) << m_document.lastError().toStdString();
        return content(m_folder.filePath("saved.zkdoc"));
    }
    QStringList warnings() const
    {
        QStringList result;
        for (const QString& warning : m_document.loadWarnings())
            result.append(warning.mid(m_folder.filePath("house.zkdoc").size() + 1));
        return result;
    }

    QTemporaryDir m_folder;
    DocumentImpl m_document;
};

TEST_F(DocumentFileTest, savesWhatItLoadedByteForByte)
{
    for (const size_t nodes : {2u, 40u, 3000u}) {
        const QByteArray bytes = generatedDocument(nodes);
        EXPECT_TRUE(savedAgain(bytes) == bytes) << nodes;
        EXPECT_EQ(m_document.nodeCount(), nodes);
        EXPECT_EQ(m_document.loadWarnings(), QStringList());
        EXPECT_FALSE(m_document.isModified());
    }
}

TEST_F(DocumentFileTest, keepsWhatItDoesNotUnderstand)
{
    const QByteArray bytes = R"(<?xml version="1.0" encoding="UTF-8"?>
<zkdoc version="1" next-id="8">
 <model class="core/model" id="1">
  <scene class="core/scene" id="2">
   <value key="title">Lost &amp; found</value>
   <part class="lost/lamp" id="3" locks="size">
    <value key="id">lamp1</value>
    <value key="position">0.1 0.05</value>
    <subpart class="lost/socket" id="4" adhoc="false"/>
    <value key="watts">40</value>
    <value key="orientation">0</value>
    <value key="size">three by four</value>
    <value key="visible"><item key="a">1</item></value>
   </part>
   <part class="electronics/led" id="5">
    <value key="id">led1</value>
    <value key="brightness" proxy="77" proxy-key="level">100</value>
    <x:story xmlns:x="urn:x" kind="a&quot;b&lt;c&#10;d"> two <b>three</b>  <?run now?><!-- why --> &lt;end&amp; </x:story>
    <value key="halo">wide</value>
   </part>
   <part class="core/info" id="6" reflects="30" reflection="body">
    <value key="id">info1</value>
    <popup class="core/popup" id="7">
     <domain class="magic/*">
      <value key="spell">on</value>
     </domain>
     <domain class="flowcharts/*"><value key="luck">7</value></domain>
    </popup>
   </part>
  </scene>
 </model>
</zkdoc>
)";
    EXPECT_EQ(savedAgain(bytes), bytes);
    EXPECT_EQ(warnings(),
              QStringList({
                  "6:47: class \"lost/lamp\" is not known; kept as it is",
                  "9:55: class \"lost/socket\" is not known; kept as it is",
                  "18:56: <x:story> is not known; kept as it is",
                  "19:22: class \"electronics/led\" has no property \"halo\"; kept as it is",
                  "24:29: class \"magic/*\" is not known; kept as it is",
                  "27:52: class \"flowcharts/*\" has no property \"luck\"; kept as it is",
                  "17:57: property \"brightness\" follows one that is not there (\"level\" of node 77); kept as it is",
                  "21:66: node 30, which is reflected here, is not there; kept as it is",
              }));
}

TEST_F(DocumentFileTest, dropsAndMendsOnlyWhatItSays)
{
    const QByteArray saved = savedAgain(R"(<?xml version="1.0"?>
<!-- by hand --><zkdoc next-id="3" version="1"><model class="core/model" id="1">
 <value key="paused">true</value>
 <scene id="8" class="core/scene" colour="red"><value key="title">A</value><domain class="flowcharts/*">
   <value key="speed">Slow</value><value key="step-pressed">true</value></domain>
  <part class="electronics/led" id="4">
   <subpart class="electronics/pin" id="9"/>
   <value key="brightness">250</value>
   <value key="id">l&#101;d</value><value key="blink-period">1</value>
   <value key="title"><![CDATA[<b>]]><!-- x -->c</value><value key="title">second</value>
  </part>
 </scene></model></zkdoc>)");
    EXPECT_EQ(saved, R"(<?xml version="1.0" encoding="UTF-8"?>
<zkdoc version="1" next-id="10">
 <model class="core/model" id="1">
  <scene class="core/scene" id="8">
   <value key="title">A</value>
   <domain class="flowcharts/*">
    <value key="speed">Slow</value>
   </domain>
   <part class="electronics/led" id="4">
    <value key="id">led</value>
    <value key="title">&lt;b&gt;c</value>
    <value key="brightness">250</value>
    <subpart class="electronics/pin" id="9"/>
   </part>
  </scene>
 </model>
</zkdoc>
)");
    EXPECT_EQ(
        warnings(),
        QStringList({
            "3:21: property \"paused\" is not kept in files; dropped",
            "4:47: attribute \"colour\" of <scene> is not known and was dropped",
            "5:60: property \"step-pressed\" is not kept in files; dropped",
            "8:27: the value of property \"brightness\" is not allowed; kept: Only values from 0 to 100 are allowed.",
            "10:75: property \"title\" is given twice; the first value counts",
            "12:25: the next instance id was 3, which is too low; it is 10 now",
        }));
}

TEST_F(DocumentFileTest, writesProxiesWithTheValueLastSeen)
{
    ASSERT_TRUE(m_document.load(
        write(documentAroundParts("   <part class=\"electronics/led\" id=\"3\">\n"
                                  "    <value key=\"brightness\" proxy=\"4\" proxy-key=\"brightness\">20</value>\n"
                                  "   </part>\n"
                                  "   <part class=\"electronics/led\" id=\"4\"/>"))));
    PropertyImpl* follower = m_document.propertyAt({3, INVALID_CID, PropertyKey::fromString("brightness")});
    PropertyImpl* target = m_document.propertyAt({4, INVALID_CID, PropertyKey::fromString("brightness")});
    ASSERT_EQ(follower->proxySubject(), target);
    m_document.executeCommand(new SetValueCommand(Property(target), Value(35), true));
    ASSERT_TRUE(m_document.save(m_folder.filePath("a.zkdoc")));
    EXPECT_TRUE(content(m_folder.filePath("a.zkdoc")).contains("proxy=\"4\" proxy-key=\"brightness\">35</value>"));
    m_document.executeCommand(new SetValueCommand(Property(target), target->definition().defaultValue, true));
    ASSERT_TRUE(m_document.save(m_folder.filePath("b.zkdoc")));
    const QByteArray saved = content(m_folder.filePath("b.zkdoc"));
    EXPECT_TRUE(saved.contains("proxy=\"4\" proxy-key=\"brightness\">100</value>"));
    EXPECT_EQ(saved.count("brightness"), 2) << saved.toStdString();
}

TEST_F(DocumentFileTest, keepsResourcesOfItsOwn)
{
    QByteArray bytes(1000, '\0');
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7);
    const QByteArray text = bytes.toBase64();
    const QByteArray document = documentAroundParts("").replace(
        " <model", " <resources>\n  <resource name=\"local/a &amp; b\" type=\"data\" extension=\"bin\">" +
                       text.left(300) + "\n  " + text.mid(300) + "</resource>\n </resources>\n <model");
    const QByteArray saved = savedAgain(document);
    EXPECT_TRUE(
        saved.contains("<resource name=\"local/a &amp; b\" type=\"data\" extension=\"bin\">" + text + "</resource>"));
    ASSERT_EQ(m_document.localResources().size(), 1u);
    EXPECT_EQ(m_document.resource("local/a & b").data(), bytes);
    EXPECT_EQ(savedAgain(saved), saved);
}

TEST_F(DocumentFileTest, leavesTheOldFileWhenSavingFails)
{
    ASSERT_TRUE(m_document.load(write(generatedDocument(2000))));
    const QString fileName = m_folder.filePath("old.zkdoc");
    QFile old(fileName);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old content");
    old.close();

    // A full disk: no file may grow beyond 20,000 bytes.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = 20'000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const bool saved = m_document.save(fileName);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(saved);
    EXPECT_EQ(m_document.lastError(), fileName + ": File too large");
    EXPECT_EQ(content(fileName), "old content");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 2);

    EXPECT_FALSE(m_document.save(m_folder.filePath("absent/new.zkdoc")));
    EXPECT_TRUE(m_document.lastError().startsWith(m_folder.filePath("absent/new.zkdoc: ")));
    EXPECT_FALSE(m_document.save(m_folder.path()));
    EXPECT_FALSE(m_document.lastError().isEmpty());
    EXPECT_EQ(m_document.getUrl(), QUrl::fromLocalFile(m_folder.filePath("house.zkdoc")));
}

// Random subtrees of real classes, with texts and numbers that are hard to write.

rc::Gen<QString> anyText()
{
    const auto unit = rc::gen::weightedOneOf<char16_t>(
        {{6, rc::gen::map(rc::gen::inRange<int>(0x20, 0x7f), [](int c) { return static_cast<char16_t>(c); })},
         {2, rc::gen::map(rc::gen::inRange<int>(0, 0x10000), [](int c) { return static_cast<char16_t>(c); })},
         {2,
          rc::gen::element<char16_t>(u'\r', u'\n', u'\t', u' ', u'\\', u'u', 0, 0xd83d, 0xde00, 0xffff, u']', u'>')}});
    return rc::gen::map(rc::gen::container<std::vector<char16_t>>(unit), [](const std::vector<char16_t>& text) {
        return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
    });
}

rc::Gen<double> anyNumber()
{
    return rc::gen::oneOf(rc::gen::arbitrary<double>(),
                          rc::gen::element(0.1, 1e-300, -1.7976931348623157e308, 5e-324, 1e21));
}

rc::Gen<int> anyInt()
{
    return rc::gen::oneOf(rc::gen::arbitrary<int>(), rc::gen::element(INT_MIN, INT_MAX));
}

rc::Gen<Value> anyValue(Value::Type type)
{
    const auto made = [](auto gen) { return rc::gen::map(gen, [](const auto& content) { return Value(content); }); };
    const auto point = rc::gen::map(rc::gen::pair(anyNumber(), anyNumber()), [](const auto& p) {
        return zk::Point{p.first, p.second};
    });
    const auto resource = rc::gen::map(anyText(), [](const QString& name) { return Resource(name.trimmed()); });
    switch (type) {
    case Value::INT:
        return made(anyInt());
    case Value::DOUBLE:
        return made(anyNumber());
    case Value::POINT:
        return made(point);
    case Value::BOOL:
        return made(rc::gen::arbitrary<bool>());
    case Value::COLOR:
        return rc::gen::map(rc::gen::arbitrary<QRgb>(), [](QRgb rgba) { return Value(QColor::fromRgba(rgba)); });
    case Value::INTVECTOR:
        return made(rc::gen::container<std::vector<int>>(anyInt()));
    case Value::DOUBLEVECTOR:
        return made(rc::gen::container<std::vector<double>>(anyNumber()));
    case Value::POINTVECTOR:
        return made(rc::gen::container<std::vector<zk::Point>>(point));
    case Value::STRINGVECTOR:
        return made(rc::gen::container<std::vector<QString>>(anyText()));
    case Value::RESOURCE:
        return made(resource);
    case Value::RESOURCEVECTOR:
        return made(rc::gen::container<std::vector<Resource>>(resource));
    case Value::VALUEMAP:
        return rc::gen::map(
            rc::gen::container<std::vector<std::pair<QString, int>>>(rc::gen::pair(anyText(), anyInt())),
            [](const auto& pairs) {
                ValueMap map;
                for (const auto& [key, number] : pairs) {
                    map.emplace(key, Value(number));
                    map.emplace(key, Value(std::vector<Value>{Value(key), Value(number)}));
                }
                return Value(map);
            });
    case Value::NODE:
        return rc::gen::map(rc::gen::inRange<InstanceId>(0, 50), &Value::fromInstanceId);
    default:
        return made(anyText());
    }
}

void fillValues(NodeSnapshot& node, const NodePrototype& prototype, ClassId domain)
{
    for (const PropertyDefinition& definition : prototype.properties()) {
        if (definition.flags.testFlag(PropertyDefinition::Transient) || *rc::gen::inRange(0, 4) != 0)
            continue;
        NodeSnapshot::ValueEntry entry{domain, definition.key, *anyValue(definition.type), {}};
        // Those followed are of a node that is not in the subtree, so no circle comes about.
        if (*rc::gen::inRange(0, 6) == 0)
            entry.proxy = {*rc::gen::inRange<InstanceId>(1000, 4294967295u),
                           *rc::gen::element(INVALID_CID, getCidForString("flowcharts/*")),
                           PropertyKey::fromString("speed")};
        if (entry.proxy.isValid() || !(entry.value == definition.defaultValue))
            node.values.push_back(std::move(entry));
    }
}

NodeSnapshot anyNode(NodeDb& db, NodeKind kind, InstanceId& nextId, int depth)
{
    static const std::vector<const char*> parts{"electronics/led", "electronics/block", "electronics/buzzer",
                                                "core/info",       "electronics/meter", "flowcharts/step",
                                                "mechanics/cam",   "core/text"};
    static const std::vector<const char*> subparts{"core/pin", "electronics/control", "core/body"};
    NodeSnapshot node;
    node.kind = kind;
    node.cid = getCidForString(kind == NodeKind::Part      ? *rc::gen::elementOf(parts)
                               : kind == NodeKind::Subpart ? *rc::gen::elementOf(subparts)
                               : kind == NodeKind::Scene   ? "core/scene"
                                                           : "core/popup");
    node.id = nextId++;
    fillValues(node, *db.lookupPrototype(node.cid), INVALID_CID);
    if (kind == NodeKind::Scene || kind == NodeKind::Popup) {
        const ClassId domain = getCidForString("flowcharts/*");
        fillValues(node, *db.lookupPrototype(domain), domain);
    } else {
        node.locks = *rc::gen::inRange(0u, 16u);
        node.adhoc = *rc::gen::arbitrary<bool>();
        node.reflectionKind = *rc::gen::element(ReflectionKind::None, ReflectionKind::None, ReflectionKind::Pads,
                                                ReflectionKind::Controls, ReflectionKind::Body);
        node.reflects = node.reflectionKind == ReflectionKind::None ? 0 : *rc::gen::inRange<InstanceId>(1, 100);
    }
    if (*rc::gen::inRange(0, 8) == 0)
        node.unknownContent =
            QStringLiteral("<later a=\"&lt;&#9;&quot;\"><b/> x&#13;&amp;%1 </later><c/>").arg(node.id);
    if (depth > 0) {
        const bool space = kind == NodeKind::Scene || kind == NodeKind::Popup;
        for (int i = *rc::gen::inRange(0, 4); i > 0; --i)
            node.children.push_back(anyNode(db, space ? NodeKind::Part : NodeKind::Subpart, nextId, depth - 1));
        if (kind == NodeKind::Part && *rc::gen::inRange(0, 4) == 0)
            node.popup = std::make_unique<NodeSnapshot>(anyNode(db, NodeKind::Popup, nextId, depth - 1));
    }
    return node;
}

RC_GTEST_PROP(NodeXmlProperty, readsBackWhatItWrote, ())
{
    NodeDb db;
    addClasses(db);
    InstanceId nextId = 1;
    const NodeSnapshot node = anyNode(db, NodeKind::Scene, nextId, 4);
    const bool formatting = *rc::gen::arbitrary<bool>();
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(formatting);
    NodeXml::write(writer, node, db);
    writer.writeEndDocument();

    QXmlStreamReader reader(bytes);
    reader.readNextStartElement();
    NodeSnapshot read;
    QStringList warnings;
    const bool done = NodeXml::read(reader, db, read, warnings);
    RC_ASSERT(reader.errorString().toStdString() == "");
    RC_ASSERT(done);
    RC_ASSERT(reader.isEndElement());
    RC_ASSERT(difference(node, read).toStdString() == "");
}

} // namespace
