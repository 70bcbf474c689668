#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/model/handles.h"
#include "zkcore/model/nodeSnapshot.h"

#include <vector>

/// Adds nodes below a parent: parts to a space, subparts to a part, scenes to the model. Ids ("id" values) that are
/// taken are replaced by free ones; nodes without an id get one. Gives the list of the new nodes (NODE values). Fails
/// when the parent is gone or may not hold such nodes.
class ZKCORE_EXPORT AddNodesCommand : public Command
{
public:
    explicit AddNodesCommand(bool pushUndo = true);
    /// `index` is the place of the first among the siblings; past the end appends.
    AddNodesCommand(const Node& parent, std::vector<NodeSnapshot> nodes, unsigned int index = ~0u,
                    bool pushUndo = true);
    ~AddNodesCommand() override;

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

    /// The one node of commands that add one; what run() of the base gave otherwise.
    static Value onlyNode(const Value& added);

    InstanceId m_parent = 0;
    std::vector<NodeSnapshot> m_nodes;
    unsigned int m_index = ~0u;
    bool m_idsGiven = false; // read back from a record
};

/// Adds one new part of a class to a space, centred on a place (in metres). Gives the new node.
class ZKCORE_EXPORT AddPartCommand : public AddNodesCommand
{
public:
    explicit AddPartCommand(bool pushUndo = true) : AddNodesCommand(pushUndo) {}
    AddPartCommand(const Space& space, ClassId cid, const zk::Point& position);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
};

/// Adds one new subpart of a class to an element. Fails when the element's class does not allow it. Gives the new node.
class ZKCORE_EXPORT AddSubpartCommand : public AddNodesCommand
{
public:
    explicit AddSubpartCommand(bool pushUndo = true) : AddNodesCommand(pushUndo) {}
    AddSubpartCommand(const Node& element, ClassId cid, bool pushUndo = true);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
};

/// Adds an empty scene to the model. Gives the new node.
class ZKCORE_EXPORT AddSceneCommand : public AddNodesCommand
{
public:
    explicit AddSceneCommand(bool pushUndo = true) : AddNodesCommand(pushUndo) {}
    explicit AddSceneCommand(const Model& model);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
};
