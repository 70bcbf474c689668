// Texts of packages are translated with class ids as contexts.
#include "zkcore/services/translate.h"

#include "zkcore/model/nodeImpl.h"

#include <QCoreApplication>
#include <vector>

QString translateStringFromContext(const NodeImpl* node, const QString& text)
{
    if (!node || text.isEmpty())
        return text;
    std::vector<ClassId> contexts = {node->classId()};
    const std::vector<ClassId>& bases = node->prototype().bases;
    contexts.insert(contexts.end(), bases.begin(), bases.end());
    contexts.push_back(getDomain(node->classId()));
    const QByteArray source = text.toUtf8();
    for (const ClassId cid : contexts) {
        const QString translated =
            QCoreApplication::translate(findStringForCid(cid).toUtf8().constData(), source.constData());
        if (translated != text)
            return translated;
    }
    return text;
}
