#include "languageFixture.h"

#include "tests/support/testDocument.h"
#include "zkauthor/documentFiles.h"
#include "zkauthor/palettes.h"
#include "zkauthor/partHelp.h"
#include "zkcore/services/languages.h"
#include "zkeditor/inspector.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/settingsService.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/paletteBox.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>

namespace {

void openAllSections(const QWidget& palette)
{
    for (int pass = 0; pass < 2; ++pass) {
        for (PaletteBox* box : palette.findChildren<PaletteBox*>()) {
            for (int i = 0; i < box->count(); ++i)
                box->showItem(i, true);
        }
        QApplication::processEvents();
    }
}

} // namespace

void LanguageFixture::SetUp()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    if (!SettingsService::exists()) {
        // There is one for the process, and it wants a window that stays.
        static auto* const owner = new QMainWindow;
        owner->setObjectName(QStringLiteral("settingsOwner"));
        SettingsService::createService(owner, QStringLiteral("zkauthor"), QSettings::UserScope);
    }
}

void LanguageFixture::TearDown()
{
    m_session.reset();
    Languages::use(QStringLiteral("en_GB"));
}

void LanguageFixture::start(const QString& locale, const char* sample)
{
    m_session.reset();
    Languages::use(locale);
    open(sample);
}

void LanguageFixture::open(const char* sample)
{
    m_session = std::make_unique<Session>();
    const QString name = QLatin1String(sample) + QStringLiteral(".zkdoc");
    const QString file = m_folder.filePath(name);
    QFile::remove(file);
    ASSERT_TRUE(QFile::copy(QStringLiteral(ZK_SOURCE_DIR "/samples/") + name, file));
    ASSERT_TRUE(QFile(file).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QString error;
    ASSERT_TRUE(window().openFile(file, error)) << error.toStdString();
    window().show();
    QApplication::processEvents();
}

void LanguageFixture::select(const QStringList& ids)
{
    QString error;
    ASSERT_TRUE(window().selectParts(ids, error)) << error.toStdString();
    QApplication::processEvents();
    QApplication::processEvents();
}

void LanguageFixture::visitNextDialog(const QString& name, const Visit& visit)
{
    QTimer::singleShot(50, &window(), [name, visit] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog) << name.toStdString();
        visit(*dialog, name);
        if (auto* box = qobject_cast<QMessageBox*>(dialog))
            box->button(QMessageBox::Cancel)->click();
        else
            dialog->close();
    });
}

void LanguageFixture::visitAll(const Visit& visit)
{
    const auto docks = window().findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    Palettes* palettes = window().palettes();
    SidePane* pane = palettes->sidePane();
    for (QMenu* menu : window().findChildren<QMenu*>())
        Q_EMIT menu->aboutToShow();
    // One palette at a time, as all of them together have no room.
    for (QDockWidget* shown : docks) {
        for (QDockWidget* dock : docks)
            dock->setVisible(dock == shown);
        QApplication::processEvents();
        visit(window(), QStringLiteral("window with ") + shown->objectName());
    }
    for (QDockWidget* dock : docks)
        dock->setVisible(dock == pane);

    palettes->showInspector();
    QApplication::processEvents();
    for (Inspector* inspector : window().findChildren<Inspector*>()) {
        visit(*inspector, QStringLiteral("inspector"));
        inspector->hide();
    }

    pane->showSection(SidePane::PartsTreePane, false);
    pane->showSection(SidePane::PropertiesPane, true);
    PropPalette* properties = palettes->properties();
    for (const NodePrototype* prototype : document().getNodeDb()->prototypes()) {
        if (prototype->kind != NodeKind::Part || prototype->abstract || prototype->placeholder)
            continue;
        const QString cid = findStringForCid(prototype->cid);
        document().setSelection({addPart(document(), cid.toUtf8().constData())});
        QApplication::processEvents();
        openAllSections(*properties);
        visit(*properties, cid);
    }
    properties->showSpaceProperties();
    QApplication::processEvents();
    openAllSections(*properties);
    visit(*properties, QStringLiteral("scene"));

    PartImpl* part = addPart(document(), "electronics/led");
    document().setSelection({part});
    QApplication::processEvents();
    showPartHelp(&window(), document());
    for (QDialog* help : window().findChildren<QDialog*>()) {
        if (help->isVisible())
            visit(*help, QStringLiteral("help"));
        help->close();
    }
    for (const char* name : {"preferences", "licence", "about", "page-setup", "save-custom-part"}) {
        auto* action = window().findChild<QAction*>(QLatin1String(name));
        ASSERT_TRUE(action && action->isEnabled()) << name;
        visitNextDialog(QLatin1String(name), visit);
        action->trigger();
    }
    visitNextDialog(QStringLiteral("question"), visit);
    EXPECT_FALSE(window().files()->mayDiscard());
}

QString LanguageFixture::translated(const char* file, const char* context, const char* source)
{
    for (const TranslationMessage& message : translationsOf(QLatin1String(file))) {
        if (message.context == QLatin1String(context) && message.source == QLatin1String(source))
            return message.translations.value(0);
    }
    return {};
}
