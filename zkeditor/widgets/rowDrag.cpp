#include "zkeditor/widgets/rowDrag.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>
#include <algorithm>

QString rowDrag::mimeType()
{
    return QStringLiteral("application/x-zkeditor-rows");
}

QMimeData* rowDrag::pack(const QAbstractItemModel* model, const QModelIndexList& indexes)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << static_cast<quint64>(reinterpret_cast<quintptr>(model)); // only compared
    for (const QModelIndex& index : indexes)
        stream << index.row();
    auto* content = new QMimeData;
    content->setData(mimeType(), bytes);
    return content;
}

bool rowDrag::isFrom(const QAbstractItemModel* model, const QMimeData* content)
{
    QDataStream stream(content->data(mimeType()));
    quint64 source = 0;
    stream >> source;
    return source == reinterpret_cast<quintptr>(model);
}

QList<int> rowDrag::unpack(const QMimeData* content)
{
    QDataStream stream(content->data(mimeType()));
    quint64 source = 0;
    stream >> source;
    QList<int> rows;
    while (!stream.atEnd()) {
        int row = 0;
        stream >> row;
        rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QList<int> rowDrag::orderAfter(int count, const QList<int>& rows, int before)
{
    QList<int> order;
    order.reserve(count);
    const auto isMoved = [&](int row) { return std::binary_search(rows.begin(), rows.end(), row); };
    for (int row = 0; row <= count; ++row) {
        if (row == before)
            order.append(rows);
        if (row < count && !isMoved(row))
            order.append(row);
    }
    return order;
}
