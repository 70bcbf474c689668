#include "packageFolder.h"

#include "tests/support/messageCapture.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/storage/package.h"

#include <QDir>
#include <QFile>
#include <ostream>

// A faulty package gives one message with file, line, column and reason, and nothing of it stays.

namespace {

struct FaultyPackage
{
    const char* name;
    /// With a '~' behind the start tag whose place the message gives.
    QByteArray classes;
    QByteArray reason;

    friend void PrintTo(const FaultyPackage& faulty, std::ostream* out) { *out << faulty.name; }
};

class PackageFaults : public PackageFolderTest, public testing::WithParamInterface<FaultyPackage>
{
};

/// A class "faulty/a" with something in it.
QByteArray inClass(const QByteArray& content)
{
    return "<class id=\"faulty/a\" base=\"core/part\">" + content + "</class>";
}

/// A property "p" of that class with something in it.
QByteArray inProperty(const QByteArray& attributes, const QByteArray& content = "~")
{
    return inClass("<property key=\"p\" " + attributes + ">" + content + "</property>");
}

} // namespace

TEST_P(PackageFaults, AreToldOnceAndNothingIsKept)
{
    QByteArray text = GetParam().classes;
    const qsizetype mark = text.indexOf('~');
    ASSERT_GE(mark, 0);
    text.remove(mark, 1);
    const QByteArray before = text.left(mark);
    const qsizetype line = 2 + before.count('\n');
    const qsizetype column = mark - 1 - before.lastIndexOf('\n');
    const QString folder = writePackage(QStringLiteral("faulty"), text);
    write(QStringLiteral("faulty/picture.svg"), picture());
    const size_t countBefore = Package::all().size();
    const QStringList imagesBefore = ResourceTable::instance().names(Resource::IMAGE);

    MessageCapture capture;
    QString error;
    EXPECT_FALSE(Package::load(folder, error));
    EXPECT_EQ(error, folder + QStringLiteral("/package.xml:%1:%2: ").arg(line).arg(column) +
                         QString::fromUtf8(GetParam().reason));
    EXPECT_TRUE(capture.isEmpty());
    EXPECT_EQ(Package::all().size(), countBefore);
    EXPECT_EQ(Package::findByClassID(getCidForString("faulty/a")), nullptr);
    EXPECT_EQ(ResourceTable::instance().names(Resource::IMAGE), imagesBefore);

    // Mended, the same folder loads.
    writePackage(QStringLiteral("faulty"), inClass({}));
    EXPECT_TRUE(Package::load(folder, error)) << error.toStdString();
    EXPECT_TRUE(Resource("faulty/picture").isValid());
}

