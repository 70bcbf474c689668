#pragma once

#include "zkeditor/export.h"

#include <QDialog>

class PartImpl;
class QLineEdit;
class QPushButton;

/// Asks for the label under which a part is saved. Text that can be no label is undone as it is typed.
class ZKEDITOR_EXPORT GetCustomPartLabel : public QDialog
{
    Q_OBJECT

public:
    /// The part is not owned; it is only read here.
    GetCustomPartLabel(PartImpl* part, QWidget* parent, const char* name, bool modal, Qt::WindowFlags flags = {});

    /// Up to 100 characters, the first of which is no blank. Fatal unless the dialog was accepted.
    QString getLabel() const;

protected Q_SLOTS:
    void onTextChanged();
    void accept() override;

private Q_SLOTS:
    void enableOkButton();

private:
    bool isDataValid() const;
    void showWarning(const QString& text);

    PartImpl* m_part;
    QLineEdit* m_labelEdit;
    QPushButton* m_saveButton;
    QString m_lastValidText;
    bool m_restoringText = false;
};
