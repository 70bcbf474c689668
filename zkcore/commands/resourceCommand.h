#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/media/resource.h"

/// Adds a resource to the document's own, under a free name when its own is taken. Gives the resource.
class ZKCORE_EXPORT AddResourceCommand : public Command
{
public:
    explicit AddResourceCommand(const Resource& resource = {}, bool pushUndo = true);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    Resource m_resource;
};

/// Removes a resource from the document's own. Properties that name it keep the name.
class ZKCORE_EXPORT RemoveResourceCommand : public Command
{
public:
    explicit RemoveResourceCommand(const Resource& resource = {}, bool pushUndo = true);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    QString m_name;
};
