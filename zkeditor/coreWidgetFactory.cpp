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
};

constexpr FormWidgetRow s_formWidgets[] = {
    {"GroupBox", makeFormWidget<GroupBox>},
    {"GroupRadioButton", makeFormWidget<GroupRadioButton>},
    {"SubpartComboBox", makeFormWidget<SubpartComboBox>},
    {"SubpartListView", makeFormWidget<SubpartListView>},
    {"ObserverGroupBox", makeFormWidget<ObserverGroupBox>},
    {"PaletteBoxSection", makeFormWidget<PaletteBoxSection>},
    {"ObserverButton", makeFormWidget<ObserverButton>},
    {"ObserverCheckBox", makeFormWidget<ObserverCheckBox>},
    {"ConfirmingObserverCheckBox", makeFormWidget<ConfirmingObserverCheckBox>},
    {"ObserverStringCheckBox", makeFormWidget<ObserverStringCheckBox>},
    {"ResourceChooser", makeFormWidget<ResourceChooser>},
    {"ObserverColorPicker", makeFormWidget<ObserverColorPicker>},
    {"ObserverComboBox", makeFormWidget<ObserverComboBox>},
    {"ObserverLabel", makeFormWidget<ObserverLabel>},
    {"ObserverLineEdit", makeFormWidget<ObserverLineEdit>},
    {"ObserverPoint", makeFormWidget<ObserverPoint>},
    {"ObserverRadioGroup", makeFormWidget<ObserverRadioGroup>},
    {"ObserverSlider", makeFormWidget<ObserverSlider>},
    {"ObserverSpinBox", makeFormWidget<ObserverSpinBox>},
    {"UnitChooser", makeFormWidget<UnitChooser>},
    {"RadioButton", makeFormWidget<RadioButton>},
    {"ValueMapListBox", makeFormWidget<ValueMapListBox>},
    {"ResourceListBox", makeFormWidget<ResourceListBox>},
    {"FontChooser", makeFormWidget<FontChooser>},
    {"PropertyListBox", makeFormWidget<PropertyListBox>},
    {"PropertyLabel", makeFormWidget<PropertyLabel>},
    {"ResourceDropdown", makeFormWidget<ResourceDropdown>},
};

} // namespace

CoreWidgetFactory::~CoreWidgetFactory() = default;

QWidget* CoreWidgetFactory::createWidget(const QString& className, QWidget* parent, const QString& name)
{
    const auto* row = std::find_if(std::begin(s_formWidgets), std::end(s_formWidgets), [&](const FormWidgetRow& entry) {
        return className == QLatin1String(entry.className);
    });
    return row == std::end(s_formWidgets) ? nullptr : row->make(parent, name);
}
