// Keeps the open items of each class beyond the life of its boxes.
#include "zkeditor/widgets/nodePaletteBox.h"

#include "zkcore/base/assert.h"

#include <QPointer>
#include <vector>

std::multimap<ClassId, int> NodePaletteBox::s_itemIndexMap;

NodePaletteBox::NodePaletteBox(unsigned int flags, QWidget* parent) : PaletteBox(flags, parent) {}

NodePaletteBox::NodePaletteBox(ClassId nodeId, unsigned int flags, QWidget* parent)
    : PaletteBox(flags, parent), m_nodeId(nodeId)
{
}

NodePaletteBox::~NodePaletteBox()
{
    storeOpenItems();
}

void NodePaletteBox::storeOpenItems()
{
    if (m_nodeId == INVALID_CID)
        return;
    s_itemIndexMap.erase(m_nodeId);
    for (int i = 0; i < count(); ++i) {
        if (isItemOpen(i))
            s_itemIndexMap.emplace(m_nodeId, i);
    }
}

bool NodePaletteBox::restoreOpenItemsFor(ClassId nodeId)
{
    ZK_ASSERT(nodeId != INVALID_CID);
    const auto [begin, end] = s_itemIndexMap.equal_range(nodeId);
    std::vector<int> indexes;
    for (auto at = begin; at != end; ++at)
        indexes.push_back(at->second);
    const QPointer<NodePaletteBox> alive(this);
    bool opened = false;
    for (const int index : indexes) {
        if (!alive || index < 0 || index >= count())
            continue;
        showItem(index, true);
        opened = true;
    }
    return opened;
}
