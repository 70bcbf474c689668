#pragma once

#include "zkeditor/export.h"

#include <QTreeView>

/// A tree that says something where it has nothing to show, and tells of the keys that act on a row.
class ZKEDITOR_EXPORT HintTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit HintTreeView(QWidget* parent = nullptr);

    /// Shown in the middle while there are no rows.
    void setHint(const QString& hint);

Q_SIGNALS:
    /// Return on a row, or a double click; whatever the desktop says about single clicks.
    void rowChosen(const QModelIndex& index);
    /// Up on the first row.
    void leftUpwards();
    /// A drag of the current row begins.
    void dragBegins(Qt::DropActions actions);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    QString m_hint;
};
