#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/model/lockGroup.h"

#include <vector>

/// Sets or releases one lock of elements: one undo step for all. Nodes that are no elements, or gone, are passed over.
class ZKCORE_EXPORT SetUILockedCommand : public Command
{
public:
    SetUILockedCommand();
    SetUILockedCommand(const std::vector<Node>& nodes, LockGroup group, bool locked);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    std::vector<InstanceId> m_nodes;
    LockGroup m_group = LockPosition;
    bool m_locked = false;
};
