#pragma once

#include "zkcore/storage/nodeXml.h"

#include <QHash>
#include <QString>
#include <vector>

/// Writes nodes to one file. The texts of classes and keys are looked up once each.
class NodeXml::Writer
{
public:
    explicit Writer(QXmlStreamWriter& xml);

    void write(const NodeImpl& node);
    /// What stands before the node's children, and what stands after them.
    void writeStart(const NodeImpl& node);
    void writeEnd(const NodeImpl& node);
    void write(const NodeSnapshot& node, const NodeDb& db);
    /// Whether nodes were left out because they stand too deep to be read again.
    bool leftOutDeepNodes() const { return m_tooDeep; }

private:
    using Store = NodeImpl::PropertyStore;

    const QString& classText(ClassId cid);
    const QString& keyText(PropertyKey key);
    void startNode(NodeKind kind, ClassId cid, InstanceId id);
    void writeElementAttributes(unsigned int locks, bool adhoc, InstanceId reflects, ReflectionKind reflection);
    void writeStore(const NodeImpl& node, ClassId domain, const Store& store);
    void writeDomains(const NodeImpl& node);
    void writeValue(PropertyKey key, const Value& value, const PropertyAddress& proxy);
    void startDomain(ClassId domain);
    void writeContent(const Value& value);

    QXmlStreamWriter& m_xml;
    QHash<ClassId, QString> m_classTexts;
    std::vector<QString> m_keyTexts; // by the key's number
    ClassId m_openDomain = INVALID_CID;
    int m_depth = 0;
    bool m_tooDeep = false;
};
