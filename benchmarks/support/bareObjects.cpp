#include "benchmarks/support/bareObjects.h"

void BareReceiver::connectTo(const std::vector<std::unique_ptr<BareObject>>& objects)
{
    for (const auto& object : objects)
        connectTo(object);
}

void BareReceiver::connectTo(const std::unique_ptr<BareObject>& object)
{
    connect(object.get(), &BareObject::textChanged, this, &BareReceiver::receive);
    connect(object.get(), &BareObject::second, this, &BareReceiver::receive);
    connect(object.get(), &BareObject::third, this, &BareReceiver::receive);
    connect(object.get(), &BareObject::fourth, this, &BareReceiver::receive);
    connect(object.get(), &BareObject::fifth, this, &BareReceiver::receive);
}

void BareReceiver::disconnectFrom(const std::vector<std::unique_ptr<BareObject>>& objects)
{
    for (const auto& object : objects)
        disconnect(object.get(), nullptr, this, nullptr);
}
