// Package files: what can be read is written as a package that reads the same.
#include "zkcore/storage/package.h"
#include "fuzz/support/harness.h"
#include "fuzz/support/xmlMutator.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/model/nodePrototype.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/storage/packageReader.h"
#include "zkcore/storage/packageWriter.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

/// A package must stand in a folder of its name, and built-in ones are inputs as well.
QString nameOfPackage(const QByteArray& bytes)
{
    QXmlStreamReader reader(bytes);
    const QString name =
        reader.readNextStartElement() ? reader.attributes().value(QLatin1String("name")).toString() : QString();
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9_-]+$"));
    return form.match(name).hasMatch() ? name : QStringLiteral("fuzzed");
}

std::unique_ptr<Package> readPackage(const QByteArray& bytes, const QString& folder,
                                     const PackageReader::KnownClasses& known, QString& error)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return PackageReader::read(buffer, folder, known, error);
}

QByteArray writePackage(const Package& package, const PackageReader::KnownClasses& known)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    fuzz::require(
        PackageWriter::write(buffer, package.name(), package.version(), package.label(), package.classes(), known),
        "a package that was read can be written");
    return buffer.data();
}

/// New nodes of the classes, with all that the classes prescribe.
void makeNodes(const Package& package, const QString& name)
{
    NodeDb db;
    for (const std::unique_ptr<Package>& other : Package::all())
        if (other->name() != name)
            for (const std::shared_ptr<NodePrototype>& prototype : other->classes())
                db.addPrototype(prototype);
    for (const std::shared_ptr<NodePrototype>& prototype : package.classes())
        db.addPrototype(prototype);
    for (const std::shared_ptr<NodePrototype>& prototype : package.classes())
        if (!prototype->abstract)
            NodeSnapshot::ofPrototype(db, prototype->cid);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const QString name = nameOfPackage(bytes);
    const PackageReader::KnownClasses known = [&name](ClassId cid) -> const NodePrototype* {
        const Package* package = Package::findByClassID(cid);
        if (!package || package->name() == name)
            return nullptr;
        for (const std::shared_ptr<NodePrototype>& prototype : package->classes())
            if (prototype->cid == cid)
                return prototype.get();
        return nullptr;
    };
    const QString folder = QStringLiteral("/packages/") + name;
    QString error;
    const std::unique_ptr<Package> package = readPackage(bytes, folder, known, error);
    if (!package) {
        fuzz::requirePlaceAndReason(error, folder + QStringLiteral("/package.xml:"));
        return 0;
    }
    makeNodes(*package, name);
    const QByteArray written = writePackage(*package, known);
    const std::unique_ptr<Package> again = readPackage(written, folder, known, error);
    fuzz::require(again != nullptr, "a package that was written can be read", error + u'\n' + written);
    const QByteArray writtenAgain = writePackage(*again, known);
    fuzz::require(writtenAgain == written, "reading a package changes nothing", written + "\n---\n" + writtenAgain);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    return fuzz::mutateXml(data, size, maximum, seed);
}
