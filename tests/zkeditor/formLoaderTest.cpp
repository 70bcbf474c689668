#include "zkeditor/formLoader.h"
#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/media/resourceEntry.h"
#include "zkeditor/coreWidgetFactory.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/confirmingObserverCheckbox.h"
#include "zkeditor/widgets/groupBox.h"
#include "zkeditor/widgets/groupRadioButton.h"
#include "zkeditor/widgets/observerButton.h"
#include "zkeditor/widgets/observerStringCheckbox.h"
#include "zkeditor/widgets/paletteBoxSection.h"

#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace {

Resource formResource(const QByteArray& xml)
{
    return Resource(std::make_shared<LocalREntry>("local/form", Resource::FORM, xml, "ui"));
}

QByteArray formXml(const QByteArray& content)
{
    return "<?xml version=\"1.0\"?><ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" +
           content + "</widget></ui>";
}

std::unique_ptr<QWidget> loadForm(const QByteArray& content)
{
    return std::unique_ptr<QWidget>(loadUIFromResource(formResource(formXml(content)), nullptr));
}

} // namespace

TEST(FormLoaderTest, MakesTheLibrarysWidgetsWithTheirProperties)
{
    const MessageCapture messages;
    const auto form = loadForm(R"(
        <widget class="PaletteBoxSection" name="section">
         <property name="label"><string>Light</string></property>
         <property name="open"><bool>false</bool></property>
         <widget class="ObserverButton" name="button">
          <property name="modelProperty"><string>name</string></property>
          <property name="subpart"><string>controls</string></property>
          <property name="mode"><enum>ObserverButton::STRING</enum></property>
          <property name="onValue"><string>a</string></property>
          <property name="invertBool"><bool>true</bool></property>
         </widget>
         <widget class="ConfirmingObserverCheckBox" name="confirm">
          <property name="text"><string>Sure</string></property>
          <property name="invertModelValue"><bool>true</bool></property>
          <property name="supportsMultipleProps"><bool>false</bool></property>
          <property name="confirmOffQuestion"><string>Off?</string></property>
         </widget>
         <widget class="ObserverStringCheckBox" name="strings">
          <property name="offValue"><string>no</string></property>
         </widget>
        </widget>
        <widget class="GroupBox" name="group">
         <property name="activateString"><string>Fast</string></property>
         <layout class="QVBoxLayout" name="column">
          <item><widget class="RadioButton" name="radio"/></item>
          <item><widget class="ObserverCheckBox" name="check"/></item>
         </layout>
        </widget>)");
    ASSERT_TRUE(form);
    EXPECT_EQ(messages.texts(), QStringList());

    const auto* section = form->findChild<PaletteBoxSection*>("section");
    ASSERT_TRUE(section);
    EXPECT_EQ(section->label(), QString("Light"));
    EXPECT_FALSE(section->open());
    const auto* button = section->findChild<ObserverButton*>("button");
    ASSERT_TRUE(button);
    EXPECT_EQ(button->modelProperty(), QString("name"));
    EXPECT_EQ(button->subpartId(), QString("controls"));
    EXPECT_EQ(button->mode(), ObserverButton::STRING);
    EXPECT_TRUE(button->isCheckable());
    EXPECT_EQ(button->onValue(), QString("a"));
    EXPECT_TRUE(button->offValue().isNull());
    EXPECT_TRUE(button->property("invertBool").toBool());
    const auto* confirm = form->findChild<ConfirmingObserverCheckBox*>("confirm");
    ASSERT_TRUE(confirm);
    EXPECT_EQ(confirm->text(), QString("Sure"));
    EXPECT_TRUE(confirm->invertModelValue());
    EXPECT_FALSE(confirm->supportsMultipleProps());
    EXPECT_EQ(confirm->confirmOffQuestion(), QString("Off?"));
    EXPECT_TRUE(confirm->confirmOnQuestion().isNull());
    const auto* strings = form->findChild<ObserverStringCheckBox*>("strings");
    ASSERT_TRUE(strings);
    EXPECT_EQ(strings->offValue(), QString("no"));
    EXPECT_EQ(strings->text(), QString("Checkbox"));
    const auto* group = form->findChild<GroupBox*>("group");
    ASSERT_TRUE(group);
    EXPECT_EQ(group->activateString(), QString("Fast"));
    EXPECT_TRUE(group->findChild<RadioButton*>("radio"));
    EXPECT_TRUE(group->findChild<ObserverCheckBox*>("check"));
}

