#include "zkcore/values/validatorNotifier.h"

void ValidatorNotifier::add(QObject* receiver, const char* slot)
{
    if (!receiver)
        return;
    const auto found = m_receivers.constFind(receiver);
    if (found != m_receivers.constEnd() && found->object)
        return;
    forgetDead();
    const QMetaObject::Connection connection = QObject::connect(this, SIGNAL(changed()), receiver, slot);
    if (connection)
        m_receivers.insert(receiver, {receiver, connection});
}

void ValidatorNotifier::remove(QObject* receiver)
{
    const auto found = m_receivers.constFind(receiver);
    if (found == m_receivers.constEnd())
        return;
    QObject::disconnect(found->connection);
    m_receivers.erase(found);
}

/// Entries of receivers that died connected are dropped when the table has doubled: constant time for each addition.
void ValidatorNotifier::forgetDead()
{
    constexpr qsizetype worthwhile = 64;
    if (m_receivers.size() < worthwhile || m_receivers.size() < 2 * m_sizeAfterForgetting)
        return;
    m_receivers.removeIf([](const auto& entry) { return entry.value().object.isNull(); });
    m_sizeAfterForgetting = m_receivers.size();
}
