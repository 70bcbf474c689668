#pragma once

#include "zkeditor/export.h"
#include "zkeditor/formFinding.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <memory>
#include <vector>

/// A property as a form gives it.
struct FormProperty
{
    QString name;
    /// The element that holds the value: "string", "number", "enum"...; empty when there is none.
    QString kind;
    /// The characters of a simple value; of others the numbers and words in them, separated by blanks.
    QString text;
    /// The files of an icon or a picture.
    QStringList files;
    /// Whether the author knows that the class has no such property.
    bool isDynamic = false;
    qint64 line = 1;
};

/// A widget, layout, spacer, action or button group as a form gives it.
struct FormObject
{
    enum Kind { Widget, Layout, Spacer, Action, ButtonGroup };

    Kind kind = Widget;
    QString className;
    QString name;
    qint64 line = 1;
    std::vector<FormProperty> properties;
    /// In the order of the form. A layout stands among the children of its widget, and what it lays out among its own.
    std::vector<std::unique_ptr<FormObject>> children;

    /// Null when the form does not give it.
    const FormProperty* property(const char* propertyName) const;
    /// The characters of a property; the null string when the form does not give it, or gives it empty.
    QString text(const char* propertyName) const;
};

/// A connection of a form, by object names.
struct FormConnection
{
    QString sender;
    QString signal;
    QString receiver;
    QString slot;
    qint64 line = 1;
};

/// What stands in a form, read without making a widget. Nothing in a form makes the reading take more than a few times
/// the form's own size.
struct ZKEDITOR_EXPORT FormDescription
{
    /// Deepest nesting of elements, most bytes, most objects, and most rows and columns of a grid: more is an error,
    /// since the toolkit would end the program over it, or never come to an end.
    static constexpr int maximumDepth = 200;
    static constexpr qsizetype maximumSize = 4 * 1024 * 1024;
    static constexpr int maximumObjects = 2000;
    static constexpr int maximumGrid = 1000;

    /// The top widget; null when the form has none.
    std::unique_ptr<FormObject> top;
    std::vector<FormConnection> connections;
    /// Object names in the order of Tab, with their lines.
    std::vector<std::pair<QString, qint64>> tabStops;
    /// Action and button group objects.
    std::vector<std::unique_ptr<FormObject>> others;
    /// Classes that the form declares, with the class that each refines.
    QHash<QString, QString> customWidgets;

    /// Reads a form; false, with the error, when it is none or would not be safe to load.
    bool read(const QByteArray& form, FormFinding& error);
};
