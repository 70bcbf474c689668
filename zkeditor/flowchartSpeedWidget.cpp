// Two observers of a space's flowchart properties.
#include "zkeditor/flowchartSpeedWidget.h"

#include "zkcore/base/assert.h"
#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/observerButton.h"
#include "zkeditor/widgets/observerCombobox.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

const PropertyKey FlowchartSpeedWidget::s_propSpeed = Property::getKeyForString("speed");
const PropertyKey FlowchartSpeedWidget::s_propPause = Property::getKeyForString("paused");
const ClassId FlowchartSpeedWidget::s_spaceCid = getCidForString("flowcharts/*");

FlowchartSpeedWidget::FlowchartSpeedWidget(QWidget* parent) : QWidget(parent)
{
    init(false);
}

FlowchartSpeedWidget::FlowchartSpeedWidget(bool withLabel, QWidget* parent) : QWidget(parent)
{
    init(withLabel);
}

FlowchartSpeedWidget::~FlowchartSpeedWidget() = default;

void FlowchartSpeedWidget::init(bool withLabel)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 4, 4, 4);
    row->setSpacing(4);
    m_speed = new ObserverComboBox(this, QStringLiteral("flowchartSpeed"));
    m_speed->setModelProperty(s_propSpeed.toString());
    m_speed->setSpacePropertyCid(s_spaceCid);
    m_speed->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed); // no speed is cut off
    m_speed->setAccessibleName(tr("Speed of the flowcharts"));
    m_speed->setToolTip(tr("How fast the flowcharts run"));
    if (withLabel) {
        auto* label = new QLabel(tr("Flowcharts:"), this);
        label->setBuddy(m_speed);
        row->addWidget(label);
    }
    row->addWidget(m_speed);
    // What the choice leads to may have taken the space away.
    connect(m_speed, &QComboBox::textActivated, this, [this] {
        if (m_space.valid())
            onSpeedChanged();
    });

    m_step = new ObserverButton(QString(), this, QStringLiteral("flowchartStep"));
    m_step->setModelProperty(QStringLiteral("step-pressed"));
    m_step->setPushUndoOnSetProperty(false);
    m_step->setSpacePropertyCid(s_spaceCid);
    m_step->setWrapPixmaps(true);
    const Resource picture("flowcharts/step");
    QIcon icon(ImageCache::getPixmap(picture));
    icon.addPixmap(ImageCache::getPixmap(picture, icon.availableSizes().value(0), 2.0)); // sharp on fine screens too
    m_step->setIcon(icon);
    m_step->setAccessibleName(tr("Step"));
    m_step->setToolTip(tr("Run the next block"));
    m_step->hide();
    row->addWidget(m_step);
    setEnabled(false);
}

void FlowchartSpeedWidget::bind(DocumentImpl* doc, Space space)
{
    ZK_ASSERT(doc);
    ZK_ASSERT(space.valid());
    unbind();
    m_document = doc;
    m_space = space;
    setEnabled(true);
    if (const PropertyImpl* speed = space.getProperty(s_propSpeed, s_spaceCid).impl())
        connect(speed, &PropertyImpl::ValueChanged, this, &FlowchartSpeedWidget::onSpeedChanged);
    if (const PropertyImpl* paused = space.getModel().getProperty(s_propPause).impl())
        connect(paused, &PropertyImpl::ValueChanged, this, &FlowchartSpeedWidget::onPauseChanged);
    connect(doc, &DocumentImpl::SceneRemoved, this, &FlowchartSpeedWidget::onSceneRemoved);
    connect(doc, &DocumentImpl::PopupRemoved, this, &FlowchartSpeedWidget::onPopupRemoved);
    const QPointer<FlowchartSpeedWidget> alive(this);
    const std::set<NodeImpl*> nodes{space.impl()};
    m_speed->bind(doc, nodes);
    if (alive && m_space == space)
        m_step->bind(doc, nodes);
    if (alive && m_space == space)
        onSpeedChanged();
}

void FlowchartSpeedWidget::unbind()
{
    disconnectFromSpace();
    m_space = {};
    const QPointer<FlowchartSpeedWidget> alive(this);
    m_speed->unbind();
    m_step->unbind();
    if (alive)
        setEnabled(false);
}

void FlowchartSpeedWidget::disconnectFromSpace()
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = nullptr;
    if (!m_space.valid())
        return;
    if (const PropertyImpl* speed = m_space.getProperty(s_propSpeed, s_spaceCid).impl())
        disconnect(speed, nullptr, this, nullptr);
    if (const PropertyImpl* paused = m_space.getModel().getProperty(s_propPause).impl())
        disconnect(paused, nullptr, this, nullptr);
}

void FlowchartSpeedWidget::onSpeedChanged()
{
    ZK_ASSERT(m_space.valid());
    m_step->setVisible(m_space.valueOfProperty(s_propSpeed, s_spaceCid).toQString() == QLatin1String("Manual step"));
}

void FlowchartSpeedWidget::onPauseChanged()
{
    m_step->setEnabled(!m_space.getModel().valueOfProperty(s_propPause).toBool());
}

void FlowchartSpeedWidget::onSceneRemoved(Scene scene)
{
    if (scene == m_space)
        unbind();
}

void FlowchartSpeedWidget::onPopupRemoved(Popup popup)
{
    if (popup == m_space)
        unbind();
}
