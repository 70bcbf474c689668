#include "zkcore/model/nodeFactory.h"

#include "zkcore/model/elementImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"

NodeImpl* NodeFactory::make(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
{
    switch (prototype->kind) {
    case NodeKind::Model:
        return new ModelImpl(document, prototype, id);
    case NodeKind::Scene:
        return new SceneImpl(document, prototype, id);
    case NodeKind::Popup:
        return new PopupImpl(document, prototype, id);
    case NodeKind::Part:
        return new PartImpl(document, prototype, id);
    case NodeKind::Subpart:
        return new ElementImpl(document, prototype, id);
    case NodeKind::Domain:
        break;
    }
    return nullptr;
}
