#include "zkeditor/widgets/editDelegate.h"

#include "zkeditor/widgets/readableColors.h"

#include "zkeditor/widgets/lineEdit.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QComboBox>
#include <QPersistentModelIndex>

EditDelegate::EditDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QWidget* EditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QString name = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    if (const QStringList choices = m_choices ? m_choices(index) : QStringList(); !choices.isEmpty()) {
        auto* box = new QComboBox(parent);
        box->addItems(choices);
        box->setAccessibleName(name);
        // A choice is final, where a text may go on.
        connect(box, &QComboBox::activated, this, [this, box] {
            auto* self = const_cast<EditDelegate*>(this);
            Q_EMIT self->commitData(box);
            Q_EMIT self->closeEditor(box);
        });
        return box;
    }
    QWidget* made = QStyledItemDelegate::createEditor(parent, option, index);
    auto* edit = qobject_cast<QLineEdit*>(made);
    if (!edit)
        return made;
    edit->setAccessibleName(name);
    if (m_check) {
        connect(edit, &QLineEdit::textEdited, edit,
                [this, edit, at = QPersistentModelIndex(index)](const QString& text) {
                    const QString reason = at.isValid() ? m_check(at, text) : QString();
                    QPalette palette;
                    if (!reason.isEmpty())
                        palette.setColor(QPalette::Text, readableColors::error(edit->palette(), QPalette::Base));
                    edit->setPalette(palette);
                    edit->setToolTip(reason);
                    edit->setAccessibleDescription(reason);
                });
    }
    return edit;
}

void EditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        if (!box->view()->isVisible())
            box->setCurrentIndex(box->findText(index.data(Qt::EditRole).toString()));
        return;
    }
    const auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit || !edit->isModified())
        QStyledItemDelegate::setEditorData(editor, index);
}

void EditDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* box = qobject_cast<QComboBox*>(editor)) {
        if (box->currentIndex() >= 0 && box->currentText() != index.data(Qt::EditRole).toString())
            model->setData(index, box->currentText());
        return;
    }
    const auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    if (!edit->isModified())
        return;
    const QString text = edit->text();
    const QString reason = m_check ? m_check(index, text) : QString();
    Q_EMIT judged(reason);
    if (reason.isEmpty())
        model->setData(index, text);
}
