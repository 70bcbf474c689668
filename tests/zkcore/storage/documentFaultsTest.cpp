#include "documentText.h"

#include "tests/support/documentGenerator.h"
#include "tests/support/qtPrinting.h"
#include "zkcore/model/documentImpl.h"

#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Fault
{
    const char* name;
    QByteArray bytes;
    QString message; // behind "house.zkdoc:"
};

QByteArray led(const QByteArray& content)
{
    return documentAroundParts("   <part class=\"electronics/led\" id=\"3\">\n" + content + "\n   </part>");
}

QByteArray proxy(int id, int target, const QByteArray& key = "brightness", const QByteArray& targetKey = "brightness")
{
    return "   <part class=\"electronics/led\" id=\"" + QByteArray::number(id) + "\">\n    <value key=\"" + key +
           "\" proxy=\"" + QByteArray::number(target) + "\" proxy-key=\"" + targetKey + "\">50</value>\n   </part>\n";
}

const Fault faults[] = {
    {"empty", "", "1:1: Premature end of document."},
    {"notXml", "PK\x03\x04 zip", "1:1: Start tag expected."},
    {"binary", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "1:1: Encountered incorrectly encoded content."},
    {"otherXml", "<svg/>", "1:6: this is no document: it begins with <svg>"},
    {"cutOff", documentAroundParts("").left(120), "4:12: Premature end of document."},
    {"wrongEncoding", documentAround("  <value key=\"title\">Gr\xfc\xdf</value>"),
     "4:24: Encountered incorrectly encoded content."},
    {"documentType",
     "<!DOCTYPE zkdoc [<!ENTITY a \"aaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>\n<zkdoc version=\"1\">&b;</zkdoc>",
     "1:67: document type declarations are not allowed"},
    {"undeclaredEntity", led("<value key=\"title\">&bomb;</value>"), "6:25: Entity 'bomb' not declared."},
    {"noVersion", "<zkdoc/>", "1:8: the format version is missing or no number"},
    {"newer", "<zkdoc version=\"2\">", "1:19: the format version is 2; this program reads versions up to 1"},
    {"noModel", "<zkdoc version=\"1\">\n</zkdoc>", "2:8: the document has no model"},
    {"noScene", documentAround(""), "5:9: the document has no scene"},
    {"twoModels", documentAroundParts("").replace("</zkdoc>", "<model class=\"core/model\" id=\"9\"/></zkdoc>"),
     "8:34: a document has one model only"},
    {"junkBehind", documentAroundParts("") + "<more/>", "9:7: Extra content at end of document."},
    {"commentBehind", documentAroundParts("") + "<!-- more -->",
     "9:13: nothing can stand after the end of the document"},
    {"text", documentAroundParts("   on and off"), "6:3: text cannot stand here"},
    {"partInModel", documentAround("  <part class=\"electronics/led\" id=\"3\"/>"), "4:40: <part> cannot stand here"},
    {"subpartInScene", documentAroundParts("   <subpart class=\"core/pin\" id=\"3\"/>"),
     "5:37: <subpart> cannot stand here"},
    {"twoPopups", led("<popup class=\"core/popup\" id=\"4\"/><popup class=\"core/popup\" id=\"5\"/>"),
     "6:68: a part has one pop-up only"},
    {"domainInPart", led("<domain class=\"flowcharts/*\"/>"), "6:30: <domain> cannot stand here"},
    {"classAsDomain", documentAroundParts("<domain class=\"electronics/led\"/>"),
     "5:33: \"electronics/led\" names no domain"},
    {"otherKind", documentAroundParts("   <part class=\"core/pin\" id=\"3\"/>"),
     "5:34: class \"core/pin\" is of another kind than <part>"},
    {"unknownKinds", documentAroundParts("<part class=\"a/b\" id=\"3\"><subpart class=\"a/b\" id=\"4\"/></part>"),
     "5:54: class \"a/b\" is of another kind than <subpart>"},
    {"unknownModel", documentAround("").replace("core/model", "core/mode"), "3:33: class \"core/mode\" is not known"},
    {"noClass", documentAroundParts("   <part id=\"3\"/>"), "5:17: <part> has no class"},
    {"noId", documentAroundParts("   <part class=\"electronics/led\"/>"), "5:34: <part> has no instance id"},
    {"zeroId", documentAroundParts("   <part class=\"electronics/led\" id=\"0\"/>"), "5:41: \"0\" is no instance id"},
    {"greatId", documentAroundParts("   <part class=\"electronics/led\" id=\"4294967295\"/>"),
     "5:50: \"4294967295\" is no instance id"},
    {"idTwice", documentAroundParts("   <part class=\"core/text\" id=\"7\"/>\n   <part class=\"core/text\" id=\"7\"/>"),
     "6:35: instance id 7 is used twice"},
    {"adhoc", documentAroundParts("<part class=\"core/text\" id=\"7\" adhoc=\"1\"/>"),
     "5:42: \"1\" is neither true nor false"},
    {"lock", documentAroundParts("<part class=\"core/text\" id=\"7\" locks=\"size colour\"/>"),
     "5:52: \"colour\" is no lock"},
    {"reflectionKind", documentAroundParts("<part class=\"core/text\" id=\"7\" reflects=\"3\" reflection=\"all\"/>"),
     "5:62: \"all\" is no kind of reflection"},
    {"halfReflection", documentAroundParts("<part class=\"core/text\" id=\"7\" reflects=\"3\"/>"),
     "5:45: a reflection needs both what it reflects and which kind it is"},
    {"noKey", led("<value>1</value>"), "6:7: <value> has no key"},
    {"wrongInt", led("<value key=\"brightness\">7.5</value>"), "6:35: \"7.5\" is no int (property \"brightness\")"},
    {"greatInt", led("<value key=\"brightness\">9999999999</value>"),
     "6:42: \"9999999999\" is no int (property \"brightness\")"},
    {"notANumber", led("<value key=\"orientation\">nan</value>"),
     "6:36: \"nan\" is no double (property \"orientation\")"},
    {"wrongBool", led("<value key=\"lit\">yes</value>"), "6:28: \"yes\" is no bool (property \"lit\")"},
    {"wrongPoint", led("<value key=\"position\">1</value>"), "6:31: \"1\" is no point (property \"position\")"},
    {"wrongColor", led("<value key=\"color\">reddish</value>"), "6:34: \"reddish\" is no color (property \"color\")"},
    {"elementInText", led("<value key=\"lit\"><b/></value>"), "6:21: only text can stand here"},
    {"proxyWithoutKey", led("<value key=\"lit\" proxy=\"4\">true</value>"),
     "6:27: a proxy needs both a node and a key to follow"},
    {"proxyDomain", led("<value key=\"lit\" proxy=\"4\" proxy-key=\"x\" proxy-domain=\"core\">true</value>"),
     "6:61: \"core\" names no domain"},
    {"ownProxy", documentAroundParts(proxy(3, 3)),
     "6:61: property \"brightness\" of node 3 follows itself, directly or through others"},
    {"circle", documentAroundParts(proxy(3, 9) + proxy(4, 5) + proxy(5, 6) + proxy(6, 4)),
     "9:61: property \"brightness\" of node 4 follows itself, directly or through others"},
    {"otherType", documentAroundParts(proxy(3, 2, "brightness", "background")),
     "6:61: property \"brightness\" (int) cannot follow \"background\" (color)"},
    {"resourceName", "<zkdoc version=\"1\"><resources><resource name=\"led\" type=\"image\" extension=\"png\"/>",
     "1:81: \"led\" is no name of a document's resource"},
    {"resourceData",
     "<zkdoc version=\"1\"><resources><resource name=\"local/a\" type=\"image\" extension=\"png\">A*==</resource>",
     "1:99: the data of resource \"local/a\" are damaged"},
};

