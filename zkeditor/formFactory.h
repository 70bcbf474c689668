#pragma once

#include "zkeditor/export.h"

class QString;
class QWidget;
struct QMetaObject;

/// Makes widgets by class name while a form is read. FormLoader asks every registered factory before the toolkit.
class ZKEDITOR_EXPORT FormFactory
{
public:
    virtual ~FormFactory();

    /// A new widget with that parent, which owns it, and object name; null for a class that is not this factory's.
    virtual QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) = 0;

    /// What the widgets of that class are like; null for a class that is not this factory's. Asked when forms are
    /// checked. When not overridden, makes a widget without parent to look at, and destroys it.
    virtual const QMetaObject* metaObjectOf(const QString& className);
};
