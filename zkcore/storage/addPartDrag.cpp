#include "zkcore/storage/addPartDrag.h"

#include "zkcore/model/elementImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/fragmentXmlWriter.h"

#include <QMimeData>
#include <QPixmap>

namespace {

void fillDrag(QDrag& drag, const QByteArray& fragment, const NodePrototype* prototype)
{
    auto* data = new QMimeData;
    data->setData(FragmentXMLWriter::fragmentMimeType(), fragment);
    drag.setMimeData(data);
    QPixmap icon;
    if (prototype && icon.loadFromData(prototype->icon.data()))
        drag.setPixmap(icon);
}

} // namespace

AddPartDrag::AddPartDrag(const ElementImpl* element, QObject* source) : QDrag(source)
{
    const NodePrototype* prototype = NodeImpl::valid(element) ? &element->prototype() : nullptr;
    fillDrag(*this, FragmentXMLWriter::writeElement(element), prototype);
}

AddPartDrag::AddPartDrag(ClassId cid, NodeDb& db, QObject* source) : QDrag(source)
{
    fillDrag(*this, FragmentXMLWriter::writeClass(cid, db), db.lookupPrototype(cid));
}

bool AddPartDrag::canDecode(const QMimeData* data)
{
    return data && data->hasFormat(FragmentXMLWriter::fragmentMimeType());
}

bool AddPartDrag::decode(const QMimeData* data, NodeDb& db, std::vector<NodeSnapshot>& nodes)
{
    nodes.clear();
    if (!canDecode(data))
        return false;
    QString error;
    return FragmentXMLWriter::read(data->data(FragmentXMLWriter::fragmentMimeType()), db, nodes, error);
}
