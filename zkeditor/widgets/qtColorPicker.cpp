#include "zkeditor/widgets/qtColorPicker.h"

#include "zkeditor/widgets/colorNames.h"
#include "zkeditor/widgets/colorPopup.h"

#include <QApplication>
#include <QColorDialog>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace {

constexpr QSize pickerSwatch(32, 14);

} // namespace

QtColorPicker::QtColorPicker(QWidget* parent, const QString& name) : QPushButton(parent)
{
    setObjectName(name);
    setIconSize(pickerSwatch);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &QtColorPicker::showPopup);
    showSwatch();
}

QtColorPicker::~QtColorPicker()
{
    dismiss();
}

void QtColorPicker::setColor(const QColor& color)
{
    if (color == m_color && color.isValid() == m_color.isValid())
        return;
    m_color = color;
    showSwatch();
    Q_EMIT colorChanged(color);
}

void QtColorPicker::showSwatch()
{
    setIcon(colorNames::swatch(m_color, pickerSwatch, *this));
    const QString name = m_color.isValid() ? colorNames::describe(m_color) : tr("Different colours");
    setToolTip(name);
    setAccessibleDescription(name);
}

void QtColorPicker::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setIcon(colorNames::swatch(m_color, pickerSwatch, *this));
    else if (event->type() == QEvent::EnabledChange && !isEnabled())
        dismiss();
}

QWidget* QtColorPicker::popup() const
{
    return m_popup;
}

QColorDialog* QtColorPicker::colorDialog() const
{
    return m_dialog;
}

void QtColorPicker::dismiss()
{
    if (ColorPopup* popup = std::exchange(m_popup, nullptr)) {
        popup->disconnect(this);
        popup->hide();
        popup->deleteLater();
    }
    if (QColorDialog* dialog = std::exchange(m_dialog, nullptr)) {
        dialog->disconnect(this);
        dialog->hide();
        dialog->deleteLater();
    }
}

void QtColorPicker::showPopup()
{
    if (m_popup || m_dialog)
        return;
    // Belongs to the window, as does the dialog: what is chosen may delete the picker, but not what is still at work.
    m_popup =
        new ColorPopup(m_usedColors ? m_usedColors() : std::vector<QColor>(), m_color, m_colorDialogEnabled, window());
    m_popup->setFont(font());
    connect(m_popup, &ColorPopup::colorChosen, this, &QtColorPicker::choose);
    connect(m_popup, &ColorPopup::moreWanted, this, &QtColorPicker::openDialog);
    connect(m_popup, &ColorPopup::closed, this, &QtColorPicker::dismiss);
    const QSize size = m_popup->sizeHint();
    QPoint corner = mapToGlobal(QPoint(layoutDirection() == Qt::RightToLeft ? width() - size.width() : 0, height()));
    const QRect room = screen()->availableGeometry();
    if (corner.y() + size.height() > room.bottom())
        corner.setY(std::max(mapToGlobal(QPoint(0, 0)).y() - size.height(), room.top()));
    corner.setX(std::max(std::min(corner.x(), room.right() - size.width()), room.left()));
    m_popup->move(corner);
    m_popup->show();
}

void QtColorPicker::choose(const QColor& color)
{
    const QPointer<QtColorPicker> alive(this);
    dismiss();
    setColor(color);
    if (alive)
        Q_EMIT colorChosen(color);
}

void QtColorPicker::openDialog()
{
    dismiss();
    m_dialog = new QColorDialog(m_color.isValid() ? m_color : QColor(Qt::white), window());
    m_dialog->setOption(QColorDialog::ShowAlphaChannel);
    connect(m_dialog, &QColorDialog::colorSelected, this, &QtColorPicker::choose);
    connect(m_dialog, &QDialog::finished, this, &QtColorPicker::dismiss);
    m_dialog->open();
}

void QtColorPicker::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_F4)
        showPopup();
    else
        QPushButton::keyPressEvent(event);
}

void QtColorPicker::mousePressEvent(QMouseEvent* event)
{
    m_pressedAt = event->position().toPoint();
    QPushButton::mousePressEvent(event);
}

void QtColorPicker::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint moved = event->position().toPoint() - m_pressedAt;
    if (!(event->buttons() & Qt::LeftButton) || !m_color.isValid() ||
        moved.manhattanLength() < QApplication::startDragDistance()) {
        QPushButton::mouseMoveEvent(event);
        return;
    }
    setDown(false);
    auto* content = new QMimeData;
    content->setColorData(m_color);
    content->setText(m_color.name(QColor::HexArgb));
    auto* drag = new QDrag(this);
    drag->setMimeData(content);
    drag->setPixmap(colorNames::swatch(m_color, pickerSwatch, *this));
    drag->exec(Qt::CopyAction);
}
