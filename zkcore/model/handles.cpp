#include "zkcore/model/handles.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/spaceImpl.h"

namespace {

template <typename T> T* handleTarget(const Node& node)
{
    return qobject_cast<T*>(node.impl());
}

} // namespace

Element::Element(ElementImpl* impl) : Node(impl) {}
Element::Element(const Node& node) : Node(node) {}

ElementImpl* Element::impl() const
{
    return handleTarget<ElementImpl>(*this);
}

Part::Part(PartImpl* impl) : Element(impl) {}
Part::Part(const Node& node) : Element(node) {}

PartImpl* Part::impl() const
{
    return handleTarget<PartImpl>(*this);
}

Space::Space(SpaceImpl* impl) : Node(impl) {}
Space::Space(const Node& node) : Node(node) {}

SpaceImpl* Space::impl() const
{
    return handleTarget<SpaceImpl>(*this);
}

Property Space::getProperty(Property::Key key, ClassId domain) const
{
    SpaceImpl* space = impl();
    return space ? Property(space->getProperty(key, domain)) : Property();
}

Value Space::valueOfProperty(Property::Key key, ClassId domain) const
{
    const SpaceImpl* space = impl();
    return space ? space->valueOfProperty(key, domain) : Value();
}

Scene::Scene(SceneImpl* impl) : Space(impl) {}
Scene::Scene(const Node& node) : Space(node) {}

SceneImpl* Scene::impl() const
{
    return handleTarget<SceneImpl>(*this);
}

Popup::Popup(PopupImpl* impl) : Space(impl) {}
Popup::Popup(const Node& node) : Space(node) {}

PopupImpl* Popup::impl() const
{
    return handleTarget<PopupImpl>(*this);
}

Model::Model(ModelImpl* impl) : Node(impl) {}
Model::Model(const Node& node) : Node(node) {}

ModelImpl* Model::impl() const
{
    return handleTarget<ModelImpl>(*this);
}

bool Model::connectSceneRemoved(QObject* receiver, const char* slot) const
{
    const ModelImpl* model = impl();
    return model && receiver && QObject::connect(model->document(), SIGNAL(SceneRemoved(Scene)), receiver, slot);
}

bool Model::connectPopupRemoved(QObject* receiver, const char* slot) const
{
    const ModelImpl* model = impl();
    return model && receiver && QObject::connect(model->document(), SIGNAL(PopupRemoved(Popup)), receiver, slot);
}
