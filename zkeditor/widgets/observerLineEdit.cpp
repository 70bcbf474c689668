#include "zkeditor/widgets/observerLineEdit.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/expressionParser.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validatorFactory.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QValidator>
#include <algorithm>

namespace {

constexpr int lineEditTextMargin = 2; // what the toolkit keeps between its contents and the text

} // namespace

ObserverLineEdit::ObserverLineEdit(QWidget* parent, const QString& name)
    : LineEdit(parent, name), NumericalObserver(this)
{
}

// Binding

void ObserverLineEdit::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<POReceiver> alive(m_receiver);
    NumericalObserver::bind(document, nodes);
    // What is left over from nodes bound before says nothing about these.
    if (alive && m_props.empty())
        showText(QString());
}

void ObserverLineEdit::unbind()
{
    const QPointer<POReceiver> alive(m_receiver);
    // What was typed belongs to the nodes that were bound while it was typed.
    applyText();
    if (!alive)
        return;
    if (hasPendingText())
        showText(m_shownText);
    NumericalObserver::unbind();
}

void ObserverLineEdit::setupWidget()
{
    if (!validator())
        setValidator(QValidatorFactory::createByType(m_valueType, this));
    connect(this, &QLineEdit::returnPressed, this, &ObserverLineEdit::applyText, Qt::UniqueConnection);
    connect(this, &LineEdit::lostFocus, this, &ObserverLineEdit::applyText, Qt::UniqueConnection);
    connect(this, &QLineEdit::textChanged, this, &ObserverLineEdit::onTextChanged, Qt::UniqueConnection);
    NumericalObserver::setupWidget();
}

// From the model

void ObserverLineEdit::onPropertyValueChanged(Property, Value value)
{
    // Neither the text nor the cursor is taken from somebody who types.
    if (hasFocus() && hasPendingText())
        return;
    const bool fits = value.isValid() && isTypeCompatible(value.type());
    m_noValue = fits && !hasCompatibleValues();
    showText(fits && !m_noValue ? textOf(value) : QString());
}

void ObserverLineEdit::showModel()
{
    m_shownText = text(); // given up, or written
    showFirstValue();
}

void ObserverLineEdit::showText(const QString& shown)
{
    m_shownText = shown;
    if (text() != shown) {
        const QScopedValueRollback<bool> setting(m_settingText, true);
        const int cursor = cursorPosition();
        const bool allSelected = !text().isEmpty() && selectedText() == text();
        setText(shown);
        if (hasFocus() && allSelected)
            selectAll();
        else if (hasFocus())
            setCursorPosition(std::min(cursor, static_cast<int>(shown.size())));
        else
            setCursorPosition(0);
    }
    setModified(false);
    setDisplayValid(true);
    setDisplayReason({});
}

QString ObserverLineEdit::textOf(const Value& value) const
{
    const Formatter* formatter = m_props.empty() ? nullptr : m_props.front()->getFormatter();
    return formatter ? formatter->toText(value) : formatValueAsString(value);
}

Value ObserverLineEdit::getValueFromString(const QString& text) const
{
    ZK_ASSERT_TEXT(!m_props.empty(), "m_props.size()");
    QString word = text;
    if (m_valueType != Value::STRING)
        word = word.simplified().remove(QLatin1Char(' '));
    const Formatter* formatter = m_props.front()->getFormatter();
    const Value value = formatter ? formatter->fromText(word) : Value();
    return value.type() == m_valueType ? value : Value();
}

// From the user

void ObserverLineEdit::onTextChanged(const QString& text)
{
    if (m_props.empty() || m_settingText)
        return;
    if (!hasPendingText() || (m_noValue && text.isEmpty())) {
        setDisplayValid(true);
        setDisplayReason({});
        return;
    }
    const Value value = getValueFromString(text);
    if (value.isValid() && fuzzyValidateValue(value)) {
        setDisplayValid(true);
        setDisplayReason({});
    } else {
        refuse(value, text);
    }
}

void ObserverLineEdit::refuse(const Value& value, const QString& text)
{
    QString reason;
    if (value.isValid())
        reason = refusalReason(value);
    else if (m_valueType == Value::INT || m_valueType == Value::DOUBLE)
        reason = ExpressionParser::eval(text, shownUnit()).reason();
    if (reason.isEmpty())
        reason = tr("This text does not stand for a value of the kind that is needed here.");
    setDisplayValid(false);
    setDisplayReason(reason);
}

void ObserverLineEdit::applyText()
{
    if (m_props.empty() || !hasPendingText() || (m_noValue && text().isEmpty()))
        return;
    onWidgetValueChanged();
}

void ObserverLineEdit::onWidgetValueChanged()
{
    if (m_props.empty() || isShowingValue())
        return;
    const QString typed = text();
    Value value = getValueFromString(typed);
    if (!value.isValid() || !validateValue(value)) {
        const Value fixed = value.isValid() ? fixupValue(value) : Value();
        if (!fixed.isValid() || fixed == value) {
            qWarning("ObserverLineEdit: Can't fixup '%s'", qPrintable(typed));
            showModel();
            return;
        }
        value = fixed;
    }
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    m_noValue = false;
    m_shownText = typed; // on its way: whoever binds other nodes meanwhile must not write it again
    setPropertyValue(value);
    if (alive && binding == bindingNumber())
        showModel();
}

