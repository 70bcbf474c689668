// What all palettes have in common as dock windows.
#include "zkeditor/editPalette.h"

#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/updatesSuspended.h"

#include <QEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <utility>

namespace {

/// A layout computes its size anew only when those inside it have; so the innermost go first.
void activateLayoutsInside(QWidget* widget)
{
    for (QObject* child : widget->children()) {
        auto* inner = qobject_cast<QWidget*>(child);
        if (inner && !inner->isWindow() && !inner->isHidden())
            activateLayoutsInside(inner);
    }
    if (QLayout* layout = widget->layout()) {
        layout->invalidate();
        layout->activate();
    }
}

bool isInPaletteBox(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const PaletteBox*>(parent))
            return true;
        if (parent->isWindow())
            return false;
    }
    return false;
}

} // namespace

const unsigned int EditPalette::s_minWidth = 200;

EditPalette::EditPalette(QWidget* parent, const char* name) : QDockWidget(parent)
{
    init(name);
}

EditPalette::EditPalette(Place place, QWidget* parent, const char* name) : QDockWidget(parent)
{
    init(name);
    setPlace(place);
}

EditPalette::~EditPalette() = default;

void EditPalette::init(const char* name)
{
    setObjectName(QString::fromLatin1(name));
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
    applyResizeEnabled(true);
    followParent();
    // No event marks the end of a docking but this.
    connect(this, &QDockWidget::topLevelChanged, this,
            [this](bool floating) { Q_EMIT placeChanged(floating ? OutsideDock : InDock); });
    connect(this, &EditPalette::placeChanged, this, &EditPalette::handlePlaceChanged);
}

void EditPalette::setDocument(DocumentImpl*) {}

void EditPalette::resetCaption() {}

void EditPalette::setupTopLevelWidgets() {}

// Size

QSize EditPalette::sizeHint() const
{
    QSize size = QDockWidget::sizeHint();
    // Docked, a palette is narrow until the user makes it wider.
    if (!isFloating())
        size.setWidth(qMax(static_cast<int>(s_minWidth), minimumSizeHint().width()));
    return size;
}

void EditPalette::setResizeEnabled(bool enabled)
{
    applyResizeEnabled(enabled);
    m_resizeEnabled = enabled;
}

void EditPalette::applyResizeEnabled(bool enabled)
{
    m_resizeNow = enabled;
    setMinimumSize(static_cast<int>(s_minWidth), 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (!enabled)
        adjustToContent();
}

void EditPalette::adjustToContent()
{
    if (widget())
        activateLayoutsInside(widget());
    if (layout()) {
        layout()->invalidate();
        layout()->activate();
    }
    const QSize size = sizeHint().expandedTo(QSize(static_cast<int>(s_minWidth), 0));
    if (m_resizeNow)
        resize(size);
    else
        setFixedSize(size);
}

void EditPalette::followContent()
{
    // The least width set by hand counts alone; wider content must not be cut off.
    if (m_resizeNow && layout())
        setMinimumWidth(qMax(static_cast<int>(s_minWidth), layout()->totalMinimumSize().width()));
}

void EditPalette::onChildLayoutChanged()
{
    if (!isWindow())
        return;
    {
        const UpdatesSuspended suspended(this);
        adjustToContent();
    }
    repaint();
}

// Place

void EditPalette::handlePlaceChanged(Place place)
{
    if (place == InDock && !m_resizeNow)
        applyResizeEnabled(true);
}

void EditPalette::undock()
{
    if (m_inBox)
        return;
    applyResizeEnabled(m_resizeEnabled);
    setPlace(OutsideDock);
    adjustToContent();
}

void EditPalette::setPlace(Place place)
{
    const QScopedValueRollback<bool> reparenting(m_reparenting, true);
    setFloating(place == OutsideDock);
}

void EditPalette::reparent(QWidget* parent, Qt::WindowFlags windowFlags, const QPoint& position, bool showIt)
{
    const QScopedValueRollback<bool> reparenting(m_reparenting, true);
    setParent(parent, windowFlags);
    move(position);
    if (showIt)
        show();
}

void EditPalette::followParent()
{
    const bool inBox = isInPaletteBox(this);
    if (inBox == std::exchange(m_inBox, inBox))
        return;
    if (inBox) {
        setTitleBarWidget(new QWidget(this));
        setFeatures(NoDockWidgetFeatures);
    } else {
        QWidget* empty = titleBarWidget();
        setTitleBarWidget(nullptr);
        delete empty;
        setFeatures(DockWidgetClosable | DockWidgetMovable | DockWidgetFloatable);
    }
}

bool EditPalette::event(QEvent* event)
{
    const bool handled = QDockWidget::event(event);
    if (event->type() == QEvent::ParentChange)
        followParent();
    else if (event->type() == QEvent::LayoutRequest)
        followContent();
    return handled;
}

QBoxLayout* EditPalette::dockLayout()
{
    if (!m_body) {
        m_body = new QWidget(this);
        auto* column = new QVBoxLayout(m_body);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        setWidget(m_body);
    }
    return static_cast<QBoxLayout*>(m_body->layout());
}
