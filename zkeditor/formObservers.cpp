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

struct ObserverRow
{
    const char* className;
    formObservers::Binding binding;
    QList<Value::Type> types;
};

const QList<Value::Type> scalarTypes = {Value::INT,    Value::DOUBLE, Value::POINT, Value::BOOL,
                                        Value::STRING, Value::COLOR,  Value::NODE,  Value::RESOURCE};

/// A class stands here before those that it refines.
const QList<ObserverRow>& observerRows()
{
    static const QList<ObserverRow> rows = {
        {"ObserverCheckBox", formObservers::Binding::Observer, {Value::BOOL}},
        {"ObserverStringCheckBox", formObservers::Binding::Observer, {Value::STRING}},
        {"ObserverButton", formObservers::Binding::Observer, {Value::BOOL}}, // or STRING, as its mode says
        {"ObserverComboBox", formObservers::Binding::Observer, {}},
        {"ObserverLineEdit", formObservers::Binding::Observer, scalarTypes},
        {"ObserverSpinBox", formObservers::Binding::Observer, {Value::INT, Value::DOUBLE}},
        {"ObserverSlider", formObservers::Binding::Observer, {Value::INT, Value::DOUBLE}},
        {"ObserverPoint", formObservers::Binding::Observer, {Value::POINT}},
        {"ObserverColorPicker", formObservers::Binding::Observer, {Value::COLOR}},
        {"ObserverRadioGroup", formObservers::Binding::ObserverGroup, scalarTypes},
        {"ObserverGroupBox", formObservers::Binding::OptionalGroup, {Value::BOOL}},
        {"UnitChooser", formObservers::Binding::Observer, {Value::INT, Value::DOUBLE, Value::POINT}},
        {"ValueMapListBox", formObservers::Binding::Observer, {Value::VALUEMAP}},
        {"FontChooser", formObservers::Binding::Observer, {Value::VALUEMAP}},
        {"ResourceChooser", formObservers::Binding::Observer, {Value::RESOURCE}},
        {"ResourceDropdown", formObservers::Binding::Observer, {Value::RESOURCE}},
        {"ResourceListBox", formObservers::Binding::Observer, {Value::RESOURCEVECTOR}},
        {"SubpartComboBox", formObservers::Binding::SubpartSource, {}},
        {"SubpartListView", formObservers::Binding::SubpartSource, {}},
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

formObservers::Binding formObservers::bindingOf(const QMetaObject* metaObject)
{
    if (!metaObject)
        return formObservers::Binding::None;
    if (const ObserverRow* row = rowOf(metaObject))
        return row->binding;
    return metaObject->indexOfProperty("modelProperty") >= 0 ? formObservers::Binding::Observer
                                                             : formObservers::Binding::None;
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
    const bool isNumeric = property.format && NumericalFormatter::formats(property.type);
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
