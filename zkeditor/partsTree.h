#pragma once

#include "zkcore/base/classId.h"
#include "zkeditor/export.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

class DocumentImpl;
class HintTreeView;
class PartsFilter;
class PartsModel;
class QLineEdit;
class QModelIndex;

/// The part classes that the packages offer, by group and label, with a search field. A class is dragged onto a scene,
/// or chosen by a double click or Return.
class ZKEDITOR_EXPORT PartsTree : public QWidget
{
    Q_OBJECT

public:
    /// The document is not owned; without one there is nothing to choose.
    explicit PartsTree(DocumentImpl* document = nullptr, QWidget* parent = nullptr);
    ~PartsTree() override;

    /// Shows only classes whose label, group and id contain, between them, every word of the text.
    void setFilter(const QString& text);
    QString filter() const;

Q_SIGNALS:
    /// The user wants a part of this class. The host adds one to the scene that is shown.
    void partChosen(unsigned int cid);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// What does not come from the packages.
    void sayTexts();
    void onFilterChanged(const QString& text);
    void onRowChosen(const QModelIndex& index);
    void startDrag();
    void noteExpanded(const QModelIndex& index, bool expanded);
    QModelIndex firstClass() const;
    ClassId classAt(const QModelIndex& index) const;

    QPointer<DocumentImpl> m_document;
    PartsModel* m_model;
    PartsFilter* m_filtered;
    QLineEdit* m_field;
    HintTreeView* m_view;
    QSet<QString> m_collapsed; // the groups that the user has closed
    bool m_searching = false;
};
