#include "zkauthor/helpWindow.h"

#include "zkauthor/helpBrowser.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPalette>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {

QString helpWindowText(const char* text)
{
    return QCoreApplication::translate("HelpWindow", text);
}

QPushButton* addButton(QDialogButtonBox* buttons, const char* text)
{
    QPushButton* button = buttons->addButton(helpWindowText(text), QDialogButtonBox::ActionRole);
    button->setEnabled(false);
    button->setAutoDefault(false);
    return button;
}

} // namespace

void showHelp(QWidget* parent, const QString& page)
{
    auto* window = new QDialog(parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName(QStringLiteral("help"));
    window->setWindowTitle(helpWindowText(QT_TRANSLATE_NOOP("HelpWindow", "Help")));
    auto* layout = new QVBoxLayout(window);
    auto* browser = new HelpBrowser;
    browser->setAccessibleName(window->windowTitle());
    layout->addWidget(browser);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* back = addButton(buttons, QT_TRANSLATE_NOOP("HelpWindow", "&Back"));
    QPushButton* contents = addButton(buttons, QT_TRANSLATE_NOOP("HelpWindow", "C&ontents"));
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::reject);
    QObject::connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    QObject::connect(contents, &QPushButton::clicked, browser,
                     [browser] { browser->showPage(QStringLiteral("help")); });
    QObject::connect(browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    QObject::connect(browser, &QTextBrowser::sourceChanged, contents, [contents](const QUrl& url) {
        contents->setEnabled(!url.path().endsWith(QLatin1String("/help.md")));
    });
    window->resize(760, 620);
    browser->showPage(page);
    browser->setFocus();
    window->show();
}

LinkLabel* makeHelpLink(const QString& text, const QString& page)
{
    auto* link = new LinkLabel(text, nullptr, QStringLiteral("helpLink"));
    link->setForegroundRole(QPalette::Link);
    link->setAccessibleName(text);
    QObject::connect(link, &LinkLabel::clicked, link, [link, page] { showHelp(link->window(), page); });
    return link;
}
