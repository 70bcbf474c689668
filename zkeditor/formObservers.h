#pragma once

#include "zkcore/values/value.h"

#include <QList>
#include <QString>

struct FormObject;
struct PropertyDefinition;
struct QMetaObject;

/// What the classes of widgets that bind themselves to properties take.
namespace formObservers {
/// How a widget of a form is bound.
enum class Binding {
    None,          ///< not at all
    Observer,      ///< to its model property
    ObserverGroup, ///< to its model property, and binds the observers in it
    OptionalGroup, ///< as ObserverGroup, but may do without a model property
    SubpartSource  ///< to subparts, among which the user chooses what its group box edits
};
Binding bindingOf(const QMetaObject* metaObject);

/// The types of properties that the widget takes; empty when it takes any.
QList<Value::Type> typesOf(const QMetaObject* metaObject, const FormObject& object);
/// "bool, string"
QString namesOfTypes(const QList<Value::Type>& types);

/// What keeps the widget from working with a property of a type that it takes, though nothing ends over it: translated,
/// empty when nothing does.
QString weaknessWith(const QMetaObject* metaObject, const PropertyDefinition& property);
/// Whether a combo box would end the program over the values that the property allows.
bool isFatalChoice(const QMetaObject* metaObject, const PropertyDefinition& property);
/// Whether the words by which a radio button names its value name one that the property may take; with a reason when
/// they do not.
QString choiceFault(const PropertyDefinition& property, const QString& name);
} // namespace formObservers
