#include "zkcore/media/resource.h"

#include "zkcore/media/resourceEntry.h"
#include "zkcore/media/resourceTable.h"

#include <array>

namespace {

/// The texts of the types, in the order of their numbers.
constexpr std::array<const char*, 9> resourceTypeNames = {"invalid", "image",  "movie", "sound", "text",
                                                          "data",    "script", "font",  "form"};

} // namespace

Resource::Resource() = default;
Resource::Resource(const char* name) : Resource(QString::fromUtf8(name)) {}

Resource::Resource(const QString& name) : m_name(name)
{
    if (!name.isEmpty())
        m_entry = ResourceTable::instance().find(name);
}

Resource::Resource(std::shared_ptr<const ResourceEntry> entry)
    : m_name(entry ? entry->name() : QString()), m_entry(std::move(entry))
{
}

Resource::~Resource() = default;
Resource::Resource(const Resource&) = default;
Resource& Resource::operator=(const Resource&) = default;
Resource::Resource(Resource&&) noexcept = default;
Resource& Resource::operator=(Resource&&) noexcept = default;

bool Resource::isValid() const
{
    return m_entry != nullptr;
}

Resource::Type Resource::type() const
{
    return m_entry ? m_entry->type() : INVALID;
}

QByteArray Resource::data() const
{
    return m_entry ? m_entry->data() : QByteArray();
}

QString Resource::typeAsString(Type type)
{
    const auto number = static_cast<size_t>(type);
    return QString::fromLatin1(resourceTypeNames[number < resourceTypeNames.size() ? number : 0]);
}

Resource::Type Resource::typeFromString(const QString& text)
{
    for (size_t number = 1; number < resourceTypeNames.size(); ++number)
        if (text == QLatin1String(resourceTypeNames[number]))
            return static_cast<Type>(number);
    return INVALID;
}

bool operator==(const Resource& a, const Resource& b)
{
    return a.m_name == b.m_name && (!a.m_entry || !b.m_entry || a.m_entry == b.m_entry);
}
