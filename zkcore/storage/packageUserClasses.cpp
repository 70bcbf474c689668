// The side of the package registry that adds the user's own classes.
#include "zkcore/media/resourceEntry.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/model/nodePrototype.h"
#include "zkcore/storage/packageReader.h"
#include "zkcore/storage/packageRegistry.h"
#include "zkcore/storage/packageWriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <algorithm>

namespace {

/// Copies resources that belong to a document into a package's folder, and turns references to them into references to
/// the copies. What was copied is removed again unless keep() is called.
class DocumentResourceCopier
{
    Q_DECLARE_TR_FUNCTIONS(Package)

public:
    explicit DocumentResourceCopier(const QString& folder) : m_folder(folder) {}
    DocumentResourceCopier(const DocumentResourceCopier&) = delete;
    DocumentResourceCopier& operator=(const DocumentResourceCopier&) = delete;
    ~DocumentResourceCopier()
    {
        for (const QString& file : m_written)
            QFile::remove(file);
    }

    void keep() { m_written.clear(); }
    /// Why a copy could not be written; null when all were.
    QString error() const { return m_error; }

    void adopt(NodePrototype& prototype)
    {
        prototype.icon = adopted(prototype.icon);
        prototype.body = adopted(prototype.body);
        for (const PropertyDefinition& definition : std::vector<PropertyDefinition>(prototype.properties())) {
            PropertyDefinition changed = definition;
            changed.defaultValue = adopted(definition.defaultValue);
            prototype.addProperty(std::move(changed));
        }
        for (SubpartDefinition& subpart : prototype.subparts)
            for (auto& [key, value] : subpart.values)
                value = adopted(value);
    }

private:
    Value adopted(const Value& value)
    {
        switch (value.type()) {
        case Value::RESOURCE:
            return Value(adopted(value.toResource()));
        case Value::RESOURCEVECTOR: {
            std::vector<Resource> list = value.toResourceVector();
            for (Resource& item : list)
                item = adopted(item);
            return Value(list);
        }
        case Value::VALUEVECTOR: {
            std::vector<Value> list = value.toValueVector();
            for (Value& item : list)
                item = adopted(item);
            return Value(list);
        }
        case Value::VALUEMAP: {
            ValueMap map = value.toValueMap();
            for (auto& [key, item] : map)
                item = adopted(item);
            return Value(map);
        }
        default:
            return value;
        }
    }

    Resource adopted(const Resource& resource)
    {
        const auto* local = dynamic_cast<const LocalREntry*>(resource.entry());
        if (!local)
            return resource;
        static const QRegularExpression strange(QStringLiteral("[^A-Za-z0-9_-]+"));
        QString base = local->name().mid(local->name().lastIndexOf(u'/') + 1).replace(strange, QStringLiteral("-"));
        const QString suffix = local->extension().isEmpty() ? QString() : QLatin1Char('.') + local->extension();
        const QDir folder(m_folder + QStringLiteral("/resources"));
        for (int number = 1;; ++number) {
            const QString name = number == 1 ? base : base + QLatin1Char('-') + QString::number(number);
            const QStringList sameName = folder.entryList({name + QStringLiteral(".*"), name}, QDir::Files);
            const QString file = folder.filePath(name + suffix);
            const bool sameBytes = sameName == QStringList{name + suffix} && bytesOf(file) == local->data();
            if (!sameName.isEmpty() && !sameBytes)
                continue;
            if (!sameBytes && !write(file, local->data()))
                return resource;
            return Resource(std::make_shared<const FileREntry>(
                QDir(m_folder).dirName() + QStringLiteral("/resources/") + name, local->type(), file));
        }
    }

    static QByteArray bytesOf(const QString& fileName)
    {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool write(const QString& fileName, const QByteArray& bytes)
    {
        QDir().mkpath(m_folder + QStringLiteral("/resources"));
        QSaveFile file(fileName);
        if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
            m_written.append(fileName);
            return true;
        }
        m_error = tr("%1 cannot be written: %2").arg(fileName, file.errorString());
        return false;
    }

    QString m_folder;
    QStringList m_written;
    QString m_error;
};

} // namespace

