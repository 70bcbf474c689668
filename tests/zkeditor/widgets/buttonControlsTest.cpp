#include "zkeditor/widgets/animatedButton.h"
#include "zkeditor/widgets/brandWidget.h"
#include "zkeditor/widgets/plusMinusButton.h"

#include <QBuffer>
#include <QFile>
#include <QLineEdit>
#include <QMovie>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

const QString runningMovie = ":/zk/packages/editor/running.gif";
const QString standingMovie = ":/zk/packages/editor/standing.gif";

class OpenButton : public AnimatedButton
{
public:
    using AnimatedButton::AnimatedButton;
    using AnimatedButton::currentMovie;

    QString currentFile() const { return currentMovie() ? currentMovie()->fileName() : QString(); }
    /// The movies that run, by their files.
    QStringList runningFiles() const
    {
        QStringList files;
        for (const QMovie* movie : findChildren<QMovie*>())
            if (movie->state() == QMovie::Running)
                files += movie->fileName();
        return files;
    }
    qsizetype movieCount() const { return findChildren<QMovie*>().size(); }
};

} // namespace

TEST(PlusMinusButtonTest, TellsWhichWasClicked)
{
    PlusMinusButton buttons(nullptr, "Add a pin", QString());
    const QList<QToolButton*> both = buttons.findChildren<QToolButton*>();
    ASSERT_EQ(both.size(), 2);
    QSignalSpy plus(&buttons, &PlusMinusButton::plusClicked);
    QSignalSpy minus(&buttons, &PlusMinusButton::minusClicked);
    EXPECT_EQ(both[0]->toolTip(), QString("Add a pin"));
    EXPECT_EQ(both[1]->toolTip(), QString());
    EXPECT_FALSE(both[0]->icon().isNull());
    EXPECT_FALSE(both[1]->icon().isNull());
    EXPECT_EQ(both[1]->accessibleName(), QString("Remove"));
    QTest::mouseClick(both[0], Qt::LeftButton);
    buttons.setMinusEnabled(false);
    QTest::mouseClick(both[1], Qt::LeftButton);
    EXPECT_EQ(minus.count(), 0);
    buttons.setMinusEnabled(true);
    QTest::keyClick(both[1], Qt::Key_Space);
    EXPECT_EQ(plus.count(), 1);
    EXPECT_EQ(minus.count(), 1);
    buttons.setPlusTooltip(QString());
    EXPECT_EQ(both[0]->toolTip(), QString());
}

TEST(PlusMinusButtonTest, MinusKeepsTheFocusFromEntryToEntry)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* buttons = new PlusMinusButton(nullptr, "Add", "Remove");
    layout->addWidget(buttons);
    layout->addWidget(new QLineEdit);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QList<QToolButton*> both = buttons->findChildren<QToolButton*>();
    int entries = 2;
    QObject::connect(buttons, &PlusMinusButton::minusClicked, [&] {
        buttons->setMinusEnabled(false); // nothing is selected any more ...
        --entries;
        buttons->setMinusEnabled(entries > 0); // ... until the next entry is
    });
    both[1]->setFocus();
    QTest::keyClick(both[1], Qt::Key_Space);
    EXPECT_TRUE(both[1]->hasFocus());
    QTest::keyClick(both[1], Qt::Key_Space);
    EXPECT_EQ(entries, 0);
    EXPECT_TRUE(both[0]->hasFocus());
}

TEST(AnimatedButtonTest, OnlyTheMovieOfTheStateRuns)
{
    OpenButton button;
    EXPECT_TRUE(button.currentMovie() == nullptr);
    button.setMovie(QMovie(runningMovie), AnimatedButton::All);
    button.setMovie(QMovie(standingMovie), AnimatedButton::Off);
    EXPECT_EQ(button.movieCount(), 3);
    EXPECT_EQ(button.currentFile(), standingMovie);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(button.currentFile(), runningMovie);
    EXPECT_EQ(button.runningFiles(), QStringList(runningMovie));
    QMovie* onMovie = button.currentMovie();
    button.setEnabled(false);
    EXPECT_TRUE(button.currentMovie() != onMovie);
    EXPECT_EQ(onMovie->state(), QMovie::Paused);
    EXPECT_EQ(button.runningFiles(), QStringList(runningMovie));
    button.setMovie(QMovie(), AnimatedButton::Disabled);
    EXPECT_TRUE(button.currentMovie() == nullptr);
    EXPECT_EQ(button.movieCount(), 2);
    EXPECT_EQ(button.runningFiles(), QStringList());
    button.setEnabled(true);
    EXPECT_TRUE(button.currentMovie() == onMovie);
    EXPECT_EQ(onMovie->state(), QMovie::Running);
}

TEST(AnimatedButtonTest, SwitchesSilently)
{
    OpenButton button;
    button.setMovie(QMovie(runningMovie), AnimatedButton::On);
    QSignalSpy toggled(&button, &QAbstractButton::toggled);
    button.setStateNoSignals(true);
    EXPECT_TRUE(button.isChecked());
    EXPECT_EQ(button.runningFiles(), QStringList(runningMovie));
    button.setStateNoSignals(true);
    EXPECT_EQ(toggled.count(), 0);
    EXPECT_FALSE(button.signalsBlocked());
}

TEST(AnimatedButtonTest, CopiesMoviesOfDevicesAndPlaysThemAgainAndAgain)
{
    OpenButton button;
    {
        QFile file(runningMovie);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        QBuffer buffer(&bytes);
        ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
        QMovie movie(&buffer, "gif");
        movie.setSpeed(1000);
        movie.jumpToFrame(1);
        const qint64 position = buffer.pos();
        button.setMovie(movie, AnimatedButton::Off);
        EXPECT_EQ(buffer.pos(), position);
    } // the given movie and its bytes are gone
    button.show();
    QList<int> frames;
    QObject::connect(button.currentMovie(), &QMovie::frameChanged, [&](int frame) { frames += frame; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return frames.size() >= 8; }, 5000));
    for (const int frame : {0, 1, 2})
        EXPECT_GE(frames.mid(0, 8).count(frame), 2); // all its pictures, more than once

    button.resize(40, 40);
    const QImage picture = button.grab().toImage();
    button.setMovie(QMovie(), AnimatedButton::All);
    EXPECT_FALSE(picture == button.grab().toImage());
}

TEST(BrandWidgetTest, HasTheShapeOfItsPictures)
{
    BrandWidget badge;
    badge.show();
    EXPECT_EQ(badge.size(), badge.sizeHint());
    EXPECT_GT(badge.width(), 20);
    const QRegion shape = badge.mask();
    EXPECT_TRUE(shape.contains(badge.rect().center()));
    EXPECT_FALSE(shape.contains(QPoint(0, 0))); // round corners
    const QImage normal = badge.grab().toImage();
    badge.setDown(true);
    EXPECT_FALSE(normal == badge.grab().toImage());
    badge.setDown(false);
    EXPECT_TRUE(normal == badge.grab().toImage());
    QSignalSpy clicked(&badge, &QAbstractButton::clicked);
    QTest::mouseClick(&badge, Qt::LeftButton, {}, badge.rect().center());
    QTest::keyClick(&badge, Qt::Key_Space);
    EXPECT_EQ(clicked.count(), 2);
}
