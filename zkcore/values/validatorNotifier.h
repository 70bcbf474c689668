#pragma once

#include <QHash>
#include <QMetaObject>
#include <QObject>
#include <QPointer>

/// Sends the change notification of a validator, and knows who is connected.
class ValidatorNotifier : public QObject
{
    Q_OBJECT

public:
    void add(QObject* receiver, const char* slot);
    void remove(QObject* receiver);
    /// May destroy this object: nothing may be done after it.
    void notify() { Q_EMIT changed(); }

Q_SIGNALS:
    void changed();

private:
    struct Receiver
    {
        QPointer<QObject> object; // tells a dead receiver from a new object at its address
        QMetaObject::Connection connection;
    };

    void forgetDead();

    QHash<const QObject*, Receiver> m_receivers;
    qsizetype m_sizeAfterForgetting = 0;
};
