#pragma once

#include "zkcore/base/export.h"

#include <QByteArrayView>
#include <QIODevice>

/// Counts the attributes of each element in bytes of XML, before a parser sees them: the toolkit's compares each
/// attribute of an element with all others, so that a file of some megabytes could keep it busy for hours.
class ZKCORE_EXPORT XmlAttributeCounter
{
public:
    /// Greatest number of attributes of one element.
    static constexpr int maximum = 1000;

    /// Goes on with the next bytes. False when an element has too many attributes; then and from then on. `harmless`
    /// is set to the number of bytes before the one attribute too many.
    bool feed(QByteArrayView bytes, qsizetype* harmless = nullptr);
    /// The same for a whole file.
    static bool isHarmless(QByteArrayView bytes) { return XmlAttributeCounter().feed(bytes); }

private:
    enum State { Text, Opened, Marked, Declaration, Tag, Value };

    void next(char c);

    State m_state = Text;
    char m_quote = 0;            // that ends the value
    const char* m_end = nullptr; // what ends the declaration
    int m_matched = 0;           // so many characters of that
    int m_count = 0;
};

/// Hands on what another device gives until an element has too many attributes, and ends there.
class ZKCORE_EXPORT XmlGuardDevice : public QIODevice
{
public:
    /// The device is not owned and must be open for reading.
    explicit XmlGuardDevice(QIODevice& device);

    bool isSequential() const override { return true; }
    bool atEnd() const override { return m_ended || m_device.atEnd(); }
    /// Whether it ended for that reason.
    bool isStopped() const { return m_stopped; }
    /// What is wrong then, translated.
    static QString reason();

protected:
    qint64 readData(char* data, qint64 maximum) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QIODevice& m_device;
    XmlAttributeCounter m_counter;
    bool m_stopped = false;
    bool m_ended = false; // all before the fault was handed on
};
