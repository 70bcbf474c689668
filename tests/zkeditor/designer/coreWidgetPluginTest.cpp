// The plug-in as the form designer meets it: a file that is loaded.
#include "tests/support/messageCapture.h"

#include <QCoreApplication>
#include <QIcon>
#include <QLibrary>
#include <QMetaObject>
#include <QPluginLoader>
#include <QWidget>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <gtest/gtest.h>
#include <memory>

namespace {

const QString pluginFile = QStringLiteral(ZK_BINARY_DIR "/lib/designer/zkdesigner.so");

struct Row
{
    const char* key;
    const char* includeFile;
    const char* toolTip;
    const char* whatsThis;
};

const char* const same = "the tool tip again";

// What form authors read in the widget box.
const Row rows[] = {
    {"GroupBox", "groupBox.h", "A custom group box",
     "A custom group box. setEnabled/Disabled/Shown/Hidden methods are connectable to text changed signals"},
    {"GroupRadioButton", "groupRadioButton.h", "A radio button that may contain children",
     "A radio button that may contain children. GroupRadioButtons should be placed in an ObserverRadioGroup"},
    {"SubpartComboBox", "subpartCombobox.h", "A subpart combo box",
     "A combo box which contains subparts of the specified role"},
    {"SubpartListView", "subpartListView.h", "A subpart list box",
     "A list box which contains subparts of the specified role"},
    {"ObserverGroupBox", "observerGroupBox.h", "A group box to associate with a subpart or property list box", same},
    {"PaletteBoxSection", "paletteBoxSection.h", "Control Panel Section", "Palette box section"},
    {"ObserverButton", "observerButton.h", "Push Button", "An observer push button"},
    {"ObserverCheckBox", "observerCheckbox.h", "Check Box", "An observer checkbox"},
    {"ConfirmingObserverCheckBox", "confirmingObserverCheckbox.h", "Confirming Check Box",
     "An observer checkbox that can ask confirmation questions."},
    {"ObserverStringCheckBox", "", "", ""},
    {"ResourceChooser", "resourceChooser.h", "Resource Chooser", "An observer resource chooser"},
    {"ObserverColorPicker", "observerColorpicker.h", "ColorPicker", "An observer color picker"},
    {"ObserverComboBox", "observerCombobox.h", "ComboBox",
     "An observer combo box - supports string, int, double, point and complex value types"},
    {"ObserverLabel", "observerLabel.h", "Text Label",
     "An observer text label - supports string, int, double, point, complex value types"},
    {"ObserverLineEdit", "observerLineEdit.h", "Single Line Edit",
     "An observer single line edit box - supports string, int, double, point, complex value types"},
    {"ObserverPoint", "observerPoint.h", "Point observer", "A point observer"},
    {"ObserverRadioGroup", "observerRadiogroup.h", "Group of radio buttons",
     "A group of radio buttons - supports string, int, double, point and complex value types"},
    {"ObserverSlider", "observerSlider.h", "An integer/double slider", same},
    {"ObserverSpinBox", "observerSpinbox.h", "An integer/double Spinbox", "An integer/double spinbox"},
    {"UnitChooser", "unitChooser.h", "An unit choooser", "Allows setting of a Property's unit"},
    {"RadioButton", "groupRadioButton.h", "A radio button for use in ObserverRadioGroups", same},
    {"ValueMapListBox", "valueMapListBox.h", "Lists the keys and values of a Property's ValueMap", same},
    {"ResourceListBox", "resourceListBox.h", "Lists the resources in a Resource array", same},
    {"FontChooser", "fontChooser.h", "Opens a font dialog", same},
    {"PropertyListBox", "propertyListBox.h", "Lists Properties on a part", same},
    {"PropertyLabel", "propertyLabel.h", "Displays the user visible label of a property", same},
    {"ResourceDropdown", "resourceDropdown.h", "Choose a resource from a fixed set", same},
};

const QStringList containers = {"GroupBox", "GroupRadioButton", "ObserverGroupBox", "PaletteBoxSection",
                                "ObserverRadioGroup"};

QStringList tableKeys()
{
    QStringList keys;
    for (const Row& row : rows)
        keys.append(QString::fromLatin1(row.key));
    return keys;
}

template <typename Result> Result ask(QObject* plugin, const char* operation, const QString& key)
{
    Result result{};
    EXPECT_TRUE(QMetaObject::invokeMethod(plugin, operation, Qt::DirectConnection,
                                          QReturnArgument<Result>(QMetaType::fromType<Result>().name(), result),
                                          Q_ARG(QString, key)));
    return result;
}

} // namespace

