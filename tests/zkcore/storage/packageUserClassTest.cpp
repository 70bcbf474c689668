#include "packageFolder.h"

#include "tests/support/messageCapture.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/nodePrototype.h"
#include "zkcore/storage/package.h"
#include "zkcore/values/validator.h"

#include <QDir>
#include <QFile>

// Classes that users make of their parts are written as a package and are there again in the next run.

namespace {

std::shared_ptr<NodePrototype> knownClass(ClassId cid)
{
    if (const Package* package = Package::findByClassID(cid))
        for (const std::shared_ptr<NodePrototype>& prototype : package->classes())
            if (prototype->cid == cid)
                return prototype;
    return nullptr;
}

/// What a custom part is made of: a copy of a class under a new id.
std::shared_ptr<NodePrototype> derived(const char* id, const char* base, const QString& label)
{
    auto prototype = std::make_shared<NodePrototype>(*knownClass(getCidForString(base)));
    prototype->cid = getCidForString(id);
    prototype->base = getCidForString(base);
    prototype->label = label;
    prototype->group = QStringLiteral("Custom");
    return prototype;
}

void setDefault(NodePrototype& prototype, const char* key, const Value& value)
{
    const PropertyDefinition* found = prototype.find(PropertyKey::fromString(key));
    ASSERT_NE(found, nullptr) << key;
    PropertyDefinition definition = *found;
    definition.defaultValue = value;
    prototype.addProperty(definition);
}

void expectSame(const NodePrototype& a, const NodePrototype& b)
{
    EXPECT_EQ(a.base, b.base);
    EXPECT_EQ(a.bases, b.bases);
    EXPECT_EQ(a.kind, b.kind);
    EXPECT_EQ(a.package, b.package);
    EXPECT_EQ(a.label, b.label);
    EXPECT_EQ(a.group, b.group);
    EXPECT_EQ(a.keyStage, b.keyStage);
    EXPECT_EQ(a.icon.toString(), b.icon.toString());
    EXPECT_EQ(a.body.toString(), b.body.toString());
    EXPECT_EQ(a.roles, b.roles);
    EXPECT_EQ(a.resizeable, b.resizeable);
    EXPECT_EQ(a.abstract, b.abstract);
    EXPECT_EQ(a.popupClass, b.popupClass);
    ASSERT_EQ(a.properties().size(), b.properties().size());
    for (size_t i = 0; i < a.properties().size(); ++i) {
        const PropertyDefinition& x = a.properties()[i];
        const PropertyDefinition& y = b.properties()[i];
        const std::string key = x.key.toString().toStdString();
        EXPECT_EQ(x.key, y.key);
        EXPECT_EQ(x.type, y.type) << key;
        // Resources of two runs are different objects: compare by name.
        EXPECT_EQ(x.defaultValue.toQString(), y.defaultValue.toQString()) << key;
        EXPECT_TRUE(x.type == Value::RESOURCE || x.type == Value::RESOURCEVECTOR || x.type == Value::VALUEMAP ||
                    x.defaultValue == y.defaultValue)
            << key;
        EXPECT_EQ(x.flags, y.flags) << key;
        EXPECT_EQ(x.label, y.label) << key;
        EXPECT_EQ(x.help, y.help) << key;
        EXPECT_EQ(x.lockGroup, y.lockGroup) << key;
        EXPECT_EQ(static_cast<bool>(x.validator), static_cast<bool>(y.validator)) << key;
        const bool hasResources = dynamic_cast<ResourceValidator*>(x.validator.get());
        EXPECT_TRUE(!x.validator || hasResources || x.validator->isEqual(*y.validator)) << key;
        ASSERT_EQ(static_cast<bool>(x.format), static_cast<bool>(y.format)) << key;
        if (x.format) {
            EXPECT_EQ(x.format->decimals, y.format->decimals) << key;
            EXPECT_EQ(x.format->units, y.format->units) << key;
            EXPECT_EQ(x.format->unit, y.format->unit) << key;
        }
    }
    ASSERT_EQ(a.subparts.size(), b.subparts.size());
    for (size_t i = 0; i < a.subparts.size(); ++i) {
        EXPECT_EQ(a.subparts[i].cid, b.subparts[i].cid);
        EXPECT_EQ(a.subparts[i].values, b.subparts[i].values);
    }
    ASSERT_EQ(a.rules.size(), b.rules.size());
    for (size_t i = 0; i < a.rules.size(); ++i) {
        EXPECT_EQ(a.rules[i].role, b.rules[i].role);
        EXPECT_EQ(a.rules[i].classes, b.rules[i].classes);
        EXPECT_EQ(a.rules[i].maximum, b.rules[i].maximum);
    }
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString userFile(const char* path)
{
    return Package::userFolder() + QLatin1Char('/') + QLatin1String(path);
}

} // namespace

class PackageUserClass : public PackageFolderTest
{
protected:
    /// Adds the class, forgets everything, and compares what the next run reads.
    void addAndReadBack(const std::shared_ptr<NodePrototype>& prototype)
    {
        QString error;
        ASSERT_TRUE(Package::addUserClass(prototype, error)) << error.toStdString();
        EXPECT_EQ(knownClass(prototype->cid), prototype);
        MessageCapture capture;
        Package::unloadAll();
        const std::shared_ptr<NodePrototype> readBack = knownClass(prototype->cid);
        EXPECT_EQ(capture.texts(), QStringList());
        ASSERT_TRUE(readBack);
        EXPECT_NE(readBack, prototype);
        expectSame(*prototype, *readBack);
    }
};

TEST_F(PackageUserClass, IsReadBackWithValuesAndSubparts)
{
    const auto lamp = derived("electronics/my-lamp", "electronics/led", QStringLiteral("My lamp"));
    setDefault(*lamp, "size", Value(zk::Point{0.0123456789012345, 1.0 / 3.0}));
    setDefault(*lamp, "title", Value(QStringLiteral(" <two>\n\"lines\" & \t\r\x01 ")));
    lamp->subparts.clear();
    lamp->subparts.push_back({getCidForString("core/pin"),
                              {{PropertyKey::fromString("id"), Value(QStringLiteral("only"))},
                               {PropertyKey::fromString("position"), Value(zk::Point{-0.005, 0.1})}}});
    lamp->keyStage = 4;
    lamp->resizeable = !lamp->resizeable;
    lamp->roles = RoleSet(QStringLiteral("lamp output"));
    lamp->body = Resource();
    NodePrototype given = *lamp;
    addAndReadBack(lamp);

    // What was given is what is there, apart from what the package adds.
    given.package = lamp->package;
    given.bases = lamp->bases;
    given.addMetaProperties();
    expectSame(given, *lamp);
    EXPECT_EQ(lamp->package, QStringLiteral("user-electronics"));

    // More classes of the domain join the package; a class may build on one of them.
    addAndReadBack(derived("electronics/my-second", "electronics/my-lamp", QStringLiteral("Second")));
    EXPECT_EQ(Package::findByClassID(getCidForString("electronics/my-lamp")),
              Package::findByClassID(getCidForString("electronics/my-second")));
    EXPECT_EQ(knownClass(getCidForString("electronics/my-second"))->subparts.size(), 1u);
}

TEST_F(PackageUserClass, OfEveryBuiltInClassIsReadBack)
{
    // Copies with their own definitions in place of inherited ones: everything the format can say is written.
    std::vector<ClassId> cids;
    for (const std::unique_ptr<Package>& package : Package::all())
        for (const std::shared_ptr<NodePrototype>& prototype : package->classes())
            if (!isDomain(prototype->cid) && prototype->base != INVALID_CID)
                cids.push_back(prototype->cid);
    ASSERT_GT(cids.size(), 14u);
    std::vector<std::shared_ptr<NodePrototype>> added;
    for (const ClassId cid : cids) {
        const QByteArray id = "mechanics/copy-" + findStringForCid(cid).replace(u'/', u'-').toUtf8();
        const auto copy = derived(id.constData(), findStringForCid(cid).toUtf8().constData(), QStringLiteral("Copy"));
        copy->base = knownClass(cid)->base;
        QString error;
        ASSERT_TRUE(Package::addUserClass(copy, error)) << error.toStdString();
        added.push_back(copy);
    }
    MessageCapture capture;
    Package::unloadAll();
    for (const std::shared_ptr<NodePrototype>& copy : added) {
        SCOPED_TRACE(findStringForCid(copy->cid).toStdString());
        const std::shared_ptr<NodePrototype> readBack = knownClass(copy->cid);
        ASSERT_TRUE(readBack);
        expectSame(*copy, *readBack);
    }
    EXPECT_EQ(capture.texts(), QStringList());
}

TEST_F(PackageUserClass, SurvivesStrangeLabels)
{
    const QString labels[] = {QString(),
                              QStringLiteral("</class><class id=\"x/y\"/>"),
                              QStringLiteral("\"'&amp;]]>"),
                              QStringLiteral("  two\nlines\tand\rmore  "),
                              QString::fromUtf8("\xE2\x82\xAC \xF0\x9F\x92\xA1 \xD7\xA9"),
                              QStringLiteral("a") + QChar(u'\x01') + QChar(0xd800) + QChar(0xffff)};
    int number = 0;
    for (const QString& label : labels) {
        const QByteArray id = "flowcharts/strange-" + QByteArray::number(++number);
        addAndReadBack(derived(id.constData(), "flowcharts/step", label));
        const QString stored = knownClass(getCidForString(id.constData()))->label;
        if (number < 6)
            EXPECT_EQ(stored, label);
        else
            EXPECT_EQ(stored, QStringLiteral("a\uFFFD\uFFFD\uFFFD"));
    }
}

TEST_F(PackageUserClass, TakesTheDocumentsPicturesAlong)
{
    const auto entry = std::make_shared<const LocalREntry>(QStringLiteral("local/My photo"), Resource::IMAGE, picture(),
                                                           QStringLiteral("svg"));
    const auto photo = derived("core/photo", "core/picture", QStringLiteral("Photo"));
    setDefault(*photo, "picture", Value(Resource(entry)));
    setDefault(*photo, "pictures", Value(std::vector<Resource>{Resource(entry), Resource("core/images/text")}));
    addAndReadBack(photo);
    const Resource kept = knownClass(photo->cid)->find(PropertyKey::fromString("picture"))->defaultValue.toResource();
    EXPECT_EQ(kept.toString(), QStringLiteral("user-core/resources/My-photo"));
    EXPECT_EQ(kept.data(), picture());

    // Another picture of the same name does not replace the first.
    const auto other = std::make_shared<const LocalREntry>(QStringLiteral("local/My photo"), Resource::IMAGE,
                                                           picture() + '\n', QStringLiteral("svg"));
    const auto second = derived("core/photo2", "core/photo", QStringLiteral("Photo"));
    setDefault(*second, "picture", Value(Resource(other)));
    addAndReadBack(second);
    EXPECT_EQ(Resource("user-core/resources/My-photo").data(), picture());
    EXPECT_EQ(Resource("user-core/resources/My-photo-2").data(), picture() + '\n');
}

TEST_F(PackageUserClass, ThatCannotStandInAPackageIsRefusedAndTheFileStays)
{
    QString error;
    ASSERT_TRUE(Package::addUserClass(derived("core/one", "core/text", QStringLiteral("One")), error));
    const QByteArray before = contentOf(userFile("user-core/package.xml"));
    ASSERT_FALSE(before.isEmpty());

    EXPECT_FALSE(Package::addUserClass(derived("core/one", "core/text", QStringLiteral("Again")), error));
    EXPECT_EQ(error, QStringLiteral("there is a class \"core/one\" already"));

    const auto huge = derived("core/huge", "core/text", QStringLiteral("Huge"));
    setDefault(*huge, "font-size", Value(5.0));
    EXPECT_FALSE(Package::addUserClass(huge, error));
    EXPECT_TRUE(error.contains(QLatin1String("the property \"font-size\" does not allow the value")))
        << error.toStdString();
    EXPECT_EQ(huge->find(PropertyKey::fromString("font-size"))->defaultValue, Value(5.0));

    const auto lost = derived("core/lost", "core/picture", QStringLiteral("Lost"));
    setDefault(*lost, "picture", Value(Resource("gone/picture")));
    EXPECT_FALSE(Package::addUserClass(lost, error));
    EXPECT_TRUE(error.endsWith(QLatin1String("there is no resource \"gone/picture\""))) << error.toStdString();

    EXPECT_EQ(contentOf(userFile("user-core/package.xml")), before);
    EXPECT_EQ(Package::findByClassID(huge->cid), nullptr);
}

TEST_F(PackageUserClass, NeverReplacesAFileThatCouldNotBeRead)
{
    writeUserPackage(QStringLiteral("user-core"), "<class id=\"core/mine\" base=\"core/part\" color=\"red\"/>");
    const QByteArray before = contentOf(userFile("user-core/package.xml"));
    MessageCapture capture;
    QString error;
    EXPECT_FALSE(Package::addUserClass(derived("core/one", "core/text", QStringLiteral("One")), error));
    EXPECT_EQ(error, userFile("user-core/package.xml:2:52: <class> has no attribute \"color\""));
    EXPECT_EQ(contentOf(userFile("user-core/package.xml")), before);
}

TEST_F(PackageUserClass, PackagesNeverNeedEachOther)
{
    QString error;
    ASSERT_TRUE(Package::addUserClass(derived("core/one", "core/text", QStringLiteral("One")), error));
    ASSERT_TRUE(Package::addUserClass(derived("mechanics/one", "core/one", QStringLiteral("One")), error));
    EXPECT_FALSE(Package::addUserClass(derived("core/two", "mechanics/one", QStringLiteral("Two")), error));
    EXPECT_EQ(error, QStringLiteral("the packages \"user-core\" and \"user-mechanics\" would need each other"));
    Package::unloadAll();
    EXPECT_TRUE(knownClass(getCidForString("mechanics/one")));
}

TEST_F(PackageUserClass, ThatCannotBeWrittenIsRefused)
{
    // A file where the folder should be.
    QDir().mkpath(QFileInfo(Package::userFolder()).path());
    QFile obstacle(Package::userFolder());
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    obstacle.close();
    QString error;
    EXPECT_FALSE(Package::addUserClass(derived("core/one", "core/text", QStringLiteral("One")), error));
    EXPECT_EQ(error,
              QStringLiteral("the folder %1 cannot be made").arg(Package::userFolder() + QStringLiteral("/user-core")));
    EXPECT_EQ(Package::findByClassID(getCidForString("core/one")), nullptr);
    ASSERT_TRUE(obstacle.remove());

    // A folder where the file should be.
    ASSERT_TRUE(QDir().mkpath(userFile("user-core/package.xml")));
    MessageCapture capture;
    EXPECT_FALSE(Package::addUserClass(derived("core/one", "core/text", QStringLiteral("One")), error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(Package::findByClassID(getCidForString("core/one")), nullptr);
}
