#include "zkeditor/widgets/partIdLineEdit.h"

#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/idProvider.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QSet>
#include <QStringListModel>
#include <QToolTip>
#include <algorithm>
#include <memory>

namespace {

constexpr int mostIdsShown = 4;
constexpr QLatin1Char numberMark('#');

/// What stands before and behind the number, and the first number.
struct IdPattern
{
    QString before;
    QString behind;
    unsigned int first = 1;
};

IdPattern patternFrom(const QString& text)
{
    IdPattern pattern;
    const qsizetype mark = text.indexOf(numberMark);
    if (mark >= 0) {
        pattern.before = text.left(mark);
        pattern.behind = text.mid(mark + 1);
        return pattern;
    }
    qsizetype end = text.size();
    while (end > 0 && text[end - 1].isDigit() && text.size() - end < 9)
        --end;
    pattern.before = text.left(end);
    if (end < text.size())
        pattern.first = text.mid(end).toUInt();
    return pattern;
}

} // namespace

PartIdLineEdit::PartIdLineEdit(QWidget* parent, const QString& name)
    : LineEdit(parent, name), PropertyObserver(this, Value::STRING), m_offers(new QCompleter(this)),
      m_offered(new QStringListModel(this))
{
    setModelProperty(coreKeys::id().toString());
    m_offers->setModel(m_offered);
    m_offers->setWidget(this);
    m_offers->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    connect(m_offers, qOverload<const QString&>(&QCompleter::activated), this, [this](const QString& id) {
        setText(id);
        setModified(true);
        onTextEdited();
    });
    connect(this, &QLineEdit::textEdited, this, &PartIdLineEdit::onTextEdited);
    connect(this, &LineEdit::lostFocus, this, &PartIdLineEdit::applyText);
}

// Binding and showing

void PartIdLineEdit::setupWidget()
{
    m_nodes.clear();
    setPlaceholderText(m_props.size() > 1 ? tr("Rename %n parts", nullptr, static_cast<int>(m_props.size()))
                                          : QString());
    PropertyObserver::setupWidget();
}

void PartIdLineEdit::unbind()
{
    const QPointer<POReceiver> alive(m_receiver);
    // What was typed belongs to the nodes that were bound while it was typed.
    applyText();
    if (!alive)
        return;
    m_offers->popup()->hide();
    PropertyObserver::unbind();
    m_nodes.clear();
}

void PartIdLineEdit::onPropertyDeleted(QObject* object)
{
    m_nodes.clear();
    PropertyObserver::onPropertyDeleted(object);
}

void PartIdLineEdit::onPropertyValueChanged(Property, Value value)
{
    // Neither the text nor the cursor is taken from somebody who types.
    if (isModified() && hasFocus())
        return;
    const QString shown = hasCompatibleValues() ? value.toQString() : QString();
    if (text() != shown)
        setText(shown);
    setModified(false);
    setDisplayValid(true);
    setDisplayReason({});
    setPreview({});
}

void PartIdLineEdit::showModel()
{
    setModified(false);
    m_offers->popup()->hide();
    showFirstValue();
}

void PartIdLineEdit::setPreview(const QString& text)
{
    if (text == m_preview)
        return;
    m_preview = text;
    if (hasFocus())
        QToolTip::showText(mapToGlobal(rect().bottomLeft()), text, this);
    Q_EMIT previewChanged(text);
}

// Ids

const std::vector<InstanceId>& PartIdLineEdit::nodes() const
{
    if (m_nodes.empty()) {
        for (const PropertyImpl* property : m_props)
            m_nodes.push_back(property->owner()->instanceId());
        std::sort(m_nodes.begin(), m_nodes.end());
    }
    return m_nodes;
}

QStringList PartIdLineEdit::proposedIds() const
{
    if (m_props.empty() || text().isEmpty())
        return {};
    const std::vector<InstanceId>& all = nodes();
    if (all.size() == 1)
        return refusal().isEmpty() ? QStringList{text()} : QStringList();
    const IdPattern pattern = patternFrom(text());
    QStringList ids;
    ids.reserve(static_cast<qsizetype>(all.size()));
    // Ids of the parts themselves are free: all get new ones.
    unsigned int number = pattern.first;
    while (ids.size() < static_cast<qsizetype>(all.size())) {
        const QString id = pattern.before + QString::number(number++) + pattern.behind;
        const NodeImpl* holder = m_document->nodeWithId(id);
        if (!holder || std::binary_search(all.begin(), all.end(), holder->instanceId()))
            ids.append(id);
    }
    return ids;
}