TEST(FormLoaderTest, FactoryKnowsItsOwnNamesOnly)
{
    CoreWidgetFactory factory;
    for (const char* name : {"QCheckBox", "observercheckbox", "ObserverCheckBox ", "", "PropertyObserver"})
        EXPECT_EQ(factory.createWidget(name, nullptr, "x"), nullptr) << name;
    QWidget parent;
    const QWidget* made = factory.createWidget("ObserverCheckBox", &parent, "x");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->parentWidget(), &parent);
    EXPECT_EQ(made->objectName(), QString("x"));
}

TEST(FormLoaderTest, UnknownClassesBecomeWhatTheyExtend)
{
    const MessageCapture messages;
    const auto form = std::unique_ptr<QWidget>(loadUIFromResource(
        formResource("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\">"
                     "<widget class=\"FancyLabel\" name=\"fancy\"><property name=\"text\"><string>T</string></property>"
                     "</widget><widget class=\"Nothing\" name=\"nothing\"/></widget><customwidgets><customwidget>"
                     "<class>FancyLabel</class><extends>QLabel</extends></customwidget></customwidgets></ui>"),
        nullptr));
    ASSERT_TRUE(form);
    const auto* fancy = form->findChild<QLabel*>("fancy");
    ASSERT_TRUE(fancy);
    EXPECT_EQ(fancy->text(), QString("T"));
    EXPECT_FALSE(form->findChild<QWidget*>("nothing"));
}

TEST(FormLoaderTest, EveryFormUsesTheOneFactory)
{
    EXPECT_TRUE(loadForm(""));
    const auto factories = FormLoader::instance().factories();
    EXPECT_EQ(factories.size(), 1);
    EXPECT_TRUE(loadForm(""));
    EXPECT_EQ(FormLoader::instance().factories(), factories);
}

TEST(FormLoaderTest, BadResourcesAreAWarning)
{
    const Resource image(std::make_shared<LocalREntry>("local/image", Resource::IMAGE, formXml(""), "ui"));
    for (const Resource& bad : {Resource(), Resource("no/such/form"), image}) {
        const MessageCapture messages;
        EXPECT_EQ(loadUIFromResource(bad, nullptr), nullptr);
        EXPECT_EQ(messages.texts(), QStringList("loadUIFromResource passed bad resource"));
    }
}

TEST(FormLoaderTest, BadFormsGiveNothing)
{
    const QByteArray nested =
        QByteArray("<widget class=\"QWidget\">").repeated(20000) + QByteArray("</widget>").repeated(20000);
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("no form"), QByteArray("<ui version=\"4.0\"><widget class=\"QWidget\">"),
          QByteArray("<html/>"), QByteArray("<ui version=\"4.0\"/>"), formXml(nested),
          QByteArray("<ui version=\"4.0\"><widget class=\"NoSuchClass\" name=\"x\"/></ui>")}) {
        const MessageCapture messages;
        EXPECT_EQ(loadUIFromResource(formResource(bad), nullptr), nullptr) << bad.left(60).toStdString();
        EXPECT_EQ(messages.texts(QtFatalMsg), QStringList());
    }
}

TEST(FormLoaderTest, LoadedFormEditsADocument)
{
    ASSERT_TRUE(loadTestKit());
    DocumentImpl document;
    PartImpl* box = addPart(document, "testkit/box");
    PartImpl* lamp = addPart(document, "testkit/lamp");
    const auto form =
        loadForm("<widget class=\"PaletteBoxSection\" name=\"section\"><widget class=\"ObserverCheckBox\" "
                 "name=\"check\"><property name=\"modelProperty\"><string>on</string></property>"
                 "</widget></widget>");
    ASSERT_TRUE(form);
    form->findChild<PaletteBoxSection*>()->setupPaneWidgets(&document, {box, lamp});
    auto* check = form->findChild<ObserverCheckBox*>();
    const QByteArray before = bytesOf(document);
    QTest::keyClick(check, Qt::Key_Space);
    EXPECT_TRUE(property(box, "on")->getValue().toBool());
    EXPECT_TRUE(property(lamp, "on")->getValue().toBool());
    document.undo();
    EXPECT_EQ(bytesOf(document), before);
    EXPECT_FALSE(check->isChecked());
}
