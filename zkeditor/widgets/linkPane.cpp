#include "zkeditor/widgets/linkPane.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/services/translate.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/leadingLabel.h"
#include "zkeditor/widgets/propertyListBox.h"

#include <QVBoxLayout>

namespace {

/// Whether the user knows the property and may let it follow another.
bool mayFollow(const PropertyDefinition& definition)
{
    using Definition = PropertyDefinition;
    const Definition::Flags never =
        Definition::Invisible | Definition::UIHidden | Definition::ReadOnly | Definition::Computed;
    return !(definition.flags & never) && definition.type != Value::NODE && definition.key != coreKeys::id();
}

} // namespace

LinkPane::LinkPane(QWidget* parent)
    : QWidget(parent), m_properties(new ComboBox(this, QStringLiteral("follower"))),
      m_targets(new PropertyListBox(this, QStringLiteral("targets")))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(6);
    auto* label = new LeadingLabel(tr("Pr&operty that follows another"), this);
    label->setBuddy(m_properties);
    m_properties->setAccessibleName(tr("Property that follows another"));
    m_properties->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_targets->setAccessibleName(tr("What it can follow"));
    column->addWidget(label);
    column->addWidget(m_properties);
    column->addWidget(m_targets);
    setFocusProxy(m_properties);
    connect(m_properties, &QComboBox::activated, this, &LinkPane::bindChosen);
}

LinkPane::~LinkPane()
{
    m_targets->unbind();
}

void LinkPane::setElement(ElementImpl* element)
{
    m_document = element ? element->document() : nullptr;
    m_element = element ? element->instanceId() : 0;
    if (isVisible() || !element)
        list(element);
}

void LinkPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    list(m_document ? qobject_cast<ElementImpl*>(m_document->nodeById(m_element)) : nullptr);
}

void LinkPane::hideEvent(QHideEvent* event)
{
    list(nullptr);
    QWidget::hideEvent(event);
}

void LinkPane::list(ElementImpl* element)
{
    const InstanceId id = element ? element->instanceId() : 0;
    if (id == m_listed && (id == 0 || m_bound))
        return;
    const QString chosen = m_properties->currentData().toString();
    m_listed = id;
    m_properties->clear();
    if (element) {
        for (const PropertyDefinition& definition : element->prototype().properties()) {
            if (mayFollow(definition))
                m_properties->addItem(translateStringFromContext(element, definition.label), definition.key.toString());
        }
        m_properties->setCurrentIndex(qMax(0, m_properties->findData(chosen)));
    }
    m_properties->setEnabled(m_properties->count() > 0);
    bindChosen();
}

void LinkPane::bindChosen()
{
    m_targets->unbind();
    m_targets->setEnabled(false);
    NodeImpl* element = m_document && m_listed ? m_document->nodeById(m_listed) : nullptr;
    const QString key = m_properties->currentData().toString();
    if (!element || key.isEmpty())
        return;
    m_bound = element->getProperty(PropertyKey::fromString(key));
    m_targets->setModelProperty(key);
    m_targets->bind(m_document, {element});
}
