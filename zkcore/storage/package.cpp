#include "zkcore/storage/package.h"

#include "zkcore/media/resourceTable.h"
#include "zkcore/storage/packageRegistry.h"

#include <QCoreApplication>
#include <QStandardPaths>

QString Package::label() const
{
    return QCoreApplication::translate("Package", m_label.toUtf8().constData());
}

const Package* Package::findByClassID(unsigned int cid)
{
    all();
    return PackageRegistry::instance().findByClass(cid);
}

const std::vector<std::unique_ptr<Package>>& Package::all()
{
    return PackageRegistry::instance().packages();
}

bool Package::load(const QString& folder, QString& error)
{
    all();
    return PackageRegistry::instance().load(folder, false, error);
}

QStringList Package::faults(const QString& folder)
{
    all();
    return PackageRegistry::instance().faults(folder);
}

void Package::unload(const QString& name)
{
    all();
    PackageRegistry::instance().unload(name);
}

QString Package::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/packages");
}

bool Package::addUserClass(std::shared_ptr<NodePrototype> prototype, QString& error)
{
    all();
    return PackageRegistry::instance().addUserClass(prototype, error);
}

void Package::unloadAll()
{
    PackageRegistry::instance().clear();
    ResourceTable::instance().restore({});
}
