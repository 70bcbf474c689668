#include "zkeditor/widgets/formSections.h"

#include "zkeditor/widgets/nodePaletteBox.h"
#include "zkeditor/widgets/paletteBoxSection.h"

#include <QLayout>

FormSections::FormSections() = default;
FormSections::~FormSections() = default;

void FormSections::add(std::unique_ptr<QWidget> form, DocumentImpl* document, const std::set<NodeImpl*>& nodes,
                       ClassId spacePropertyCid)
{
    // A form that was never shown has not placed its sections yet.
    if (form->layout())
        form->layout()->activate();
    QList<PaletteBoxSection*> sections{qobject_cast<PaletteBoxSection*>(form.get())};
    if (!sections.front())
        sections = form->findChildren<PaletteBoxSection*>(QString(), Qt::FindDirectChildrenOnly);
    for (PaletteBoxSection* section : std::as_const(sections)) {
        if (spacePropertyCid != INVALID_CID)
            section->setSpacePropertyCid(spacePropertyCid);
        const int y = section->y();
        section->setupPaneWidgets(document, nodes);
        m_sections.emplace(std::pair(m_group, y), section);
    }
    m_forms.push_back(std::move(form));
}

QWidget* FormSections::lift(ClassId cid, QWidget* parent)
{
    if (m_sections.size() == 1) {
        QWidget* content = m_sections.begin()->second->getSectionWidget(parent);
        content->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum); // as in a box: at the top, not stretched
        content->show();
        return content;
    }
    m_box = new NodePaletteBox(cid, PaletteBox::PlainStyle | PaletteBox::Exclusive, parent);
    for (const auto& [place, section] : m_sections)
        m_box->addItem(section->getSectionWidget(m_box), section->label());
    return m_box;
}
