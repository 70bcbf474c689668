#include "zkeditor/dialogs/addCustomPart.h"
#include "zkeditor/dialogs/getCustomPartLabel.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkeditor/widgets/comboBox.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

QPushButton* buttonOf(QDialog& dialog, const QString& text)
{
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
        if (button->text() == text)
            return button;
    ADD_FAILURE() << "no button " << text.toStdString();
    return nullptr;
}

QLineEdit* editOf(QDialog& dialog, const char* name)
{
    return dialog.findChild<QLineEdit*>(name);
}

class AddCustomPartTest : public testing::Test
{
protected:
    DocumentImpl document;
    PartImpl* part = addPart(document, "electronics/led");
};

using AddCustomPartDeathTest = AddCustomPartTest;

} // namespace

TEST_F(AddCustomPartTest, AsksForWhatItNeedsAndTakesOnlyNames)
{
    AddCustomPartDialog dialog(part, &document, nullptr, "add", true);
    QPushButton* add = buttonOf(dialog, "&Add");
    EXPECT_EQ(editOf(dialog, "name")->text(), QString());
    EXPECT_EQ(editOf(dialog, "label")->text(), QString("LED"));
    EXPECT_EQ(editOf(dialog, "group")->text(), QString("Outputs"));
    EXPECT_EQ(dialog.findChild<ComboBox*>("level")->currentText(), QString("2"));
    EXPECT_FALSE(add->isEnabled());
    QTest::keyClicks(editOf(dialog, "name"), "a1 b_C-7");
    EXPECT_EQ(editOf(dialog, "name")->text(), QString("ab_C-"));
    EXPECT_TRUE(add->isEnabled());
    editOf(dialog, "group")->clear();
    EXPECT_FALSE(add->isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Return); // must not get past the disabled button
    EXPECT_EQ(dialog.result(), 0);
    QTest::keyClicks(editOf(dialog, "group"), "X");
    editOf(dialog, "label")->clear();
    EXPECT_FALSE(add->isEnabled());
    EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
    // Each help text has its place and is seen whole.
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        if (label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
        }
}

TEST_F(AddCustomPartTest, AddsAClassOnceAndWarnsTheSecondTime)
{
    const auto addUnder = [this](const char* name, QString& warning, int& added) {
        AddCustomPartDialog dialog(part, &document, nullptr, "add", true);
        QSignalSpy spy(&dialog, &AddCustomPartDialog::partAddedToNodeDb);
        dialog.show();
        QTest::keyClicks(editOf(dialog, "name"), name);
        editOf(dialog, "label")->setText("Night lamp");
        QTimer::singleShot(0, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                warning = box->windowTitle() + ": " + box->text();
                box->accept();
            }
        });
        QTest::keyClick(editOf(dialog, "label"), Qt::Key_Return);
        QCoreApplication::processEvents();
        added = static_cast<int>(spy.count());
        return dialog.isVisible();
    };
    QString warning;
    int added = 0;
    EXPECT_FALSE(addUnder("night-lamp", warning, added));
    EXPECT_EQ(warning, QString());
    EXPECT_EQ(added, 1);
    EXPECT_TRUE(document.getNodeDb()->hasPrototype(getCidForString("electronics/night-lamp")));
    EXPECT_EQ(document.getMetaLabelForCID(getCidForString("electronics/night-lamp")), QString("Night lamp"));
    EXPECT_TRUE(addUnder("night-lamp", warning, added));
    EXPECT_EQ(warning, QString("Add custom part: The part id night-lamp is already in use.\nPlease enter another id"));
    EXPECT_EQ(added, 0);
}

TEST_F(AddCustomPartTest, CancelAddsNothing)
{
    AddCustomPartDialog dialog(part, &document, nullptr, "add", true);
    dialog.show();
    QTest::keyClicks(editOf(dialog, "name"), "cancelled");
    QTest::mouseClick(buttonOf(dialog, "&Cancel"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(document.getNodeDb()->hasPrototype(getCidForString("electronics/cancelled")));
}

TEST_F(AddCustomPartDeathTest, NeedsPartAndDocument)
{
    EXPECT_DEATH(AddCustomPartDialog(nullptr, &document, nullptr, "", true), "ZK_ASSERT: \"m_part && m_document\"");
    EXPECT_DEATH(AddCustomPartDialog(part, nullptr, nullptr, "", true), "ZK_ASSERT: \"m_part && m_document\"");
    EXPECT_DEATH(GetCustomPartLabel(nullptr, nullptr, "", true).getLabel(), "ZK_ASSERT: \"isDataValid\\(\\)\"");
}

TEST(GetCustomPartLabelTest, UndoesWhatIsNoLabel)
{
    DocumentImpl document;
    PartImpl* part = addPart(document, "electronics/led");
    EXPECT_EQ(GetCustomPartLabel(part, nullptr, "get", true).getLabel(), QString("LED"));
    set(property(part, "title"), Value(QString("Twenty letters long.")));
    GetCustomPartLabel dialog(part, nullptr, "get", true);
    QLineEdit* edit = editOf(dialog, "label");
    QPushButton* save = buttonOf(dialog, "&Save Part");
    EXPECT_EQ(dialog.width(), 300);
    EXPECT_EQ(edit->text(), QString("Twenty letters long."));
    EXPECT_TRUE(save->isEnabled());
    QApplication::clipboard()->setText(QString(150, 'x'));
    edit->selectAll();
    edit->paste();
    EXPECT_EQ(edit->text(), QString("Twenty letters long."));
    edit->clear();
    EXPECT_FALSE(save->isEnabled());
    QTest::keyClicks(edit, " ");
    EXPECT_EQ(edit->text(), QString());
    edit->setText(QString(100, 'y'));
    QTest::keyClicks(edit, "z");
    EXPECT_EQ(edit->text(), QString(100, 'y'));
    dialog.show();
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), static_cast<int>(QDialog::Accepted));
    EXPECT_EQ(dialog.getLabel(), QString(100, 'y'));
}
