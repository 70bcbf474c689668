#include "zkcore/base/classId.h"

#include <QHash>
#include <vector>

// Class ids are handed out in the order in which their texts are first met. The tables are function-local statics, so
// that static initialisers of other translation units may ask for ids.

namespace {

struct ClassIdEntry
{
    QString text;
    ClassId domain = INVALID_CID; // found when first asked for
};

struct ClassIdTable
{
    QHash<QString, ClassId> numbers;
    std::vector<ClassIdEntry> entries{1}; // entry 0 stands for INVALID_CID

    static ClassIdTable& instance()
    {
        static ClassIdTable table;
        return table;
    }

    bool knows(ClassId cid) const { return cid != INVALID_CID && cid < entries.size(); }
};

} // namespace

ClassId getCidForString(const char* text)
{
    return getCidForString(QString::fromUtf8(text));
}

ClassId getCidForString(const QString& text)
{
    if (text.isEmpty())
        return INVALID_CID;
    ClassIdTable& table = ClassIdTable::instance();
    const auto found = table.numbers.constFind(text);
    if (found != table.numbers.constEnd())
        return *found;
    const auto cid = static_cast<ClassId>(table.entries.size());
    table.entries.push_back({text, INVALID_CID});
    table.numbers.insert(text, cid);
    return cid;
}

QString findStringForCid(const ClassId& cid)
{
    const ClassIdTable& table = ClassIdTable::instance();
    return table.knows(cid) ? table.entries[cid].text : QString();
}

ClassId getDomain(const ClassId& cid)
{
    ClassIdTable& table = ClassIdTable::instance();
    if (!table.knows(cid))
        return INVALID_CID;
    if (table.entries[cid].domain == INVALID_CID) {
        const QString name = getDomainAsString(cid);
        if (name.isEmpty())
            return INVALID_CID;
        // Interning may move the entries, so the entry is looked up again.
        const ClassId domain = getCidForString(name + QLatin1String("/*"));
        table.entries[cid].domain = domain;
    }
    return table.entries[cid].domain;
}

QString getDomainAsString(ClassId cid)
{
    const QString text = findStringForCid(cid);
    const qsizetype slash = text.indexOf(QLatin1Char('/'));
    return slash < 0 ? text : text.left(slash);
}

bool isDomain(const ClassId& cid)
{
    return cid != INVALID_CID && getDomain(cid) == cid;
}
