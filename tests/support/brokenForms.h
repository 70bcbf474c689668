#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

/// A form that its author has to mend, as the only form of the class "broken/NAME".
struct BrokenForm
{
    const char* name;
    QByteArray bytes;
    /// What is said about it, whole: FormFinding::message() for the file NAME.ui and that class.
    QStringList messages;
    /// Whether nothing is wrong with it but that a part that was not given something it needs cannot show it.
    bool lacksSubparts = false;

    /// Whether the form can be shown all the same.
    bool isShown() const;
};

const std::vector<BrokenForm>& brokenForms();

/// Writes a package "broken" with all of them into the folder; the package's folder, empty when that fails.
QString writeBrokenForms(const QString& folder);
