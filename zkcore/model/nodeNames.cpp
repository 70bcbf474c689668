#include "zkcore/model/nodeNames.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/nodeImpl.h"

QString NodeNames::own(const NodeImpl* node)
{
    for (const PropertyKey key : {coreKeys::title(), coreKeys::id()}) {
        const QString text = node->valueOfProperty(key).toQString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QString NodeNames::of(const NodeImpl* node)
{
    const QString text = own(node);
    if (!text.isEmpty())
        return text;
    const auto known = m_classes.constFind(&node->prototype());
    return known != m_classes.constEnd() ? *known : *m_classes.insert(&node->prototype(), node->displayName());
}
