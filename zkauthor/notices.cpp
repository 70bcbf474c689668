#include "zkauthor/notices.h"

#include "zkauthor/documentFiles.h"
#include "zkauthor/noticeBar.h"
#include "zkauthor/recoveryOffers.h"
#include "zkauthor/spaceTabs.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

Notices::Notices(DocumentFiles* files, SpaceTabs* tabs) : m_files(files), m_tabs(tabs), m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(tabs, 1);
    setFocusProxy(tabs);
    connect(files, &DocumentFiles::diskStateChanged, this, &Notices::showDiskState);
    connect(files->offers(), &RecoveryOffers::changed, this, &Notices::showOffers);
    showDiskState();
    showOffers();
}

NoticeBar* Notices::addBar(const QString& title, const QString& details)
{
    auto* bar = new NoticeBar(title, details, this);
    m_column->insertWidget(m_column->count() - 1, bar);
    bar->show();
    return bar;
}

void Notices::orderTabs(NoticeBar* bar)
{
    // What is new stands at the end of the window's order, the bar is read before the content.
    QWidget* last = nullptr;
    for (QWidget* each = window()->nextInFocusChain(); each != window(); each = each->nextInFocusChain()) {
        if (!(each->focusPolicy() & Qt::TabFocus) || each->focusProxy())
            continue;
        if (each == m_tabs || m_tabs->isAncestorOf(each))
            break;
        last = each;
    }
    const auto buttons = bar->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (last)
            setTabOrder(last, button);
        last = button;
    }
}

void Notices::remove(QPointer<NoticeBar>& bar)
{
    if (!bar)
        return;
    if (bar->isAncestorOf(QApplication::focusWidget()))
        m_tabs->focusView();
    bar->hide();
    bar->deleteLater(); // one of its buttons may be at work
    bar.clear();
}

void Notices::showDiskState()
{
    remove(m_disk);
    DocumentFiles* files = m_files;
    switch (files->diskState()) {
    case FileStamp::State::Same:
        return;
    case FileStamp::State::Changed:
        m_disk = addBar(tr("%1 was changed by another program.").arg(files->displayName()),
                        tr("Reloading shows what it wrote and loses what you have not saved."));
        m_disk->addButton(tr("Re&load"), "reload", [files] { files->reload(); });
        m_disk->addButton(tr("Save &As..."), "save-as-other", [files] { files->saveAs(); });
        m_disk->addButton(tr("&Keep Mine"), "keep", [files] { files->keepMine(); });
        break;
    case FileStamp::State::Gone:
        m_disk = addBar(tr("%1 was deleted, renamed or moved by another program.").arg(files->displayName()),
                        tr("What you see is in this window only until it is saved again."));
        m_disk->addButton(tr("Save A&gain"), "save-again", [files] { files->save(); });
        m_disk->addButton(tr("Save &As..."), "save-as-other", [files] { files->saveAs(); });
        m_disk->addButton(tr("Not &Now"), "keep", [files] { files->keepMine(); });
        break;
    }
    orderTabs(m_disk);
}

void Notices::showOffers()
{
    for (QPointer<NoticeBar>& bar : m_offers)
        remove(bar);
    m_offers.clear();
    DocumentFiles* files = m_files;
    size_t index = 0;
    for (const RecoveryOffers::Offer& offer : files->offers()->offers()) {
        NoticeBar* bar = addBar(offer.title(), offer.details());
        if (offer.place) {
            bar->addButton(tr("Re&cover"), "recover", [files, index] { files->recover(index); });
            bar->addButton(tr("&Discard"), "discard", [files, index] { files->discardOffer(index); });
            bar->addButton(tr("La&ter"), "later", [files, index] { files->offers()->take(index); });
        } else {
            bar->addButton(tr("&Close"), "close-notice", [files, index] { files->offers()->take(index); });
        }
        orderTabs(bar);
        m_offers.emplace_back(bar);
        ++index;
    }
}
