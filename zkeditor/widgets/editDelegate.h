#pragma once

#include "zkeditor/export.h"

#include <QModelIndex>
#include <QStyledItemDelegate>
#include <functional>

/// Edits texts of a list in place. Text that is not allowed turns red while it is typed, with the reason as its tool
/// tip, and is not taken. A change of the model does not touch what somebody is typing.
class ZKEDITOR_EXPORT EditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit EditDelegate(QObject* parent = nullptr);

    /// Why a text may not stand there: one translated sentence, empty when it may.
    using Check = std::function<QString(const QModelIndex&, const QString&)>;
    void setCheck(Check check) { m_check = std::move(check); }
    /// Texts of which one is chosen in the place of typing; none where the list is empty.
    using Choices = std::function<QStringList(const QModelIndex&)>;
    void setChoices(Choices choices) { m_choices = std::move(choices); }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

Q_SIGNALS:
    /// A text is about to be taken, with an empty reason, or was given up because it is not allowed.
    void judged(const QString& reason) const;

private:
    Check m_check;
    Choices m_choices;
};
