#include "zkauthor/formsDock.h"

#include "zkcore/media/resource.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/labelMirror.h"
#include "zkeditor/widgets/paletteBoxSection.h"
#include "zkeditor/widgets/paneScrollFilter.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

namespace {

PropertyKey controlPaneKey()
{
    static const PropertyKey key = PropertyKey::fromString("meta-controlpane");
    return key;
}

} // namespace

FormsDock::FormsDock(QWidget* parent) : QDockWidget(parent), m_area(new QScrollArea), m_heading(new QLabel)
{
    setObjectName(QStringLiteral("formsDock"));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setMargin(6);
    m_heading->setObjectName(QStringLiteral("formsHeading"));
    new LabelMirror(m_heading);
    layout->addWidget(m_heading);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setFocusPolicy(Qt::NoFocus);
    new PaneScrollFilter(m_area);
    layout->addWidget(m_area, 1);
    setWidget(body);
    setMinimumWidth(240);
    showMessage(tr("Properties"), QString());
}

FormsDock::~FormsDock()
{
    if (m_pane)
        PaneWidget::unbindChildren(m_pane);
}

void FormsDock::setDocument(DocumentImpl* document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    m_space = {};
    showMessage(tr("Properties"), QString());
    if (!document)
        return;
    connect(document, &DocumentImpl::SelectionChanged, this, &FormsDock::refresh);
    connect(document, &DocumentImpl::nodeValueChanged, this, &FormsDock::onNodeValueChanged);
    connect(document, &DocumentImpl::Loaded, this, &FormsDock::onLoaded);
}

void FormsDock::setSpace(SpaceImpl* space)
{
    m_space = Space(space);
    if (m_document && m_document->getSelection().empty())
        refresh();
}

void FormsDock::commitPendingEdit()
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (!focus || !m_area->isAncestorOf(focus))
        return;
    focus->clearFocus();
    if (focus && focus->isVisible() && focus->isEnabled())
        focus->setFocus();
}

std::set<NodeImpl*> FormsDock::nodesToShow() const
{
    const ElementImplSet selection = m_document->getSelection();
    std::set<NodeImpl*> nodes(selection.begin(), selection.end());
    if (nodes.empty() && m_space.impl())
        nodes.insert(m_space.impl());
    return nodes;
}

void FormsDock::onLoaded()
{
    // After most undo steps the same nodes are still there.
    const std::set<NodeImpl*> nodes = nodesToShow();
    if (!std::equal(nodes.begin(), nodes.end(), m_bound.begin(), m_bound.end(),
                    [](NodeImpl* node, const Node& bound) { return bound.impl() == node; }))
        refresh();
}

void FormsDock::refresh()
{
    if (!m_document)
        return;
    const std::set<NodeImpl*> nodes = nodesToShow();
    m_bound.assign(nodes.begin(), nodes.end());
    if (nodes.empty()) {
        showMessage(tr("Properties"), QString());
        return;
    }
    const ClassId cid = (*nodes.begin())->classId();
    for (const NodeImpl* node : nodes) {
        if (node->classId() != cid) {
            showMessage(tr("Properties"), tr("Multiple parts selected"));
            return;
        }
    }
    showNodes(nodes);
}

void FormsDock::showNodes(const std::set<NodeImpl*>& nodes)
{
    NodeImpl* first = *nodes.begin();
    const ClassId cid = first->classId();
    setHeading(nodes);
    if (m_pane && m_paneClass == cid) {
        PaneWidget::unbindChildren(m_pane);
        PaneWidget::bindChildren(m_pane, m_document, nodes);
        return;
    }
    QStringList forms;
    for (const QString& form : first->valueOfProperty(controlPaneKey()).toStringVector())
        forms.append(form);
    QWidget* pane = makePane(first, forms);
    if (!pane) {
        const QString heading = m_heading->text();
        const Node only = m_onlyNode;
        showMessage(windowTitle(), tr("This part has no properties"));
        m_heading->setText(heading);
        m_heading->show();
        m_onlyNode = only;
        return;
    }
    replacePane(pane, cid);
    PaneWidget::bindChildren(pane, m_document, nodes);
}

