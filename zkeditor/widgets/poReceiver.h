#pragma once

#include "zkcore/model/property.h"
#include "zkcore/values/value.h"
#include "zkeditor/export.h"

#include <QObject>

class PropertyObserver;

/// Receives the signals of the model on behalf of a PropertyObserver, which is no QObject itself. Owned by the
/// observer, so its end marks the end of the observer as well.
class ZKEDITOR_EXPORT POReceiver : public QObject
{
    Q_OBJECT

public:
    explicit POReceiver(PropertyObserver* po);

public Q_SLOTS:
    void onPropertyValueChanged(Property property, Value value);
    void onProxyTargetChanged(Property property);
    void onStateChanged();
    void onValidatorChanged();
    void onPropertyDeleted(QObject* property);

private:
    PropertyObserver* const m_po;
};
