#include "zkcore/storage/package.h"

#include "packageFolder.h"
#include "tests/support/messageCapture.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/values/validator.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <cmath>

namespace {

std::shared_ptr<NodePrototype> classOf(const char* id)
{
    const ClassId cid = getCidForString(id);
    if (const Package* package = Package::findByClassID(cid))
        for (const std::shared_ptr<NodePrototype>& prototype : package->classes())
            if (prototype->cid == cid)
                return prototype;
    return nullptr;
}

const PropertyDefinition& definitionOf(const NodePrototype& prototype, const char* key)
{
    static const PropertyDefinition none;
    const PropertyDefinition* definition = prototype.find(PropertyKey::fromString(key));
    EXPECT_NE(definition, nullptr) << key;
    return definition ? *definition : none;
}

Value defaultOf(const NodePrototype& prototype, const char* key)
{
    return definitionOf(prototype, key).defaultValue;
}

QStringList loadedNames()
{
    QStringList names;
    for (const std::unique_ptr<Package>& package : Package::all())
        names.append(package->name());
    return names;
}

} // namespace

class PackageTest : public PackageFolderTest
{
protected:
    void load(const QByteArray& classes)
    {
        QString error;
        ASSERT_TRUE(Package::load(writePackage(QStringLiteral("kit"), classes), error)) << error.toStdString();
    }
};

TEST_F(PackageTest, BuiltInPackagesLoadInOrderWithoutAWarning)
{
    MessageCapture capture;
    const QStringList names = loadedNames();
    EXPECT_EQ(capture.texts(), QStringList());
    EXPECT_EQ(names.mid(0, 4), QStringList({QStringLiteral("core"), QStringLiteral("electronics"),
                                            QStringLiteral("flowcharts"), QStringLiteral("mechanics")}));
    EXPECT_TRUE(Resource("editor/actions/undo").isValid());

    NodeDb db;
    for (const std::unique_ptr<Package>& package : Package::all()) {
        EXPECT_TRUE(package->isBuiltIn());
        for (const std::shared_ptr<NodePrototype>& prototype : package->classes()) {
            EXPECT_EQ(Package::findByClassID(prototype->cid), package.get());
            EXPECT_TRUE(db.addPrototype(prototype));
            for (const PropertyDefinition& definition : prototype->properties()) {
                const bool isNumber = definition.type == Value::INT || definition.type == Value::DOUBLE;
                EXPECT_TRUE(!isNumber || (definition.validator && definition.format))
                    << findStringForCid(prototype->cid).toStdString() << " " << definition.key.toString().toStdString();
            }
        }
    }
    // Pictures and forms are what their extensions say, not only there.
    for (const Resource::Type type : {Resource::IMAGE, Resource::FORM})
        for (const QString& name : ResourceTable::instance().names(type))
            EXPECT_TRUE(isResourceDataValid(Resource(name))) << name.toStdString();
    EXPECT_EQ(Package::findByClassID(getCidForString("nobody/knows")), nullptr);
}

