#pragma once

#include "zkcore/model/handles.h"

#include <QObject>
#include <QPointer>
#include <QSet>

class DocumentImpl;
class PartImpl;
class PopupImpl;

/// What the mouse of a reader sets off besides the flowcharts, while the model runs: the click actions of parts, and
/// explanations, which open on a click or when the mouse rests on them and may go away when they have been read.
/// Nothing of it is saved or recorded, and when the model stops all looks as before.
class ReaderActions : public QObject
{
    Q_OBJECT

public:
    explicit ReaderActions(QObject* parent = nullptr);
    ~ReaderActions() override;

    /// Not owned; null lets go of the document. Stops what ran in the document before.
    void setDocument(DocumentImpl* document);
    /// Opens the pop-ups that are open at the start.
    void start();
    /// Brings back what went away, and closes what start() opened.
    void stop();
    bool isRunning() const { return m_running; }

    /// The rest does nothing unless the model runs.
    void click(const PartImpl& part);
    void restOn(const PartImpl& part);
    /// The reader has closed the pop-up.
    void leave(const PopupImpl& popup);

Q_SIGNALS:
    /// A space is to be shown.
    void spaceRequested(const Node& space);
    /// One translated sentence for the status bar.
    void noticed(const QString& text);

private:
    void setRead(const Node& explanation, bool read);

    QPointer<DocumentImpl> m_document;
    QSet<InstanceId> m_read;   // explanations that went away
    QSet<InstanceId> m_opened; // parts whose pop-ups start() opened
    bool m_running = false;
};
