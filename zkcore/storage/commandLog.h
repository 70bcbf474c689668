#pragma once

#include "zkcore/base/export.h"

#include <QByteArray>
#include <QPointer>
#include <QString>

class DocumentImpl;

/// Records what is done to a document as XML, and does it again to another.
class ZKCORE_EXPORT CommandLog
{
public:
    /// Records from now on (takes the document's command listener). What was recorded stays when the document goes.
    explicit CommandLog(DocumentImpl* document);
    ~CommandLog();

    /// The session so far, a whole XML document.
    QByteArray toXML() const;
    /// Does a recorded session to a document that stands where the recorded one began. False with the message (line,
    /// column, reason) at the first entry that is faulty or fails; what was done before stays done.
    static bool replay(const QByteArray& session, DocumentImpl* document, QString& error);

private:
    QPointer<DocumentImpl> m_document;
    QByteArray m_entries;
};
