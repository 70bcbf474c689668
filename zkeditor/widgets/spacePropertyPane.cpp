#include "zkeditor/widgets/spacePropertyPane.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/model/spaceImpl.h"
#include "zkeditor/formGate.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/formSections.h"
#include "zkeditor/widgets/msgPane.h"
#include "zkeditor/widgets/nodePaletteBox.h"

#include <QVBoxLayout>

namespace {

void addSpaceForms(FormSections& sections, const Value& names, DocumentImpl* document, const std::set<NodeImpl*>& nodes,
                   ClassId cid)
{
    sections.beginGroup();
    const NodeDb& classes = *document->getNodeDb();
    const NodePrototype* prototype = classes.lookupPrototype(cid);
    for (const QString& name : names.toStringVector()) {
        if (prototype && FormGate::instance().isClosed()) {
            sections.add(FormGate::instance().load(name, *prototype, classes, nodes), document, nodes, cid);
            continue;
        }
        const Resource resource(name);
        if (!resource.isValid())
            continue;
        if (std::unique_ptr<QWidget> form{loadUIFromResource(resource, nullptr)})
            sections.add(std::move(form), document, nodes, cid);
        else
            qWarning("SpacePropertyPane: the form %s of %s cannot be read", qPrintable(name),
                     qPrintable(findStringForCid(cid)));
    }
}

} // namespace

SpacePropertyPane::SpacePropertyPane(DocumentImpl* document, const std::set<SpaceImpl*>& spaces, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    static const PropertyKey formsKey = PropertyKey::fromString("meta-controlpane");
    FormSections sections;
    ClassId cid = INVALID_CID;
    if (document && !spaces.empty()) {
        const SpaceImpl* first = *spaces.begin();
        cid = first->classId();
        std::set<NodeImpl*> nodes;
        for (SpaceImpl* space : spaces) {
            if (space->classId() == cid)
                nodes.insert(space);
        }
        addSpaceForms(sections, first->valueOfProperty(formsKey), document, nodes, cid);
        for (const ClassId domain : first->getKnownDomains())
            addSpaceForms(sections, first->valueOfProperty(formsKey, domain), document, nodes, domain);
    }
    if (sections.empty()) {
        layout->addWidget(new MsgPane(tr("This scene has no properties"), this));
        return;
    }
    layout->addWidget(sections.lift(cid, this));
    if (NodePaletteBox* box = sections.box()) {
        if (!box->restoreOpenItemsFor(cid))
            box->showItem(0, true);
        connect(box, &PaletteBox::layoutChanged, this, &SpacePropertyPane::layoutChanged);
    }
}
