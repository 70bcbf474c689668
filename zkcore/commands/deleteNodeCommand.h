#pragma once

#include "zkcore/commands/command.h"

#include <vector>

/// Deletes nodes with all that is in them, the connections that end at them, and their reflections; properties
/// elsewhere that followed one of theirs are detached. The last scene cannot be deleted, nor a subpart that its
/// parent's class prescribes.
class ZKCORE_EXPORT DeleteNodeCommand : public Command
{
public:
    explicit DeleteNodeCommand(int flags = PushUndo);
    DeleteNodeCommand(const Node& node, int flags);
    DeleteNodeCommand(const std::vector<Node>& nodes, int flags);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    std::vector<InstanceId> m_nodes;
    LiveText m_label;
};
