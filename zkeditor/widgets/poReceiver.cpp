#include "zkeditor/widgets/poReceiver.h"

#include "zkcore/base/assert.h"
#include "zkeditor/widgets/propertyObserver.h"

// Every call may delete the observer, and with it this object: nothing is touched afterwards.

POReceiver::POReceiver(PropertyObserver* po) : m_po(po)
{
    ZK_ASSERT(m_po);
}

void POReceiver::onPropertyValueChanged(Property property, Value value)
{
    m_po->followValue(property, value);
}

void POReceiver::onProxyTargetChanged(Property property)
{
    m_po->onProxyTargetChanged(property);
}

void POReceiver::onStateChanged()
{
    m_po->onStateChanged();
}

void POReceiver::onValidatorChanged()
{
    m_po->onValidatorChanged();
}

void POReceiver::onPropertyDeleted(QObject* property)
{
    m_po->onPropertyDeleted(property);
}
