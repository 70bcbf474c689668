#pragma once

#include <QString>
#include <QStringList>

struct QMetaObject;

/// The classes that a form can name, without making objects of them.
namespace formClasses {
/// Of a widget of the library, of a registered factory, or of the toolkit; null for an unknown class.
const QMetaObject* widget(const QString& className);
/// Of a layout, an action or a button group; null for another class.
const QMetaObject* other(const QString& className);
/// Whether the class is that one or refines it.
bool inherits(const QMetaObject* metaObject, const char* className);
/// The names of the widgets of the library and the toolkit, sorted.
QStringList knownWidgets();
} // namespace formClasses
