#include "zkcore/storage/xmlUtils.h"

QDomNode XMLUtils::findChildWithName(const QDomNode& node, const QString& name)
{
    return node.firstChildElement(name);
}
