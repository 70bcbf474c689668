// Draws the header of a collapsible item from three pictures and its label.
#include "zkeditor/widgets/paletteButtonBar.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/paletteBoxSection.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <QToolTip>

namespace {

constexpr int headerTextIndent = 5;

unsigned int effectiveHeaderStyle(unsigned int style)
{
    for (const unsigned int each : {PaletteBox::StandardStyle, PaletteBox::PlainStyle, PaletteBox::SectionStyle}) {
        if (style & each)
            return each;
    }
    return 0;
}

/// What the colours of the plain pictures become where the window is dark.
const std::vector<ImageCache::ColorChange>& darkHeaderColors()
{
    static const std::vector<ImageCache::ColorChange> changes = {
        {QColor(0xf1, 0xf4, 0xf8), QColor(0x4a, 0x51, 0x59)},
        {QColor(0xd5, 0xdd, 0xe7), QColor(0x3b, 0x41, 0x49)},
        {QColor(0xaa, 0xb6, 0xc5), QColor(0x2a, 0x2f, 0x35)},
        {QColor(0x4a, 0x5a, 0x70), QColor(0xd7, 0xdd, 0xe5)},
    };
    return changes;
}

QPixmap headerImage(const char* name, bool dark, double ratio)
{
    const Resource resource(name);
    const QPixmap natural = ImageCache::getPixmap(resource, true);
    if (natural.isNull())
        return natural;
    if (dark)
        return ImageCache::getPixmap(resource, natural.size(), ratio, darkHeaderColors());
    return qFuzzyCompare(ratio, 1.0) ? natural : ImageCache::getPixmap(resource, natural.size(), ratio, true);
}

QSize logicalSize(const QPixmap& pixmap)
{
    return pixmap.isNull() ? QSize(0, 0) : pixmap.deviceIndependentSize().toSize();
}

} // namespace

PaletteButtonBar::PaletteButtonBar(unsigned int style, QWidget* parent, const QString& name)
    : QPushButton(parent), m_style(effectiveHeaderStyle(style))
{
    if (m_style == 0)
        qFatal("PaletteButtonBar: Attempting to contruct button with unknown style %d", static_cast<int>(style));
    setObjectName(name);
    setCheckable(true);
    setChecked(true);
    setAutoDefault(false);
    setFlat(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFont(QFont(QStringLiteral("Tahoma"), 8, QFont::Bold));
    if (m_style == PaletteBox::StandardStyle) {
        QPalette colors = palette();
        colors.setColor(QPalette::WindowText, Qt::white);
        setPalette(colors);
    }
    describeState(true);
    connect(this, &QAbstractButton::toggled, this, &PaletteButtonBar::describeState);
    loadImages();
    adjustSize();
}

void PaletteButtonBar::setText(const QString& text)
{
    QPushButton::setText(text);
    setShortcut({});
    setAccessibleName(text);
}

void PaletteButtonBar::describeState(bool open)
{
    setAccessibleDescription(open ? tr("expanded") : tr("collapsed"));
}

void PaletteButtonBar::loadImages()
{
    m_imagesRatio = devicePixelRatioF();
    IconSet left;
    IconSet center;
    IconSet right;
    const QPalette& colors = palette();
    const bool dark = colors.color(QPalette::Window).lightness() < colors.color(QPalette::WindowText).lightness();
    const auto load = [&](const char* open, const char* closed, const char* middle, const char* end, bool darkened) {
        left.setPixmap(headerImage(open, darkened, m_imagesRatio), QIcon::Normal, QIcon::On);
        left.setPixmap(headerImage(closed, darkened, m_imagesRatio), QIcon::Normal, QIcon::Off);
        center.setPixmap(headerImage(middle, darkened, m_imagesRatio), QIcon::Normal, QIcon::On);
        right.setPixmap(headerImage(end, darkened, m_imagesRatio), QIcon::Normal, QIcon::On);
    };
    switch (m_style) {
    case PaletteBox::StandardStyle:
        load("editor/paletteBox/buttonLeftOpen_n", "editor/paletteBox/buttonLeftClosed_n",
             "editor/paletteBox/buttonCenter_n", "editor/paletteBox/buttonRight_n", false);
        break;
    case PaletteBox::PlainStyle:
        load("editor/paletteBox/buttonLeftOpen_plain_n", "editor/paletteBox/buttonLeftClosed_plain_n",
             "editor/paletteBox/buttonCenter_plain_n", "editor/paletteBox/buttonRight_plain_n", dark);
        break;
    default:
        left.setPixmap(PaletteBoxSection::getLeftIcon(QIcon::Normal, QIcon::On), QIcon::Normal, QIcon::On);
        left.setPixmap(PaletteBoxSection::getLeftIcon(QIcon::Normal, QIcon::Off), QIcon::Normal, QIcon::Off);
        center.setPixmap(PaletteBoxSection::getCenterIcon(QIcon::Normal, QIcon::On), QIcon::Normal, QIcon::On);
        right.setPixmap(PaletteBoxSection::getRightIcon(QIcon::Normal, QIcon::On), QIcon::Normal, QIcon::On);
        break;
    }
    m_left = left;
    m_center = center;
    m_right = right;
    update();
}

QString PaletteButtonBar::fittingText(const QString& label, const QFontMetrics& metrics, int width)
{
    if (metrics.horizontalAdvance(label) < width)
        return label;
    const QString dots = QStringLiteral("...");
    const int dotsWidth = metrics.horizontalAdvance(dots);
    // A character is what the reader takes for one: no pair of surrogates, no accent is cut off.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, label);
    qsizetype length = 0;
    for (qsizetype next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        const int prefixWidth = metrics.horizontalAdvance(label.left(length));
        if (prefixWidth + dotsWidth + metrics.horizontalAdvance(label.mid(length, next - length)) >= width)
            break;
        length = next;
    }
    return label.left(length) + dots;
}

int PaletteButtonBar::textWidth() const
{
    return width() - logicalSize(m_left.pixmap(QIcon::Normal, QIcon::On)).width() -
           logicalSize(m_right.pixmap(QIcon::Normal, QIcon::On)).width();
}

QSize PaletteButtonBar::sizeHint() const
{
    const QSize left = logicalSize(m_left.pixmap(QIcon::Normal, QIcon::On));
    const QSize right = logicalSize(m_right.pixmap(QIcon::Normal, QIcon::On));
    const QFontMetrics metrics = fontMetrics();
    return QSize(metrics.horizontalAdvance(text()) + left.width() + 2 * right.width(),
                 qMax(metrics.height(), left.height()));
}

QSize PaletteButtonBar::minimumSizeHint() const
{
    const QSize left = logicalSize(m_left.pixmap(QIcon::Normal, QIcon::On));
    const QSize right = logicalSize(m_right.pixmap(QIcon::Normal, QIcon::On));
    return QSize(left.width() + right.width(), sizeHint().height());
}

bool PaletteButtonBar::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

bool PaletteButtonBar::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
        fittingText(text(), fontMetrics(), textWidth()) != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QPushButton::event(event);
}

