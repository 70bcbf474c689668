#include "zkcore/values/value.h"
#include "zkeditor/license/licenceCode.h"
#include "zkeditor/license/licenceDialog.h"
#include "zkeditor/license/licenceManager.h"
#include "zkeditor/license/licenceText.h"
#include "zkeditor/settingsService.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using Check = licenceCode::Check;

const licenceCode::KeyPair& keys()
{
    static const licenceCode::KeyPair pair = licenceCode::makeKeyPair();
    return pair;
}

Licence schoolLicence()
{
    return {QString::fromUtf8("Bürgerschule Nord"), "ZK", "School", 30, QDate(2031, 1, 15), QDate(2031, 12, 31)};
}

Check checkOn(const QString& code, QDate today = QDate(2031, 6, 1), const char* product = "ZK")
{
    return licenceCode::check(code, keys().publicKey, product, today);
}

QStringList groupsOf(const QString& code)
{
    return QString(code).replace('\n', '-').split('-');
}

/// A manager with a clock and a store of its own.
class LicenceManagerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        if (!SettingsService::exists()) {
            auto* window = new QMainWindow;
            window->setObjectName("mainWindow");
            SettingsService::createService(window, "licence", QSettings::UserScope);
        }
    }
    std::unique_ptr<LicenceManager> nextRun(QDate day)
    {
        today = day;
        return std::make_unique<LicenceManager>(keys().publicKey, "ZK", [this] { return today; });
    }

    QTemporaryDir folder;
    QDate today;
    QString code = licenceCode::sign(schoolLicence(), keys().secretKey);
};

} // namespace

TEST(LicenceCodeTest, HoldsWhatWasSigned)
{
    Licence plain{"A", "ZK", "", 1, QDate(2000, 1, 1), QDate()};
    const Licence longest{QString(80, 'h'),  QString(80, 'p'), QString(80, 'e'), 65535,
                          QDate(2179, 6, 6), QDate(2179, 6, 6)};
    for (const Licence& licence : {plain, longest, schoolLicence()}) {
        const QString code = licenceCode::sign(licence, keys().secretKey);
        const Check check = licenceCode::check(code, keys().publicKey, licence.product, licence.issued);
        EXPECT_EQ(check.fault, Check::None) << check.message.toStdString();
        EXPECT_TRUE(check.licence == licence);
    }
    QString error;
    plain.holder = QString(81, 'x');
    EXPECT_EQ(licenceCode::sign(plain, keys().secretKey, &error), QString());
    EXPECT_EQ(error, QString("Holder, product and edition have at most 80 letters each."));
    plain.holder = "A";
    plain.expires = QDate(1999, 12, 31);
    EXPECT_EQ(licenceCode::sign(plain, keys().secretKey), QString());
    EXPECT_EQ(licenceCode::sign(schoolLicence(), QByteArray("short")), QString());
}

TEST(LicenceCodeTest, IsUnderstoodHoweverItIsTyped)
{
    const QString code = licenceCode::sign(schoolLicence(), keys().secretKey);
    QString undivided = code;
    undivided.remove('-').remove('\n');
    QString spoken = code.toLower().replace('-', "  ").replace('0', 'o').replace('1', 'l');
    for (const QString& typed :
         {code, undivided, spoken, "\n\t " + code + " \n", QString(code).replace('-', QChar(0x2013))}) {
        EXPECT_EQ(checkOn(typed).fault, Check::None) << typed.toStdString();
    }
    EXPECT_EQ(licenceText::normalised(undivided), code);
    EXPECT_FALSE(code.contains(QRegularExpression("[^0-9A-HJKMNP-TV-Z\n-]")));
}

