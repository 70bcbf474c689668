// What authors of forms are told.
#include "zkeditor/formChecker.h"
#include "tests/support/brokenForms.h"
#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/package.h"
#include "zkeditor/coreWidgetFactory.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/paletteBoxSection.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace {

class FormCheckerTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (Package::findByClassID(getCidForString("broken/part")))
            return;
        static const QTemporaryDir folder;
        QString error;
        ASSERT_TRUE(Package::load(writeBrokenForms(folder.path()), error)) << error.toStdString();
    }

    const NodeDb& classes() const { return *document.getNodeDb(); }

    static QStringList messages(const std::vector<FormFinding>& findings, const QString& file)
    {
        QStringList texts;
        for (const FormFinding& finding : findings)
            texts.append(finding.message(file));
        return texts;
    }

    DocumentImpl document;
};

} // namespace

TEST_F(FormCheckerTest, FindsNothingInTheFormsOfThePackages)
{
    int count = 0;
    for (QDirIterator it(QStringLiteral(":/zk/packages"), {QStringLiteral("*.ui")}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext(); ++count) {
        QFile file(it.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString name = file.fileName().section(QLatin1Char('/'), 3).chopped(3);
        const auto users = FormChecker::classesThatShow(name, classes());
        EXPECT_FALSE(users.empty()) << name.toStdString();
        EXPECT_EQ(messages(FormChecker(file.readAll()).checkAll(users, classes()), name), QStringList());
    }
    EXPECT_GT(count, 30);
}

TEST_F(FormCheckerTest, NamesEveryFaultAndItsPlace)
{
    const MessageCapture warnings;
    for (const BrokenForm& form : brokenForms()) {
        QElapsedTimer timer;
        timer.start();
        const auto users =
            FormChecker::classesThatShow(QStringLiteral("broken/forms/") + QLatin1String(form.name), classes());
        ASSERT_EQ(users.size(), 1U) << form.name;
        const FormChecker checker(form.bytes);
        EXPECT_EQ(messages(checker.checkAll(users, classes()), QLatin1String(form.name) + QStringLiteral(".ui")),
                  form.messages)
            << form.name;
        EXPECT_LT(timer.elapsed(), 2000) << form.name;
    }
    EXPECT_EQ(warnings.texts(), QStringList());
}

// A control that would end the program over a property ends this test.
TEST_F(FormCheckerTest, WhatItFindsNoErrorInCanBeBound)
{
    const MessageCapture warnings; // observers have their own to say
    int bound = 0;
    int refused = 0;
    for (const char* id : {"broken/empty", "core/gallery"}) {
        const NodePrototype* prototype = classes().lookupPrototype(getCidForString(id));
        ASSERT_TRUE(prototype) << id;
        PartImpl* part = addPart(document, id);
        for (const QString& className : CoreWidgetFactory::classNames()) {
            for (const PropertyDefinition& property : prototype->properties()) {
                const QString form =
                    QStringLiteral("<ui version=\"4.0\"><widget class=\"PaletteBoxSection\" name=\"Form\">"
                                   "<widget class=\"%1\" name=\"control\"><property name=\"modelProperty\"><string>%2"
                                   "</string></property><property name=\"onValue\"><string>a</string></property>"
                                   "<property name=\"offValue\"><string>b</string></property></widget></widget></ui>")
                        .arg(className, property.key.toString());
                const FormChecker checker(form.toUtf8());
                if (FormChecker::hasErrors(checker.checkAll({prototype}, classes()))) {
                    ++refused;
                    continue;
                }
                const auto entry = std::make_shared<LocalREntry>("local/form", Resource::FORM, form.toUtf8(), "ui");
                const std::unique_ptr<QWidget> made(loadUIFromResource(Resource(entry), nullptr));
                auto* section = qobject_cast<PaletteBoxSection*>(made.get());
                ASSERT_TRUE(section) << className.toStdString();
                section->setupPaneWidgets(&document, {part});
                PaneWidget::unbindChildren(section);
                ++bound;
            }
        }
    }
    EXPECT_GT(bound, 500);
    EXPECT_GT(refused, 500);
}

TEST_F(FormCheckerTest, SaysOnceWhatHoldsForManyClasses)
{
    const QByteArray form = "<ui version=\"4.0\"><widget class=\"PaletteBoxSection\" name=\"Form\">"
                            "<widget class=\"ObserverLabel\" name=\"label\"><property name=\"modelProperty\">"
                            "<string>forward-voltage</string></property></widget></widget></ui>";
    std::vector<const NodePrototype*> prototypes;
    for (const char* id : {"electronics/led", "broken/empty", "broken/deep", "broken/crowd", "broken/garbage"})
        prototypes.push_back(classes().lookupPrototype(getCidForString(id)));
    EXPECT_EQ(messages(FormChecker(form).checkAll(prototypes, classes()), "x"),
              QStringList("x:1: error: widget 'label' (ObserverLabel): property 'modelProperty': there is no property "
                          "\"forward-voltage\" to bind [broken/empty, broken/deep, broken/crowd + 1]"));
}

TEST_F(FormCheckerTest, FormsOfScenesAndDomainsKnowNoSubparts)
{
    const auto check = [this](const char* id, const QByteArray& content) {
        const FormChecker checker("<ui version=\"4.0\"><widget class=\"PaletteBoxSection\" name=\"Form\">" + content +
                                  "</widget></ui>");
        EXPECT_TRUE(checker.findings().empty());
        return messages(checker.check(*classes().lookupPrototype(getCidForString(id)), classes()), "x");
    };
    const QByteArray title = "<widget class=\"ObserverLineEdit\" name=\"title\"><property name=\"modelProperty\">"
                             "<string>title</string></property><property name=\"subpart\"><string>nothing</string>"
                             "</property></widget>";
    EXPECT_EQ(check("core/scene", title), QStringList());
    EXPECT_EQ(
        check("flowcharts/*", title),
        QStringList("x:1: error: widget 'title' (ObserverLineEdit): property 'modelProperty': there is no property "
                    "\"title\" to bind [flowcharts/*]"));
    const QByteArray source = "<widget class=\"ObserverGroupBox\" name=\"box\"><widget class=\"SubpartListView\" "
                              "name=\"list\"/></widget>";
    EXPECT_EQ(check("core/popup", source),
              QStringList("x:1: error: widget 'list' (SubpartListView): scenes and pop-ups have no subparts to choose "
                          "from [core/popup]"));
}

TEST_F(FormCheckerTest, KeepsTheErrorsOfAFormInWhichNearlyEverythingIsWrong)
{
    QByteArray content;
    for (int i = 0; i < 500; ++i)
        content += "<widget class=\"QLabel\" name=\"same\"/>\n";
    const FormChecker checker("<ui version=\"4.0\"><widget class=\"PaletteBoxSection\" name=\"Form\">\n" + content +
                              "<widget class=\"Nothing\" name=\"last\"/></widget></ui>");
    EXPECT_EQ(checker.findings().size(), static_cast<size_t>(FormChecker::maximumFindings));
    EXPECT_EQ(checker.findings().back().message("x"), "x:502: error: widget 'last' (Nothing): there is no such class");
    EXPECT_TRUE(FormChecker::hasErrors(checker.findings()));
}
