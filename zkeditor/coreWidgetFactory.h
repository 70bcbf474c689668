#pragma once

#include "zkeditor/formFactory.h"

#include <QStringList>

/// Makes the library's own widgets by class name.
class ZKEDITOR_EXPORT CoreWidgetFactory : public FormFactory
{
public:
    ~CoreWidgetFactory() override;
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;
    const QMetaObject* metaObjectOf(const QString& className) override;

    /// The classes that it makes.
    static QStringList classNames();
};
