#pragma once

#include "zkcore/commands/command.h"

/// Moves a node to another place among its siblings; an index past the end moves it to the end.
class ZKCORE_EXPORT SetNodeIndexCommand : public Command
{
public:
    explicit SetNodeIndexCommand(const Node& node = {}, unsigned int index = 0, int flags = PushUndo);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    InstanceId m_node = 0;
    unsigned int m_index = 0;
};