TEST(LicenceCodeTest, SaysExactlyWhatIsWrong)
{
    const QString code = licenceCode::sign(schoolLicence(), keys().secretKey);
    const QStringList groups = groupsOf(code);
    const auto message = [&](auto&& change, const char* separator = " ") {
        QStringList changed = groups;
        change(changed);
        return checkOn(changed.join(separator)).message;
    };
    const QString compare = "please compare it letter by letter. Groups may also be missing, doubled or exchanged.";
    EXPECT_EQ(checkOn("  ").message, QString("Please enter the licence code."));
    EXPECT_EQ(message([](QStringList& list) { list[3][2] = list[3][2] == QChar('7') ? '8' : '7'; }),
              "Typing error in group 4: " + compare);
    EXPECT_EQ(message([](QStringList& list) { list[4][5] = 'U'; }),
              QString("Typing error in group 5: \"U\" does not occur in licence codes."));
    EXPECT_EQ(message([](QStringList& list) { list[6].chop(1); }),
              QString("Typing error in group 7: it has 5 characters instead of 6."));
    EXPECT_EQ(message([](QStringList& list) { list.swapItemsAt(8, 9); }), "Typing error in group 9: " + compare);
    EXPECT_EQ(message([](QStringList& list) { list.removeAt(10); }), "Typing error in group 11: " + compare);
    EXPECT_EQ(message([](QStringList& list) { list.insert(2, list[1]); }), "Typing error in group 3: " + compare);
    EXPECT_EQ(message([](QStringList& list) { list.removeLast(); }),
              QString("The code has %1 groups, but %2 were entered.").arg(groups.size()).arg(groups.size() - 1));
    EXPECT_EQ(licenceCode::check(code, licenceCode::makeKeyPair().publicKey, "ZK", QDate(2031, 6, 1)).message,
              QString("This code was not made for this program: its signature is not right. "
                      "Please ask whoever gave it to you."));
    EXPECT_EQ(checkOn(code, QDate(2031, 6, 1), "XY").message,
              QString("This code is for the product ZK; this program is XY."));
    EXPECT_EQ(checkOn(code, QDate(2032, 1, 1)).message,
              "This licence expired on " + QLocale().toString(QDate(2031, 12, 31), QLocale::ShortFormat) + ".");
    EXPECT_EQ(checkOn(code, QDate(2031, 12, 31)).fault, Check::None);
    EXPECT_EQ(checkOn(code, QDate(2031, 1, 14)).fault, Check::NotYet);
    EXPECT_EQ(checkOn(QString(5000, '0')).message,
              QString("The code is too long: no licence code has so many groups."));
}

TEST(LicenceCodeTest, EverySingleSlipOfTheTypistIsFoundInItsGroup)
{
    const QString letters = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
    const QStringList groups = groupsOf(licenceCode::sign(schoolLicence(), keys().secretKey));
    for (const qsizetype group : {qsizetype(0), qsizetype(7), groups.size() - 1}) {
        for (int i = 0; i < licenceText::groupLength; ++i) {
            for (const QChar letter : letters) {
                QStringList changed = groups;
                changed[group][i] = letter;
                EXPECT_TRUE(changed == groups || checkOn(changed.join('-')).group == group + 1);
            }
            if (i + 1 < licenceText::groupLength && groups[group][i] != groups[group][i + 1]) {
                QStringList changed = groups;
                changed[group][i] = groups[group][i + 1];
                changed[group][i + 1] = groups[group][i];
                EXPECT_EQ(checkOn(changed.join('-')).group, group + 1);
            }
        }
    }
}

TEST(LicenceCodeTest, NoMutationIsAccepted)
{
    const QString code = licenceCode::sign(schoolLicence(), keys().secretKey);
    const QByteArray bytes = licenceText::toBytes(code).bytes;
    QRandomGenerator random(4711);
    for (int i = 0; i < 10000; ++i) {
        // In half of the cases with right check characters, so that only the signature can tell.
        if (i % 2 == 0) {
            QByteArray changed = bytes;
            for (int n = random.bounded(3); n >= 0; --n) {
                const int at = random.bounded(static_cast<int>(changed.size()));
                changed[at] = static_cast<char>(changed.at(at) ^ (1 << random.bounded(8)));
            }
            if (random.bounded(4) == 0)
                changed.truncate(random.bounded(static_cast<int>(changed.size())));
            if (changed != bytes && !(changed + QByteArray(4, '\0')).startsWith(bytes)) {
                ASSERT_NE(checkOn(licenceText::fromBytes(changed)).fault, Check::None) << i;
            }
            continue;
        }
        QString changed = code;
        for (int n = random.bounded(4); n >= 0; --n) {
            const int at = random.bounded(static_cast<int>(changed.size()));
            const QChar other(random.bounded(5) == 0 ? random.bounded(0xffff) : random.bounded(33, 127));
            switch (random.bounded(3)) {
            case 0:
                changed[at] = other;
                break;
            case 1:
                changed.insert(at, other);
                break;
            default:
                changed.remove(at, random.bounded(1, 9));
            }
        }
        if (licenceText::toBytes(changed).bytes != bytes) {
            ASSERT_NE(checkOn(changed).fault, Check::None) << changed.toStdString();
        }
    }
}

