// One check box of the locking palette. The document tells of the locks of all its elements, so that nothing has to be
// connected for each of many selected ones.
#include "zkeditor/lockUICheckBox.h"

#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/model/documentImpl.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr int lockUpdateDelay = 20; // ms

} // namespace

LockUICheckBox::LockUICheckBox(LockGroup group, const QString& text, QWidget* parent, const QString& name)
    : CheckBox(text, parent, name), m_group(group)
{
    m_updateTimer.setSingleShot(true);
    m_updateTimer.setInterval(lockUpdateDelay);
    connect(&m_updateTimer, &QTimer::timeout, this, &LockUICheckBox::update);
}

LockUICheckBox::~LockUICheckBox() = default;

void LockUICheckBox::setDocument(DocumentImpl* document)
{
    if (document == m_document)
        return;
    unbindNodes();
    m_document = document;
}

// Binding

void LockUICheckBox::bindNodes(const std::set<ElementImpl*>& nodes)
{
    unbindNodes();
    if (!m_document || nodes.empty())
        return;
    m_nodes.assign(nodes.begin(), nodes.end());
    m_addresses.assign(nodes.begin(), nodes.end());
    m_allResizeable =
        std::all_of(nodes.begin(), nodes.end(), [](const ElementImpl* each) { return each->isResizeable(); });
    connect(m_document, &DocumentImpl::nodeLocksChanged, this, &LockUICheckBox::onLocksChanged);
    connect(m_document, &DocumentImpl::ElementRemoved, this, &LockUICheckBox::invalidate);
    onBound();
    const QPointer<LockUICheckBox> alive(this);
    update();
    if (alive && isBound())
        connect(this, &QCheckBox::stateChanged, this, &LockUICheckBox::setUILocked, Qt::UniqueConnection);
}

void LockUICheckBox::unbindNodes()
{
    m_updateTimer.stop();
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_nodes.clear();
    m_addresses.clear();
    m_allResizeable = true;
    disconnect(this, &QCheckBox::stateChanged, this, &LockUICheckBox::setUILocked);
    showState(false, false);
}

void LockUICheckBox::onBound() {}

bool LockUICheckBox::contains(const NodeImpl* node) const
{
    const auto at = std::lower_bound(m_addresses.begin(), m_addresses.end(), node, std::less<const NodeImpl*>());
    // Another node may have taken the place of one that is gone.
    return at != m_addresses.end() && *at == node && m_nodes[static_cast<size_t>(at - m_addresses.begin())].valid();
}

bool LockUICheckBox::isLockApplicable() const
{
    return m_group != LockSize || m_allResizeable;
}

// Showing

void LockUICheckBox::onLocksChanged(NodeImpl* node)
{
    if (contains(node))
        aggregateUpdate();
}

void LockUICheckBox::invalidate(Node)
{
    aggregateUpdate();
}

void LockUICheckBox::aggregateUpdate()
{
    if (isBound() && !m_updateTimer.isActive())
        m_updateTimer.start();
}

void LockUICheckBox::update()
{
    if (!isBound() || !isLockApplicable())
        return;
    bool locked = false;
    bool unlocked = false;
    for (const Element& each : m_nodes) {
        const ElementImpl* element = each.impl();
        if (!element)
            continue;
        const bool isLocked = element->isLocked(m_group) || element->isLocked(LockPropertyValues);
        (isLocked ? locked : unlocked) = true;
        if (locked && unlocked)
            break;
    }
    const QPointer<LockUICheckBox> alive(this);
    showState(locked, locked && unlocked);
    if (alive)
        Q_EMIT lockPropertiesChanged();
}

void LockUICheckBox::showState(bool locked, bool mixed)
{
    const QPointer<LockUICheckBox> alive(this);
    const bool outer = std::exchange(m_showing, true);
    setCheckBoxState(locked, mixed);
    if (alive)
        m_showing = outer;
}

// Editing

void LockUICheckBox::setUILocked(int)
{
    if (m_showing || !m_document || !isBound())
        return;
    const bool locked = isChecked();
    const QPointer<LockUICheckBox> alive(this);
    showState(locked, false); // the next click must not come back to the partial state
    if (!alive || !m_document)
        return;
    std::vector<Node> handles;
    handles.reserve(m_nodes.size());
    for (const Element& each : m_nodes) {
        if (each.valid())
            handles.push_back(each);
    }
    m_document->executeCommand(new SetUILockedCommand(handles, m_group, locked));
    // Also when nothing came of it.
    if (alive)
        aggregateUpdate();
}
