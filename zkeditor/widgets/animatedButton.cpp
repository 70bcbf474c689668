// A tool button with moving pictures.
#include "zkeditor/widgets/animatedButton.h"

#include <QBuffer>
#include <QEvent>
#include <QMovie>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionToolButton>

namespace {

/// Every byte of the device, which is left as it was.
QByteArray allBytesOf(QIODevice& device)
{
    const bool opened = !device.isOpen();
    if (opened && !device.open(QIODevice::ReadOnly))
        return QByteArray();
    if (device.isSequential())
        return device.readAll();
    const qint64 position = device.pos();
    device.seek(0);
    const QByteArray bytes = device.readAll();
    if (opened)
        device.close();
    else
        device.seek(position);
    return bytes;
}

/// Movies cannot be copied: this is another one of the same pictures. Null for a movie of nothing.
QMovie* copyOfMovie(const QMovie& movie, QObject* parent)
{
    QMovie* copy = nullptr;
    if (!movie.fileName().isEmpty()) {
        copy = new QMovie(movie.fileName(), movie.format(), parent);
    } else if (QIODevice* device = movie.device()) {
        auto* buffer = new QBuffer;
        buffer->setData(allBytesOf(*device));
        buffer->open(QIODevice::ReadOnly);
        copy = new QMovie(buffer, movie.format(), parent);
        buffer->setParent(copy);
    } else {
        return nullptr;
    }
    copy->setSpeed(movie.speed());
    copy->setCacheMode(movie.cacheMode());
    copy->setBackgroundColor(movie.backgroundColor());
    copy->setScaledSize(const_cast<QMovie&>(movie).scaledSize()); // the getter is not const
    return copy;
}

} // namespace

AnimatedButton::AnimatedButton(QWidget* parent) : QToolButton(parent)
{
    setCheckable(true);
    connect(this, &QAbstractButton::toggled, this, &AnimatedButton::syncToMovie);
}

AnimatedButton::~AnimatedButton() = default;

void AnimatedButton::setMovie(const QMovie& movie, AnimatedButton::State state)
{
    for (size_t slot = 0; slot < m_movies.size(); ++slot)
        if (state == All || slot == static_cast<size_t>(state))
            setSlot(slot, movie);
    syncToMovie();
}

void AnimatedButton::setSlot(size_t slot, const QMovie& movie)
{
    // The given movie may be the one in the slot.
    QMovie* copy = copyOfMovie(movie, this);
    if (QMovie* old = m_movies[slot]) {
        disconnect(old, nullptr, this, nullptr);
        delete old;
    }
    m_movies[slot] = copy;
    if (copy) {
        connect(copy, &QMovie::frameChanged, this, &AnimatedButton::repaintButton);
        copy->jumpToFrame(0); // something to show before it runs
    }
}

void AnimatedButton::setStateNoSignals(bool on)
{
    if (isChecked() == on)
        return;
    const QSignalBlocker blocker(this);
    setChecked(on);
    syncToMovie();
}

QSize AnimatedButton::sizeHint() const
{
    return QToolButton::sizeHint();
}

QMovie* AnimatedButton::currentMovie() const
{
    return m_movies[static_cast<size_t>(!isEnabled() ? Disabled : isChecked() ? On : Off)];
}

void AnimatedButton::syncToMovie()
{
    QMovie* current = currentMovie();
    for (QMovie* movie : m_movies)
        if (movie && movie != current)
            movie->setPaused(true);
    if (current)
        current->setPaused(false);
    repaintButton();
}

void AnimatedButton::repaintButton()
{
    update();
}

void AnimatedButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        syncToMovie();
}

void AnimatedButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawButton(&painter);
}

void AnimatedButton::drawButton(QPainter* painter)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QMovie* movie = currentMovie();
    const QPixmap frame = movie ? movie->currentPixmap() : QPixmap();
    if (!frame.isNull()) {
        option.icon = QIcon();
        option.text.clear();
        option.arrowType = Qt::NoArrow;
        option.features &= ~QStyleOptionToolButton::Arrow;
    }
    style()->drawComplexControl(QStyle::CC_ToolButton, &option, painter, this);
    if (frame.isNull())
        return;
    const QSize frameSize = frame.deviceIndependentSize().toSize();
    painter->drawPixmap((width() - frameSize.width()) / 2, (height() - frameSize.height()) / 2, frame);
}
