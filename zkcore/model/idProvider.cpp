#include "zkcore/model/idProvider.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeRegistry.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

constexpr int longestId = 100;

struct IdTexts
{
    Q_DECLARE_TR_FUNCTIONS(IdProvider)
};

} // namespace

IdProvider::IdProvider(NodeImpl* node)
    : m_document(node->document()), m_node(node->instanceId()), m_id(node->valueOfProperty(coreKeys::id()).toQString())
{
}

IdProvider::IdProvider(DocumentImpl* document, const QString& prefix)
    : m_document(document), m_node(0), m_id(document->freeId(prefix))
{
}

bool IdProvider::isValidId(const QString& text) const
{
    return reason(text).isEmpty();
}

QString IdProvider::reason(const QString& text) const
{
    if (text.isEmpty())
        return IdTexts::tr("The id must not be empty.");
    if (text.size() > longestId)
        return IdTexts::tr("The id is longer than 100 characters.");
    if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSpace() || !c.isPrint(); }))
        return IdTexts::tr("The id must not contain blanks.");
    const NodeImpl* node = m_document->nodeById(m_node);
    if (node && !NodeRegistry::hasRegisteredId(node)) {
        for (const NodeImpl* sibling : node->parentNode()->children()) {
            if (sibling != node && sibling->valueOfProperty(coreKeys::id()).toQString() == text)
                return IdTexts::tr("Another subpart has this id.");
        }
        return {};
    }
    const NodeImpl* holder = m_document->nodeWithId(text);
    if (holder && holder != node)
        return IdTexts::tr("Another part has this id.");
    return {};
}

bool IdProvider::isRegistered() const
{
    const NodeImpl* holder = m_document->nodeWithId(m_id);
    return holder && holder->instanceId() == m_node;
}

QString IdProvider::id() const
{
    const NodeImpl* node = m_document->nodeById(m_node);
    return node ? node->valueOfProperty(coreKeys::id()).toQString() : m_id;
}

QString IdProvider::suggestion(const QString& text) const
{
    QString stem;
    for (const QChar c : text) {
        if (!c.isSpace() && c.isPrint())
            stem += c;
    }
    stem.truncate(longestId - 11);
    if (isValidId(stem))
        return stem;
    while (!stem.isEmpty() && stem.back().isDigit())
        stem.chop(1);
    return m_document->freeId(stem.isEmpty() ? QStringLiteral("part") : stem);
}
