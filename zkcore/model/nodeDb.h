#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"
#include "zkcore/model/nodePrototype.h"

#include <QHash>
#include <QObject>
#include <memory>
#include <vector>

/// The node classes that a document knows: one prototype per class id.
class ZKCORE_EXPORT NodeDb : public QObject
{
    Q_OBJECT

public:
    explicit NodeDb(QObject* parent = nullptr);
    ~NodeDb() override;

    /// Null when no class has that id. The prototype lives as long as the data base.
    const NodePrototype* lookupPrototype(const ClassId& cid) const;
    bool hasPrototype(const ClassId& cid) const { return lookupPrototype(cid) != nullptr; }

    /// Adds a class, fills its `bases` and emits prototypeAdded(). A class whose id is taken is refused (returns
    /// false), unless the one there is a placeholder that no node uses any more.
    bool addPrototype(std::shared_ptr<NodePrototype> prototype);
    /// The prototype, or a placeholder for an unknown class, made from core/part, core/subpart, core/scene or
    /// core/popup according to the kind: it has their properties and, as its label, the text of the class id.
    /// Placeholders are not announced with prototypeAdded().
    const NodePrototype* prototypeOrPlaceholder(ClassId cid, NodeKind kind);

    /// All classes in the order in which they were added.
    std::vector<const NodePrototype*> prototypes() const;
    /// The class ids of all domains ("flowcharts/*") that define properties of a space.
    std::vector<ClassId> domains() const;

Q_SIGNALS:
    void prototypeAdded(unsigned int cid);

private:
    bool isInUse(ClassId cid) const;
    void insert(std::shared_ptr<NodePrototype> prototype);

    QHash<ClassId, std::shared_ptr<NodePrototype>> m_prototypes;
    std::vector<ClassId> m_order;
    std::vector<ClassId> m_domains;
    std::vector<std::shared_ptr<NodePrototype>> m_retired; // replaced placeholders; they live as long as promised
};
