#pragma once

#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/nodeXml.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <deque>
#include <memory>
#include <unordered_map>
#include <vector>

class QXmlStreamAttributes;

/// Reads nodes from one file. Classes and keys are looked up once for each text met; what concerns several nodes (ids
/// given twice, proxies that lead in a circle) is noted while reading and judged in check().
class NodeXml::Reader
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFile)

public:
    /// Greatest number of nodes of one file.
    static constexpr size_t maximumNodes = 10'000'000;
    /// Greatest number of classes that nothing defines.
    static constexpr int maximumUnknownClasses = 10'000;
    /// Warnings beyond this number are only counted.
    static constexpr int maximumWarnings = 100;

    /// `name` stands in front of line and column in warnings ("house.zkdoc:").
    Reader(QXmlStreamReader& xml, NodeDb& db, QStringList& warnings, const QString& name = {});
    ~Reader();

    /// Every node must have an instance id from now on.
    void requireIds() { m_idsRequired = true; }
    enum class Tag { Start, End, Fault };
    /// Reads on to the start of the next element or the end of the one that is open. Text other than white space
    /// between them is a fault, and so is a document type declaration.
    Tag nextTag();
    /// Reads on to the end of the file. False when there is anything but white space.
    bool readRest();
    /// Reads the node on whose start the XML reader stands.
    bool readNode(NodeSnapshot& node);
    /// After the last node. False when proxies lead in a circle. With a root, warns of references to what is not in it.
    bool check(const NodeSnapshot* root);
    InstanceId highestId() const { return m_highestId; }
    /// Adds how many warnings were left out, when any were.
    void finishWarnings();

    bool fault(const QString& reason);
    void warn(const QString& sentence);
    /// Says where the fault is when that is not where reading stands.
    void setFaultPlace(qint64 line, qint64 column) { m_faultPosition = {line, column}; }
    /// "LINE:COLUMN: reason" of the fault.
    QString faultText() const;

    /// Which node an element name stands for; false when none.
    static bool kindOf(QStringView element, NodeKind& kind);
    /// Reads an instance id: decimal digits, 1 to 4294967294.
    static bool parseId(QStringView text, InstanceId& id);

private:
    /// What is known of a class that nodes of the file have.
    struct ClassInfo
    {
        QString text;
        ClassId cid = INVALID_CID;
        const NodePrototype* prototype = nullptr; // null: an unknown domain
        std::deque<QString> keyTexts;             // what the keys below refer to
        std::unordered_map<QStringView, const PropertyDefinition*> keys;
    };
    struct Position
    {
        qint64 line = 0;
        qint64 column = 0;
    };
    struct ProxyRecord
    {
        PropertyAddress property;
        PropertyAddress target;
        Value::Type type = Value::INVALID;
        Position position;
    };
    struct ReflectionRecord
    {
        InstanceId original = 0;
        Position position;
    };
    using TargetClasses = QHash<InstanceId, const NodePrototype*>;

    Position here() const;
    void warnAt(const Position& position, const QString& sentence);
    void warnOfAttribute(QStringView element, QStringView attribute);
    ClassInfo* classInfo(QStringView text, NodeKind kind);
    bool claimId(InstanceId id);
    bool readNodeAttributes(NodeSnapshot& node, ClassInfo*& info);
    bool readLocks(QStringView text, unsigned int& locks);
    bool readContent(NodeSnapshot& node, ClassInfo& info);
    bool readChild(NodeSnapshot& node, NodeKind kind);
    bool readDomain(NodeSnapshot& node, size_t firstEntry);
    bool readValue(NodeSnapshot& node, const ClassInfo& info, size_t firstEntry, QString& unknown);
    bool readValueAttributes(const ClassInfo& info, const PropertyDefinition*& definition, PropertyAddress& proxy);
    bool readUnknownClassValue(NodeSnapshot& node, const PropertyDefinition* definition, const PropertyAddress& proxy,
                               size_t firstEntry, QString& unknown);
    bool isGiven(ClassId domain, PropertyKey key, size_t firstEntry) const;
    void addEntry(const NodeSnapshot& node, ClassId domain, const PropertyDefinition& definition, Value&& value,
                  const PropertyAddress& proxy, const Position& position);
    /// Lets equal texts (the ids of subparts, say) share one buffer: a document has thousands of each.
    void shareText(Value& value);
    PropertyKey proxyKey(QStringView text);
    Value readTyped(QXmlStreamReader& xml, const PropertyDefinition& definition);
    bool readText(QXmlStreamReader& xml);
    bool checkCircles();
    void collectTargets(const NodeSnapshot& node, TargetClasses& targets) const;
    const PropertyDefinition* findTarget(const PropertyAddress& target, const TargetClasses& targets) const;

    QXmlStreamReader& m_xml;
    NodeDb& m_db;
    QStringList& m_warnings;
    QString m_name;
    std::unordered_map<QStringView, std::unique_ptr<ClassInfo>> m_classes;
    ClassInfo* m_lastClass = nullptr;
    QHash<QString, PropertyKey> m_proxyKeys;
    QSet<QString> m_textIds;
    QSet<QString> m_sharedTexts;
    QSet<QString> m_warnedOf;
    std::vector<NodeSnapshot::ValueEntry> m_entries; // of the nodes being read, outermost first
    std::vector<ProxyRecord> m_proxies;
    std::vector<ReflectionRecord> m_reflections;
    std::unordered_map<unsigned int, std::vector<bool>> m_idPages;
    QString m_text;
    Position m_faultPosition;
    size_t m_nodeCount = 0;
    InstanceId m_highestId = 0;
    int m_depth = 0;
    int m_unknownClasses = 0;
    int m_warningsLeftOut = 0;
    bool m_idsRequired = false;
};
