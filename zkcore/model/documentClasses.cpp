// The side of a document that deals with node classes: labels, icons, the parts tree, custom parts.
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/services/translate.h"
#include "zkcore/storage/package.h"

#include <QCoreApplication>
#include <algorithm>
#include <map>

namespace {

PropertyKey metaLabelKey()
{
    static const PropertyKey key = PropertyKey::fromString("meta-label");
    return key;
}

PropertyKey metaIconKey()
{
    static const PropertyKey key = PropertyKey::fromString("meta-icon");
    return key;
}

SubpartDefinition subpartDefinitionOf(const NodeSnapshot& subpart)
{
    SubpartDefinition definition;
    definition.cid = subpart.cid;
    for (const NodeSnapshot::ValueEntry& entry : subpart.values)
        definition.values.emplace_back(entry.key, entry.value);
    return definition;
}

} // namespace

QString DocumentImpl::getMetaLabelForCID(const ClassId& cid) const
{
    const NodePrototype* prototype = m_nodeDb->lookupPrototype(cid);
    const PropertyDefinition* definition = prototype ? prototype->find(metaLabelKey()) : nullptr;
    return definition ? translateStringForClass(*prototype, definition->defaultValue.toQString()) : QString();
}

Resource DocumentImpl::getMetaIconForCID(const ClassId& cid) const
{
    const NodePrototype* prototype = m_nodeDb->lookupPrototype(cid);
    const PropertyDefinition* definition = prototype ? prototype->find(metaIconKey()) : nullptr;
    return definition ? definition->defaultValue.toResource() : Resource();
}

PartsTreeStructure DocumentImpl::getPartsTreeStructure() const
{
    std::map<QString, std::vector<ClassId>> folders;
    for (const NodePrototype* prototype : m_nodeDb->prototypes()) {
        if (prototype->kind == NodeKind::Part && !prototype->abstract && !prototype->placeholder &&
            !prototype->group.isEmpty())
            folders[QCoreApplication::translate("PartsTree", prototype->group.toUtf8().constData())].push_back(
                prototype->cid);
    }
    PartsTreeStructure result;
    for (auto& [label, classes] : folders) {
        std::vector<std::pair<QString, ClassId>> labelled;
        labelled.reserve(classes.size());
        for (const ClassId cid : classes)
            labelled.emplace_back(getMetaLabelForCID(cid), cid);
        std::sort(labelled.begin(), labelled.end(), [](const auto& a, const auto& b) {
            const int order = QString::localeAwareCompare(a.first, b.first);
            return order != 0 ? order < 0 : a.second < b.second;
        });
        PartsTreeStructure::Folder folder{label, {}};
        for (const auto& [text, cid] : labelled)
            folder.classes.push_back(cid);
        result.folders.push_back(std::move(folder));
    }
    return result;
}

bool DocumentImpl::addCustomPartDefinition(unsigned int cid, PartImpl* part, const QString& label)
{
    const QString text = findStringForCid(cid);
    const auto refuse = [&text](const QString& why) {
        qWarning("DocumentImpl: custom part %s: %s", qPrintable(text), qPrintable(why));
        return false;
    };
    if (!NodeImpl::valid(part) || part->document() != this)
        return refuse(tr("There is no such part."));
    if (text.count(QLatin1Char('/')) < 1 || text.endsWith(QLatin1Char('/')) || isDomain(cid))
        return refuse(tr("The id names no class of a domain."));
    const NodePrototype* present = m_nodeDb->lookupPrototype(cid);
    if (present && !present->placeholder)
        return refuse(tr("The id is already in use."));

    const NodePrototype& base = part->prototype();
    auto prototype = std::make_shared<NodePrototype>(base);
    prototype->cid = cid;
    prototype->base = base.cid;
    prototype->label = label;
    prototype->abstract = false;
    prototype->placeholder = false;
    if (prototype->group.isEmpty())
        prototype->group = QStringLiteral("Custom");

    // Where the part stands and what it is called stay its own.
    const NodeSnapshot snapshot = NodeSnapshot::of(*part);
    const auto define = [&prototype](PropertyKey key, const Value& value) {
        if (const PropertyDefinition* known = prototype->find(key)) {
            PropertyDefinition definition = *known;
            definition.defaultValue = value;
            prototype->addProperty(std::move(definition));
        }
    };
    for (const NodeSnapshot::ValueEntry& entry : snapshot.values) {
        static const PropertyKey own[] = {PropertyKey::fromString("id"), PropertyKey::fromString("position")};
        if (std::find(std::begin(own), std::end(own), entry.key) == std::end(own) && entry.value.type() != Value::NODE)
            define(entry.key, entry.value);
    }
    define(metaLabelKey(), Value(label));
    prototype->subparts.clear();
    for (const NodeSnapshot& child : snapshot.children) {
        if (child.kind == NodeKind::Subpart)
            prototype->subparts.push_back(subpartDefinitionOf(child));
    }

    QString error;
    if (!Package::addUserClass(prototype, error))
        return refuse(error);
    return m_nodeDb->addPrototype(prototype);
}
