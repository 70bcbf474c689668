#include "zkcore/model/modelImpl.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/spaceImpl.h"

ModelImpl::ModelImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : NodeImpl(document, prototype, id)
{
}

ModelImpl::~ModelImpl() = default;

std::vector<SceneImpl*> ModelImpl::getScenes() const
{
    std::vector<SceneImpl*> result;
    result.reserve(childCount());
    for (NodeImpl* child : children())
        result.push_back(static_cast<SceneImpl*>(child));
    return result;
}

std::vector<PopupImpl*> ModelImpl::getPopups() const
{
    std::vector<PopupImpl*> result;
    result.reserve(m_popups.size());
    for (const InstanceId id : m_popups)
        result.push_back(static_cast<PopupImpl*>(document()->nodeById(id)));
    return result;
}