TEST(CoreWidgetPlugin, OffersEveryWidgetOfItsTable)
{
    const MessageCapture messages;
    QPluginLoader loader(pluginFile);
    QObject* plugin = loader.instance();
    ASSERT_TRUE(plugin) << loader.errorString().toStdString();
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin);
    ASSERT_TRUE(collection);
    QStringList keys;
    ASSERT_TRUE(QMetaObject::invokeMethod(plugin, "keys", Q_RETURN_ARG(QStringList, keys)));
    EXPECT_EQ(keys, tableKeys());
    const QList<QDesignerCustomWidgetInterface*> widgets = collection->customWidgets();
    ASSERT_EQ(widgets.size(), 27);
    QWidget parent;
    for (int i = 0; i < widgets.size(); ++i) {
        const Row& row = rows[i];
        QDesignerCustomWidgetInterface* widget = widgets[i];
        EXPECT_EQ(widget->name(), QString(row.key));
        EXPECT_EQ(widget->group(), QString("Velmor"));
        EXPECT_EQ(widget->includeFile(), QString(row.includeFile)) << row.key;
        EXPECT_EQ(widget->toolTip(), QString(row.toolTip)) << row.key;
        EXPECT_EQ(widget->whatsThis(), QString(row.whatsThis == same ? row.toolTip : row.whatsThis)) << row.key;
        EXPECT_EQ(widget->isContainer(), containers.contains(row.key)) << row.key;
        EXPECT_EQ(widget->icon().actualSize(QSize(100, 100)), QSize(32, 32)) << row.key;
        const QWidget* made = widget->createWidget(&parent);
        ASSERT_TRUE(made) << row.key;
        EXPECT_EQ(made->parentWidget(), &parent);
        EXPECT_STREQ(made->metaObject()->className(), row.key);
    }
    EXPECT_EQ(messages.texts(), QStringList());
}

TEST(CoreWidgetPlugin, AnswersForClassesItDoesNotKnow)
{
    QPluginLoader loader(pluginFile);
    QObject* plugin = loader.instance();
    ASSERT_TRUE(plugin);
    EXPECT_EQ(ask<QString>(plugin, "group", "NoSuchThing"), QString("Velmor"));
    EXPECT_FALSE(ask<QIcon>(plugin, "iconSet", "NoSuchThing").isNull());
    for (const char* text : {"includeFile", "toolTip", "whatsThis"})
        EXPECT_EQ(ask<QString>(plugin, text, "NoSuchThing"), QString()) << text;
    EXPECT_FALSE(ask<bool>(plugin, "isContainer", "NoSuchThing"));
    QWidget parent;
    QWidget* made = &parent;
    EXPECT_TRUE(QMetaObject::invokeMethod(plugin, "create", Q_RETURN_ARG(QWidget*, made), Q_ARG(QString, "QLabel"),
                                          Q_ARG(QWidget*, nullptr), Q_ARG(QString, "x")));
    EXPECT_EQ(made, nullptr);
}

TEST(CoreWidgetPlugin, HasPlainEntryPoints)
{
    using Instantiate = QDesignerCustomWidgetCollectionInterface* (*)();
    using Verify = const char* (*)();
    const auto instantiate = reinterpret_cast<Instantiate>(QLibrary::resolve(pluginFile, "ucm_instantiate"));
    ASSERT_TRUE(instantiate);
    const std::unique_ptr<QDesignerCustomWidgetCollectionInterface> made(instantiate());
    ASSERT_TRUE(made);
    EXPECT_EQ(made->customWidgets().size(), 27);
    const auto verify = reinterpret_cast<Verify>(QLibrary::resolve(pluginFile, "qt_ucm_query_verification_data"));
    ASSERT_TRUE(verify);
    EXPECT_STREQ(verify(), "pattern=QT_UCM_VERIFICATION_DATA\nversion=3.3.2\nflags=11\nbuildkey=unspecified");
}

TEST(CoreWidgetPlugin, ServesTheFormDesigner)
{
    QCoreApplication::addLibraryPath(QStringLiteral(ZK_BINARY_DIR "/lib"));
    const std::unique_ptr<QDesignerFormEditorInterface> editor(QDesignerComponents::createFormEditor(nullptr));
    QDesignerComponents::initializePlugins(editor.get());
    QDesignerWidgetDataBaseInterface* known = editor->widgetDataBase();
    for (const Row& row : rows) {
        const int index = known->indexOfClassName(row.key);
        ASSERT_GE(index, 0) << row.key;
        const QDesignerWidgetDataBaseItemInterface* item = known->item(index);
        EXPECT_EQ(item->group(), QString("Velmor"));
        EXPECT_EQ(item->includeFile(), QString(row.includeFile)) << row.key;
        EXPECT_EQ(item->isContainer(), containers.contains(row.key)) << row.key;
        EXPECT_TRUE(item->extends().startsWith('Q')) << row.key;
    }
}
