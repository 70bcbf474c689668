#include "zkcore/storage/xmlGuard.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstring>

bool XmlAttributeCounter::feed(QByteArrayView bytes, qsizetype* harmless)
{
    qsizetype i = 0;
    for (; i < bytes.size() && m_count <= maximum; ++i) {
        if (m_state == Text) {
            // The greatest part of most files
            const void* const found = std::memchr(bytes.data() + i, '<', static_cast<size_t>(bytes.size() - i));
            if (!found)
                break;
            i = static_cast<const char*>(found) - bytes.data();
        }
        // Every second byte of what is not eight bits wide
        if (bytes[i] != 0)
            next(bytes[i]);
    }
    if (harmless)
        *harmless = m_count <= maximum ? bytes.size() : std::max<qsizetype>(i - 1, 0);
    return m_count <= maximum;
}

void XmlAttributeCounter::next(char c)
{
    switch (m_state) {
    case Text:
        m_state = Opened;
        m_count = 0;
        break;
    case Opened:
        m_matched = 0;
        m_end = "?>";
        m_state = c == '?' ? Declaration : c == '!' ? Marked : Tag;
        break;
    case Marked:
        m_end = c == '-' ? "-->" : c == '[' ? "]]>" : ">";
        m_state = Declaration;
        break;
    case Declaration:
        // Only the last character of an end differs from those before it.
        if (c == m_end[m_matched])
            ++m_matched;
        else if (m_matched == 0 || c != m_end[m_matched - 1])
            m_matched = 0;
        if (m_end[m_matched] == 0)
            m_state = Text;
        break;
    case Tag:
        if (c == '>')
            m_state = Text;
        else if (c == '=')
            ++m_count;
        else if (c == '"' || c == '\'') {
            m_quote = c;
            m_state = Value;
        }
        break;
    case Value:
        if (c == m_quote)
            m_state = Tag;
        break;
    }
}

XmlGuardDevice::XmlGuardDevice(QIODevice& device) : m_device(device)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

QString XmlGuardDevice::reason()
{
    return QCoreApplication::translate("XmlGuard", "an element has more than %1 attributes")
        .arg(XmlAttributeCounter::maximum);
}

qint64 XmlGuardDevice::readData(char* data, qint64 maximum)
{
    if (m_stopped) {
        m_ended = true;
        return -1;
    }
    const qint64 count = m_device.read(data, maximum);
    if (count <= 0)
        return count;
    qsizetype harmless = 0;
    m_stopped = !m_counter.feed(QByteArrayView(data, count), &harmless);
    return harmless;
}
