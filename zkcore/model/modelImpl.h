#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/nodeImpl.h"

#include <set>
#include <vector>

class PopupImpl;
class SceneImpl;

/// The root of a document's nodes. Its children are the scenes; it has the property "paused".
class ZKCORE_EXPORT ModelImpl : public NodeImpl
{
    Q_OBJECT

public:
    ~ModelImpl() override;

    std::vector<SceneImpl*> getScenes() const;
    /// All pop-ups of the document, in the order of their instance ids.
    std::vector<PopupImpl*> getPopups() const;

private:
    friend class ModelMutator;
    friend class NodeFactory;
    friend class DocumentImpl;
    ModelImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);

    std::set<InstanceId> m_popups;
};
