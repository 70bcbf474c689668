// Pages that are compiled in, and the links that lead to them.
#include "tests/support/messageCapture.h"
#include "windowTest.h"
#include "zkauthor/helpBrowser.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

namespace {

class HelpWindowTest : public WindowTest
{
protected:
    HelpBrowser* browser() { return m_window->findChild<HelpBrowser*>(); }
    /// What the heading on top of the window is.
    static QString topHeading(HelpBrowser* browser)
    {
        return browser->cursorForPosition(QPoint(20, 12)).block().text();
    }
};

/// Everything that links of the page lead to, pictures included.
QStringList targetsOf(const HelpBrowser& browser)
{
    QStringList targets;
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isAnchor())
                targets.append(format.anchorHref());
            if (format.isImageFormat())
                targets.append(format.toImageFormat().name());
        }
    }
    return targets;
}

} // namespace

TEST_F(HelpWindowTest, PagesLeadOnlyWhereSomethingIs)
{
    const QDir pages(QStringLiteral(":/zk/help"));
    HelpBrowser browser;
    for (const QString& name : pages.entryList({QStringLiteral("*.md")})) {
        browser.showPage(QFileInfo(name).completeBaseName());
        ASSERT_EQ(browser.page(), QFileInfo(name).completeBaseName());
        for (const QString& target : targetsOf(browser)) {
            if (target.startsWith(QLatin1String("http")) || target.startsWith(QLatin1String("..")))
                continue;
            EXPECT_TRUE(target.startsWith(u'#') || pages.exists(target.section(u'#', 0, 0)))
                << name.toStdString() << ": " << target.toStdString();
        }
    }
}

TEST_F(HelpWindowTest, KeysLeadFromPageToPageAndBack)
{
    trigger("help");
    HelpBrowser* shown = browser();
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->page(), "help");
    ASSERT_TRUE(QTest::qWaitForWindowActive(shown->window()));
    EXPECT_TRUE(QTest::qWaitFor([shown] { return shown->hasFocus(); }, 1000));
    QTest::keyClick(shown, Qt::Key_Tab);
    QTest::keyClick(shown, Qt::Key_Return);
    EXPECT_EQ(shown->page(), "palettes");
    QPushButton* contents = nullptr;
    for (QPushButton* button : shown->window()->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("C&ontents"))
            contents = button;
    }
    ASSERT_TRUE(contents && contents->isEnabled());
    contents->click();
    EXPECT_EQ(shown->page(), "help");
    EXPECT_FALSE(contents->isEnabled());
    QTest::keyClick(shown, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown->page(), "palettes");
    QTest::keyClick(shown, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown->page(), "help");
    const MessageCapture messages;
    shown->setSource(QUrl(QStringLiteral("https://example.org/")));
    shown->setSource(QUrl(QStringLiteral("nowhere.md")));
    EXPECT_EQ(shown->page(), "help"); // and nothing was looked for
    EXPECT_EQ(messages.warnings(), QStringList());
    QTest::keyClick(shown, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !browser(); }, 1000));
}

TEST_F(HelpWindowTest, DialogsLinkToTheirHeading)
{
    const std::pair<const char*, QString> dialogs[] = {
        {"about", QStringLiteral("Using zkauthor")},
        {"preferences", QStringLiteral("Preferences")},
        {"licence", QStringLiteral("Licences")},
    };
    for (const auto& [name, heading] : dialogs) {
        SCOPED_TRACE(name);
        bool looked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&, heading = heading] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            timer.stop();
            auto* link = dialog->findChild<LinkLabel*>(QStringLiteral("helpLink"));
            ASSERT_TRUE(link && link->isVisible());
            EXPECT_NE(link->focusPolicy() & Qt::TabFocus, 0);
            QTest::keyClick(link, Qt::Key_Space);
            auto* help = dialog->findChild<HelpBrowser*>();
            ASSERT_TRUE(help);
            EXPECT_TRUE(QTest::qWaitFor([&] { return topHeading(help) == heading; }, 1000))
                << topHeading(help).toStdString();
            EXPECT_TRUE(QTest::qWaitForWindowActive(help->window())) << "it can be used beside the modal dialog";
            looked = true;
            dialog->close();
        });
        timer.start(5);
        trigger(name);
        EXPECT_TRUE(looked);
    }
}
