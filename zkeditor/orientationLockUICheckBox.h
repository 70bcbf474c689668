#pragma once

#include "zkcore/base/propertyKey.h"
#include "zkeditor/export.h"
#include "zkeditor/lockUICheckBox.h"

/// The lock of the orientation, which is no use for elements that cannot be turned at all. Whether they can be is a
/// property of them, which the box follows.
class ZKEDITOR_EXPORT OrientationLockUICheckBox : public LockUICheckBox
{
    Q_OBJECT

public:
    explicit OrientationLockUICheckBox(const QString& text, QWidget* parent = nullptr, const QString& name = {});
    ~OrientationLockUICheckBox() override;

    bool isLockApplicable() const override;

public Q_SLOTS:
    /// Enables the box exactly when the lock applies.
    void onConstraintChanged();

protected:
    void onBound() override;

private:
    void onNodeValueChanged(NodeImpl* node, PropertyKey key);

    // A burst of changes must not look at all elements each time: the search goes on where a fixed element was found
    // last, and while there is none, only the element that changed is looked at.
    mutable size_t m_fixedAt = 0;
    mutable bool m_noneFixed = false;
};
