#pragma once

#include "zkcore/commands/command.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/handles.h"

/// Makes a reflection of a part in a container (a space, or a part whose pop-up then holds it), or removes the one that
/// is there. A reflection is an element of its own; its properties, place, size and id excepted, are proxies of the
/// original's. Fails when the part cannot be reflected. Gives the reflection when one was made, else Value(true).
class ZKCORE_EXPORT ReflectCommand : public Command
{
public:
    ReflectCommand(ReflectionKind kind, const Part& original, const Node& container, bool reflect,
                   int flags = PushUndo);

    LiveText liveUndoDescription() const override;

protected:
    Value run(ModelMutator& mutator) override;
    void writeContent(QXmlStreamWriter& writer) const override;
    bool readContent(QXmlStreamReader& reader) override;

private:
    ReflectionKind m_kind;
    InstanceId m_original = 0;
    InstanceId m_container = 0;
    bool m_reflect = true;
    InstanceId m_firstId = 0;
};
/// Shows a part's controls, or takes them away again.
class ZKCORE_EXPORT ReflectControlsCommand : public ReflectCommand
{
public:
    explicit ReflectControlsCommand(const Part& original = {}, const Node& container = {}, bool reflect = true,
                                    int flags = PushUndo)
        : ReflectCommand(ReflectionKind::Controls, original, container, reflect, flags)
    {
    }
    QString getXMLClass() const override;
};
/// Shows a part's pads, or takes them away again.
class ZKCORE_EXPORT ReflectPadsCommand : public ReflectCommand
{
public:
    explicit ReflectPadsCommand(const Part& original = {}, const Node& container = {}, bool reflect = true,
                                int flags = PushUndo)
        : ReflectCommand(ReflectionKind::Pads, original, container, reflect, flags)
    {
    }
    QString getXMLClass() const override;
};
/// Shows a part's body, or takes it away again.
class ZKCORE_EXPORT ReflectBodyCommand : public ReflectCommand
{
public:
    explicit ReflectBodyCommand(const Part& original = {}, const Node& container = {}, bool reflect = true,
                                int flags = PushUndo)
        : ReflectCommand(ReflectionKind::Body, original, container, reflect, flags)
    {
    }
    QString getXMLClass() const override;
};
