#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/node.h"
#include "zkcore/model/property.h"

class ElementImpl;
class ModelImpl;
class PartImpl;
class PopupImpl;
class SceneImpl;
class SpaceImpl;
class QObject;

/// Typed handles wrap the implementations for signal arguments. impl() is null when the node is gone or of another
/// kind.
class ZKCORE_EXPORT Element : public Node
{
public:
    Element() = default;
    Element(ElementImpl* impl); // NOLINT: implicit, handles stand in for pointers
    explicit Element(const Node& node);
    ElementImpl* impl() const;
};
/// The handle of a part.
class ZKCORE_EXPORT Part : public Element
{
public:
    Part() = default;
    Part(PartImpl* impl); // NOLINT
    explicit Part(const Node& node);
    PartImpl* impl() const;
};
/// The handle of a scene or pop-up.
class ZKCORE_EXPORT Space : public Node
{
public:
    Space() = default;
    Space(SpaceImpl* impl); // NOLINT
    explicit Space(const Node& node);
    SpaceImpl* impl() const;

    using Node::getProperty;
    using Node::valueOfProperty;
    /// A domain property held by the space; invalid handle when absent.
    Property getProperty(Property::Key key, ClassId domain) const;
    Value valueOfProperty(Property::Key key, ClassId domain) const;
};
/// The handle of a scene.
class ZKCORE_EXPORT Scene : public Space
{
public:
    Scene() = default;
    Scene(SceneImpl* impl); // NOLINT
    explicit Scene(const Node& node);
    SceneImpl* impl() const;
};
/// The handle of a pop-up.
class ZKCORE_EXPORT Popup : public Space
{
public:
    Popup() = default;
    Popup(PopupImpl* impl); // NOLINT
    explicit Popup(const Node& node);
    PopupImpl* impl() const;
};
/// The handle of a document's root.
class ZKCORE_EXPORT Model : public Node
{
public:
    Model() = default;
    Model(ModelImpl* impl); // NOLINT
    explicit Model(const Node& node);
    ModelImpl* impl() const;

    /// Connects a slot to the document's SceneRemoved(Scene). False when the model is gone or there is no such slot.
    bool connectSceneRemoved(QObject* receiver, const char* slot) const;
    bool connectPopupRemoved(QObject* receiver, const char* slot) const;
};

Q_DECLARE_METATYPE(Element)
Q_DECLARE_METATYPE(Part)
Q_DECLARE_METATYPE(Space)
Q_DECLARE_METATYPE(Scene)
Q_DECLARE_METATYPE(Popup)
Q_DECLARE_METATYPE(Model)
