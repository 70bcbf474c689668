#pragma once

#include "zkeditor/export.h"

#include <QDialog>

class ComboBox;
class DocumentImpl;
class PartImpl;
class QLineEdit;
class QPushButton;

/// Asks for name, label, group and level of a custom part and enters the part among the classes of its document.
class ZKEDITOR_EXPORT AddCustomPartDialog : public QDialog
{
    Q_OBJECT

public:
    /// Part and document are not owned; null is fatal. With `modal` the dialog blocks its parent window when it is
    /// shown.
    AddCustomPartDialog(PartImpl* part, DocumentImpl* document, QWidget* parent, const char* name, bool modal);

Q_SIGNALS:
    /// After the document took the new class; the dialog closes next.
    void partAddedToNodeDb();

protected Q_SLOTS:
    void enableOkButton();
    /// Says so, and stays open, when the name is in use.
    void accept() override;

private:
    bool isDataValid() const;
    void showWarning(const QString& text);

    PartImpl* m_part;
    DocumentImpl* m_document;
    QString m_domain;
    QLineEdit* m_nameEdit;
    QLineEdit* m_labelEdit;
    QLineEdit* m_groupEdit;
    ComboBox* m_levelChooser;
    QPushButton* m_addButton;
};