void ObserverLineEdit::setReadOnly(bool readOnly)
{
    LineEdit::setReadOnly(readOnly);
    if (m_linkStyle)
        updateLink(mapFromGlobal(QCursor::pos()));
}

void ObserverLineEdit::setEnabled(bool enabled)
{
    LineEdit::setEnabled(enabled && isPropertyWriteable());
}

void ObserverLineEdit::setDisabled(bool disabled)
{
    LineEdit::setDisabled(disabled || !isPropertyWriteable());
}

// Keys and focus

bool ObserverLineEdit::event(QEvent* event)
{
    // Before a shortcut takes the key.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        (hasPendingText() || m_linkStyle)) {
        event->accept();
        return true;
    }
    return LineEdit::event(event);
}

void ObserverLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        LineEdit::keyPressEvent(event);
        return;
    }
    const bool pending = !m_props.empty() && hasPendingText();
    if (pending)
        showModel();
    if (m_linkStyle && hasFocus())
        clearFocus();
    else if (!pending)
        LineEdit::keyPressEvent(event);
}

void ObserverLineEdit::focusInEvent(QFocusEvent* event)
{
    LineEdit::focusInEvent(event);
    if (m_linkStyle)
        updateLink(mapFromGlobal(QCursor::pos()));
}

void ObserverLineEdit::focusOutEvent(QFocusEvent* event)
{
    if (popupMenuActive())
        return;
    if (event->reason() == Qt::PopupFocusReason) {
        clearFocus(); // comes back here, for another reason
        return;
    }
    const QPointer<ObserverLineEdit> alive(this);
    LineEdit::focusOutEvent(event);
    if (alive && m_linkStyle)
        updateLink(mapFromGlobal(QCursor::pos()));
}

// Link style

void ObserverLineEdit::setLinkStyle(bool linkStyle)
{
    if (linkStyle == m_linkStyle)
        return;
    m_linkStyle = linkStyle;
    updateLink(mapFromGlobal(QCursor::pos()));
}

bool ObserverLineEdit::displayLinkStyle() const
{
    return m_linkStyle && !hasFocus() && !isReadOnly() && isEnabled();
}

QRect ObserverLineEdit::contentRect() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .marginsRemoved(textMargins())
        .adjusted(lineEditTextMargin, 0, -lineEditTextMargin, 0);
}

// Without a frame an empty field could not be seen: different values need a sign as well.
QString ObserverLineEdit::linkText() const
{
    return m_noValue && text().isEmpty() ? QString(QChar(0x2014)) : text();
}

// Where the text will stand when it is edited: by its own direction, where it has any.
int ObserverLineEdit::linkAlignment() const
{
    Qt::LayoutDirection direction = layoutDirection();
    if (!text().isEmpty())
        direction = text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    return static_cast<int>(QStyle::visualAlignment(direction, alignment())) | Qt::AlignVCenter;
}

QRect ObserverLineEdit::linkRect() const
{
    const QRect content = contentRect();
    const QString shown = fontMetrics().elidedText(linkText(), Qt::ElideRight, content.width());
    return style()->itemTextRect(fontMetrics(), content, linkAlignment(), true, shown);
}

// An arrow, a hand or a text cursor; underlined or not.
void ObserverLineEdit::updateLink(const QPoint& pointer)
{
    const bool isLink = displayLinkStyle();
    m_linkHovered = isLink && underMouse() && linkRect().contains(pointer);
    if (!isLink)
        setCursor(isReadOnly() ? Qt::ArrowCursor : Qt::IBeamCursor);
    else
        setCursor(m_linkHovered ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void ObserverLineEdit::enterEvent(QEnterEvent* event)
{
    LineEdit::enterEvent(event);
    if (m_linkStyle)
        updateLink(event->position().toPoint());
}

void ObserverLineEdit::leaveEvent(QEvent* event)
{
    LineEdit::leaveEvent(event);
    if (m_linkHovered)
        updateLink(QPoint(-1, -1));
}

void ObserverLineEdit::mouseMoveEvent(QMouseEvent* event)
{
    LineEdit::mouseMoveEvent(event);
    if (displayLinkStyle() && linkRect().contains(event->pos()) != m_linkHovered)
        updateLink(event->pos());
}

void ObserverLineEdit::changeEvent(QEvent* event)
{
    LineEdit::changeEvent(event);
    if (event->type() != QEvent::EnabledChange)
        return;
    refuseEnabling();
    if (m_linkStyle)
        updateLink(mapFromGlobal(QCursor::pos()));
}

void ObserverLineEdit::paintEvent(QPaintEvent* event)
{
    if (!displayLinkStyle()) {
        LineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QString link = linkText();
    const bool isBlank = link.isEmpty();
    QFont linkFont = font();
    linkFont.setUnderline(m_linkHovered && !isBlank);
    painter.setFont(linkFont);
    painter.setPen(palette().color(isBlank ? QPalette::PlaceholderText : QPalette::Link));
    const QRect content = contentRect();
    const QString shown = fontMetrics().elidedText(isBlank ? placeholderText() : link, Qt::ElideRight, content.width());
    painter.drawText(content, linkAlignment() | Qt::TextSingleLine, shown);
}