class DocumentFaults : public testing::TestWithParam<Fault>
{
};

TEST_P(DocumentFaults, giveOneMessageWithThePlace)
{
    const ReadResult result(GetParam().bytes);
    EXPECT_FALSE(result.done);
    EXPECT_EQ(result.error, QStringLiteral("house.zkdoc:") + GetParam().message);
    EXPECT_TRUE(result.content.root.children.empty());
}

INSTANTIATE_TEST_SUITE_P(, DocumentFaults, testing::ValuesIn(faults),
                         [](const auto& fault) { return fault.param.name; });

/// Subparts in one another; with the model, the scene and a part the document is `nodes` deep.
QByteArray nested(int nodes)
{
    QByteArray content = "<part class=\"core/text\" id=\"3\">";
    for (int depth = 4; depth <= nodes; ++depth)
        content += "<subpart class=\"core/body\" id=\"" + QByteArray::number(depth) + "\">";
    return documentAroundParts(content + QByteArray("</subpart>").repeated(nodes - 3) + "</part>");
}

TEST(DocumentLimits, refuseWhatWouldExhaustTheMachine)
{
    EXPECT_TRUE(ReadResult(nested(64)).done);
    EXPECT_TRUE(ReadResult(nested(65)).error.endsWith(u": nodes are nested deeper than 64"));

    const QByteArray unknown = QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000);
    EXPECT_EQ(ReadResult(led(unknown)).error, "house.zkdoc:6:195: elements are nested too deep");

    const QByteArray list = "<value key=\"input-names\">" + QByteArray("<item>").repeated(100'000);
    EXPECT_FALSE(ReadResult(led(list).replace("electronics/led", "electronics/block")).done);

    QByteArray classes;
    for (int i = 0; i < 10'001; ++i)
        classes += "<part class=\"lost/" + QByteArray::number(i) + "\" id=\"" + QByteArray::number(i + 10) + "\"/>\n";
    EXPECT_EQ(ReadResult(documentAroundParts(classes)).error,
              "house.zkdoc:10005:37: more than 10000 classes are not known");
}

TEST(DocumentLimits, refuseATextOfMoreThan64Megabytes)
{
    constexpr qsizetype limit = 64 * 1024 * 1024;
    const ReadResult result(led("<value key=\"title\">" + QByteArray(limit + 1, 'x') + "</value>"));
    EXPECT_TRUE(result.error.endsWith(u": the text of a value is longer than 64 MB"));
}

TEST(DocumentLimits, keepAHundredWarnings)
{
    QByteArray parts;
    for (int i = 10; i < 150; ++i)
        parts +=
            "<part class=\"core/text\" id=\"" + QByteArray::number(i) + "\"><value key=\"id\">same</value></part>\n";
    const ReadResult result(documentAroundParts(parts));
    ASSERT_TRUE(result.done);
    ASSERT_EQ(result.content.warnings.size(), 101);
    EXPECT_EQ(result.content.warnings.first(), "house.zkdoc:6:48: the id \"same\" is used twice; kept");
    // With the next id that was too low.
    EXPECT_EQ(result.content.warnings.last(), "house.zkdoc: 40 more warning(s) left out");
}

TEST(DamagedDocument, leavesTheOpenOneAsItWas)
{
    DocumentImpl document;
    loadGeneratedDocument(document, 50);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("broken.zkdoc");
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(generatedDocument(200).chopped(100));
    file.close();

    const ModelImpl* model = document.getModel();
    const QUrl url = document.getUrl();
    const QSignalSpy loaded(&document, &DocumentImpl::Loaded);
    const QSignalSpy removed(&document, &DocumentImpl::SceneRemoved);
    EXPECT_FALSE(document.load(fileName));
    EXPECT_TRUE(document.lastError().startsWith(fileName + u':'));
    EXPECT_TRUE(document.lastError().endsWith(u": Premature end of document."));
    EXPECT_EQ(document.getModel(), model);
    EXPECT_EQ(document.nodeCount(), 50u);
    EXPECT_EQ(document.getUrl(), url);
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(loaded.count() + removed.count(), 0);

    EXPECT_FALSE(document.load(folder.filePath("absent.zkdoc")));
    EXPECT_EQ(document.lastError(), folder.filePath("absent.zkdoc") + ": No such file or directory");
}

/// Reading gives either a document or one message with a place, whatever the bytes are.
void expectResult(const QByteArray& bytes, const char* what, qsizetype where)
{
    static const QRegularExpression message("^house\\.zkdoc:[0-9]+:[1-9][0-9]*: [^\n]+$");
    const ReadResult result(bytes);
    if (result.done)
        EXPECT_TRUE(result.error.isEmpty()) << what << where;
    else
        EXPECT_TRUE(message.match(result.error).hasMatch()) << what << where << ": " << result.error.toStdString();
}

TEST(DamagedDocument, neverCrashesTheReader)
{
    const QByteArray whole = generatedDocument(40);
    for (qsizetype size = 0; size < whole.size(); size += 50)
        expectResult(whole.left(size), "cut at ", size);
    QRandomGenerator random(20240607);
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes = whole;
        for (int flips = random.bounded(1, 4); flips > 0; --flips)
            bytes[random.bounded(bytes.size())] ^= static_cast<char>(1 << random.bounded(8));
        expectResult(bytes, "flipped, round ", round);
    }
}

} // namespace
