#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/model/property.h"
#include "zkcore/model/propertyAddress.h"

#include <vector>

/// Sets properties to values. A proxy that can be written through writes its target. Properties that have the value
/// already are passed over. Fails as a whole, with nothing changed, when a property is gone, computed, a proxy that
/// cannot be written, of another type than its value, or when its validator refuses the value. Gives Value(true).
class ZKCORE_EXPORT SetValueCommand : public Command
{
public:
    explicit SetValueCommand(bool pushUndo = true);
    SetValueCommand(const Property& property, const Value& value, bool pushUndo);

    void addProperty(const Property& property, const Value& value);
    /// The same for a property that has no object yet.
    void addAddress(const PropertyAddress& address, const Value& value);

    LiveText liveUndoDescription() const override;
    QString getXMLClass() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    struct Entry
    {
        PropertyAddress address;
        Value value;
    };
    std::vector<Entry> m_entries;
    LiveText m_label;
};
