// What the classes that forms use are like.
#include "zkeditor/formClasses.h"

#include "zkeditor/coreWidgetFactory.h"
#include "zkeditor/formLoader.h"

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QColumnView>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDateTimeEdit>
#include <QDial>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFontComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QGraphicsView>
#include <QGridLayout>
#include <QGroupBox>
#include <QHash>
#include <QKeySequenceEdit>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTextEdit>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QUndoView>
#include <QWidget>
#include <QWizard>

namespace {

template <typename... Classes> QHash<QString, const QMetaObject*> metaObjectsByName()
{
    return {{QString::fromLatin1(Classes::staticMetaObject.className()), &Classes::staticMetaObject}...};
}

/// All widgets that the toolkit itself makes for forms.
const QHash<QString, const QMetaObject*>& toolkitWidgets()
{
    static const QHash<QString, const QMetaObject*> table = metaObjectsByName<
        QAbstractScrollArea, QAbstractSlider, QAbstractSpinBox, QCalendarWidget, QCheckBox, QColumnView, QComboBox,
        QCommandLinkButton, QDateEdit, QDateTimeEdit, QDial, QDialog, QDialogButtonBox, QDockWidget, QDoubleSpinBox,
        QFontComboBox, QFrame, QGraphicsView, QGroupBox, QKeySequenceEdit, QLCDNumber, QLabel, QLineEdit, QListView,
        QListWidget, QMainWindow, QMdiArea, QMenu, QMenuBar, QPlainTextEdit, QProgressBar, QPushButton, QRadioButton,
        QScrollArea, QScrollBar, QSlider, QSpinBox, QSplitter, QStackedWidget, QStatusBar, QTabWidget, QTableView,
        QTableWidget, QTextBrowser, QTextEdit, QTimeEdit, QToolBar, QToolBox, QToolButton, QTreeView, QTreeWidget,
        QUndoView, QWidget, QWizard, QWizardPage>();
    return table;
}

const QHash<QString, const QMetaObject*>& otherFormObjects()
{
    static const QHash<QString, const QMetaObject*> table =
        metaObjectsByName<QGridLayout, QHBoxLayout, QVBoxLayout, QFormLayout, QStackedLayout, QAction, QButtonGroup>();
    return table;
}

} // namespace

const QMetaObject* formClasses::widget(const QString& className)
{
    static CoreWidgetFactory core;
    if (const QMetaObject* own = core.metaObjectOf(className))
        return own;
    for (FormFactory* factory : FormLoader::instance().factories()) {
        if (const QMetaObject* found = factory->metaObjectOf(className))
            return found;
    }
    if (className == QLatin1String("Line"))
        return &QFrame::staticMetaObject;
    return toolkitWidgets().value(className);
}

const QMetaObject* formClasses::other(const QString& className)
{
    return otherFormObjects().value(className);
}

bool formClasses::inherits(const QMetaObject* metaObject, const char* className)
{
    for (; metaObject; metaObject = metaObject->superClass())
        if (qstrcmp(metaObject->className(), className) == 0)
            return true;
    return false;
}

QStringList formClasses::knownWidgets()
{
    QStringList names = CoreWidgetFactory::classNames();
    names += toolkitWidgets().keys();
    names.append(QStringLiteral("Line"));
    names.sort();
    return names;
}
