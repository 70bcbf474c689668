#include "zkeditor/coreWidgetFactory.h"

#include "zkeditor/widgets/confirmingObserverCheckbox.h"
#include "zkeditor/widgets/fontChooser.h"
#include "zkeditor/widgets/groupBox.h"
#include "zkeditor/widgets/groupRadioButton.h"
#include "zkeditor/widgets/observerButton.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerColorpicker.h"
#include "zkeditor/widgets/observerCombobox.h"
#include "zkeditor/widgets/observerGroupBox.h"
#include "zkeditor/widgets/observerLabel.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/observerPoint.h"
#include "zkeditor/widgets/observerRadiogroup.h"
#include "zkeditor/widgets/observerSlider.h"
#include "zkeditor/widgets/observerSpinbox.h"
#include "zkeditor/widgets/observerStringCheckbox.h"
#include "zkeditor/widgets/paletteBoxSection.h"
#include "zkeditor/widgets/propertyLabel.h"
#include "zkeditor/widgets/propertyListBox.h"
#include "zkeditor/widgets/resourceChooser.h"
#include "zkeditor/widgets/resourceDropdown.h"
#include "zkeditor/widgets/resourceListBox.h"
#include "zkeditor/widgets/subpartCombobox.h"
#include "zkeditor/widgets/subpartListView.h"
#include "zkeditor/widgets/unitChooser.h"
#include "zkeditor/widgets/valueMapListBox.h"

#include <algorithm>
#include <iterator>

namespace {

template <typename Widget> QWidget* makeFormWidget(QWidget* parent, const QString& name)
{
    return new Widget(parent, name);
}

struct FormWidgetRow
{
    const char* className;
    QWidget* (*make)(QWidget* parent, const QString& name);
    const QMetaObject* metaObject;
};

template <typename Widget> constexpr FormWidgetRow formWidgetRow(const char* className)
{
    return {className, makeFormWidget<Widget>, &Widget::staticMetaObject};
}

constexpr FormWidgetRow s_formWidgets[] = {
    formWidgetRow<GroupBox>("GroupBox"),
    formWidgetRow<GroupRadioButton>("GroupRadioButton"),
    formWidgetRow<SubpartComboBox>("SubpartComboBox"),
    formWidgetRow<SubpartListView>("SubpartListView"),
    formWidgetRow<ObserverGroupBox>("ObserverGroupBox"),
    formWidgetRow<PaletteBoxSection>("PaletteBoxSection"),
    formWidgetRow<ObserverButton>("ObserverButton"),
    formWidgetRow<ObserverCheckBox>("ObserverCheckBox"),
    formWidgetRow<ConfirmingObserverCheckBox>("ConfirmingObserverCheckBox"),
    formWidgetRow<ObserverStringCheckBox>("ObserverStringCheckBox"),
    formWidgetRow<ResourceChooser>("ResourceChooser"),
    formWidgetRow<ObserverColorPicker>("ObserverColorPicker"),
    formWidgetRow<ObserverComboBox>("ObserverComboBox"),
    formWidgetRow<ObserverLabel>("ObserverLabel"),
    formWidgetRow<ObserverLineEdit>("ObserverLineEdit"),
    formWidgetRow<ObserverPoint>("ObserverPoint"),
    formWidgetRow<ObserverRadioGroup>("ObserverRadioGroup"),
    formWidgetRow<ObserverSlider>("ObserverSlider"),
    formWidgetRow<ObserverSpinBox>("ObserverSpinBox"),
    formWidgetRow<UnitChooser>("UnitChooser"),
    formWidgetRow<RadioButton>("RadioButton"),
    formWidgetRow<ValueMapListBox>("ValueMapListBox"),
    formWidgetRow<ResourceListBox>("ResourceListBox"),
    formWidgetRow<FontChooser>("FontChooser"),
    formWidgetRow<PropertyListBox>("PropertyListBox"),
    formWidgetRow<PropertyLabel>("PropertyLabel"),
    formWidgetRow<ResourceDropdown>("ResourceDropdown"),
};

const FormWidgetRow* findFormWidget(const QString& className)
{
    const auto* row = std::find_if(std::begin(s_formWidgets), std::end(s_formWidgets), [&](const FormWidgetRow& entry) {
        return className == QLatin1String(entry.className);
    });
    return row == std::end(s_formWidgets) ? nullptr : row;
}

} // namespace

CoreWidgetFactory::~CoreWidgetFactory() = default;

QWidget* CoreWidgetFactory::createWidget(const QString& className, QWidget* parent, const QString& name)
{
    const FormWidgetRow* row = findFormWidget(className);
    return row ? row->make(parent, name) : nullptr;
}

const QMetaObject* CoreWidgetFactory::metaObjectOf(const QString& className)
{
    const FormWidgetRow* row = findFormWidget(className);
    return row ? row->metaObject : nullptr;
}

QStringList CoreWidgetFactory::classNames()
{
    QStringList names;
    for (const FormWidgetRow& row : s_formWidgets)
        names.append(QLatin1String(row.className));
    return names;
}
