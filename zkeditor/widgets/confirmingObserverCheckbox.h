#pragma once

#include "zkeditor/widgets/observerCheckbox.h"

/// An ObserverCheckBox that asks the user before it writes.
class ZKEDITOR_EXPORT ConfirmingObserverCheckBox : public ObserverCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QString confirmOnQuestion READ confirmOnQuestion WRITE setConfirmOnQuestion)
    Q_PROPERTY(QString confirmOffQuestion READ confirmOffQuestion WRITE setConfirmOffQuestion)

public:
    explicit ConfirmingObserverCheckBox(QWidget* parent = nullptr, const QString& name = {});
    explicit ConfirmingObserverCheckBox(const QString& text, QWidget* parent = nullptr, const QString& name = {});

    /// Asked before the box goes on; the null string, unlike the empty one, for no question.
    QString confirmOnQuestion() const { return m_confirmOnQuestion; }
    void setConfirmOnQuestion(const QString& question) { m_confirmOnQuestion = question; }
    /// Asked before the box goes off; the null string, unlike the empty one, for no question.
    QString confirmOffQuestion() const { return m_confirmOffQuestion; }
    void setConfirmOffQuestion(const QString& question) { m_confirmOffQuestion = question; }

protected Q_SLOTS:
    void onWidgetValueChanged() override;

private:
    QString m_confirmOnQuestion;
    QString m_confirmOffQuestion;
};
