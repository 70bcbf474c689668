#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

class DocumentImpl;
class QWidget;
class RecentFiles;

/// The document of a main window and its file: new, open, save, revert, and the questions before something is lost. It
/// is no part of the window, so that another window can take over the document with its history and file.
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

Q_SIGNALS:
    /// What is being typed has to enter the document now.
    void pendingEditWanted();
    /// There is another document. The one before is destroyed as soon as the receivers have let go of it.
    void documentReplaced(DocumentImpl* document);
    /// Something for the status bar.
    void noticed(const QString& text);
    /// Something could not be done: what, and why.
    void failed(const QString& text, const QString& reason);

private:
    void setDocument(std::unique_ptr<DocumentImpl> document);
    bool saveTo(const QString& fileName);

    std::unique_ptr<DocumentImpl> m_document;
    RecentFiles* m_recent;
    QPointer<QWidget> m_window;
};
