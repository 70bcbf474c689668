#include "zkeditor/widgets/bindPass.h"

namespace {

const BindPass* s_innermostPass = nullptr;

} // namespace

BindPass::BindPass(const std::set<NodeImpl*>& nodes) : m_nodes(nodes), m_size(nodes.size()), m_outer(s_innermostPass)
{
    const BindPass* same = current(nodes);
    m_subparts = same ? same->m_subparts : std::make_shared<Cache>();
    s_innermostPass = this;
}

BindPass::~BindPass()
{
    s_innermostPass = m_outer;
}

const BindPass* BindPass::current(const std::set<NodeImpl*>& nodes)
{
    // The address names the set only while its pass stands; the size guards against a set that was changed meanwhile.
    const BindPass* pass = s_innermostPass;
    return pass && &pass->m_nodes == &nodes && pass->m_size == nodes.size() ? pass : nullptr;
}

std::shared_ptr<const BindPass::Nodes> BindPass::subparts(const QString& selector) const
{
    return m_subparts->value(selector);
}

void BindPass::keepSubparts(const QString& selector, const std::shared_ptr<const Nodes>& nodes) const
{
    m_subparts->insert(selector, nodes);
}
