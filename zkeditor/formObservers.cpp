#include "zkeditor/formObservers.h"

#include "zkcore/model/propertyDefinition.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validator.h"
#include "zkeditor/formClasses.h"
#include "zkeditor/formDescription.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QStringList>
#include <algorithm>

namespace {

using formObservers::Role;

struct ObserverRow
{
    const char* className;
    Role role;
    QList<Value::Type> types;
};

const QList<Value::Type> scalarTypes = {Value::INT,    Value::DOUBLE, Value::POINT, Value::BOOL,
                                        Value::STRING, Value::COLOR,  Value::NODE,  Value::RESOURCE};

/// A class stands here before those that it refines.
const QList<ObserverRow>& observerRows()
{
    static const QList<ObserverRow> rows = {
        {"ObserverCheckBox", Role::Observer, {Value::BOOL}},
        {"ObserverStringCheckBox", Role::Observer, {Value::STRING}},
        {"ObserverButton", Role::Observer, {Value::BOOL}}, // or STRING, as its mode says
        {"ObserverComboBox", Role::Observer, {}},
        {"ObserverLineEdit", Role::Observer, scalarTypes},
        {"ObserverSpinBox", Role::Observer, {Value::INT, Value::DOUBLE}},
        {"ObserverSlider", Role::Observer, {Value::INT, Value::DOUBLE}},
        {"ObserverPoint", Role::Observer, {Value::POINT}},
        {"ObserverColorPicker", Role::Observer, {Value::COLOR}},
        {"ObserverRadioGroup", Role::ObserverGroup, scalarTypes},
        {"ObserverGroupBox", Role::OptionalGroup, {Value::BOOL}},
        {"UnitChooser", Role::Observer, {Value::INT, Value::DOUBLE, Value::POINT}},
        {"ValueMapListBox", Role::Observer, {Value::VALUEMAP}},
        {"FontChooser", Role::Observer, {Value::VALUEMAP}},
        {"ResourceChooser", Role::Observer, {Value::RESOURCE}},
        {"ResourceDropdown", Role::Observer, {Value::RESOURCE}},
        {"ResourceListBox", Role::Observer, {Value::RESOURCEVECTOR}},
        {"SubpartComboBox", Role::SubpartSource, {}},
        {"SubpartListView", Role::SubpartSource, {}},
    };
    return rows;
}

const ObserverRow* rowOf(const QMetaObject* metaObject)
{
    for (; metaObject; metaObject = metaObject->superClass()) {
        for (const ObserverRow& row : observerRows())
            if (qstrcmp(row.className, metaObject->className()) == 0)
                return &row;
    }
    return nullptr;
}

struct ObserverTexts
{
    Q_DECLARE_TR_FUNCTIONS(FormChecker)
};

} // namespace

formObservers::Role formObservers::roleOf(const QMetaObject* metaObject)
{
    if (!metaObject)
        return Role::None;
    if (const ObserverRow* row = rowOf(metaObject))
        return row->role;
    return metaObject->indexOfProperty("modelProperty") >= 0 ? Role::Observer : Role::None;
}

QList<Value::Type> formObservers::typesOf(const QMetaObject* metaObject, const FormObject& object)
{
    const ObserverRow* row = rowOf(metaObject);
    if (!row)
        return {};
    if (formClasses::inherits(metaObject, "ObserverButton") &&
        object.text("mode").section(QLatin1String("::"), -1) == QLatin1String("STRING"))
        return {Value::STRING};
    return row->types;
}

QString formObservers::namesOfTypes(const QList<Value::Type>& types)
{
    QStringList names;
    for (const Value::Type type : types)
        names.append(Value::typeAsString(type));
    return names.join(QStringLiteral(", "));
}

QString formObservers::weaknessWith(const QMetaObject* metaObject, const PropertyDefinition& property)
{
    if (formClasses::inherits(metaObject, "ObserverComboBox") && property.type != Value::BOOL) {
        const auto* set = dynamic_cast<const SetValidator*>(property.validator.get());
        if (!set)
            return ObserverTexts::tr("the list stays empty: the property needs a validator of the kind \"set\"");
        if (set->getValidValues().toValueVector().empty())
            return ObserverTexts::tr("the list stays empty: the property's validator allows no value");
    }
    if (formClasses::inherits(metaObject, "ResourceDropdown") &&
        !dynamic_cast<const ResourceValidator*>(property.validator.get()))
        return ObserverTexts::tr("the list stays empty: the property needs a validator of the kind \"resources\"");
    if (formClasses::inherits(metaObject, "UnitChooser") && (!property.format || property.format->units.empty()))
        return ObserverTexts::tr("no unit is shown: the property has neither a unit nor a format with units");
    return {};
}

bool formObservers::isFatalChoice(const QMetaObject* metaObject, const PropertyDefinition& property)
{
    if (!formClasses::inherits(metaObject, "ObserverComboBox") || property.type == Value::BOOL)
        return false;
    const auto* set = dynamic_cast<const SetValidator*>(property.validator.get());
    if (!set || property.type == Value::STRING)
        return false;
    const Value values = set->getValidValues();
    if (property.type == Value::COLOR) {
        const std::vector<Value> colors = values.toValueVector();
        return std::any_of(colors.begin(), colors.end(), [](const Value& v) { return v.type() != Value::COLOR; });
    }
    static const QList<Value::Type> lists = {Value::INTVECTOR, Value::DOUBLEVECTOR, Value::POINTVECTOR,
                                             Value::RESOURCEVECTOR, Value::VALUEVECTOR};
    return !lists.contains(values.type());
}

QString formObservers::choiceFault(const PropertyDefinition& property, const QString& name)
{
    const bool isNumeric = property.format && (property.type == Value::INT || property.type == Value::DOUBLE ||
                                               property.type == Value::POINT);
    const NumericalFormatter numeric(property.type, property.format);
    Value value = property.type == Value::STRING ? Value(name) : valueFromText(property.type, name);
    if (const auto* set = dynamic_cast<const SetValidator*>(property.validator.get())) {
        for (const Value& allowed : set->getValidValues().toValueVector()) {
            const QString shown = isNumeric ? numeric.toText(allowed) : formatValueAsString(allowed);
            if (allowed.toQString() == name || shown == name)
                value = allowed;
        }
    }
    if (!value.isValid() && isNumeric)
        value = numeric.fromText(name);
    if (!value.isValid() || value.type() != property.type)
        return ObserverTexts::tr("\"%1\" is no value of the type %2")
            .arg(name.left(60), Value::typeAsString(property.type));
    if (property.validator && !property.validator->isValid(value))
        return ObserverTexts::tr("\"%1\" is no value that the property may take").arg(name.left(60));
    return {};
}
