// Marks a section in a form, and lifts its contents out.
#include "zkeditor/widgets/paletteBoxSection.h"

#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/paletteButtonBar.h"
#include "zkeditor/widgets/paneWidget.h"
#include "zkeditor/widgets/propertyObserver.h"
#include "zkeditor/widgets/sectionXpm.h"

#include <QGuiApplication>
#include <QLayout>
#include <QPalette>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <vector>

namespace {

template <size_t Rows> QPixmap sectionImage(const char* const (&rows)[Rows])
{
    const QPalette colors = QGuiApplication::palette();
    const bool dark = colors.color(QPalette::Window).lightness() < colors.color(QPalette::WindowText).lightness();
    const auto& table = dark ? sectionXpm::darkColors : sectionXpm::lightColors;
    const QByteArray header = QByteArray::number(qstrlen(rows[0])) + ' ' + QByteArray::number(Rows) + ' ' +
                              QByteArray::number(std::size(table)) + " 1";
    std::vector<const char*> text{header.constData()};
    text.insert(text.end(), std::begin(table), std::end(table));
    text.insert(text.end(), std::begin(rows), std::end(rows));
    return QPixmap(text.data());
}

} // namespace

const QString PaletteBoxSection::s_open = QStringLiteral("    [open]");
const QString PaletteBoxSection::s_closed = QStringLiteral("    [closed]");

PaletteBoxSection::PaletteBoxSection(QWidget* parent, const QString& name)
    : QWidget(parent), m_header(new PaletteButtonBar(PaletteBox::SectionStyle, this)), m_label(tr("Section"))
{
    setObjectName(name);
    setMinimumWidth(200);
    updateHeaderText();
    connect(m_header, &QAbstractButton::clicked, this, &PaletteBoxSection::onButtonClicked);
}

void PaletteBoxSection::setLabel(const QString& label)
{
    m_label = label;
    updateHeaderText();
}

bool PaletteBoxSection::open() const
{
    return m_header->isChecked();
}

void PaletteBoxSection::setOpen(bool open)
{
    m_header->setChecked(open);
    updateHeaderText();
}

void PaletteBoxSection::updateHeaderText()
{
    m_header->setText(m_label + (open() ? s_open : s_closed));
    m_header->resize(m_header->width(), m_header->sizeHint().height());
}

void PaletteBoxSection::onButtonClicked()
{
    setOpen(m_header->isChecked());
}

void PaletteBoxSection::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_header->resize(width(), m_header->height());
}

QWidget* PaletteBoxSection::getSectionWidget(QWidget* parent)
{
    if (layout())
        layout()->activate();
    std::vector<QWidget*> contents;
    for (QObject* child : children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && widget != m_header && !widget->isWindow())
            contents.push_back(widget);
    }
    std::stable_sort(contents.begin(), contents.end(),
                     [](const QWidget* a, const QWidget* b) { return a->y() < b->y(); });

    // The toolkit keeps the form's order of Tab within what moves to another window, but not from one to the next: all
    // moves at once, with the section.
    auto* section = new QWidget(this);
    auto* column = new QVBoxLayout(section);
    column->setContentsMargins(15, 15, 15, 15);
    column->setSpacing(10);
    for (QWidget* widget : contents) {
        // An observer that hid itself while it was bound must not come back by being moved.
        const bool hidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
        const QPoint place(widget->x(), widget->y() - m_header->height());
        widget->setParent(section);
        widget->move(place);
        widget->setVisible(!hidden);
        column->addWidget(widget);
    }
    section->setParent(parent);
    section->adjustSize();
    return section;
}

void PaletteBoxSection::setupPaneWidgets(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    PaneWidget::bindChildren(this, document, nodes);
}

void PaletteBoxSection::setSpacePropertyCid(unsigned int cid)
{
    for (QWidget* widget : findChildren<QWidget*>()) {
        if (auto* observer = dynamic_cast<PropertyObserver*>(widget))
            observer->setSpacePropertyCid(cid);
    }
}

QPixmap PaletteBoxSection::getLeftIcon(QIcon::Mode, QIcon::State state)
{
    return state == QIcon::On ? sectionImage(sectionXpm::leftOpen) : sectionImage(sectionXpm::leftClosed);
}

QPixmap PaletteBoxSection::getCenterIcon(QIcon::Mode, QIcon::State)
{
    return sectionImage(sectionXpm::center);
}

QPixmap PaletteBoxSection::getRightIcon(QIcon::Mode, QIcon::State)
{
    return sectionImage(sectionXpm::right);
}
