#pragma once

#include <QList>
#include <QModelIndex>

class QAbstractItemModel;
class QMimeData;

/// Rows of a list that are dragged to another place of the same list.
namespace rowDrag {

/// For QAbstractItemModel::mimeTypes().
QString mimeType();
/// The rows of the indexes, as rows of that model; the caller owns the content.
QMimeData* pack(const QAbstractItemModel* model, const QModelIndexList& indexes);
/// Whether the content are rows of that very model.
bool isFrom(const QAbstractItemModel* model, const QMimeData* content);
/// The rows, each once, in rising order.
QList<int> unpack(const QMimeData* content);
/// The order in which `count` rows stand after some of them (rising) were put before another; `count` is the end.
QList<int> orderAfter(int count, const QList<int>& rows, int before);

} // namespace rowDrag