QWidget* FormsDock::makePane(NodeImpl* node, const QStringList& forms)
{
    const ClassId cid = node->classId();
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    for (const QString& name : forms) {
        const Resource resource(name);
        if (!resource.isValid())
            continue;
        std::unique_ptr<QWidget> form(loadUIFromResource(resource, nullptr));
        if (!form) {
            qWarning("FormsDock: the form %s of %s cannot be read", qPrintable(name),
                     qPrintable(findStringForCid(cid)));
            continue;
        }
        QList<PaletteBoxSection*> sections =
            form->findChildren<PaletteBoxSection*>(QString(), Qt::FindDirectChildrenOnly);
        if (auto* section = qobject_cast<PaletteBoxSection*>(form.get()))
            sections = {section};
        for (PaletteBoxSection* section : std::as_const(sections))
            addSection(pane, cid, section->label(), section->getSectionWidget(pane));
        if (sections.isEmpty()) {
            const QString title = form->windowTitle();
            form->setParent(pane);
            addSection(pane, cid, title, form.release());
        }
    }
    if (layout->count() > 0) {
        layout->addStretch(1);
        return pane;
    }
    delete pane;
    return nullptr;
}

void FormsDock::addSection(QWidget* pane, ClassId cid, const QString& label, QWidget* content)
{
    auto* header = new QToolButton(pane);
    header->setObjectName(QStringLiteral("sectionHeader"));
    header->setText(label);
    header->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    header->setCheckable(true);
    header->setChecked(!m_folded.contains({cid, label}));
    header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    header->setFocusPolicy(Qt::TabFocus);
    QFont font = header->font();
    font.setBold(true);
    header->setFont(font);
    const auto show = [this, header, content, cid, label](bool open) {
        header->setArrowType(open ? Qt::DownArrow : isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
        content->setVisible(open);
        if (open)
            m_folded.remove({cid, label});
        else
            m_folded.insert({cid, label});
    };
    pane->layout()->addWidget(header);
    pane->layout()->addWidget(content);
    show(header->isChecked());
    connect(header, &QToolButton::toggled, content, show);
}

void FormsDock::setHeading(const std::set<NodeImpl*>& nodes)
{
    NodeImpl* first = *nodes.begin();
    const bool space = first->kind() == NodeKind::Scene || first->kind() == NodeKind::Popup;
    const QString label = m_document->getMetaLabelForCID(first->classId());
    if (space)
        setWindowTitle(tr("Scene Properties"));
    else
        setWindowTitle(tr("%1 Properties").arg(label.isEmpty() ? findStringForCid(first->classId()) : label));
    m_onlyNode = nodes.size() == 1 ? Node(first) : Node();
    m_heading->setText(nodes.size() == 1 ? first->displayName() : tr("%1 parts selected").arg(nodes.size()));
    m_heading->show();
}

void FormsDock::showMessage(const QString& caption, const QString& text)
{
    setWindowTitle(caption);
    m_onlyNode = {};
    m_heading->clear();
    m_heading->hide();
    auto* label = new QLabel(text);
    label->setObjectName(QStringLiteral("formsMessage"));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(12);
    replacePane(label, INVALID_CID);
}

void FormsDock::replacePane(QWidget* pane, ClassId cid)
{
    // The request may come from inside a field of the old pane, so that goes only when control is back in the event
    // loop.
    if (QWidget* old = m_area->takeWidget()) {
        PaneWidget::unbindChildren(old);
        old->hide();
        old->setParent(this);
        old->deleteLater();
    }
    m_pane = pane;
    m_paneClass = cid;
    m_area->setWidget(pane);
}

void FormsDock::onNodeValueChanged(NodeImpl* node, PropertyKey key)
{
    if (m_onlyNode.impl() == node && (key == coreKeys::title() || key == coreKeys::id()))
        m_heading->setText(node->displayName());
}