bool PackageRegistry::addUserClass(const std::shared_ptr<NodePrototype>& prototype, QString& error)
{
    const QString domain = prototype ? getDomainAsString(prototype->cid) : QString();
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9_-]+$"));
    if (!form.match(domain).hasMatch()) {
        error = tr("the class belongs to no domain");
        return false;
    }
    if (findByClass(prototype->cid)) {
        error = tr("there is a class \"%1\" already").arg(findStringForCid(prototype->cid));
        return false;
    }
    const QString name = QStringLiteral("user-") + domain;
    Package* package = nullptr;
    if (!findUserPackage(name, package, error))
        return false;
    std::vector<ClassId> needed = {prototype->base, prototype->popupClass};
    for (const SubpartDefinition& subpart : prototype->subparts)
        needed.push_back(subpart.cid);
    for (const ClassId cid : needed) {
        const Package* other = findByClass(cid);
        if (package && other && other != package && dependsOn(*other, *package)) {
            error = tr("the packages \"%1\" and \"%2\" would need each other").arg(name, other->name());
            return false;
        }
    }

    const QString folder = package ? package->folder() : Package::userFolder() + QLatin1Char('/') + name;
    if (!QDir().mkpath(folder)) {
        error = tr("the folder %1 cannot be made").arg(folder);
        return false;
    }
    ResourceTable& resources = ResourceTable::instance();
    const ResourceTable::Snapshot before = resources.snapshot();
    const NodePrototype original = *prototype;
    DocumentResourceCopier copier(folder);
    copier.adopt(*prototype);
    error = copier.error();
    QString faultyFile;
    QString reason;
    if (error.isNull() && !resources.addFolder(folder, &faultyFile, &reason))
        error = faultyFile + QStringLiteral(": ") + reason;
    if (!error.isNull() || !writeUserPackage(folder, package, prototype, error)) {
        *prototype = original;
        resources.restore(before);
        return false;
    }
    copier.keep();
    if (!package) {
        m_packages.push_back(std::unique_ptr<Package>(new Package));
        package = m_packages.back().get();
        package->m_name = name;
        package->m_label = domain;
        package->m_folder = folder;
    }
    package->m_classes.push_back(prototype);
    registerClass(package, prototype);
    return true;
}

bool PackageRegistry::findUserPackage(const QString& name, Package*& package, QString& error)
{
    package = findByName(name);
    if (package && package->isBuiltIn()) {
        error = tr("the package \"%1\" is not the user's").arg(name);
        return false;
    }
    // A file that was refused when the program started must not be overwritten: what is in it would be lost.
    const QString folder = Package::userFolder() + QLatin1Char('/') + name;
    if (!package && QFile::exists(folder + QStringLiteral("/package.xml"))) {
        if (!load(folder, false, error))
            return false;
        package = findByName(name);
    }
    return true;
}

bool PackageRegistry::dependsOn(const Package& package, const Package& other) const
{
    QSet<const Package*> met = {&package};
    std::vector<const Package*> waiting = {&package};
    const auto meet = [&](ClassId cid) {
        const Package* needed = findByClass(cid);
        if (needed && !met.contains(needed)) {
            met.insert(needed);
            waiting.push_back(needed);
        }
    };
    while (!waiting.empty()) {
        const Package* next = waiting.back();
        waiting.pop_back();
        for (const std::shared_ptr<NodePrototype>& prototype : next->classes()) {
            meet(prototype->base);
            meet(prototype->popupClass);
            for (const SubpartDefinition& subpart : prototype->subparts)
                meet(subpart.cid);
            for (const SubpartRule& rule : prototype->rules)
                for (const ClassId cid : rule.classes)
                    meet(cid);
        }
    }
    return met.contains(&other);
}

bool PackageRegistry::writeUserPackage(const QString& folder, const Package* package,
                                       const std::shared_ptr<NodePrototype>& added, QString& error)
{
    const QString domain = getDomainAsString(added->cid);
    const auto known = [this](ClassId cid) { return prototype(cid); };
    const auto write = [&](QIODevice& device, const std::vector<std::shared_ptr<NodePrototype>>& classes) {
        PackageWriter::write(device, QStringLiteral("user-") + domain, package ? package->version() : 1,
                             package ? package->m_label : domain, classes, known);
        device.seek(0);
    };
    // The class becomes what is read back of it, in terms of the classes that are there already.
    QBuffer single;
    single.open(QIODevice::ReadWrite);
    write(single, {added});
    const std::unique_ptr<Package> alone = PackageReader::read(single, folder, known, error);
    if (!alone)
        return false;
    const std::shared_ptr<NodePrototype> readBack = alone->classes().front();

    std::vector<std::shared_ptr<NodePrototype>> classes;
    if (package)
        classes = package->classes();
    classes.push_back(readBack);
    QBuffer content;
    content.open(QIODevice::ReadWrite);
    write(content, classes);
    // A file that cannot be read would take all classes of the package with it at the next start.
    const auto others = [&](ClassId cid) { return package && findByClass(cid) == package ? nullptr : prototype(cid); };
    if (!PackageReader::read(content, folder, others, error))
        return false;
    QSaveFile file(folder + QStringLiteral("/package.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(content.data()) != content.data().size() || !file.commit()) {
        error = tr("%1 cannot be written: %2").arg(file.fileName(), file.errorString());
        return false;
    }
    *added = *readBack;
    return true;
}
