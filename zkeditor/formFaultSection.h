#pragma once

#include "zkeditor/formFinding.h"
#include "zkeditor/widgets/paletteBoxSection.h"

#include <vector>

/// Stands in a pane in the place of a form that cannot be shown, and tells its author why. The text can be selected and
/// is reached by Tab.
class FormFaultSection : public PaletteBoxSection
{
    Q_OBJECT

public:
    /// The most important findings first; only some are shown.
    FormFaultSection(const QString& form, const std::vector<FormFinding>& findings, QWidget* parent = nullptr);

    /// Whether there is anything to show in the top widget of a form.
    static bool hasSections(QWidget* form);
};
