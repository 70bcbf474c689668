#pragma once

#include "zkcore/base/classId.h"

#include <QWidget>
#include <map>
#include <memory>
#include <set>
#include <vector>

class DocumentImpl;
class NodeImpl;
class NodePaletteBox;
class PaletteBoxSection;

/// The sections of loaded forms on their way into a pane: bound while they stand in their forms, then lifted out, the
/// highest one first.
class FormSections
{
public:
    FormSections();
    /// Destroys the forms, with what was not lifted out of them.
    ~FormSections();

    /// Takes the form over and binds its sections. With a class id they edit properties of spaces.
    void add(std::unique_ptr<QWidget> form, DocumentImpl* document, const std::set<NodeImpl*>& nodes,
             ClassId spacePropertyCid = INVALID_CID);
    /// What is added from here on stands below everything added so far.
    void beginGroup() { ++m_group; }
    bool empty() const { return m_sections.empty(); }

    /// Moves the contents into a new widget with that parent: one section as it is, several as the items of a box that
    /// remembers for the class id which of them were open.
    QWidget* lift(ClassId cid, QWidget* parent);
    /// The box that lift() made; null when there was one section only.
    NodePaletteBox* box() const { return m_box; }

private:
    std::vector<std::unique_ptr<QWidget>> m_forms;
    std::multimap<std::pair<int, int>, PaletteBoxSection*> m_sections; // by group and y; the forms own them
    NodePaletteBox* m_box = nullptr;
    int m_group = 0;
};