TEST_F(LicenceManagerTest, RemembersTheCodeAndCountsTheDays)
{
    auto manager = nextRun(QDate(2031, 6, 1));
    EXPECT_EQ(manager->statusText(), QString("Unlicensed evaluation."));
    EXPECT_EQ(manager->captionText(), QString("unlicensed evaluation"));
    EXPECT_EQ(manager->footLine(), QString("Printed with an unlicensed evaluation copy"));
    QSignalSpy changed(manager.get(), &LicenceManager::statusChanged);
    EXPECT_EQ(manager->enterCode("nonsense").fault, Check::Typing);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(manager->enterCode(code.toLower()).fault, Check::None);
    EXPECT_EQ(changed.count(), 1);

    manager = nextRun(QDate(2031, 6, 1));
    EXPECT_EQ(manager->statusText(),
              QString::fromUtf8("Licensed to Bürgerschule Nord, edition School. For 30 seats. The "
                                "licence expires in 213 days."));
    EXPECT_EQ(manager->captionText(), QString());
    EXPECT_EQ(manager->footLine(), QString());
    EXPECT_EQ(nextRun(QDate(2031, 12, 2))->captionText(), QString("licence expires in 29 days"));
    manager = nextRun(QDate(2031, 12, 31));
    EXPECT_EQ(manager->captionText(), QString("licence expires today"));
    QSignalSpy expired(manager.get(), &LicenceManager::statusChanged);
    today = QDate(2032, 1, 1); // the program ran over midnight
    manager->refresh();
    EXPECT_EQ(expired.count(), 1);
    EXPECT_EQ(manager->state(), LicenceManager::Refused);
    EXPECT_TRUE(manager->statusText().startsWith("Unlicensed evaluation. This licence expired on "));
    EXPECT_FALSE(manager->footLine().isEmpty());
    manager->removeCode();
    EXPECT_EQ(nextRun(QDate(2031, 6, 1))->state(), LicenceManager::Evaluation);
}

TEST_F(LicenceManagerTest, AClockSetBackDoesNotHelp)
{
    EXPECT_EQ(nextRun(QDate(2031, 6, 1))->enterCode(code).fault, Check::None);
    EXPECT_EQ(nextRun(QDate(2031, 12, 30))->state(), LicenceManager::Licensed);
    EXPECT_EQ(nextRun(QDate(2031, 12, 29))->state(), LicenceManager::Licensed); // over the date line
    auto manager = nextRun(QDate(2031, 7, 1));
    EXPECT_EQ(manager->state(), LicenceManager::Refused);
    EXPECT_TRUE(manager->statusText().contains("The program was used on "));
    EXPECT_EQ(manager->enterCode(code).fault, Check::ClockSetBack);
    // A wrong clock that has been put right again is mended by another code.
    Licence other = schoolLicence();
    other.issued = QDate(2031, 6, 30);
    EXPECT_EQ(manager->enterCode(licenceCode::sign(other, keys().secretKey)).fault, Check::None);
    EXPECT_EQ(nextRun(QDate(2031, 7, 2))->state(), LicenceManager::Licensed);
}

TEST_F(LicenceManagerTest, DamagedStoresAreRefusedQuietly)
{
    nextRun(QDate(2031, 6, 1))->enterCode(code);
    SettingsService::instance()->writeSetting("/Licence/Code", Value(code.left(40)));
    SettingsService::instance()->writeSetting("/Licence/LastDay", Value(QString("never")));
    EXPECT_EQ(nextRun(QDate(2031, 6, 1))->state(), LicenceManager::Refused);
}

TEST_F(LicenceManagerTest, TheDialogGuidesTheTypist)
{
    auto manager = nextRun(QDate(2031, 6, 1));
    LicenceDialog dialog(manager.get());
    dialog.show();
    auto* edit = dialog.findChild<QPlainTextEdit*>("code");
    auto* verdict = dialog.findChild<QLabel*>("verdict");
    const QStringList groups = groupsOf(code);
    QTest::keyClicks(edit, groups[0] + " " + groups[1] + " " + groups[2].left(3));
    EXPECT_EQ(verdict->text(), QString("Right so far: 2 groups."));
    QTest::keyClicks(edit, groups[2].right(2) + "U");
    EXPECT_TRUE(verdict->text().startsWith("Typing error in group 3"));
    edit->setPlainText(QString(code).remove('-').remove('\n').replace(9, 1, "U"));
    QMetaObject::invokeMethod(&dialog, "accept");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(edit->textCursor().selectedText().at(3), QChar('U')); // in the second group
    QApplication::clipboard()->setText(code);
    edit->selectAll();
    edit->paste();
    EXPECT_EQ(verdict->text(), QString::fromUtf8("The code is right. It is for Bürgerschule Nord."));
    QMetaObject::invokeMethod(&dialog, "accept");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(manager->state(), LicenceManager::Licensed);

    LicenceDialog again(manager.get());
    again.show();
    for (QPushButton* button : again.findChildren<QPushButton*>())
        if (button->text() == "&Remove")
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(manager->state(), LicenceManager::Evaluation);
    EXPECT_EQ(again.findChild<QLabel*>("status")->text(), QString("Unlicensed evaluation."));
}
