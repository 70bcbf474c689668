#include "zkeditor/widgets/observerColorpicker.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/colorNames.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/qtColorPicker.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QHash>
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

namespace {

constexpr size_t mostUsedColors = 16;
constexpr size_t mostNodesLookedAt = 100000;

std::vector<PropertyKey> colorKeysOf(const NodePrototype& prototype)
{
    std::vector<PropertyKey> keys;
    for (const PropertyDefinition& definition : prototype.properties()) {
        if (definition.type == Value::COLOR && !definition.flags.testFlag(PropertyDefinition::Invisible))
            keys.push_back(definition.key);
    }
    return keys;
}

} // namespace

ObserverColorPicker::ObserverColorPicker(QWidget* parent, const QString& name)
    : QWidget(parent), PropertyObserver(this, Value::COLOR),
      m_picker(new QtColorPicker(this, QStringLiteral("color_button"))),
      m_editor(new LineEdit(this, QStringLiteral("color_edit")))
{
    setObjectName(name);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(m_picker);
    row->addWidget(m_editor, 1);
    setFocusProxy(m_picker);
    setAcceptDrops(true);
    m_editor->setAcceptDrops(false); // a colour's name that is dropped replaces the old one
    m_editor->setMinimumWidth(m_editor->fontMetrics().horizontalAdvance(QStringLiteral("#00000000")));
    m_editor->installEventFilter(this);
    m_picker->setUsedColors([this] { return usedColors(); });
    connect(m_picker, &QtColorPicker::colorChosen, this, &ObserverColorPicker::onWidgetValueChanged);
    connect(m_editor, &QLineEdit::textEdited, this, &ObserverColorPicker::onTextEdited);
    connect(m_editor, &LineEdit::lostFocus, this, &ObserverColorPicker::commitText);
}

bool ObserverColorPicker::isColorDialogEnabled() const
{
    return m_picker->isColorDialogEnabled();
}

void ObserverColorPicker::setColorDialogEnabled(bool enabled)
{
    m_picker->setColorDialogEnabled(enabled);
}

void ObserverColorPicker::setNameShown(bool shown)
{
    m_nameShown = shown;
    m_editor->setVisible(shown);
}

// Binding and showing

void ObserverColorPicker::setupWidget()
{
    m_picker->setAccessibleName(accessibleName());
    m_editor->setAccessibleName(tr("%1, name of the colour").arg(accessibleName()));
    PropertyObserver::setupWidget();
}

void ObserverColorPicker::unbind()
{
    const QPointer<POReceiver> alive(m_receiver);
    // What was typed belongs to the nodes that were bound while it was typed, what is still open to nobody else.
    commitText();
    if (!alive)
        return;
    m_picker->dismiss();
    PropertyObserver::unbind();
}

void ObserverColorPicker::onPropertyValueChanged(Property, Value value)
{
    const bool one = value.isValid() && isTypeCompatible(value.type()) && hasCompatibleValues();
    m_picker->setColor(one ? value.toQColor() : QColor());
    // Neither the text nor the cursor is taken from somebody who types.
    if (!isTyping())
        showText();
}

void ObserverColorPicker::showText()
{
    const QColor color = m_picker->color();
    const QString text = color.isValid() ? colorNames::nameOf(color) : QString();
    if (text != m_editor->text())
        m_editor->setText(text);
    m_editor->setModified(false);
    setDisplayValid(true);
    setDisplayReason({});
}

bool ObserverColorPicker::isTyping() const
{
    return m_editor->isModified() && m_editor->hasFocus();
}

std::vector<QColor> ObserverColorPicker::usedColors() const
{
    if (m_props.empty() || !m_document)
        return {};
    QHash<const NodePrototype*, std::vector<PropertyKey>> keys;
    QHash<QRgb, size_t> places;
    std::vector<std::pair<QColor, int>> uses;
    std::vector<const NodeImpl*> open{m_document->getModel()};
    for (size_t looked = 0; !open.empty() && looked < mostNodesLookedAt; ++looked) {
        const NodeImpl* node = open.back();
        open.pop_back();
        auto known = keys.find(&node->prototype());
        if (known == keys.end())
            known = keys.insert(&node->prototype(), colorKeysOf(node->prototype()));
        for (const PropertyKey key : *known) {
            const QColor color = node->valueOfProperty(key).toQColor();
            if (!color.isValid())
                continue;
            const auto place = places.constFind(color.rgba());
            if (place != places.constEnd()) {
                ++uses[*place].second;
                continue;
            }
            places.insert(color.rgba(), uses.size());
            uses.emplace_back(color, 1);
        }
        for (const NodeImpl* child : node->children())
            open.push_back(child);
    }
    std::stable_sort(uses.begin(), uses.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    std::vector<QColor> colors;
    for (size_t i = 0; i < std::min(uses.size(), mostUsedColors); ++i)
        colors.push_back(uses[i].first);
    return colors;
}

// Editing

void ObserverColorPicker::onWidgetValueChanged(const QColor& color)
{
    if (m_props.empty() || isShowingValue())
        return;
    m_editor->setModified(false);
    const Value value(color);
    if (isPropertyWriteable() && color.isValid() && validateValue(value)) {
        const QPointer<POReceiver> alive(m_receiver);
        setPropertyValue(value);
        if (!alive)
            return;
    }
    showFirstValue();
}

void ObserverColorPicker::onTextEdited()
{
    if (m_props.empty())
        return;
    const QString text = m_editor->text().trimmed();
    const QColor color = colorNames::colorNamed(text);
    QString reason;
    if (color.isValid())
        reason = refusalReason(Value(color));
    else if (!text.isEmpty())
        reason = tr("This names no colour.");
    setDisplayValid(reason.isEmpty());
    setDisplayReason(reason);
}

void ObserverColorPicker::commitText()
{
    if (m_props.empty() || !m_editor->isModified())
        return;
    const QColor color = colorNames::colorNamed(m_editor->text());
    m_editor->setModified(false);
    onWidgetValueChanged(color);
}

bool ObserverColorPicker::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_editor)
        return QWidget::eventFilter(object, event);
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool commits = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (!m_editor->isModified() || !(commits || key == Qt::Key_Escape))
            return false;
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept();
            return false;
        }
        if (commits) {
            const QPointer<QWidget> alive(this);
            commitText();
            if (alive)
                m_editor->selectAll();
        } else {
            m_editor->setModified(false);
            showFirstValue();
        }
        return true;
    }
    return false;
}

QColor ObserverColorPicker::draggedColor(const QMimeData* content)
{
    if (content->hasColor())
        return content->colorData().value<QColor>();
    return content->hasText() ? colorNames::colorNamed(content->text()) : QColor();
}

void ObserverColorPicker::dragEnterEvent(QDragEnterEvent* event)
{
    if (!m_props.empty() && isPropertyWriteable() && draggedColor(event->mimeData()).isValid())
        event->acceptProposedAction();
}

void ObserverColorPicker::dropEvent(QDropEvent* event)
{
    const QColor color = draggedColor(event->mimeData());
    if (m_props.empty() || !color.isValid())
        return;
    event->acceptProposedAction();
    onWidgetValueChanged(color);
}

void ObserverColorPicker::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ObserverColorPicker::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled && isPropertyWriteable());
}

void ObserverColorPicker::setDisabled(bool disabled)
{
    QWidget::setDisabled(disabled || !isPropertyWriteable());
}
