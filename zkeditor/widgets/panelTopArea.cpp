#include "zkeditor/widgets/panelTopArea.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/duplication.h"
#include "zkeditor/widgets/leadingLabel.h"
#include "zkeditor/widgets/partIdLineEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int iconSide = 32;

bool isElementKind(const NodeImpl* node)
{
    return node->kind() == NodeKind::Part || node->kind() == NodeKind::Subpart;
}

bool mayBeDeleted(const NodeImpl* node)
{
    return node->kind() == NodeKind::Part ||
           (node->kind() == NodeKind::Subpart && static_cast<const ElementImpl*>(node)->isAdhoc());
}

bool mayBeDuplicated(const NodeImpl* node)
{
    return node->kind() == NodeKind::Part && !isConnection(static_cast<const ElementImpl&>(*node));
}

bool mayBeReflected(const NodeImpl* node)
{
    return node->kind() == NodeKind::Part && static_cast<const PartImpl*>(node)->canReflect();
}

} // namespace

PanelTopArea::PanelTopArea(QWidget* parent)
    : QWidget(parent), m_icon(new QLabel(this)), m_name(new LeadingLabel({}, this)),
      m_id(new PartIdLineEdit(this, QStringLiteral("topAreaId")))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->setSpacing(4);
    auto* heading = new QHBoxLayout;
    heading->setSpacing(8);
    layout->addLayout(heading);
    m_icon->setFixedSize(iconSide, iconSide);
    m_icon->setAlignment(Qt::AlignCenter);
    heading->addWidget(m_icon, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    heading->addLayout(texts, 1);
    m_name->setObjectName(QStringLiteral("topAreaName"));
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    texts->addWidget(m_name);
    m_id->setAccessibleName(tr("Name"));
    m_id->setToolTip(tr("A short name without blanks by which other things refer to it."));
    m_id->hide();
    texts->addWidget(m_id);

    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    layout->addLayout(row);
    for (const auto type : {ShortcutButton::Delete, ShortcutButton::Duplicate, ShortcutButton::Lock,
                            ShortcutButton::Reflect, ShortcutButton::ShowPopup, ShortcutButton::Help}) {
        auto* button = new ShortcutButton(type, this);
        row->addWidget(button);
        m_buttons.push_back(button);
        connect(button, &ShortcutButton::shortcutClicked, this, &PanelTopArea::onShortcut);
    }
    row->addStretch(1);

    m_refreshSoon.setSingleShot(true);
    m_refreshSoon.setInterval(0);
    connect(&m_refreshSoon, &QTimer::timeout, this, &PanelTopArea::refresh);
    refresh();
}

void PanelTopArea::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    unbind();
    m_document = document;
    m_nodes.assign(nodes.begin(), nodes.end());
    if (document && !m_nodes.empty()) {
        const auto soon = [this] { m_refreshSoon.start(); };
        connect(document, &DocumentImpl::nodeLocksChanged, this, soon);
        connect(document, &DocumentImpl::ElementAdded, this, soon);
        connect(document, &DocumentImpl::ElementRemoved, this, soon);
        connect(document, &DocumentImpl::PopupAdded, this, soon);
        connect(document, &DocumentImpl::PopupRemoved, this, soon);
        connect(document, &DocumentImpl::nodeValueChanged, this, &PanelTopArea::onNodeValueChanged);
    }
    refresh();
    bindId();
}

void PanelTopArea::unbind()
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_refreshSoon.stop();
    const QPointer<PanelTopArea> alive = this;
    m_id->unbind(); // enters what was typed
    if (!alive)
        return;
    m_nodes.clear();
    m_document = nullptr;
    refresh();
}

ShortcutButton* PanelTopArea::button(ShortcutButton::Type type) const
{
    return m_buttons.at(static_cast<size_t>(type));
}

NodeImpl* PanelTopArea::onlyNode() const
{
    return m_nodes.size() == 1 ? m_nodes.front().impl() : nullptr;
}

void PanelTopArea::refresh()
{
    std::erase_if(m_nodes, [](const Node& node) { return !node.valid(); });
    refreshHeading();
    refreshButtons();
    if (m_nodes.empty())
        m_id->hide();
}

