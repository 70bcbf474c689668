#include "zkeditor/widgets/propertyLabel.h"

#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/labelMirror.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QMouseEvent>

PropertyLabel::PropertyLabel(QWidget* parent, const QString& name)
    : QLabel(QStringLiteral("property"), parent), PropertyObserver(this)
{
    setObjectName(name);
    new LabelMirror(this);
}

void PropertyLabel::addProperty(PropertyImpl* property)
{
    // Properties of several types may have one label.
    watchProperty(property, nullptr);
    QObject::connect(property, &PropertyImpl::userVisibleLabelChanged, m_receiver, [this, property] {
        if (property == m_props.front())
            showLabel();
    });
}

void PropertyLabel::onPropertyValueChanged(Property, Value)
{
    showLabel();
}

void PropertyLabel::showLabel()
{
    PropertyImpl* property = m_props.front();
    const QString label = property->getUserVisibleLabel();
    setAccessibleName(label);
    QString shown = label;
    if (buddy()) // marks a shortcut then
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    setText(shown);

    if (toolTip() != m_help)
        return;
    m_help = property->translated(property->definition().help);
    setToolTip(m_help);
}

void PropertyLabel::unbind()
{
    PropertyObserver::unbind();
    if (!m_help.isEmpty() && toolTip() == m_help)
        setToolTip({});
    m_help.clear();
}

void PropertyLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && buddy() && buddy()->isEnabled())
        buddy()->setFocus(Qt::ShortcutFocusReason);
    else
        QLabel::mousePressEvent(event);
}
