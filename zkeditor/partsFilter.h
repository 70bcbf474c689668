#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

class PartsModel;

/// Lets through the classes that match a search, and the groups that still have some.
class PartsFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit PartsFilter(PartsModel* model, QObject* parent = nullptr);

    void setText(const QString& text);
    /// Whether there is nothing to search for.
    bool isShowingAll() const { return m_words.isEmpty(); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    PartsModel* m_model;
    QStringList m_words;
};
