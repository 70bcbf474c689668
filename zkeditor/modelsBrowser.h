#pragma once

#include "zkeditor/export.h"

#include <QPointer>
#include <QWidget>

class DocumentImpl;
class HintTreeView;
class ModelsModel;
class QAction;
class QModelIndex;

/// Folders that the user has chosen, and the documents in them with small pictures of their first scenes. The settings
/// service keeps the folders, when there is one.
class ZKEDITOR_EXPORT ModelsBrowser : public QWidget
{
    Q_OBJECT

public:
    explicit ModelsBrowser(QWidget* parent = nullptr);
    ~ModelsBrowser() override;

    /// The document that is open, for its place in the list to be seen. Not owned; may be null.
    void setDocument(DocumentImpl* document);

    /// Shows a folder from now on, in later runs too. One that is not there is shown with the reason.
    void addFolder(const QString& path);
    void removeFolder(const QString& path);
    QStringList folders() const;

Q_SIGNALS:
    /// The user wants to open this document. The host opens it, and says what is wrong with it if that fails.
    void documentChosen(const QString& fileName);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void readFolders();
    void askForFolder();
    void removeCurrentFolder();
    void onRowChosen(const QModelIndex& index);
    void onOpenDocumentChanged();
    void updateActions();
    void showMenu(const QPoint& place);

    QPointer<DocumentImpl> m_document;
    ModelsModel* m_model;
    HintTreeView* m_view;
    QAction* m_add;
    QAction* m_remove;
    QAction* m_open;
    bool m_foldersRead = false;
};
