#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/model/handles.h"

/// Shows or hides the pop-up of a part (the transient property "open" of the pop-up): no undo step. Fails when the part
/// has no pop-up.
class ZKCORE_EXPORT ShowPopupCommmand : public Command
{
public:
    explicit ShowPopupCommmand(const Part& part = {}, bool show = true);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    InstanceId m_part = 0;
    bool m_show = true;
};

/// Selects every part of a space (of the first scene when none is given): no undo step.
class ZKCORE_EXPORT SelectAllCommand : public Command
{
public:
    explicit SelectAllCommand(const Space& space = {});

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    InstanceId m_space = 0;
};

/// Opens a new undo step for the changes that follow with the undo flag off; dropped again when none follows. Whoever
/// starts a drag executes this first, and then writes with the flag off.
class ZKCORE_EXPORT PushUndoCommand : public Command
{
public:
    /// The description is what the step's undo text says; without one, what the first change says.
    explicit PushUndoCommand(LiveText description = {});
    /// For a description that is the same in every language.
    explicit PushUndoCommand(const QString& description);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    LiveText m_description;
};
