#include "zkeditor/widgets/mnemonics.h"

#include "zkeditor/formLoader.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <gtest/gtest.h>

TEST(MnemonicsTest, OnlyTheMarkOfATakenLetterGoes)
{
    const QString taken = QStringLiteral("FÖ");
    EXPECT_EQ(mnemonics::without(QStringLiteral("A &form"), taken), "A form");
    EXPECT_EQ(mnemonics::without(QStringLiteral("R && &F"), taken), "R && F");
    EXPECT_EQ(mnemonics::without(QStringLiteral("&öffnen"), taken), QStringLiteral("öffnen"));
    for (const char* text : {"&A form", "R &&Form", "F", "&", "", "F&"})
        EXPECT_EQ(mnemonics::without(QLatin1String(text), taken), QLatin1String(text));
}

TEST(MnemonicsTest, LoadedFormsDoWithoutTheReservedOnes)
{
    const QByteArray form = R"(<ui version="4.0"><class>f</class><widget class="QWidget" name="f">
        <layout class="QVBoxLayout"><item><widget class="QLabel" name="l"><property name="text"><string>&amp;First</string>
        </property><property name="buddy"><cstring>c</cstring></property></widget></item>
        <item><widget class="QLabel" name="plain"><property name="text"><string>&amp;F</string></property></widget></item>
        <item><widget class="QCheckBox" name="c"><property name="text"><string>So&amp;und</string></property></widget></item>
        <item><widget class="QGroupBox" name="g"><property name="title"><string>O&amp;ff</string></property></widget></item>
        </layout></widget></ui>)";
    mnemonics::reserve(QStringLiteral("F"));
    const std::unique_ptr<QWidget> loaded(FormLoader::instance().loadForm(form, nullptr));
    mnemonics::reserve({});
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->findChild<QLabel*>("l")->text(), "First");
    EXPECT_EQ(loaded->findChild<QLabel*>("plain")->text(), "&F"); // no letter without a buddy: it is shown so
    EXPECT_EQ(loaded->findChild<QCheckBox*>()->text(), "So&und");
    EXPECT_EQ(loaded->findChild<QGroupBox*>()->title(), "Off");
}
