#include "zkcore/model/coreKeys.h"

namespace coreKeys {

PropertyKey id()
{
    static const PropertyKey key = PropertyKey::fromString("id");
    return key;
}

PropertyKey title()
{
    static const PropertyKey key = PropertyKey::fromString("title");
    return key;
}

PropertyKey position()
{
    static const PropertyKey key = PropertyKey::fromString("position");
    return key;
}

PropertyKey size()
{
    static const PropertyKey key = PropertyKey::fromString("size");
    return key;
}

PropertyKey orientation()
{
    static const PropertyKey key = PropertyKey::fromString("orientation");
    return key;
}

PropertyKey orientationConstraint()
{
    static const PropertyKey key = PropertyKey::fromString("orientation-constraint");
    return key;
}

PropertyKey visible()
{
    static const PropertyKey key = PropertyKey::fromString("visible");
    return key;
}

PropertyKey roles()
{
    static const PropertyKey key = PropertyKey::fromString("roles");
    return key;
}

PropertyKey open()
{
    static const PropertyKey key = PropertyKey::fromString("open");
    return key;
}

PropertyKey from()
{
    static const PropertyKey key = PropertyKey::fromString("from");
    return key;
}

PropertyKey to()
{
    static const PropertyKey key = PropertyKey::fromString("to");
    return key;
}

} // namespace coreKeys
