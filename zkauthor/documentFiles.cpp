#include "zkauthor/documentFiles.h"

#include "zkauthor/fileWatch.h"
#include "zkauthor/recentFiles.h"
#include "zkauthor/recoveryOffers.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/services/productPackage.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

DocumentFiles::DocumentFiles()
    : m_document(std::make_unique<DocumentImpl>()), m_recent(new RecentFiles(this)), m_watch(new FileWatch(this)),
      m_offers(new RecoveryOffers(this))
{
    connect(m_watch, &FileWatch::stateChanged, this, &DocumentFiles::onDiskStateChanged);
}

DocumentFiles::~DocumentFiles()
{
    m_recovery.reset(); // while the document is still there
}

QString DocumentFiles::fileName() const
{
    return m_document->getUrl().toLocalFile();
}

QString DocumentFiles::displayName() const
{
    const QString file = fileName();
    return file.isEmpty() ? tr("Untitled") : QFileInfo(file).fileName();
}

void DocumentFiles::setWindow(QWidget* window)
{
    m_window = window;
}

void DocumentFiles::setDocument(std::unique_ptr<DocumentImpl> document)
{
    const std::unique_ptr<DocumentImpl> old = std::move(m_document);
    m_document = std::move(document);
    m_recovered = false;
    if (m_recovery)
        m_recovery->setDocument(m_document.get());
    m_watch->follow(fileName());
    if (m_recovery)
        m_recovery->setOriginal(fileName(), m_watch->stamp());
    Q_EMIT documentReplaced(m_document.get());
}

bool DocumentFiles::openFile(const QString& fileName, QString& error)
{
    auto document = std::make_unique<DocumentImpl>();
    if (!document->load(fileName)) {
        error = document->lastError();
        return false;
    }
    for (const QString& warning : document->loadWarnings())
        qWarning("DocumentFiles: %s", qPrintable(warning));
    setDocument(std::move(document));
    return true;
}

bool DocumentFiles::openStartDocument(const QString& fileName, QString& error)
{
    if (!openFile(fileName, error))
        return false;
    m_recent->add(fileName);
    return true;
}

