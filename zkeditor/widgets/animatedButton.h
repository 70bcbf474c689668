#pragma once

#include "zkeditor/export.h"

#include <QToolButton>
#include <array>

class QMovie;

/// A toggle button that shows an animation: one while it is on, one while it is off, and one while it is disabled.
/// Only the one that is seen runs. Without an animation for its state it looks like any tool button.
class ZKEDITOR_EXPORT AnimatedButton : public QToolButton
{
    Q_OBJECT

public:
    /// Which animation setMovie() sets.
    enum State { On = 0, Off = 1, Disabled = 2, All = 3 };
    Q_ENUM(State)

    explicit AnimatedButton(QWidget* parent = nullptr);
    ~AnimatedButton() override;

    /// Keeps a copy of the movie (read from its file, or from all bytes of its device); a movie without file and
    /// device leaves the state without animation.
    void setMovie(const QMovie& movie, AnimatedButton::State state);
    /// Switches the button without emitting toggled().
    void setStateNoSignals(bool on);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// The frame of a tool button with the animation's picture in its middle.
    void drawButton(QPainter* painter);
    /// Lets the animation of the state run, and only that.
    void syncToMovie();
    void repaintButton();
    /// Null when there is no animation for the state.
    QMovie* currentMovie() const;

private:
    void setSlot(size_t slot, const QMovie& movie);

    std::array<QMovie*, 3> m_movies{};
};
