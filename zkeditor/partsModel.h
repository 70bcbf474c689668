#pragma once

#include "zkcore/base/classId.h"
#include "zkeditor/export.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QPointer>
#include <QStringList>
#include <memory>
#include <vector>

class DocumentImpl;

/// The part classes that a document offers: groups, and in each its classes, both in the order of their labels. Classes
/// that are added to the document later take their places at once.
class ZKEDITOR_EXPORT PartsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role { ClassIdRole = Qt::UserRole + 1 };

    /// The document is not owned; without one the model is empty.
    explicit PartsModel(DocumentImpl* document, QObject* parent = nullptr);
    ~PartsModel() override;

    /// INVALID_CID for a group.
    ClassId classAt(const QModelIndex& index) const;
    /// Whether label, group and id of the class contain, between them, all of the words (which are case-folded).
    bool matches(const QModelIndex& index, const QStringList& words) const;
    /// Reads labels and groups again, in the language of now.
    void reload();

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Entry
    {
        ClassId cid = INVALID_CID;
        QString label;
        QString searched; // case-folded
    };
    struct Group
    {
        QString label;
        std::vector<Entry> entries;
    };

    Entry entryFor(ClassId cid, const QString& group) const;
    void onClassAdded(ClassId cid);
    const Entry* entryAt(const QModelIndex& index) const;
    QIcon iconOf(ClassId cid) const;
    QString toolTip(const Entry& entry) const;

    QPointer<DocumentImpl> m_document;
    std::vector<std::unique_ptr<Group>> m_groups; // an index of a class points to its group
    mutable QHash<QString, QIcon> m_icons;        // by the name of the picture
};
