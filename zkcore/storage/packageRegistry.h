#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/storage/package.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

class NodePrototype;

/// The packages of the process: what stands behind the static functions of Package.
class PackageRegistry
{
    Q_DECLARE_TR_FUNCTIONS(Package)

public:
    static PackageRegistry& instance();

    /// Loads the built-in packages and the user's unless that was done before.
    const std::vector<std::unique_ptr<Package>>& packages();
    const Package* findByClass(ClassId cid) const { return m_packageOf.value(cid, nullptr); }
    const NodePrototype* prototype(ClassId cid) const { return m_prototypes.value(cid).get(); }
    /// Registers the folder's resources, then reads its classes; takes both back when the package is faulty.
    bool load(const QString& folder, bool builtIn, QString& error);
    /// All faults that reading the folder meets; keeps nothing of it.
    QStringList faults(const QString& folder);
    void unload(const QString& name);
    bool addUserClass(const std::shared_ptr<NodePrototype>& prototype, QString& error);
    void clear();

private:
    void loadBuiltIn();
    void loadUserPackages();
    /// Registers the resources of a folder that is no package yet.
    bool addResources(const QString& path, QString& error);
    Package* findByName(const QString& name) const;
    void registerClass(Package* package, const std::shared_ptr<NodePrototype>& prototype);

    bool findUserPackage(const QString& name, Package*& package, QString& error);
    bool dependsOn(const Package& package, const Package& other) const;
    bool writeUserPackage(const QString& folder, const Package* package, const std::shared_ptr<NodePrototype>& added,
                          QString& error);

    bool m_loaded = false;
    std::vector<std::unique_ptr<Package>> m_packages;
    QHash<ClassId, const Package*> m_packageOf;
    QHash<ClassId, std::shared_ptr<NodePrototype>> m_prototypes;
};
