#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

class NodePrototype;

/// A package: a folder with package.xml that defines node classes and brings forms and pictures (docs/packages.md).
class ZKCORE_EXPORT Package
{
public:
    QString name() const { return m_name; }
    /// What people call it, translated.
    QString label() const;
    int version() const { return m_version; }
    QString folder() const { return m_folder; }
    bool isBuiltIn() const { return m_builtIn; }
    const std::vector<std::shared_ptr<NodePrototype>>& classes() const { return m_classes; }

    /// The package that defines a class; null for an unknown class.
    static const Package* findByClassID(unsigned int cid);
    /// All packages loaded, in the order of loading. The first call loads the built-in ones and those in the user's
    /// package folder; a broken one is skipped, with a warning that names file, line, column and reason.
    static const std::vector<std::unique_ptr<Package>>& all();
    /// Loads one more package folder. False, with the message, when it is broken; nothing of it is kept then.
    static bool load(const QString& folder, QString& error);
    /// What is wrong with a package folder: "FILE:LINE:COLUMN: reason" for each fault, at most one for each class;
    /// empty when it could be loaded. Nothing of it is kept.
    static QStringList faults(const QString& folder);
    /// Forgets the package of that name with its resources, so that another copy of it can be looked at. Documents and
    /// packages that use it keep what they have. For tools.
    static void unload(const QString& name);
    /// Where packages of the user stand: "packages" in the application's data folder.
    static QString userFolder();
    /// Adds the class to the user's own package "user-DOMAIN" of the class's domain and writes its package.xml (the old
    /// file stays when that fails). The class becomes exactly what later runs will read: its package, bases and meta
    /// properties are filled, pictures that belong to a document are copied into the package. False with the message
    /// when the id is taken, the class cannot stand in a package (a value that its validator refuses, say), or the file
    /// cannot be written.
    static bool addUserClass(std::shared_ptr<NodePrototype> prototype, QString& error);
    /// Forgets all packages and their resources; the next call of all() loads them again. For tests.
    static void unloadAll();

private:
    friend class PackageReader;
    friend class PackageRegistry;
    Package() = default;

    QString m_name;
    QString m_label;
    QString m_folder;
    int m_version = 1;
    bool m_builtIn = false;
    std::vector<std::shared_ptr<NodePrototype>> m_classes;
};
