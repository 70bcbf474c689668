#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

/// An object of the toolkit with a text and five signals: the least that a property which can be listened to may be.
class BareObject : public QObject
{
    Q_OBJECT

public:
    void setText(const QString& text)
    {
        m_text = text;
        Q_EMIT textChanged();
    }
    const QString& text() const { return m_text; }

Q_SIGNALS:
    void textChanged();
    void second();
    void third();
    void fourth();
    void fifth();

private:
    QString m_text;
};

/// Listens to all of them.
class BareReceiver : public QObject
{
    Q_OBJECT

public:
    void connectTo(const std::vector<std::unique_ptr<BareObject>>& objects);
    void connectTo(const std::unique_ptr<BareObject>& object);
    void disconnectFrom(const std::vector<std::unique_ptr<BareObject>>& objects);
    size_t notifications() const { return m_notifications; }

private:
    void receive() { ++m_notifications; }

    size_t m_notifications = 0;
};