QString PartIdLineEdit::refusal() const
{
    if (m_props.empty())
        return {};
    if (m_props.size() == 1) {
        const QString reason = IdProvider(m_props.front()->owner()).reason(text());
        return reason.isEmpty() ? refusalReason(Value(text())) : reason;
    }
    if (text().count(numberMark) > 1)
        return tr("There is one number in an id: write # once.");
    // The longest is the last, and another part has none of them.
    const IdPattern pattern = patternFrom(text());
    const auto last = pattern.first + static_cast<unsigned int>(2 * m_props.size());
    const QString longest = pattern.before + QString::number(last) + pattern.behind;
    const QString reason = IdProvider(m_document, QString()).reason(longest);
    return m_document->nodeWithId(longest) ? QString() : reason;
}

QString PartIdLineEdit::suggestion() const
{
    if (m_props.size() != 1 || text().isEmpty() || refusal().isEmpty())
        return {};
    const QString offered = IdProvider(m_props.front()->owner()).suggestion(text());
    return offered == text() ? QString() : offered;
}

// Editing

void PartIdLineEdit::onTextEdited()
{
    if (m_props.empty())
        return;
    const QString reason = text().isEmpty() && m_props.size() > 1 ? QString() : refusal();
    setDisplayValid(reason.isEmpty());
    setDisplayReason(reason);
    const QString offered = suggestion();
    m_offered->setStringList(offered.isEmpty() ? QStringList() : QStringList{offered});
    if (!offered.isEmpty() && hasFocus())
        m_offers->complete();
    else
        m_offers->popup()->hide();
    QString preview;
    if (m_props.size() > 1 && reason.isEmpty() && !text().isEmpty()) {
        QStringList ids = proposedIds();
        const QString last = ids.constLast();
        if (ids.size() > mostIdsShown)
            ids = ids.mid(0, mostIdsShown - 1) + QStringList{tr("..."), last};
        preview = ids.join(QStringLiteral(", "));
    }
    setPreview(preview);
    if (!preview.isEmpty())
        setAccessibleDescription(preview);
}

void PartIdLineEdit::applyText()
{
    if (m_props.empty() || !isModified())
        return;
    const QStringList ids = refusal().isEmpty() && isPropertyWriteable() ? proposedIds() : QStringList();
    setModified(false);
    if (ids.isEmpty()) {
        showModel();
        return;
    }
    // An id that another of the parts has now is taken from it before it is given.
    const std::vector<InstanceId>& all = nodes();
    auto command = std::make_unique<SetValueCommand>(m_pushUndoOnSetProperty);
    QHash<QString, InstanceId> wanted;
    for (size_t i = 0; i < all.size(); ++i)
        wanted.insert(ids[static_cast<qsizetype>(i)], all[i]);
    const auto address = [](InstanceId id) { return PropertyAddress{id, INVALID_CID, coreKeys::id()}; };
    const auto idOf = [this](InstanceId id) {
        return m_document->nodeById(id)->valueOfProperty(coreKeys::id()).toQString();
    };
    for (const InstanceId id : all) {
        if (const InstanceId other = wanted.value(idOf(id)); other != 0 && other != id)
            command->addAddress(address(id), Value(QStringLiteral("%1~%2").arg(idOf(id)).arg(id)));
    }
    for (size_t i = 0; i < all.size(); ++i)
        command->addAddress(address(all[i]), Value(ids[static_cast<qsizetype>(i)]));
    const QPointer<POReceiver> alive(m_receiver);
    const QPointer<DocumentImpl> document(m_document);
    const bool done = document->executeCommand(command.release()).isValid();
    if (!alive)
        return;
    showModel();
    if (!done && document)
        setDisplayReason(document->lastError());
}

// Before a shortcut takes the key.
bool PartIdLineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        isModified()) {
        event->accept();
        return true;
    }
    return LineEdit::event(event);
}

void PartIdLineEdit::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const QAbstractItemView* offers = m_offers->popup();
    if (offers->isVisible() && offers->selectionModel()->hasSelection() &&
        (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        event->ignore(); // chooses what is offered
        return;
    }
    if (key == Qt::Key_Escape && isModified() && !m_props.empty()) {
        showModel();
        return;
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && isModified()) {
        applyText();
        return;
    }
    LineEdit::keyPressEvent(event);
}

void PartIdLineEdit::changeEvent(QEvent* event)
{
    LineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void PartIdLineEdit::setEnabled(bool enabled)
{
    LineEdit::setEnabled(enabled && isPropertyWriteable());
}

void PartIdLineEdit::setDisabled(bool disabled)
{
    LineEdit::setDisabled(disabled || !isPropertyWriteable());
}
