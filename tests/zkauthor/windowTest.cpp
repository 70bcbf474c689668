#include "windowTest.h"

#include "tests/support/testDocument.h"
#include "zkauthor/palettes.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkeditor/settingsService.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QUndoStack>

void WindowTest::SetUp()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path("settings"));
    if (!SettingsService::exists()) {
        // There is one for the process, and it wants a window that stays.
        static auto* const owner = new QMainWindow;
        owner->setObjectName(QStringLiteral("settingsOwner"));
        SettingsService::createService(owner, QStringLiteral("zkauthor"), QSettings::UserScope);
    }
    DocumentImpl sample;
    PartImpl* cell = addPart(sample, "electronics/battery", {0.05, 0.05});
    PartImpl* lamp1 = addPart(sample, "electronics/led", {0.09, 0.05});
    PartImpl* lamp2 = addPart(sample, "electronics/led", {0.13, 0.05});
    set(property(cell, "id"), Value(QStringLiteral("cell")));
    set(property(lamp1, "id"), Value(QStringLiteral("lamp1")));
    set(property(lamp2, "id"), Value(QStringLiteral("lamp2")));
    PartImpl* wire = addPart(sample, "electronics/wire");
    set(property(wire, "id"), Value(QStringLiteral("wire")));
    set(property(wire, "from"), Value(Node(cell->getChildrenWithRole(RoleSet(QStringLiteral("pins"))).front())));
    set(property(wire, "to"), Value(Node(lamp1->getChildrenWithRole(RoleSet(QStringLiteral("pins"))).front())));
    ASSERT_TRUE(sample.save(path("sample.zkdoc"))) << sample.lastError().toStdString();

    m_window = std::make_unique<MainWindow>();
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error)) << error.toStdString();
    m_window->show();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    view().setFocus();
}

void WindowTest::TearDown()
{
    m_window.reset();
}

SceneView& WindowTest::view()
{
    return *m_window->spaceTabs()->currentView();
}

PropPalette* WindowTest::properties()
{
    return m_window->palettes()->properties();
}

PartImpl* WindowTest::part(const char* id)
{
    return qobject_cast<PartImpl*>(document().nodeWithId(QLatin1String(id)));
}

QPoint WindowTest::placeOf(const char* id)
{
    const zk::Point place = part(id)->position();
    return view().mapFromScene(place.x * 1000, place.y * 1000);
}

void WindowTest::clickPart(const char* id, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, placeOf(id));
}

void WindowTest::dragPart(const char* id, const QPoint& by)
{
    const QPoint from = placeOf(id);
    QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 10; ++step) {
        QMouseEvent move(QEvent::MouseMove, from + by * step / 10,
                         view().viewport()->mapToGlobal(from + by * step / 10), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &move);
    }
}

QStringList WindowTest::selectedIds()
{
    QStringList ids;
    for (const ElementImpl* element : document().getSelection())
        ids.append(element->valueOfProperty(PropertyKey::fromString("id")).toQString());
    ids.sort();
    return ids;
}

int WindowTest::undoSteps()
{
    return document().undoStack()->index();
}

QAction* WindowTest::action(const char* name)
{
    return m_window->findChild<QAction*>(QLatin1String(name));
}

void WindowTest::trigger(const char* name)
{
    QAction* found = action(name);
    ASSERT_TRUE(found) << name;
    ASSERT_TRUE(found->isEnabled()) << name;
    found->trigger();
}

void WindowTest::keys(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void WindowTest::answer(QMessageBox::StandardButton button)
{
    m_boxText.clear();
    auto* timer = new QTimer(m_window.get());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        timer->deleteLater();
        timer->stop();
        m_boxText = box->text() + QLatin1Char('\n') + box->informativeText();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
    timer->start(5);
}
