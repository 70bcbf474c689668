#include "zkcore/model/role.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>

namespace {

/// The names of all roles met so far; a role is the place of its name plus one.
struct RoleNames
{
    QHash<QString, unsigned int> numbers;
    QStringList names;
};

RoleNames& roleNames()
{
    static RoleNames names;
    return names;
}

} // namespace

Role::Role(const QString& name)
{
    if (name.isEmpty())
        return;
    RoleNames& known = roleNames();
    const auto found = known.numbers.constFind(name);
    if (found != known.numbers.cend()) {
        m_number = *found;
        return;
    }
    known.names.append(name);
    m_number = static_cast<unsigned int>(known.names.size());
    known.numbers.insert(name, m_number);
}

QString Role::name() const
{
    return m_number == 0 ? QString() : roleNames().names.at(static_cast<qsizetype>(m_number) - 1);
}

RoleSet::RoleSet(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    for (const QString& name : text.split(separators, Qt::SkipEmptyParts))
        m_roles.emplace_back(name);
    std::sort(m_roles.begin(), m_roles.end());
    m_roles.erase(std::unique(m_roles.begin(), m_roles.end()), m_roles.end());
}

RoleSet::RoleSet(const Role& role)
{
    if (role.isValid())
        m_roles.push_back(role);
}

RoleSet RoleSet::intersect(const RoleSet& other) const
{
    RoleSet common;
    std::set_intersection(m_roles.begin(), m_roles.end(), other.m_roles.begin(), other.m_roles.end(),
                          std::back_inserter(common.m_roles));
    return common;
}

bool RoleSet::intersects(const RoleSet& other) const
{
    return std::any_of(m_roles.begin(), m_roles.end(), [&other](Role role) { return other.contains(role); });
}

bool RoleSet::contains(Role role) const
{
    return std::binary_search(m_roles.begin(), m_roles.end(), role);
}

QString RoleSet::toString() const
{
    QStringList names;
    for (const Role role : m_roles)
        names.append(role.name());
    return names.join(QLatin1Char(' '));
}
