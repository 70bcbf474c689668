#include "zkeditor/formFactory.h"

#include <QWidget>
#include <memory>

FormFactory::~FormFactory() = default;

const QMetaObject* FormFactory::metaObjectOf(const QString& className)
{
    const std::unique_ptr<QWidget> widget(createWidget(className, nullptr, QString()));
    return widget ? widget->metaObject() : nullptr;
}
