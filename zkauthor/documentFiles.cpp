#include "zkauthor/documentFiles.h"

#include "zkauthor/recentFiles.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/services/productPackage.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

DocumentFiles::DocumentFiles() : m_document(std::make_unique<DocumentImpl>()), m_recent(new RecentFiles(this)) {}

DocumentFiles::~DocumentFiles() = default;

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
    return fileName().isEmpty() ? saveAs() : saveTo(fileName());
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

bool DocumentFiles::saveTo(const QString& file)
{
    Q_EMIT pendingEditWanted();
    if (!m_document->save(file)) {
        Q_EMIT failed(tr("%1 could not be saved.").arg(QFileInfo(file).fileName()), m_document->lastError());
        return false;
    }
    m_recent->add(file);
    Q_EMIT noticed(tr("Saved %1").arg(QDir::toNativeSeparators(file)));
    return true;
}

void DocumentFiles::revert()
{
    Q_EMIT pendingEditWanted();
    if (fileName().isEmpty() || !m_document->isModified())
        return;
    const auto answer = QMessageBox::question(m_window, tr("Revert"),
                                              tr("Lose all changes made since %1 was last saved?").arg(displayName()),
                                              QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer != QMessageBox::Discard)
        return;
    const QString file = fileName();
    QString error;
    if (!openFile(file, error))
        Q_EMIT failed(tr("%1 cannot be opened.").arg(QFileInfo(file).fileName()), error);
}