TEST_F(PackageTest, ValuesAreConvertedToSIAndRangesWithThem)
{
    load(R"(<class id="kit/a" base="core/part" label="A" group="G" keystage="3" roles="light, output">
              <property key="angle" type="double" unit="degree" default="90" label="Angle" help="How far."
                        flags="style proxy-target" lock="orientation">
                <validator kind="range" min="-360" max="360"/><format decimals="1"><unit>degree</unit></format>
              </property>
              <property key="width" type="double" unit="mm" default="2.5">
                <validator kind="set"><item>2.5</item><item>5</item></validator>
              </property>
              <property key="count" type="int"/>
              <property key="names" type="string list"><default><item>a b</item><item> c </item></default></property>
              <value key="size" unit="cm">4 2</value>
            </class>)");
    const std::shared_ptr<NodePrototype> prototype = classOf("kit/a");
    ASSERT_TRUE(prototype);
    EXPECT_EQ(prototype->label, QStringLiteral("A"));
    EXPECT_EQ(prototype->roles, RoleSet(QStringLiteral("output light")));
    EXPECT_EQ(prototype->kind, NodeKind::Part);
    EXPECT_EQ(defaultOf(*prototype, "meta-group"), Value(QStringLiteral("G")));
    EXPECT_EQ(defaultOf(*prototype, "meta-keystage"), Value(3));
    EXPECT_EQ(defaultOf(*prototype, "size"), Value(zk::Point{0.04, 0.02}));
    EXPECT_EQ(defaultOf(*prototype, "names"),
              Value(std::vector<QString>{QStringLiteral("a b"), QStringLiteral(" c ")}));

    const PropertyDefinition& angle = definitionOf(*prototype, "angle");
    EXPECT_DOUBLE_EQ(angle.defaultValue.toDouble(), std::acos(0.0));
    EXPECT_EQ(angle.flags, PropertyDefinition::Style | PropertyDefinition::ProxyTarget);
    EXPECT_EQ(angle.lockGroup, LockOrientation);
    EXPECT_EQ(angle.format->decimals, 1);
    EXPECT_EQ(angle.format->unit, Unit::fromText(QStringLiteral("degree")));
    EXPECT_TRUE(angle.validator->isValid(Value(4 * std::acos(0.0))));
    EXPECT_FALSE(angle.validator->isValid(Value(7.0)));

    const PropertyDefinition& width = definitionOf(*prototype, "width");
    EXPECT_TRUE(width.validator->isValid(width.defaultValue));
    EXPECT_DOUBLE_EQ(width.defaultValue.toDouble(), 0.0025);
    EXPECT_EQ(width.format->units, std::vector<Unit>{Unit::fromText(QStringLiteral("mm"))})
        << "the unit of the texts is the one offered when no others are";
    EXPECT_TRUE(definitionOf(*prototype, "count").validator->isValid(Value(-2147483647)));
}

TEST_F(PackageTest, ClassesInheritInAnyOrderOfTheFile)
{
    write(QStringLiteral("kit/first.ui"), "<ui/>");
    write(QStringLiteral("kit/second.ui"), "<ui/>");
    load(R"(<class id="kit/c" base="kit/b" forms="extend" subparts="replace">
              <form>kit/second</form><substitution string="x" text="ex"/><subpart class="core/pad"/>
              <allow role="pads" max="2"><class>core/pad</class></allow>
            </class>
            <class id="kit/b" base="kit/a"><value key="gain">2</value><allow role="pins"/></class>
            <class id="kit/a" base="core/part" label="A" group="G" resizeable="false" popup="core/popup" pane="popup">
              <property key="gain" type="double" default="1"><validator kind="range" min="0" max="9"/></property>
              <form>kit/first</form><substitution string="x" text="old"/><substitution string="y" text="why"/>
              <subpart class="core/pin"><value key="id">anode</value></subpart>
              <allow role="pins"><class>core/pin</class></allow>
            </class>)");
    const std::shared_ptr<NodePrototype> a = classOf("kit/a");
    const std::shared_ptr<NodePrototype> b = classOf("kit/b");
    const std::shared_ptr<NodePrototype> c = classOf("kit/c");
    ASSERT_TRUE(a && b && c);
    EXPECT_TRUE(c->instanceOf(a->cid));
    EXPECT_TRUE(c->instanceOf(getCidForString("core/element")));
    EXPECT_TRUE(c->instanceOf(getCidForString("kit/*")));
    EXPECT_FALSE(a->instanceOf(c->cid));
    EXPECT_FALSE(c->resizeable);
    EXPECT_EQ(c->popupClass, getCidForString("core/popup"));
    EXPECT_EQ(defaultOf(*c, "display-popup-pane-on-selection"), Value(true));
    EXPECT_TRUE(c->label.isEmpty() && c->group.isEmpty()) << "a class speaks only for itself in the parts tree";
    EXPECT_EQ(defaultOf(*c, "gain"), Value(2.0));
    EXPECT_EQ(definitionOf(*c, "gain").validator, definitionOf(*a, "gain").validator);
    EXPECT_EQ(definitionOf(*c, "gain").format, definitionOf(*a, "gain").format);
    EXPECT_EQ(defaultOf(*b, "meta-controlpane"), Value(std::vector<QString>{QStringLiteral("kit/first")}));
    EXPECT_EQ(defaultOf(*c, "meta-controlpane"),
              Value(std::vector<QString>{QStringLiteral("kit/first"), QStringLiteral("kit/second")}));
    const ValueMap substitutions = defaultOf(*c, "meta-ui-substitutions").toValueMap();
    EXPECT_EQ(substitutions, (ValueMap{{QStringLiteral("x"), Value(QStringLiteral("ex"))},
                                       {QStringLiteral("y"), Value(QStringLiteral("why"))}}));
    ASSERT_EQ(b->subparts.size(), 1u);
    EXPECT_EQ(b->subparts[0].values.front().second, Value(QStringLiteral("anode")));
    ASSERT_EQ(c->subparts.size(), 1u);
    EXPECT_EQ(c->subparts[0].cid, getCidForString("core/pad"));
    EXPECT_NE(a->ruleFor(getCidForString("core/pin")), nullptr);
    EXPECT_EQ(b->ruleFor(getCidForString("core/pin")), nullptr);
    ASSERT_NE(c->ruleFor(getCidForString("core/pad")), nullptr);
    EXPECT_EQ(c->ruleFor(getCidForString("core/pad"))->maximum, 2u);
}