void PaletteButtonBar::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        loadImages();
}

void PaletteButtonBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            click();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        event->ignore(); // the box knows the other headers
        break;
    default:
        QPushButton::keyPressEvent(event);
        break;
    }
}

void PaletteButtonBar::paintEvent(QPaintEvent*)
{
    if (!qFuzzyCompare(m_imagesRatio, devicePixelRatioF()))
        loadImages();
    const QIcon::Mode mode = isDown() ? QIcon::Active : QIcon::Normal;
    const QIcon::State state = isChecked() ? QIcon::On : QIcon::Off;
    const QPixmap left = m_left.pixmap(mode, state);
    const QPixmap center = m_center.pixmap(mode, state);
    const QPixmap right = m_right.pixmap(mode, state);
    const int leftWidth = logicalSize(left).width();
    const int rightWidth = logicalSize(right).width();
    const int available = width() - leftWidth - rightWidth;

    QPainter painter(this);
    painter.save();
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    // The pictures are stretched where the text is higher than they are.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, height() != logicalSize(left).height());
    painter.drawPixmap(QRect(0, 0, leftWidth, height()), left);
    const int tile = logicalSize(center).width();
    if (available > 0 && tile > 0) {
        painter.save();
        painter.setClipRect(leftWidth, 0, available, height());
        for (int x = 0; x < available; x += tile)
            painter.drawPixmap(QRect(leftWidth + x, 0, tile, height()), center);
        painter.restore();
    }
    painter.drawPixmap(QRect(leftWidth + available, 0, rightWidth, height()), right);
    painter.restore();

    const QFontMetrics metrics = fontMetrics();
    const QString shown = fittingText(text(), metrics, available);
    const int baseline = (metrics.height() + logicalSize(left).height()) / 2 - 2;
    int x = leftWidth + headerTextIndent;
    if (isRightToLeft())
        x = width() - x - metrics.horizontalAdvance(shown);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(x, baseline, shown);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.0));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 2.0, 2.0);
    }
}
