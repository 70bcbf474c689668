#pragma once

#include "zkcore/base/classId.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/paletteBox.h"

#include <map>

/// A palette box that remembers, for a class of nodes, which of its items were open: a box made later for the same
/// class can open them again. Remembered for the run of the program.
class ZKEDITOR_EXPORT NodePaletteBox : public PaletteBox
{
    Q_OBJECT

public:
    explicit NodePaletteBox(unsigned int flags, QWidget* parent = nullptr);
    NodePaletteBox(ClassId nodeId, unsigned int flags, QWidget* parent);
    /// Stores the open items.
    ~NodePaletteBox() override;

    /// The class that the open items are stored for; with INVALID_CID nothing is stored.
    void setNodeId(ClassId nodeId) { m_nodeId = nodeId; }
    ClassId nodeId() const { return m_nodeId; }

    /// Remembers the open items in place of what was remembered before.
    void storeOpenItems();
    /// Opens what is remembered for a class, as far as there are such items; closes nothing. Whether any was opened.
    /// INVALID_CID is fatal.
    bool restoreOpenItemsFor(ClassId nodeId);

private:
    static std::multimap<ClassId, int> s_itemIndexMap; // indexes of open items

    ClassId m_nodeId = INVALID_CID;
};
