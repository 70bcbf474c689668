#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/storage/packageElement.h"
#include "zkcore/storage/packagePropertyReader.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

class NodePrototype;
class Package;
class QIODevice;
struct SubpartDefinition;

/// Reads package.xml. The resources of the package must be registered before.
class PackageReader
{
    Q_DECLARE_TR_FUNCTIONS(Package)

public:
    /// The class of that id among the packages loaded before; null when there is none.
    using KnownClasses = std::function<const NodePrototype*(ClassId)>;

    static constexpr int formatVersion = 1;

    /// Null, with the message "FILE:LINE:COLUMN: reason", when the package is faulty.
    static std::unique_ptr<Package> readFolder(const QString& folder, const KnownClasses& known, QString& error);
    /// As above, from any device; `folder` is where the package stands or will stand.
    static std::unique_ptr<Package> read(QIODevice& device, const QString& folder, const KnownClasses& known,
                                         QString& error);
    /// The messages for all faults of a folder: of the first one where the file as a whole is faulty, otherwise of the
    /// first one in each class that does not just follow from another class's.
    static QStringList faults(const QString& folder, const KnownClasses& known);

private:
    explicit PackageReader(const KnownClasses& known) : m_known(known), m_properties(m_fault) {}

    /// A class of this file on its way to a prototype.
    struct Entry
    {
        const PackageElement* element = nullptr;
        ClassId cid = INVALID_CID;
        enum State { Waiting, Begun, Done, Faulty } state = Waiting;
    };

    /// What a node of a class consists of.
    struct Extent
    {
        size_t nodes = 1; // with all subparts
        int depth = 0;    // of subparts in one another
    };

    std::unique_ptr<Package> readPackage(const PackageElement& root, const QString& folder);
    QStringList collectFaults(const PackageElement& root, const QString& folder);
    bool readHead(const PackageElement& root, Package& package);
    bool collectClasses(const PackageElement& root);
    /// Reads the class after those that it needs; `user` is the element that needs it.
    bool resolve(ClassId cid, const PackageElement& user, int depth);
    bool resolveNeeded(const PackageElement& element, int depth);
    /// Null when no class has that id, or it is not read yet.
    const NodePrototype* lookup(ClassId cid) const;

    bool readClass(const PackageElement& element, NodePrototype& prototype);
    bool checkExtent(const PackageElement& element, const NodePrototype& prototype);
    Extent extentOf(const NodePrototype& prototype);
    bool failTooLarge(const PackageElement& element);
    bool readKind(const PackageElement& element, const NodePrototype* base, NodePrototype& prototype);
    bool readLooks(const PackageElement& element, NodePrototype& prototype);
    bool readProperties(const PackageElement& element, NodePrototype& prototype);
    bool readForms(const PackageElement& element, NodePrototype& prototype);
    bool readSubstitutions(const PackageElement& element, NodePrototype& prototype);
    bool readSubparts(const PackageElement& element, NodePrototype& prototype);
    bool readSubpart(const PackageElement& element, SubpartDefinition& subpart);
    bool readRule(const PackageElement& element, NodePrototype& prototype);
    bool checkRules() const;
    bool fail(const PackageElement& at, const QString& reason) const { return m_fault.raise(at, reason); }

    const KnownClasses& m_known;
    mutable PackageFault m_fault;
    PackagePropertyReader m_properties;
    Package* m_package = nullptr;
    std::vector<Entry> m_entries;
    QHash<ClassId, int> m_entryOf;
    QHash<ClassId, std::shared_ptr<NodePrototype>> m_read;
    QHash<ClassId, Extent> m_extents;
    size_t m_things = 0; // properties, subparts and so on of all classes
};
