#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/instanceId.h"

#include <QString>

class DocumentImpl;
class NodeImpl;

/// The id (the "id" property) of one node, or a free one for a node to come: ids are unique in their document and hold
/// no blanks.
class ZKCORE_EXPORT IdProvider
{
public:
    /// For a node that is there.
    explicit IdProvider(NodeImpl* node);
    /// For a node to come: id() is the first free id that begins with the prefix ("led4").
    IdProvider(DocumentImpl* document, const QString& prefix);

    /// Whether the text may be this node's id: not empty, no white space, at most 100 characters, and used by no other
    /// node of the document.
    bool isValidId(const QString& text) const;
    /// Why it may not: one translated sentence; empty when it may.
    QString reason(const QString& text) const;
    /// Whether the document knows the node under id().
    bool isRegistered() const;
    QString id() const;
    /// A free id close to the text: the text itself, or with a number behind it.
    QString suggestion(const QString& text) const;

private:
    DocumentImpl* m_document;
    InstanceId m_node;
    QString m_id;
};
