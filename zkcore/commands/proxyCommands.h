#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/model/property.h"
#include "zkcore/model/propertyAddress.h"

/// Makes a property follow another (the second). Fails when the target may not be followed (PropertyFilter) or would
/// close a cycle.
class ZKCORE_EXPORT SetProxyCommand : public Command
{
public:
    SetProxyCommand();
    SetProxyCommand(const Property& property, const Property& target, bool pushUndo = true);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    PropertyAddress m_property;
    PropertyAddress m_target;
    LiveText m_label;
};

/// Ends the following; the property keeps the value last seen.
class ZKCORE_EXPORT DetachProxyCommand : public Command
{
public:
    explicit DetachProxyCommand(const Property& property = {}, bool pushUndo = true);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    PropertyAddress m_property;
    LiveText m_label;
};
