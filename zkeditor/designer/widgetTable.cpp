#include "zkeditor/designer/widgetTable.h"

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

#include <QString>
#include <algorithm>
#include <iterator>

namespace {

constexpr bool isContainer = true;

const DesignerWidget s_designerWidgets[] = {
    {"GroupBox", "groupBox.h", "A custom group box",
     "A custom group box. setEnabled/Disabled/Shown/Hidden methods are connectable to text changed signals",
     &GroupBox::staticMetaObject, QSize(200, 120), isContainer},
    {"GroupRadioButton", "groupRadioButton.h", "A radio button that may contain children",
     "A radio button that may contain children. GroupRadioButtons should be placed in an ObserverRadioGroup",
     &GroupRadioButton::staticMetaObject, QSize(200, 60), isContainer},
    {"SubpartComboBox", "subpartCombobox.h", "A subpart combo box",
     "A combo box which contains subparts of the specified role", &SubpartComboBox::staticMetaObject, QSize(140, 24)},
    {"SubpartListView", "subpartListView.h", "A subpart list box",
     "A list box which contains subparts of the specified role", &SubpartListView::staticMetaObject, QSize(200, 140)},
    {"ObserverGroupBox", "observerGroupBox.h", "A group box to associate with a subpart or property list box",
     "A group box to associate with a subpart or property list box", &ObserverGroupBox::staticMetaObject,
     QSize(200, 120), isContainer},
    {"PaletteBoxSection", "paletteBoxSection.h", "Control Panel Section", "Palette box section",
     &PaletteBoxSection::staticMetaObject, QSize(240, 120), isContainer},
    {"ObserverButton", "observerButton.h", "Push Button", "An observer push button", &ObserverButton::staticMetaObject,
     QSize(80, 24)},
    {"ObserverCheckBox", "observerCheckbox.h", "Check Box", "An observer checkbox", &ObserverCheckBox::staticMetaObject,
     QSize(120, 22)},
    {"ConfirmingObserverCheckBox", "confirmingObserverCheckbox.h", "Confirming Check Box",
     "An observer checkbox that can ask confirmation questions.", &ConfirmingObserverCheckBox::staticMetaObject,
     QSize(120, 22)},
    {"ObserverStringCheckBox", nullptr, nullptr, nullptr, &ObserverStringCheckBox::staticMetaObject, QSize(120, 22)},
    {"ResourceChooser", "resourceChooser.h", "Resource Chooser", "An observer resource chooser",
     &ResourceChooser::staticMetaObject, QSize(200, 90)},
    {"ObserverColorPicker", "observerColorpicker.h", "ColorPicker", "An observer color picker",
     &ObserverColorPicker::staticMetaObject, QSize(140, 24)},
    {"ObserverComboBox", "observerCombobox.h", "ComboBox",
     "An observer combo box - supports string, int, double, point and complex value types",
     &ObserverComboBox::staticMetaObject, QSize(140, 24)},
    {"ObserverLabel", "observerLabel.h", "Text Label",
     "An observer text label - supports string, int, double, point, complex value types",
     &ObserverLabel::staticMetaObject, QSize(100, 20)},
    {"ObserverLineEdit", "observerLineEdit.h", "Single Line Edit",
     "An observer single line edit box - supports string, int, double, point, complex value types",
     &ObserverLineEdit::staticMetaObject, QSize(140, 24)},
    {"ObserverPoint", "observerPoint.h", "Point observer", "A point observer", &ObserverPoint::staticMetaObject,
     QSize(120, 52)},
    {"ObserverRadioGroup", "observerRadiogroup.h", "Group of radio buttons",
     "A group of radio buttons - supports string, int, double, point and complex value types",
     &ObserverRadioGroup::staticMetaObject, QSize(200, 120), isContainer},
    {"ObserverSlider", "observerSlider.h", "An integer/double slider", "An integer/double slider",
     &ObserverSlider::staticMetaObject, QSize(160, 24)},
    {"ObserverSpinBox", "observerSpinbox.h", "An integer/double Spinbox", "An integer/double spinbox",
     &ObserverSpinBox::staticMetaObject, QSize(100, 24)},
    {"UnitChooser", "unitChooser.h", "An unit choooser", "Allows setting of a Property's unit",
     &UnitChooser::staticMetaObject, QSize(40, 20)},
    {"RadioButton", "groupRadioButton.h", "A radio button for use in ObserverRadioGroups",
     "A radio button for use in ObserverRadioGroups", &RadioButton::staticMetaObject, QSize(120, 22)},
    {"ValueMapListBox", "valueMapListBox.h", "Lists the keys and values of a Property's ValueMap",
     "Lists the keys and values of a Property's ValueMap", &ValueMapListBox::staticMetaObject, QSize(220, 150)},
    {"ResourceListBox", "resourceListBox.h", "Lists the resources in a Resource array",
     "Lists the resources in a Resource array", &ResourceListBox::staticMetaObject, QSize(220, 150)},
    {"FontChooser", "fontChooser.h", "Opens a font dialog", "Opens a font dialog", &FontChooser::staticMetaObject,
     QSize(220, 110)},
    {"PropertyListBox", "propertyListBox.h", "Lists Properties on a part", "Lists Properties on a part",
     &PropertyListBox::staticMetaObject, QSize(240, 180)},
    {"PropertyLabel", "propertyLabel.h", "Displays the user visible label of a property",
     "Displays the user visible label of a property", &PropertyLabel::staticMetaObject, QSize(100, 20)},
    {"ResourceDropdown", "resourceDropdown.h", "Choose a resource from a fixed set",
     "Choose a resource from a fixed set", &ResourceDropdown::staticMetaObject, QSize(140, 28)},
};

} // namespace

const DesignerWidget* widgetTable::begin()
{
    return std::begin(s_designerWidgets);
}

const DesignerWidget* widgetTable::end()
{
    return std::end(s_designerWidgets);
}

const DesignerWidget* widgetTable::find(const QString& key)
{
    const auto* row =
        std::find_if(begin(), end(), [&](const DesignerWidget& entry) { return key == QLatin1String(entry.key); });
    return row == end() ? nullptr : row;
}
