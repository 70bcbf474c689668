#pragma once

#include "zkcore/base/export.h"

#include <QDomNode>
#include <QString>
/// Finds its way in a document of nodes.
class ZKCORE_EXPORT XMLUtils
{
public:
    /// The first direct child element of that tag name; a null node when there is none.
    static QDomNode findChildWithName(const QDomNode& node, const QString& name);
};
