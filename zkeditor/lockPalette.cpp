// Four check boxes bound to the selection.
#include "zkeditor/lockPalette.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/lockUICheckBox.h"
#include "zkeditor/orientationLockUICheckBox.h"
#include "zkeditor/widgets/paletteBox.h"

#include <QVBoxLayout>

LockPalette::LockPalette(QWidget* parent, const char* name) : EditPalette(parent, name)
{
    LockPalette::setupTopLevelWidgets();
}

LockPalette::LockPalette(Place place, QWidget* parent, const char* name) : EditPalette(place, parent, name)
{
    LockPalette::setupTopLevelWidgets();
}

LockPalette::~LockPalette() = default;

void LockPalette::setupTopLevelWidgets()
{
    LockPalette::resetCaption();
    auto* box = new PaletteBox(PaletteBox::StandardStyle, this);
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(15, 15, 15, 15);
    column->setSpacing(8);
    m_values = new LockUICheckBox(LockPropertyValues, tr("Property Value Editing"), content,
                                  QStringLiteral("lockPropertyValues"));
    m_position = new LockUICheckBox(LockPosition, tr("Position"), content, QStringLiteral("lockPosition"));
    m_size = new LockUICheckBox(LockSize, tr("Size"), content, QStringLiteral("lockSize"));
    m_orientation = new OrientationLockUICheckBox(tr("Orientation"), content, QStringLiteral("lockOrientation"));
    for (LockUICheckBox* each : {m_values, m_position, m_size, static_cast<LockUICheckBox*>(m_orientation)}) {
        column->addWidget(each);
        each->setEnabled(false);
    }
    Fonts::setFontRecursively(content, Fonts::Normal);
    box->addItem(content, tr("Locking"));
    setWidget(box);
    connect(m_values, &LockUICheckBox::lockPropertiesChanged, this, &LockPalette::onLockPropertiesChanged);
    // What can be turned again may still be locked with its values.
    connect(m_orientation, &LockUICheckBox::lockPropertiesChanged, this, &LockPalette::onLockPropertiesChanged);
    connect(box, &PaletteBox::layoutChanged, this, &LockPalette::onChildLayoutChanged);
}

void LockPalette::resetCaption()
{
    setWindowTitle(tr("Locking"));
}

void LockPalette::setDocument(DocumentImpl* doc)
{
    ZK_ASSERT(doc);
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = doc;
    connect(doc, &DocumentImpl::SelectionChanged, this, &LockPalette::selectionChanged);
    connect(doc, &QObject::destroyed, this, &LockPalette::selectionChanged);
    for (LockUICheckBox* each : {m_values, m_position, m_size, static_cast<LockUICheckBox*>(m_orientation)})
        each->setDocument(doc);
    selectionChanged();
}

void LockPalette::selectionChanged()
{
    const ElementImplSet selection = m_document && isVisible() ? m_document->getSelection() : ElementImplSet();
    if (!selection.empty()) {
        m_values->setEnabled(true);
        bindObservers(selection);
        return;
    }
    unbindObservers();
    if (m_document && !isVisible())
        return;
    for (LockUICheckBox* each : {m_values, m_position, m_size, static_cast<LockUICheckBox*>(m_orientation)})
        each->setEnabled(false);
}

void LockPalette::bindObservers(const std::set<ElementImpl*>& elements)
{
    m_values->bindNodes(elements);
    m_position->bindNodes(elements);
    m_size->bindNodes(elements);
    m_orientation->bindNodes(elements);
    onLockPropertiesChanged();
}

void LockPalette::unbindObservers()
{
    m_values->unbindNodes();
    m_position->unbindNodes();
    m_size->unbindNodes();
    m_orientation->unbindNodes();
}

void LockPalette::onLockPropertiesChanged()
{
    if (!m_values->isBound())
        return;
    const bool open = !m_values->isChecked();
    m_position->setEnabled(open);
    m_size->setEnabled(open && m_size->isLockApplicable());
    m_orientation->setEnabled(open && m_orientation->isLockApplicable());
}

void LockPalette::showEvent(QShowEvent* event)
{
    EditPalette::showEvent(event);
    if (m_document)
        selectionChanged();
}

void LockPalette::hideEvent(QHideEvent* event)
{
    EditPalette::hideEvent(event);
    // What nobody sees is not kept up to date.
    unbindObservers();
}
