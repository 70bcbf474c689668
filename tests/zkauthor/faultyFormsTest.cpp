// Forms that their authors have to mend, in the window: whoever works with it is told, and goes on working.
#include "windowTest.h"

#include "tests/support/brokenForms.h"
#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/package.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/widgets/observerLineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>

namespace {

class FaultyForms : public WindowTest
{
protected:
    static void SetUpTestSuite()
    {
        static const QTemporaryDir folder;
        QString error;
        ASSERT_TRUE(Package::load(writeBrokenForms(folder.path()), error)) << error.toStdString();
    }

    PartImpl* add(const char* id) { return addPart(document(), id); }
    QLabel* message()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return properties()->findChild<QLabel*>(QStringLiteral("formFaults"));
    }
    static QStringList refusals(const MessageCapture& capture)
    {
        return capture.warnings().filter(QRegularExpression(QStringLiteral("^FormGate: ")));
    }
};

TEST_F(FaultyForms, AreNamedInTheirPlaceAndOnceInTheLog)
{
    for (const BrokenForm& form : brokenForms()) {
        PartImpl* part = add((QByteArray("broken/") + form.name).constData());
        const MessageCapture capture;
        document().setSelection({part});
        QLabel* const shown = message();
        EXPECT_EQ(shown == nullptr, form.isShown()) << form.name;
        document().setSelection({});
        document().setSelection({part});
        EXPECT_EQ(message() == nullptr, form.isShown()) << form.name;
        const QStringList log = refusals(capture);
        EXPECT_EQ(log.size(), form.isShown() ? 0 : 1) << form.name;
        if (form.isShown() || form.lacksSubparts)
            continue;
        for (const QString& text : form.messages) {
            const QString place = QStringLiteral("broken/forms/") + text;
            EXPECT_TRUE(log.join(QString()).contains(place)) << log.join(QString()).toStdString();
        }
        const QString first = *std::find_if(form.messages.begin(), form.messages.end(), [](const QString& text) {
            return text.contains(QLatin1String(": error: "));
        });
        EXPECT_TRUE(message()->text().contains(first.mid(first.indexOf(QLatin1String("error: ")))))
            << message()->text().toStdString();
    }
}

TEST_F(FaultyForms, TellWhatToMendInATextThatCanBeReachedAndCopied)
{
    document().setSelection({add("broken/unbound-key")});
    QLabel* label = message();
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(),
              "The form \"broken/forms/unbound-key\" is faulty and is not shown. What its author has to mend:\n\n"
              "Line 2: error: widget 'control' (ObserverSpinBox): property 'modelProperty': there is no property "
              "\"amuont\" to bind; did you mean \"amount\"? [broken/unbound-key]");
    EXPECT_TRUE(label->isVisible());
    EXPECT_LE(label->width(), properties()->width());
    EXPECT_EQ(label->accessibleDescription(), label->text());
    // Tab comes by.
    QWidget* focus = properties()->nextInFocusChain();
    while (focus != label && focus != properties())
        focus = focus->nextInFocusChain();
    EXPECT_EQ(focus, label);
    EXPECT_TRUE(label->focusPolicy() & Qt::TabFocus);
    label->setFocus();
    // The same keys would select and copy parts.
    QTest::keyClick(label, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), label->text());
}

TEST_F(FaultyForms, WaitForTheSubpartsTheyNeed)
{
    PartImpl* part = add("broken/lacking-subparts");
    document().setSelection({part});
    ASSERT_TRUE(message());
    EXPECT_TRUE(message()->text().endsWith(
        QLatin1String("Line 1: error: what is selected has no subpart \"pads\" with the property \"title\" "
                      "[broken/lacking-subparts]")))
        << message()->text().toStdString();
    // With the missing subpart the same form can be used.
    document().setSelection({});
    const ClassId pad = getCidForString("core/pad");
    std::vector<NodeSnapshot> pads;
    pads.push_back(NodeSnapshot::ofPrototype(*document().getNodeDb(), pad));
    run<AddNodesCommand>(document(), Node(part), std::move(pads));
    document().setSelection({part});
    EXPECT_FALSE(message());
    EXPECT_TRUE(properties()->findChild<ObserverLineEdit*>(QStringLiteral("control")));
}

} // namespace
