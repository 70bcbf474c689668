#include "zkcore/model/nodeDb.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"

#include <algorithm>

namespace {

/// The class that nodes of a kind have in common.
ClassId commonBaseOfKind(NodeKind kind)
{
    switch (kind) {
    case NodeKind::Model:
        return getCidForString("core/model");
    case NodeKind::Scene:
        return getCidForString("core/scene");
    case NodeKind::Popup:
        return getCidForString("core/popup");
    case NodeKind::Part:
        return getCidForString("core/part");
    case NodeKind::Subpart:
        return getCidForString("core/subpart");
    case NodeKind::Domain:
        return getCidForString("core/domain");
    }
    return INVALID_CID;
}

bool subtreeHasClass(const NodeImpl* node, ClassId cid)
{
    if (node->classId() == cid)
        return true;
    for (unsigned int i = 0; i < node->childCount(); ++i)
        if (subtreeHasClass(node->getChildAt(i), cid))
            return true;
    return false;
}

bool definesSpaceProperties(const NodePrototype& prototype)
{
    if (prototype.kind != NodeKind::Domain || prototype.abstract || !isDomain(prototype.cid))
        return false;
    return std::any_of(prototype.properties().begin(), prototype.properties().end(), [](const PropertyDefinition& p) {
        return !p.key.toString().startsWith(QLatin1String("meta-"));
    });
}

} // namespace

NodeDb::NodeDb(QObject* parent) : QObject(parent) {}
NodeDb::~NodeDb() = default;

const NodePrototype* NodeDb::lookupPrototype(const ClassId& cid) const
{
    const auto found = m_prototypes.constFind(cid);
    return found == m_prototypes.cend() ? nullptr : found->get();
}

bool NodeDb::addPrototype(std::shared_ptr<NodePrototype> prototype)
{
    if (!prototype || prototype->cid == INVALID_CID)
        return false;
    const ClassId cid = prototype->cid;
    if (const NodePrototype* present = lookupPrototype(cid)) {
        if (!present->placeholder || isInUse(cid))
            return false;
        m_retired.push_back(m_prototypes.take(cid));
        std::erase(m_order, cid);
        std::erase(m_domains, cid);
    }
    insert(std::move(prototype));
    Q_EMIT prototypeAdded(cid);
    return true;
}

const NodePrototype* NodeDb::prototypeOrPlaceholder(ClassId cid, NodeKind kind)
{
    if (const NodePrototype* present = lookupPrototype(cid))
        return present;
    if (cid == INVALID_CID)
        return nullptr;
    const NodePrototype* common = lookupPrototype(commonBaseOfKind(kind));
    auto placeholder = common ? std::make_shared<NodePrototype>(*common) : std::make_shared<NodePrototype>();
    placeholder->cid = cid;
    placeholder->base = common ? common->cid : INVALID_CID;
    placeholder->kind = kind;
    placeholder->package.clear();
    placeholder->label = findStringForCid(cid);
    placeholder->group.clear();
    placeholder->keyStage = 0;
    placeholder->abstract = false;
    placeholder->placeholder = true;
    placeholder->subparts.clear();
    placeholder->addMetaProperties();
    insert(placeholder);
    return lookupPrototype(cid);
}

std::vector<const NodePrototype*> NodeDb::prototypes() const
{
    std::vector<const NodePrototype*> all;
    all.reserve(m_order.size());
    for (const ClassId cid : m_order)
        all.push_back(lookupPrototype(cid));
    return all;
}

std::vector<ClassId> NodeDb::domains() const
{
    return m_domains;
}

bool NodeDb::isInUse(ClassId cid) const
{
    const auto* document = qobject_cast<const DocumentImpl*>(parent());
    const ModelImpl* model = document ? document->getModel() : nullptr;
    if (!model)
        return false;
    if (subtreeHasClass(model, cid))
        return true;
    const std::vector<PopupImpl*> popups = model->getPopups();
    return std::any_of(popups.begin(), popups.end(),
                       [cid](const PopupImpl* popup) { return subtreeHasClass(popup, cid); });
}

void NodeDb::insert(std::shared_ptr<NodePrototype> prototype)
{
    if (const NodePrototype* base = lookupPrototype(prototype->base)) {
        std::vector<ClassId> bases{base->cid};
        bases.insert(bases.end(), base->bases.begin(), base->bases.end());
        // The data bases of all documents share the prototype: write it only when there is something to say.
        if (prototype->bases != bases)
            prototype->bases = std::move(bases);
    } else if (prototype->base != INVALID_CID && prototype->bases.empty()) {
        prototype->bases.push_back(prototype->base);
    }
    m_order.push_back(prototype->cid);
    if (definesSpaceProperties(*prototype))
        m_domains.push_back(prototype->cid);
    m_prototypes.insert(prototype->cid, prototype);
}