INSTANTIATE_TEST_SUITE_P(
    Classes, PackageFaults,
    testing::Values(
        FaultyPackage{"IdWithoutDomain", "<class id=\"lonely\" kind=\"part\"/>~",
                      "\"lonely\" is no class id such as \"electronics/led\""},
        FaultyPackage{"DuplicateId",
                      "<class id=\"faulty/a\" base=\"core/part\"/>\n<class id=\"faulty/a\" kind=\"part\"/>~",
                      "the class \"faulty/a\" is defined twice"},
        FaultyPackage{"IdOfAnotherPackage", "<class id=\"core/part\" kind=\"part\"/>~",
                      "another package defines the class \"core/part\""},
        FaultyPackage{"UnknownBase", "<class id=\"faulty/a\" base=\"faulty/b\"/>~", "there is no class \"faulty/b\""},
        FaultyPackage{"CircularBases",
                      "<class id=\"faulty/a\" base=\"faulty/b\"/>\n<class id=\"faulty/b\" base=\"faulty/a\"/>~",
                      "the class \"faulty/a\" needs itself as a base or subpart"},
        FaultyPackage{"SubpartOfItself",
                      "<class id=\"faulty/a\" base=\"core/pin\"><subpart class=\"faulty/a\"/>~</class>",
                      "the class \"faulty/a\" needs itself as a base or subpart"},
        FaultyPackage{"NoKind", "<class id=\"faulty/a\"/>~", "a class without a base needs a kind"},
        FaultyPackage{"UnknownKind", "<class id=\"faulty/a\" kind=\"gadget\"/>~",
                      "the attribute \"kind\" is none of model, scene, popup, part, subpart, domain: \"gadget\""},
        FaultyPackage{"KindOfTheBase", "<class id=\"faulty/a\" base=\"core/part\" kind=\"scene\"/>~",
                      "the base \"core/part\" is of another kind"},
        FaultyPackage{"DomainWithoutStar", "<class id=\"faulty/a\" kind=\"domain\"/>~",
                      "domains have ids such as \"electronics/*\", other classes have not"},
        FaultyPackage{"UnknownAttribute", "<class id=\"faulty/a\" kind=\"part\" colour=\"red\"/>~",
                      "<class> has no attribute \"colour\""},
        FaultyPackage{"UnknownElement", inClass("<propperty key=\"p\"/>~"), "<propperty> cannot stand in <class>"},
        FaultyPackage{"StrayText", inClass("~hello"), "<class> cannot have text here"},
        FaultyPackage{"BadFlag", "<class id=\"faulty/a\" base=\"core/part\" abstract=\"yes\"/>~",
                      "the attribute \"abstract\" is none of false, true: \"yes\""},
        FaultyPackage{"BadNumber", "<class id=\"faulty/a\" base=\"core/part\" keystage=\"two\"/>~",
                      "the attribute \"keystage\" is no whole number from 0 on: \"two\""},
        FaultyPackage{"NoSuchPicture", "<class id=\"faulty/a\" base=\"core/part\" icon=\"faulty/none\"/>~",
                      "there is no resource \"faulty/none\""},
        FaultyPackage{"PictureAsForm", inClass("<form>~faulty/picture</form>"),
                      "the resource \"faulty/picture\" is of the type image, not form"},
        FaultyPackage{"NoSuchForm", inClass("<form>~faulty/form</form>"), "there is no resource \"faulty/form\""},
        FaultyPackage{"PopupOfWrongKind", "<class id=\"faulty/a\" base=\"core/part\" popup=\"core/scene\"/>~",
                      "the class \"core/scene\" is no pop-up"},
        FaultyPackage{"UnknownSubpart", inClass("<subpart class=\"faulty/pin\"/>~"),
                      "there is no class \"faulty/pin\""},
        FaultyPackage{"SubpartOfWrongKind", inClass("<subpart class=\"core/text\"/>~"),
                      "no subpart can be of the class \"core/text\""},
        FaultyPackage{"SubpartWithUnknownProperty",
                      inClass("<subpart class=\"core/pin\"><value key=\"volume\">~1</value></subpart>"),
                      "the class \"core/pin\" has no property \"volume\""},
        FaultyPackage{"RuleWithUnknownClass", inClass("<allow role=\"pads\">\n<class>~faulty/pad</class></allow>"),
                      "there is no class \"faulty/pad\""},
        FaultyPackage{"RuleForParts", inClass("<allow role=\"pads\">\n<class>~core/part</class></allow>"),
                      "no subpart can be of the class \"core/part\""},
        FaultyPackage{"SubstitutionTwice",
                      inClass("<substitution string=\"x\" text=\"1\"/>\n<substitution string=\"x\" text=\"2\"/>~"),
                      "\"x\" is substituted twice"},
        FaultyPackage{"SubstitutionByNothing", inClass("<substitution string=\"x\"/>~"),
                      "a substitution needs a string and either a resource or a text"}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Properties, PackageFaults,
    testing::Values(
        FaultyPackage{"UnknownType", inProperty("type=\"number\""), "\"number\" is no type of a property"},
        FaultyPackage{"KeyTwice", inClass("<property key=\"p\" type=\"int\"/>\n<property key=\"p\" type=\"int\"/>~"),
                      "the property \"p\" is given twice"},
        FaultyPackage{"ReservedKey", inClass("<property key=\"meta-label\" type=\"string\"/>~"),
                      "the property \"meta-label\" is made by the program itself"},
        FaultyPackage{"OtherTypeThanInherited", inClass("<property key=\"size\" type=\"double\"/>~"),
                      "the property \"size\" is inherited with the type point"},
        FaultyPackage{"UnknownFlag", inProperty("type=\"int\" flags=\"style shiny\""),
                      "the flag \"shiny\" is not known"},
        FaultyPackage{"UnknownLock", inProperty("type=\"int\" lock=\"colour\""),
                      "the attribute \"lock\" is none of position, size, orientation, values: \"colour\""},
        FaultyPackage{"UnknownUnit", inProperty("type=\"double\" unit=\"smoots\""), "the unit \"smoots\" is not known"},
        FaultyPackage{"UnitOfText", inProperty("type=\"string\" unit=\"mm\""),
                      "values of the type string have no unit"},
        FaultyPackage{"UnitsThatDoNotMeasureTheSame",
                      inProperty("type=\"double\" unit=\"V\"", "<format><unit>~mm</unit></format>"),
                      "the unit \"mm\" does not measure the same as \"V\""},
        FaultyPackage{"WrongDefault", inProperty("type=\"int\" default=\"1.5\""),
                      "\"1.5\" is no value of the type int"},
        FaultyPackage{"DefaultThatIsNoNumber", inProperty("type=\"double\" default=\"nan\""),
                      "\"nan\" is no value of the type double"},
        FaultyPackage{"TwoDefaults", inProperty("type=\"int\" default=\"1\"", "<default>~2</default>"),
                      "the property has a default already"},
        FaultyPackage{"ListAsAttribute", inProperty("type=\"string list\" default=\"a b\""),
                      "a default of the type string list stands in an element <default>"},
        FaultyPackage{"ResourceThatDoesNotExist", inProperty("type=\"resource\" default=\"faulty/none\""),
                      "there is no resource \"faulty/none\""},
        FaultyPackage{"ResourceInAList",
                      inProperty("type=\"resource list\"", "<default>~<item>faulty/none</item></default>"),
                      "there is no resource \"faulty/none\""},
        FaultyPackage{"MinimumOverMaximum",
                      inProperty("type=\"int\"", "<validator kind=\"range\" min=\"2\" max=\"1\"/>~"),
                      "the minimum 2 is greater than the maximum 1"},
        FaultyPackage{"RangeOfText", inProperty("type=\"string\"", "<validator kind=\"range\" min=\"2\"/>~"),
                      "values of the type string have no range"},
        FaultyPackage{"UnknownValidator", inProperty("type=\"int\"", "<validator kind=\"prime\"/>~"),
                      "the attribute \"kind\" is none of range, set, pattern, resources: \"prime\""},
        FaultyPackage{"TwoValidators",
                      inProperty("type=\"int\"", "<validator kind=\"range\"/>\n<validator kind=\"range\"/>~"),
                      "a property has only one <validator>"},
        FaultyPackage{
            "ItemOfWrongType",
            inProperty("type=\"int\"", "<validator kind=\"set\"><item>0</item>\n<item>~one</item></validator>"),
            "\"one\" is no value of the type int"},
        FaultyPackage{"MalformedExpression",
                      inProperty("type=\"string\"", "<validator kind=\"pattern\" expression=\"[\"/>~"),
                      "the expression \"[\" is faulty: missing terminating ] for character class"},
        FaultyPackage{"DefaultRefused", inProperty("type=\"int\"", "~<validator kind=\"range\" min=\"1\"/>"),
                      "the property \"p\" does not allow the value \"0\""},
        FaultyPackage{"InheritedRangeRefuses", inClass("<value key=\"size\">~-1 -1</value>"),
                      "the property \"size\" does not allow the value \"-1 -1\""},
        FaultyPackage{"ValueOfNoProperty", inClass("<value key=\"volume\">~1</value>"),
                      "no base of the class has the property \"volume\""},
        FaultyPackage{"ValueOfWrongType", inClass("<value key=\"size\">~wide</value>"),
                      "\"wide\" is no value of the type point"}),
    [](const auto& test) { return std::string(test.param.name); });

class PackageFileFaults : public PackageFolderTest
{
protected:
    /// The message without the file's name, for the whole text of a package.xml.
    QString faultOf(const QByteArray& text)
    {
        const QString file = write(QStringLiteral("whole/package.xml"), text);
        QString error;
        EXPECT_FALSE(Package::load(path(QStringLiteral("whole")), error));
        EXPECT_TRUE(error.startsWith(file + u':')) << error.toStdString();
        return error.mid(file.size() + 1);
    }
};

TEST_F(PackageFileFaults, GiveThePlace)
{
    EXPECT_EQ(faultOf(""), QStringLiteral("1:1: Premature end of document."));
    EXPECT_EQ(faultOf("just a note"), QStringLiteral("1:1: Start tag expected."));
    EXPECT_EQ(faultOf("<package format=\"1\" name=\"whole\">\n<class id="),
              QStringLiteral("2:10: Premature end of document."));
    EXPECT_EQ(faultOf("<zkdoc/>"), QStringLiteral("1:8: this is no package but <zkdoc>"));
    EXPECT_EQ(faultOf("<package name=\"whole\"/>"), QStringLiteral("1:23: the attribute \"format\" is missing"));
    // Said before anything that only the newer format knows.
    EXPECT_EQ(faultOf("<package format=\"2\" flavour=\"new\"><gadget/></package>"),
              QStringLiteral("1:34: the package has the format 2, this program understands 1"));
    EXPECT_EQ(faultOf("<package format=\"1\" name=\"half\"/>"),
              QStringLiteral("1:33: the package \"half\" must stand in a folder of that name"));
    EXPECT_EQ(faultOf("<!DOCTYPE package [<!ENTITY a \"aaaa\">]>\n<package format=\"1\" name=\"whole\"/>"),
              QStringLiteral("1:39: document types and entities are not understood"));
    QByteArray deep("<package format=\"1\" name=\"whole\">\n");
    for (int i = 0; i < 100000; ++i)
        deep += "<class>";
    EXPECT_EQ(faultOf(deep), QStringLiteral("2:224: the elements are nested too deep"));
}

TEST_F(PackageFileFaults, LongChainsOfBasesAreRefusedNotFollowedToTheEndOfTheStack)
{
    QByteArray classes;
    for (int i = 0; i < 20000; ++i)
        classes += "<class id=\"chain/" + QByteArray::number(i) + "\" kind=\"part\" base=\"chain/" +
                   QByteArray::number(i + 1) + "\"/>\n";
    QString error;
    EXPECT_FALSE(Package::load(writePackage(QStringLiteral("chain"), classes), error));
    EXPECT_TRUE(error.endsWith(QLatin1String(": the classes are nested too deep"))) << error.toStdString();
}

TEST_F(PackageFileFaults, ClassesThatMultiplyAreRefused)
{
    const auto faultOfClasses = [this](const QByteArray& classes) {
        return faultOf("<package format=\"1\" name=\"whole\">\n" + classes + "</package>");
    };
    const auto number = [](int i) { return QByteArray::number(i); };
    // Ten of the class before in each: a part would have a million subparts.
    QByteArray classes("<class id=\"whole/0\" base=\"core/pin\"/>\n");
    for (int i = 1; i <= 6; ++i)
        classes += "<class id=\"whole/" + number(i) + "\" base=\"core/control\">" +
                   QByteArray("<subpart class=\"whole/" + number(i - 1) + "\"/>").repeated(10) + "</class>\n";
    EXPECT_EQ(faultOfClasses(classes), QStringLiteral("6:40: a part of the class would have more than 10000 subparts"));

    // Deeper in one another than documents can be.
    classes = "<class id=\"whole/0\" base=\"core/pin\"/>\n";
    for (int i = 1; i <= 50; ++i)
        classes += "<class id=\"whole/" + number(i) + "\" base=\"core/control\"><subpart class=\"whole/" +
                   number(i - 1) + "\"/></class>\n";
    EXPECT_EQ(faultOfClasses(classes),
              QStringLiteral("23:41: a part of the class would have subparts more than 20 deep in one another"));

    // Each class has a copy of what its base has.
    classes = "<class id=\"whole/0\" base=\"core/part\">";
    for (int i = 0; i < 1900; ++i)
        classes += "<property key=\"p" + number(i) + "\" type=\"int\"/>";
    classes += "</class>\n";
    for (int i = 1; i < 1000; ++i)
        classes += "<class id=\"whole/" + number(i) + "\" base=\"whole/0\"/>\n";
    EXPECT_TRUE(faultOfClasses(classes).endsWith(
        QStringLiteral(": the classes of a package have at most 500000 properties, subparts and so on together")));

    classes = "<class id=\"whole/0\" base=\"core/part\">" +
              QByteArray("<substitution string=\"a\" text=\"b\"/>").repeated(2001) + "</class>";
    EXPECT_EQ(faultOfClasses(classes),
              QStringLiteral("2:37: a class has at most 2000 properties, values, forms, substitutions, subparts, rules "
                             "and bases, with those of its bases"));
}

TEST_F(PackageFileFaults, FoldersWithoutAPackageOrWithTwoOfAName)
{
    QString error;
    EXPECT_FALSE(Package::load(path(QStringLiteral("nowhere")), error));
    EXPECT_EQ(error, path(QStringLiteral("nowhere/package.xml")) +
                         QStringLiteral(":1:1: the file cannot be read: No such file or directory"));

    const QString folder = writePackage(QStringLiteral("twice"), {});
    write(QStringLiteral("twice/images/led.svg"), picture());
    const QString second = write(QStringLiteral("twice/images/led.ui"), "<ui/>");
    EXPECT_FALSE(Package::load(folder, error));
    EXPECT_EQ(error, second + QStringLiteral(":1:1: it differs from \"images/led.svg\" only by its extension"));
    EXPECT_FALSE(Resource("twice/images/led").isValid());

    // The program's own pictures stand under that name.
    EXPECT_FALSE(Package::load(writePackage(QStringLiteral("editor"), {}), error));
    EXPECT_TRUE(error.endsWith(QLatin1String("no package can have the name \"editor\""))) << error.toStdString();
    EXPECT_TRUE(Resource("editor/actions/undo").isValid());

    QFile::remove(second);
    ASSERT_TRUE(Package::load(folder, error)) << error.toStdString();
    EXPECT_FALSE(Package::load(folder, error));
    EXPECT_EQ(error, folder + QStringLiteral("/package.xml:1:1: there is a package \"twice\" already"));
    EXPECT_TRUE(Resource("twice/images/led").isValid()) << "the package that is there keeps its pictures";
}
