#include "tests/support/messageCapture.h"

#include <cstdio>
#include <mutex>
#include <ostream>

namespace {

std::mutex captureMutex;
MessageCapture* innermostCapture = nullptr;

const char* messageTypeName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        return "fatal";
    case QtInfoMsg:
        return "info";
    }
    return "other";
}

} // namespace

std::ostream& operator<<(std::ostream& out, const CapturedMessage& message)
{
    return out << messageTypeName(message.type) << ": " << message.text.toStdString();
}

MessageCapture::MessageCapture() : m_outer(innermostCapture)
{
    const std::lock_guard lock(captureMutex);
    innermostCapture = this;
    m_previousHandler = qInstallMessageHandler(&MessageCapture::receive);
}

MessageCapture::~MessageCapture()
{
    qInstallMessageHandler(m_previousHandler);
    const std::lock_guard lock(captureMutex);
    innermostCapture = m_outer;
}

void MessageCapture::receive(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text)); // death tests match it
    const std::lock_guard lock(captureMutex);
    if (innermostCapture)
        innermostCapture->m_messages.push_back({type, text});
}

std::vector<CapturedMessage> MessageCapture::messages() const
{
    const std::lock_guard lock(captureMutex);
    return m_messages;
}

QStringList MessageCapture::texts() const
{
    QStringList result;
    for (const CapturedMessage& message : messages())
        result.append(message.text);
    return result;
}

QStringList MessageCapture::texts(QtMsgType type) const
{
    QStringList result;
    for (const CapturedMessage& message : messages())
        if (message.type == type)
            result.append(message.text);
    return result;
}

void MessageCapture::clear()
{
    const std::lock_guard lock(captureMutex);
    m_messages.clear();
}
