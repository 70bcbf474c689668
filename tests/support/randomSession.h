#pragma once

#include "zkcore/model/documentImpl.h"

#include <vector>

/// Does things to a document that numbers choose: parts, subparts, scenes, values of nodes and of domains, proxies,
/// locks, order, reflections, resources, selection, undo and redo. Wants the package of the tests.
class RandomSession
{
public:
    /// How many kinds of steps there are.
    static constexpr unsigned int kinds = 15;

    explicit RandomSession(DocumentImpl& document) : m_document(document) {}

    /// `what` chooses the kind, the others what it is done to.
    void step(unsigned int what, unsigned int x, unsigned int y);

private:
    SpaceImpl* space(unsigned int n);
    ElementImpl* element(unsigned int n);
    void setSomething(unsigned int x, unsigned int y, bool push);
    void setOfDomain(unsigned int x, unsigned int y);
    void link(unsigned int x, unsigned int y);
    void reflect(unsigned int x, unsigned int y);
    void select(unsigned int x);

    DocumentImpl& m_document;
};
