// Texts of packages are translated with class ids as contexts.
#include "zkcore/services/translate.h"

#include "zkcore/model/nodeImpl.h"

#include <QCoreApplication>
#include <vector>

namespace {

std::vector<ClassId> contextsOf(const NodePrototype& prototype, ClassId domain = INVALID_CID)
{
    std::vector<ClassId> contexts;
    contexts.reserve(prototype.bases.size() + 3);
    if (domain != INVALID_CID)
        contexts.push_back(domain);
    contexts.push_back(prototype.cid);
    contexts.insert(contexts.end(), prototype.bases.begin(), prototype.bases.end());
    contexts.push_back(getDomain(prototype.cid));
    return contexts;
}

QString translateInContexts(const std::vector<ClassId>& contexts, const QString& text)
{
    if (text.isEmpty())
        return text;
    const QByteArray source = text.toUtf8();
    for (const ClassId cid : contexts) {
        const QString translated =
            QCoreApplication::translate(findStringForCid(cid).toUtf8().constData(), source.constData());
        if (translated != text)
            return translated;
    }
    return text;
}

} // namespace

QString translateStringFromContext(const NodeImpl* node, const QString& text, ClassId domain)
{
    return node ? translateInContexts(contextsOf(node->prototype(), domain), text) : text;
}

QString translateStringForClass(const NodePrototype& prototype, const QString& text)
{
    return translateInContexts(contextsOf(prototype), text);
}

LiveText liveStringFromContext(const NodeImpl& node, const QString& text, ClassId domain)
{
    return [contexts = contextsOf(node.prototype(), domain), text] { return translateInContexts(contexts, text); };
}
