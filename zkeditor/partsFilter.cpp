// The search of the parts tree.
#include "zkeditor/partsFilter.h"

#include "zkeditor/partsModel.h"

PartsFilter::PartsFilter(PartsModel* model, QObject* parent) : QSortFilterProxyModel(parent), m_model(model)
{
    setSourceModel(model);
    // A group that was left out may have to come back when a class is added to it.
    connect(model, &QAbstractItemModel::rowsInserted, this, [this] {
        if (!isShowingAll())
            invalidateFilter();
    });
}

void PartsFilter::setText(const QString& text)
{
    const QStringList words = text.simplified().toCaseFolded().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    invalidateFilter();
}

bool PartsFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_words.isEmpty())
        return true;
    const QModelIndex index = m_model->index(row, 0, parent);
    if (parent.isValid())
        return m_model->matches(index, m_words);
    for (int child = 0, count = m_model->rowCount(index); child < count; ++child) {
        if (m_model->matches(m_model->index(child, 0, index), m_words))
            return true;
    }
    return false;
}
