// Follows the orientation constraints of the bound elements.
#include "zkeditor/orientationLockUICheckBox.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"

namespace {

bool isOrientationFixed(const Element& handle)
{
    const ElementImpl* element = handle.impl();
    return element && element->getOrientationConstraint() == QLatin1String("fixed");
}

} // namespace

OrientationLockUICheckBox::OrientationLockUICheckBox(const QString& text, QWidget* parent, const QString& name)
    : LockUICheckBox(LockOrientation, text, parent, name)
{
}

OrientationLockUICheckBox::~OrientationLockUICheckBox() = default;

void OrientationLockUICheckBox::onBound()
{
    m_fixedAt = 0;
    m_noneFixed = false;
    connect(nodes().front().impl()->document(), &DocumentImpl::nodeValueChanged, this,
            &OrientationLockUICheckBox::onNodeValueChanged);
}

bool OrientationLockUICheckBox::isLockApplicable() const
{
    if (m_noneFixed)
        return true;
    const size_t count = nodes().size();
    for (size_t i = 0; i < count; ++i) {
        const size_t at = (m_fixedAt + i) % count;
        if (isOrientationFixed(nodes()[at])) {
            m_fixedAt = at;
            return false;
        }
    }
    m_noneFixed = true;
    return true;
}

void OrientationLockUICheckBox::onNodeValueChanged(NodeImpl* node, PropertyKey key)
{
    if (key != coreKeys::orientationConstraint() || !contains(node))
        return;
    const PropertyImpl* prop = node->getProperty(key);
    ZK_ASSERT(prop);
    if (m_noneFixed && isOrientationFixed(Element(Node(node))))
        m_noneFixed = false;
    onConstraintChanged();
}

void OrientationLockUICheckBox::onConstraintChanged()
{
    qDebug("OrientationLockUICheckBox::onConstraintChanged()");
    const bool applies = isLockApplicable();
    const QPointer<OrientationLockUICheckBox> alive(this);
    setEnabled(applies);
    if (!alive)
        return;
    if (applies)
        aggregateUpdate(); // nothing was shown while it did not apply
    Q_EMIT lockPropertiesChanged();
}
