#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/propertyAddress.h"

#include <QString>
#include <vector>

/// One thing that an element has to do with.
struct Association
{
    QString group;             ///< translated heading under which it stands
    QString text;              ///< short
    QString sentence;          ///< the same as a sentence, for tool tips and screen readers
    InstanceId node = 0;       ///< what the other end is, or stands in
    PropertyAddress follower;  ///< valid when the association is a property that follows another: this one
    InstanceId reflection = 0; ///< not 0 when the association is a reflection of the element that can be removed

    bool canBeDetached() const { return follower.isValid() || reflection != 0; }
};

/// Everything that an element has to do with, by kind. Each list ends after `most` entries; `more` counts those left
/// out.
struct Associations
{
    struct List
    {
        std::vector<Association> entries;
        size_t more = 0;

        void add(Association association);
    };

    static constexpr size_t most = 1000;

    /// The element must be alive.
    explicit Associations(const ElementImpl& element);

    List links;       ///< properties that follow others or are followed, nodes referred to
    List subparts;    ///< by role
    List reflections; ///< of the element, or what it reflects
    List popup;       ///< the pop-up and what stands in it

private:
    void addLinks(const ElementImpl& owner, const ElementImpl& element);
    void addReflections(const ElementImpl& element);
};
