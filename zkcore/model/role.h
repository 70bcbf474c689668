#pragma once

#include "zkcore/base/export.h"

#include <QString>
#include <QStringList>
#include <vector>

/// A named role that an element plays in its parent ("pins", "controls", "pads", "body").
class ZKCORE_EXPORT Role
{
public:
    Role() = default;
    explicit Role(const QString& name);

    QString name() const;
    bool isValid() const { return m_number != 0; }
    unsigned int number() const { return m_number; }
    friend bool operator==(Role, Role) = default;
    friend bool operator<(Role a, Role b) { return a.m_number < b.m_number; }

private:
    unsigned int m_number = 0;
};

/// A set of roles. Made from text: names separated by blanks, commas or semicolons.
class ZKCORE_EXPORT RoleSet
{
public:
    RoleSet() = default;
    explicit RoleSet(const QString& text);
    explicit RoleSet(const Role& role);

    /// The roles that are in both.
    RoleSet intersect(const RoleSet& other) const;
    bool intersects(const RoleSet& other) const;
    bool contains(Role role) const;
    bool empty() const { return m_roles.empty(); }
    QString toString() const;
    const std::vector<Role>& roles() const { return m_roles; }
    friend bool operator==(const RoleSet&, const RoleSet&) = default;

private:
    std::vector<Role> m_roles; // sorted
};