bool DocumentFiles::mayDiscard()
{
    Q_EMIT pendingEditWanted();
    if (!m_document->isModified())
        return true;
    const auto answer =
        QMessageBox::question(m_window, tr("Changes not saved"), tr("Save the changes to %1?").arg(displayName()),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

void DocumentFiles::newDocument()
{
    if (mayDiscard())
        setDocument(std::make_unique<DocumentImpl>());
}

void DocumentFiles::open()
{
    if (!mayDiscard())
        return;
    const QString folder = fileName().isEmpty() ? QString() : QFileInfo(fileName()).path();
    const QString file =
        QFileDialog::getOpenFileName(m_window, tr("Open"), folder, ProductPackage::instance().getLoadFilters());
    if (file.isEmpty())
        return;
    QString error;
    if (!openStartDocument(file, error))
        Q_EMIT failed(tr("%1 cannot be opened.").arg(QFileInfo(file).fileName()), error);
}

void DocumentFiles::openRecent(const QString& file)
{
    if (!mayDiscard())
        return;
    QString error;
    if (!openStartDocument(file, error)) {
        m_recent->remove(file);
        Q_EMIT failed(tr("%1 cannot be opened.").arg(QFileInfo(file).fileName()), error);
    }
}

bool DocumentFiles::save()
{
    if (fileName().isEmpty())
        return saveAs();
    bool savedElsewhere = false;
    return mayOverwrite(savedElsewhere) ? saveTo(fileName()) : savedElsewhere;
}

bool DocumentFiles::saveAs()
{
    Q_EMIT pendingEditWanted();
    QFileDialog dialog(m_window, tr("Save As"), QString(), ProductPackage::instance().getSaveFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ProductPackage::instance().documentExtension());
    if (!fileName().isEmpty()) {
        dialog.setDirectory(QFileInfo(fileName()).path());
        dialog.selectFile(QFileInfo(fileName()).fileName());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    return saveTo(dialog.selectedFiles().constFirst());
}

bool DocumentFiles::mayOverwrite(bool& savedElsewhere)
{
    if (m_watch->check() != FileStamp::State::Changed)
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Changed by another program"),
                    tr("%1 was changed by another program.").arg(displayName()),
                    QMessageBox::Save | QMessageBox::Cancel, m_window);
    box.setInformativeText(tr("Saving replaces what it wrote."));
    const QPushButton* elsewhere = box.addButton(tr("Save &As..."), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Cancel);
    const int answer = box.exec();
    if (box.clickedButton() == elsewhere)
        savedElsewhere = saveAs();
    return answer == QMessageBox::Save;
}

bool DocumentFiles::saveTo(const QString& file)
{
    Q_EMIT pendingEditWanted();
    if (!m_document->save(file)) {
        Q_EMIT failed(tr("%1 could not be saved.").arg(QFileInfo(file).fileName()), m_document->lastError());
        return false;
    }
    m_watch->follow(fileName());
    if (m_recovery)
        m_recovery->setOriginal(fileName(), m_watch->stamp());
    setRecovered(false);
    m_recent->add(file);
    Q_EMIT noticed(tr("Saved %1").arg(QDir::toNativeSeparators(file)));
    return true;
}

bool DocumentFiles::mayLoseChanges()
{
    const auto answer = QMessageBox::question(m_window, tr("Revert"),
                                              tr("Lose all changes made since %1 was last saved?").arg(displayName()),
                                              QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
    return answer == QMessageBox::Discard;
}

void DocumentFiles::reopen()
{
    const QString file = fileName();
    QString error;
    if (!openFile(file, error))
        Q_EMIT failed(tr("%1 cannot be opened.").arg(QFileInfo(file).fileName()), error);
}

void DocumentFiles::revert()
{
    Q_EMIT pendingEditWanted();
    if (!fileName().isEmpty() && m_document->isModified() && mayLoseChanges())
        reopen();
}

FileStamp::State DocumentFiles::diskState() const
{
    return m_watch->state();
}

void DocumentFiles::onDiskStateChanged()
{
    // Closing must not lose what is on no disk any more.
    if (diskState() == FileStamp::State::Gone)
        m_document->markUnsaved();
    Q_EMIT diskStateChanged();
}

void DocumentFiles::reload()
{
    Q_EMIT pendingEditWanted();
    if (!m_document->isModified() || mayLoseChanges())
        reopen();
}

void DocumentFiles::keepMine()
{
    m_watch->accept();
    m_document->markUnsaved();
}

void DocumentFiles::enableRecovery(const QString& folder, int interval)
{
    m_offers->look(folder);
    const auto tell = [this](const QString& reason) {
        Q_EMIT noticed(tr("Nothing is kept for recovery: %1").arg(reason));
    };
    QString error;
    std::unique_ptr<RecoveryPlace> place = RecoveryPlace::make(folder, error);
    if (!place) {
        tell(error);
        return;
    }
    m_recovery = std::make_unique<RecoveryWriter>(std::move(place));
    m_recovery->setInterval(interval);
    connect(m_recovery.get(), &RecoveryWriter::failed, this, tell);
    m_recovery->setDocument(m_document.get());
    m_recovery->setOriginal(fileName(), m_watch->stamp());
}

void DocumentFiles::recover(size_t index)
{
    if (!mayDiscard() || index >= m_offers->offers().size())
        return;
    RecoveryOffers::Offer offer = m_offers->take(index);
    auto document = std::make_unique<DocumentImpl>();
    if (!document->recover(offer.place->fileName(), offer.file.original)) {
        const QString aside = offer.place->setAside();
        Q_EMIT failed(tr("The document cannot be recovered."),
                      aside.isEmpty()
                          ? document->lastError()
                          : tr("%1\nThe file is now %2.").arg(document->lastError(), QDir::toNativeSeparators(aside)));
        return;
    }
    setDocument(std::move(document));
    if (m_recovery)
        m_recovery->adopt(std::move(offer.place));
    if (!offer.file.original.isEmpty() && offer.file.stamp.valid)
        m_watch->follow(offer.file.original, offer.file.stamp);
    if (m_recovery)
        m_recovery->setOriginal(offer.file.original, offer.file.stamp);
    setRecovered(true);
}

void DocumentFiles::discardOffer(size_t index)
{
    const auto answer = QMessageBox::question(m_window, tr("Discard"), tr("Lose what can be recovered?"),
                                              QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer != QMessageBox::Discard || index >= m_offers->offers().size())
        return;
    const RecoveryOffers::Offer offer = m_offers->take(index);
    QFile::remove(offer.place->fileName());
}

void DocumentFiles::forget()
{
    if (m_recovery)
        m_recovery->discard();
}

void DocumentFiles::setRecovered(bool recovered)
{
    if (m_recovered == recovered)
        return;
    m_recovered = recovered;
    Q_EMIT recoveredChanged();
}