TEST_F(PackageTest, UserPackagesFollowByNameAndABrokenOneHarmsNoOther)
{
    writeUserPackage(QStringLiteral("zebra"), "<class id=\"zebra/a\" base=\"electronics/led\"/>");
    // Needs a package that comes after it.
    writeUserPackage(QStringLiteral("ant"), "<class id=\"ant/a\" base=\"zebra/a\"/>");
    writeUserPackage(QStringLiteral("broken"), "<class id=\"broken/a\" base=\"core/nothing\"/>");
    writeUserPackage(QStringLiteral("bee"), "<class id=\"bee/a\" base=\"core/part\"/>");
    MessageCapture capture;
    const QStringList names = loadedNames();
    EXPECT_EQ(names.mid(names.size() - 3),
              QStringList({QStringLiteral("bee"), QStringLiteral("zebra"), QStringLiteral("ant")}));
    EXPECT_EQ(capture.warnings(),
              QStringList(QStringLiteral("Package: ") + Package::userFolder() +
                          QStringLiteral("/broken/package.xml:2:42: there is no class \"core/nothing\"")));
    EXPECT_FALSE(Package::all().back()->isBuiltIn());
    EXPECT_TRUE(classOf("ant/a")->instanceOf(getCidForString("electronics/led")));
}

TEST_F(PackageTest, UnloadingForgetsClassesAndResources)
{
    load("<class id=\"kit/a\" base=\"core/part\"/>");
    const Resource kept("core/images/text");
    Package::unloadAll();
    EXPECT_FALSE(kept.data().isEmpty()) << "a reference outlives the table";
    EXPECT_EQ(Package::findByClassID(getCidForString("kit/a")), nullptr);
    EXPECT_NE(Package::findByClassID(getCidForString("core/part")), nullptr) << "asking loads the built-in ones again";
}

TEST_F(PackageTest, TheDocumentedExampleLoadsAndNoPartOfItDoes)
{
    QFile documentation(QStringLiteral(ZK_SOURCE_DIR "/docs/packages.md"));
    ASSERT_TRUE(documentation.open(QIODevice::ReadOnly));
    const QByteArray text = documentation.readAll();
    const qsizetype begin = text.indexOf("<?xml");
    const QByteArray example = text.mid(begin, text.indexOf("```", begin) - begin).trimmed();
    for (const char* image : {"kettle", "kettle-icon", "boil"})
        write(QStringLiteral("kitchen/images/%1.svg").arg(QLatin1String(image)), picture());
    write(QStringLiteral("kitchen/forms/kettle.ui"), "<ui/>");

    MessageCapture capture;
    QString error;
    for (qsizetype length = 0; length < example.size(); length += 13) {
        write(QStringLiteral("kitchen/package.xml"), example.left(length));
        ASSERT_FALSE(Package::load(path(QStringLiteral("kitchen")), error)) << length;
        ASSERT_TRUE(error.startsWith(path(QStringLiteral("kitchen/package.xml:")))) << error.toStdString();
    }
    write(QStringLiteral("kitchen/package.xml"), example);
    ASSERT_TRUE(Package::load(path(QStringLiteral("kitchen")), error)) << error.toStdString();
    EXPECT_TRUE(capture.isEmpty());
    EXPECT_EQ(defaultOf(*classOf("kitchen/kettle"), "size"), Value(zk::Point{0.02, 0.03}));
    EXPECT_EQ(defaultOf(*classOf("kitchen/*"), "mains"), Value(230.0));
}