void PanelTopArea::bindId()
{
    // Parts of several classes are not numbered together.
    std::set<NodeImpl*> nodes;
    for (const Node& node : m_nodes) {
        NodeImpl* impl = node.impl();
        if (impl->classId() != m_nodes.front().impl()->classId() || !impl->hasProperty(coreKeys::id()))
            return m_id->hide();
        nodes.insert(nodes.end(), impl);
    }
    const bool any = m_document && !nodes.empty();
    m_id->setVisible(any);
    if (any)
        m_id->bind(m_document, nodes);
}

void PanelTopArea::refreshHeading()
{
    Resource icon;
    if (m_nodes.empty()) {
        m_fullName = tr("Nothing selected");
    } else {
        const NodeImpl* first = m_nodes.front().impl();
        const bool oneClass = std::all_of(m_nodes.begin(), m_nodes.end(), [first](const Node& node) {
            return node.impl()->classId() == first->classId();
        });
        const QString label = m_document->getMetaLabelForCID(first->classId());
        const QString count = locale().toString(static_cast<qulonglong>(m_nodes.size()));
        if (oneClass)
            icon = m_document->getMetaIconForCID(first->classId());
        if (m_nodes.size() == 1) {
            const QString title = first->valueOfProperty(coreKeys::title()).toQString();
            m_fullName = !title.isEmpty() ? title : !label.isEmpty() ? label : first->displayName();
        } else if (oneClass && !label.isEmpty()) {
            //: A number of parts of one kind: "3 × LED"
            m_fullName = tr("%1 × %2").arg(count, label);
        } else {
            m_fullName = tr("%Ln parts", nullptr, static_cast<int>(m_nodes.size()));
        }
    }
    m_icon->setVisible(icon.isValid());
    m_icon->setPixmap(icon.isValid() ? ImageCache::getPixmap(icon, QSize(iconSide, iconSide), devicePixelRatioF())
                                     : QPixmap());
    m_icon->setAccessibleName(m_fullName);
    showName();
}

void PanelTopArea::showName()
{
    const QString oneLine = m_fullName.simplified();
    const QString shown = m_name->fontMetrics().elidedText(oneLine, Qt::ElideRight, m_name->width());
    m_name->setText(shown);
    m_name->setAccessibleName(m_fullName);
    m_name->setToolTip(shown == oneLine ? QString() : m_fullName);
}

void PanelTopArea::refreshButtons()
{
    const auto impl = [](const Node& node) { return node.impl(); };
    std::vector<NodeImpl*> nodes;
    nodes.reserve(m_nodes.size());
    std::transform(m_nodes.begin(), m_nodes.end(), std::back_inserter(nodes), impl);
    const bool any = !nodes.empty();
    const bool elements = any && std::all_of(nodes.begin(), nodes.end(), isElementKind);
    button(ShortcutButton::Delete)->setEnabled(any && std::all_of(nodes.begin(), nodes.end(), mayBeDeleted));
    button(ShortcutButton::Duplicate)->setEnabled(std::any_of(nodes.begin(), nodes.end(), mayBeDuplicated));
    button(ShortcutButton::Lock)->setEnabled(elements);
    button(ShortcutButton::Lock)->setChecked(elements && std::all_of(nodes.begin(), nodes.end(), [](NodeImpl* node) {
                                                 return static_cast<ElementImpl*>(node)->isLocked(LockPropertyValues);
                                             }));
    button(ShortcutButton::Reflect)->setEnabled(std::any_of(nodes.begin(), nodes.end(), mayBeReflected));
    const auto* part = qobject_cast<PartImpl*>(onlyNode());
    button(ShortcutButton::ShowPopup)->setEnabled(part && part->popup());
    button(ShortcutButton::Help)->setEnabled(any);
}

void PanelTopArea::onShortcut(ShortcutButton::Type type)
{
    // The lock button shows what is, not what was asked for.
    refreshButtons();
    Q_EMIT shortcutClicked(type);
}

void PanelTopArea::onNodeValueChanged(NodeImpl* node, PropertyKey key)
{
    if (key == coreKeys::title() && node == onlyNode())
        refreshHeading();
}

void PanelTopArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showName();
}
