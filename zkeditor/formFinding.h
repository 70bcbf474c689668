#pragma once

#include "zkeditor/export.h"

#include <QString>
#include <QStringList>

/// One thing that is wrong with a form, for the form's author.
struct ZKEDITOR_EXPORT FormFinding
{
    enum Severity {
        Warning, ///< the form can be shown, but something in it does not do what it seems meant to do
        Error    ///< the form cannot be shown, or showing it could end the program
    };

    Severity severity = Error;
    /// In the file of the form, from 1 on.
    qint64 line = 1;
    /// Object name and class of the widget, or of whatever else it is about; both empty for the form as a whole.
    QString widget;
    QString widgetClass;
    /// The widget's property at fault; empty when it is none.
    QString property;
    /// What is wrong, and what would be right; translated.
    QString text;
    /// The texts of the class ids that the finding holds for; empty when it does not matter which class is edited.
    QStringList classes;

    /// "error: widget 'x' (Class): property 'y': text [class, class]", without the places that do not apply.
    QString description() const;
    /// "FILE:LINE: ", and the description.
    QString message(const QString& file) const;
};
