#include "zkeditor/widgets/resourceDropdown.h"

#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/resourceModel.h"
#include "zkeditor/widgets/validatorSet.h"

#include <QKeyEvent>
#include <QListView>

namespace {

constexpr QSize dropdownPicture(24, 24);

} // namespace

ResourceDropdown::ResourceDropdown(QWidget* parent, const QString& name)
    : ComboBox(parent, name), PropertyObserver(this, Value::RESOURCE), m_model(new ResourceModel(this))
{
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    m_model->setPictureSize(dropdownPicture);
    setModel(m_model);
    setIconSize(dropdownPicture);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, &ResourceDropdown::onWidgetValueChanged);
}

QSize ResourceDropdown::sizeHint() const
{
    QSize hint = ComboBox::minimumSizeHint();
    hint.setWidth(hint.width() + fontMetrics().averageCharWidth() * 10);
    return hint;
}

void ResourceDropdown::setupWidget()
{
    onValidatorChanged();
    onStateChanged();
}

void ResourceDropdown::unbind()
{
    hidePopup();
    PropertyObserver::unbind();
}

bool ResourceDropdown::isPropertyWriteable() const
{
    return !m_validatorsDiffer && PropertyObserver::isPropertyWriteable();
}

void ResourceDropdown::onValidatorChanged()
{
    const QPointer<POReceiver> alive(m_receiver);
    m_validatorsDiffer = m_props.size() > 1 && !validators().commonTo(m_props.frontTag());
    const ShowingValue showing(this);
    buildContent();
    if (!alive)
        return;
    showFirstValue();
    if (alive)
        setEnabled(true);
}

// Labels are the class's texts, translated like its others.
void ResourceDropdown::buildContent()
{
    const auto* validator = dynamic_cast<const ResourceValidator*>(m_props.front()->getValidator());
    if (!validator) {
        qWarning("%s: No ResourceValidator found on Property %s.", metaObject()->className(),
                 qPrintable(modelProperty()));
        m_model->setResources({});
        return;
    }
    std::vector<QString> labels = validator->labels();
    for (QString& label : labels)
        label = m_props.front()->translated(label);
    m_model->setResources(validator->resources(), labels);
}

void ResourceDropdown::onPropertyValueChanged(Property, Value value)
{
    const auto* validator = dynamic_cast<const ResourceValidator*>(m_props.front()->getValidator());
    const bool one = value.isValid() && isTypeCompatible(value.type()) && hasCompatibleValues();
    // What is not among the choices is still named. First: an empty one would choose the first item.
    setPlaceholderText(one ? value.toResource().toString() : QString());
    setCurrentIndex(one && validator ? validator->indexForResource(value) : -1);
}

void ResourceDropdown::onWidgetValueChanged(int index)
{
    const ResourceRow* row = m_model->rowAt(index);
    if (!row || m_props.empty() || isShowingValue())
        return;
    const Value value(row->resource);
    if (validateValue(value))
        setPropertyValue(value);
    else
        showFirstValue();
}

void ResourceDropdown::showPopup()
{
    endGesture();
    ComboBox::showPopup();
}

// What a key that is held down writes is one step.
void ResourceDropdown::keyPressEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        beginGesture();
    ComboBox::keyPressEvent(event);
}

void ResourceDropdown::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        endGesture();
    ComboBox::keyReleaseEvent(event);
}

void ResourceDropdown::focusOutEvent(QFocusEvent* event)
{
    endGesture();
    ComboBox::focusOutEvent(event);
}

void ResourceDropdown::changeEvent(QEvent* event)
{
    ComboBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ResourceDropdown::setEnabled(bool enabled)
{
    ComboBox::setEnabled(enabled && isPropertyWriteable());
}

void ResourceDropdown::setDisabled(bool disabled)
{
    ComboBox::setDisabled(disabled || !isPropertyWriteable());
}
