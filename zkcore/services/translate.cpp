// Texts of packages are translated with class ids as contexts.
#include "zkcore/services/translate.h"

#include "zkcore/model/nodeImpl.h"

#include <QCoreApplication>
#include <vector>

namespace {

std::vector<ClassId> contextsOf(const NodePrototype& prototype)
{
    std::vector<ClassId> contexts = {prototype.cid};
    contexts.insert(contexts.end(), prototype.bases.begin(), prototype.bases.end());
    contexts.push_back(getDomain(prototype.cid));
    return contexts;
}

QString translateInContexts(const std::vector<ClassId>& contexts, const QString& text)
{
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

QString translateStringFromContext(const NodeImpl* node, const QString& text)
{
    return node ? translateStringForClass(node->prototype(), text) : text;
}

QString translateStringForClass(const NodePrototype& prototype, const QString& text)
{
    return text.isEmpty() ? text : translateInContexts(contextsOf(prototype), text);
}

LiveText liveStringFromContext(const NodeImpl& node, const QString& text, ClassId domain)
{
    std::vector<ClassId> contexts = contextsOf(node.prototype());
    if (domain != INVALID_CID)
        contexts.insert(contexts.begin(), domain);
    return
        [contexts = std::move(contexts), text] { return text.isEmpty() ? text : translateInContexts(contexts, text); };
}
