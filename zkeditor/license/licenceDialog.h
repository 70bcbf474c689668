#pragma once

#include "zkeditor/export.h"

#include <QDialog>

class ErrorLabel;
class LicenceManager;
class LinkLabel;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Shows the state of the licence and takes a licence code, typed or pasted. While the code is typed it says how far it
/// has come and what is wrong with it.
class ZKEDITOR_EXPORT LicenceDialog : public QDialog
{
    Q_OBJECT

public:
    /// The manager is not owned and must outlive the dialog.
    explicit LicenceDialog(LicenceManager* manager, QWidget* parent = nullptr);

public Q_SLOTS:
    /// Enters the code; stays open when something is wrong with it, and selects the group that is wrong.
    void accept() override;

Q_SIGNALS:
    /// The user asks what licence codes are. The link for it is there when somebody is connected as the dialog is
    /// shown.
    void helpRequested();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void onCodeChanged();
    void onRemove();
    void showStatus();
    void showVerdict(const QString& text, bool wrong);
    void selectGroup(int group);

    LicenceManager* m_manager;
    QLabel* m_status;
    QPlainTextEdit* m_code;
    ErrorLabel* m_verdict;
    LinkLabel* m_help;
    QPushButton* m_remove;
};
