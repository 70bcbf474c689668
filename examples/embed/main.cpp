// Edits the kettles of a kitchen in their form. With --demo the program types into the form itself.
#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/package.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextStream>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTextStream out(stdout);

    // The classes first: a document knows those that are there when it is made.
    QString error;
    if (!Package::load(":/kitchen", error)) {
        out << error << Qt::endl;
        return 1;
    }
    DocumentImpl document;
    if (!document.load(":/kitchen.zkdoc")) {
        out << document.lastError() << Qt::endl;
        return 1;
    }

    // Every change of the model is told, whoever made it.
    QObject::connect(&document, &DocumentImpl::nodeValueChanged, &application, [&out](NodeImpl* node, PropertyKey key) {
        const QString value = node->valueOfProperty(key).toString();
        out << node->displayName() << ": " << key.toString() << " is " << value << Qt::endl;
    });

    // One form for both kettles: what is typed goes to all that are bound.
    QWidget window;
    QWidget* form = loadUIFromResource(Resource("kitchen/forms/kettle"), &window);
    PaneWidget::bindChildren(form, &document, {document.nodeWithId("kettle-1"), document.nodeWithId("kettle-2")});
    window.resize(form->sizeHint());
    window.show();

    if (application.arguments().contains("--demo")) {
        auto* power = form->findChild<QWidget*>("powerSpin")->findChild<QLineEdit*>();
        for (const QChar character : QString("1.5 kW\r")) {
            const int key = character == '\r' ? Qt::Key_Return : Qt::Key_unknown;
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, character);
            QApplication::sendEvent(power, &press);
        }
        out << "to take back: " << document.undoText() << Qt::endl;
        document.undo();
    } else {
        QApplication::exec();
    }
    PaneWidget::unbindChildren(form); // before the document goes
    return 0;
}
