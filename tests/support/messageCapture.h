#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <iosfwd>
#include <vector>

/// What passed through the message handler: its type and its whole text.
struct CapturedMessage
{
    QtMsgType type;
    QString text;

    bool operator==(const CapturedMessage& other) const = default;
};

/// For readable failures.
std::ostream& operator<<(std::ostream& out, const CapturedMessage& message);

/// Collects every message (any thread) for as long as it lives, and gives the handler before it back when it goes.
/// Captures may be nested; the innermost one gets the messages. A fatal message still ends the program.
class MessageCapture
{
public:
    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    /// In the order of arrival.
    std::vector<CapturedMessage> messages() const;
    /// The texts of all messages, or of one type only.
    QStringList texts() const;
    QStringList texts(QtMsgType type) const;
    QStringList warnings() const { return texts(QtWarningMsg); }
    bool isEmpty() const { return messages().empty(); }
    void clear();

private:
    static void receive(QtMsgType type, const QMessageLogContext& context, const QString& text);

    QtMessageHandler m_previousHandler;
    MessageCapture* m_outer;
    std::vector<CapturedMessage> m_messages;
};
