#include "zkcore/storage/packageRegistry.h"

#include "zkcore/media/resourceTable.h"
#include "zkcore/model/nodePrototype.h"
#include "zkcore/storage/packageReader.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

QString builtInFolder()
{
    return QStringLiteral(":/zk/packages");
}

void warnOfPackage(const QString& message)
{
    qWarning("Package: %s", qPrintable(message));
}

} // namespace

PackageRegistry& PackageRegistry::instance()
{
    static PackageRegistry registry;
    return registry;
}

const std::vector<std::unique_ptr<Package>>& PackageRegistry::packages()
{
    if (!m_loaded) {
        // First, because reading a package looks up resources, which asks for the packages.
        m_loaded = true;
        loadBuiltIn();
        loadUserPackages();
    }
    return m_packages;
}

bool PackageRegistry::addResources(const QString& path, QString& error)
{
    const QDir dir(path);
    QString file;
    QString reason;
    if (findByName(dir.dirName())) {
        file = dir.filePath(QStringLiteral("package.xml"));
        reason = tr("there is a package \"%1\" already").arg(dir.dirName());
    } else if (ResourceTable::instance().addFolder(path, &file, &reason)) {
        return true;
    }
    PackageFault fault;
    fault.raise(1, 1, reason);
    error = fault.message(file);
    return false;
}

bool PackageRegistry::load(const QString& folder, bool builtIn, QString& error)
{
    const QString path = QDir::cleanPath(folder);
    ResourceTable& resources = ResourceTable::instance();
    const ResourceTable::Snapshot before = resources.snapshot();
    if (!addResources(path, error))
        return false;
    std::unique_ptr<Package> package = PackageReader::readFolder(
        path, [this](ClassId cid) { return prototype(cid); }, error);
    if (!package) {
        resources.restore(before);
        return false;
    }
    package->m_builtIn = builtIn;
    for (const std::shared_ptr<NodePrototype>& added : package->m_classes)
        registerClass(package.get(), added);
    m_packages.push_back(std::move(package));
    return true;
}

QStringList PackageRegistry::faults(const QString& folder)
{
    const QString path = QDir::cleanPath(folder);
    ResourceTable& resources = ResourceTable::instance();
    const ResourceTable::Snapshot before = resources.snapshot();
    QString error;
    if (!addResources(path, error))
        return {error};
    const QStringList faults = PackageReader::faults(path, [this](ClassId cid) { return prototype(cid); });
    resources.restore(before);
    return faults;
}

void PackageRegistry::unload(const QString& name)
{
    const auto named = [&name](const std::unique_ptr<Package>& package) { return package->name() == name; };
    const auto found = std::find_if(m_packages.begin(), m_packages.end(), named);
    if (found == m_packages.end())
        return;
    for (const std::shared_ptr<NodePrototype>& prototype : (*found)->m_classes) {
        m_packageOf.remove(prototype->cid);
        m_prototypes.remove(prototype->cid);
    }
    m_packages.erase(found);
    ResourceTable::Snapshot resources = ResourceTable::instance().snapshot();
    const QString prefix = name + QLatin1Char('/');
    resources.removeIf([&prefix](const auto& entry) { return entry.key().startsWith(prefix); });
    ResourceTable::instance().restore(resources);
}

void PackageRegistry::clear()
{
    m_packageOf.clear();
    m_prototypes.clear();
    m_packages.clear();
    m_loaded = false;
}

void PackageRegistry::loadBuiltIn()
{
    const QDir root(builtInFolder());
    QStringList names = root.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    names.sort();
    // These build on one another; the rest builds on these.
    QStringList ordered;
    for (const char* first : {"core", "electronics", "flowcharts", "mechanics"})
        if (names.removeOne(QLatin1String(first)))
            ordered.append(QLatin1String(first));
    ordered += names;
    for (const QString& name : ordered) {
        const QString folder = root.filePath(name);
        QString error;
        if (name == QLatin1String("editor")) {
            QString file;
            if (!ResourceTable::instance().addFolder(folder, &file, &error))
                warnOfPackage(file + QStringLiteral(":1:1: ") + error);
        } else if (!load(folder, true, error)) {
            warnOfPackage(error);
        }
    }
}

void PackageRegistry::loadUserPackages()
{
    const QDir root(Package::userFolder());
    QStringList waiting = root.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    waiting.sort();
    // A package may need classes of one that comes after it by name: the refused ones get another chance as long as
    // that brings something new.
    QStringList errors;
    for (bool progress = true; progress && !waiting.isEmpty();) {
        progress = false;
        errors.clear();
        QStringList refused;
        for (const QString& name : waiting) {
            QString error;
            if (load(root.filePath(name), false, error)) {
                progress = true;
            } else {
                refused.append(name);
                errors.append(error);
            }
        }
        waiting = refused;
    }
    for (const QString& error : errors)
        warnOfPackage(error);
}

Package* PackageRegistry::findByName(const QString& name) const
{
    for (const std::unique_ptr<Package>& package : m_packages)
        if (package->name() == name)
            return package.get();
    return nullptr;
}

void PackageRegistry::registerClass(Package* package, const std::shared_ptr<NodePrototype>& prototype)
{
    m_packageOf.insert(prototype->cid, package);
    m_prototypes.insert(prototype->cid, prototype);
}
