#include "documentText.h"

#include "zkcore/model/documentImpl.h"

#include <QBuffer>
#include <algorithm>

namespace {

/// In an order that does not depend on where they come from.
std::vector<NodeSnapshot::ValueEntry> sorted(std::vector<NodeSnapshot::ValueEntry> values)
{
    std::sort(values.begin(), values.end(),
              [](const auto& a, const auto& b) { return std::pair(a.domain, a.key) < std::pair(b.domain, b.key); });
    return values;
}

} // namespace

QByteArray documentAround(const QByteArray& modelContent)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<zkdoc version=\"1\" next-id=\"100\">\n"
           " <model class=\"core/model\" id=\"1\">\n" +
           modelContent +
           "\n </model>\n"
           "</zkdoc>\n";
}

QByteArray documentAroundParts(const QByteArray& sceneContent)
{
    return documentAround("  <scene class=\"core/scene\" id=\"2\">\n" + sceneContent + "\n  </scene>");
}

void addClasses(NodeDb& db)
{
    DocumentImpl::addPackagedClasses(db);
}

ReadResult::ReadResult(const QByteArray& bytes)
{
    addClasses(db);
    QBuffer buffer;
    buffer.setData(bytes);
    done = DocumentFile::read(buffer, QStringLiteral("house.zkdoc"), db, content, error);
}

QString difference(const NodeSnapshot& a, const NodeSnapshot& b)
{
    const QString where = QStringLiteral("node %1: ").arg(a.id);
    if (a.cid != b.cid || a.kind != b.kind || a.id != b.id)
        return where + QStringLiteral("class, kind or id (%1)").arg(b.id);
    if (a.locks != b.locks || a.adhoc != b.adhoc || a.reflects != b.reflects || a.reflectionKind != b.reflectionKind)
        return where + QStringLiteral("locks, adhoc or reflection");
    if (a.unknownContent != b.unknownContent)
        return where + a.unknownContent + QStringLiteral(" / ") + b.unknownContent;
    if (a.values.size() != b.values.size())
        return where + QStringLiteral("%1 / %2 values").arg(a.values.size()).arg(b.values.size());
    const std::vector<NodeSnapshot::ValueEntry> ones = sorted(a.values);
    const std::vector<NodeSnapshot::ValueEntry> others = sorted(b.values);
    for (size_t i = 0; i < ones.size(); ++i) {
        const NodeSnapshot::ValueEntry& one = ones[i];
        const NodeSnapshot::ValueEntry& other = others[i];
        if (one.key != other.key || one.domain != other.domain || !(one.proxy == other.proxy) ||
            !(one.value == other.value))
            return where + one.key.toString() + u'=' + one.value.toQString() + QStringLiteral(" / ") +
                   other.key.toString() + u'=' + other.value.toQString();
    }
    if (a.children.size() != b.children.size() || !a.popup != !b.popup)
        return where + QStringLiteral("children or pop-up");
    for (size_t i = 0; i < a.children.size(); ++i) {
        if (const QString found = difference(a.children[i], b.children[i]); !found.isEmpty())
            return found;
    }
    return a.popup ? difference(*a.popup, *b.popup) : QString();
}
