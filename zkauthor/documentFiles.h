#pragma once

#include "zkcore/storage/fileStamp.h"
#include "zkcore/storage/recoveryWriter.h"

#include <QObject>
#include <QPointer>
#include <memory>

class DocumentImpl;
class FileWatch;
class QWidget;
class RecentFiles;
class RecoveryOffers;

/// The document of a main window and its file: new, open, save, revert, and the questions before something is lost;
/// what other programs do to the file; what is kept to recover the document. It is no part of the window, so that
/// another window can take over the document with its history and file.
class DocumentFiles : public QObject
{
    Q_OBJECT

public:
    /// Begins with a new document.
    DocumentFiles();
    ~DocumentFiles() override;

    /// Owned; never null. Another one after documentReplaced().
    DocumentImpl* document() const { return m_document.get(); }
    RecentFiles* recent() const { return m_recent; }
    /// The file of the document; empty when it was never saved.
    QString fileName() const;
    /// What people call the document: the file's name without its folder, or "Untitled".
    QString displayName() const;
    /// Whether the document was recovered and not saved since.
    bool isRecovered() const { return m_recovered; }
    /// The window that messages and questions belong to. Not owned.
    void setWindow(QWidget* window);
    QWidget* window() const { return m_window; }

    /// Opens the file in place of the present document, without a question. False, with the message, when it cannot be
    /// read; the present document stays then.
    bool openFile(const QString& fileName, QString& error);
    /// As openFile, and puts the file among the recent ones.
    bool openStartDocument(const QString& fileName, QString& error);
    /// Enters what is being typed, then asks about changes that are not saved. True when the document may go.
    bool mayDiscard();

    /// What the entries of the menu do; they ask what must be asked, and tell what failed.
    void newDocument();
    void open();
    void openRecent(const QString& fileName);
    bool save();
    bool saveAs();
    void revert();

    /// What another program did to the file since it was last read or saved, and the user has not answered to.
    FileStamp::State diskState() const;
    /// Reads the file again; asks when that loses changes.
    void reload();
    /// The user keeps what is in the window.
    void keepMine();

    /// From now on the document is kept in the folder while it is edited, no change longer than the interval (in
    /// milliseconds) not at all. Offers what is left over there. Not called, nothing is kept.
    void enableRecovery(const QString& folder, int interval = RecoveryWriter::defaultInterval);
    /// What can be recovered.
    RecoveryOffers* offers() const { return m_offers; }
    /// Opens what is offered in place of the document, after asking about that. It counts as modified.
    void recover(size_t offer);
    /// Asks, then removes what is offered.
    void discardOffer(size_t offer);
    /// The window is closed for good and the user was asked: nothing needs to be kept any more.
    void forget();

Q_SIGNALS:
    /// What is being typed has to enter the document now.
    void pendingEditWanted();
    /// There is another document. The one before is destroyed as soon as the receivers have let go of it.
    void documentReplaced(DocumentImpl* document);
    /// Something for the status bar.
    void noticed(const QString& text);
    /// Something could not be done: what, and why.
    void failed(const QString& text, const QString& reason);
    /// isRecovered() changed.
    void recoveredChanged();
    void diskStateChanged();

private:
    void setDocument(std::unique_ptr<DocumentImpl> document);
    bool saveTo(const QString& fileName);
    /// Asks before the file is written over that another program changed. True when it may be; false when the user
    /// cancelled, or saved under another name.
    bool mayOverwrite(bool& savedElsewhere);
    bool mayLoseChanges();
    void reopen();
    void onDiskStateChanged();
    void setRecovered(bool recovered);

    std::unique_ptr<DocumentImpl> m_document;
    RecentFiles* m_recent;
    FileWatch* m_watch;
    RecoveryOffers* m_offers;
    std::unique_ptr<RecoveryWriter> m_recovery; // null: nothing is kept
    QPointer<QWidget> m_window;
    bool m_recovered = false;
};
