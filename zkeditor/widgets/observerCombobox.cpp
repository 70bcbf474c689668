#include "zkeditor/widgets/observerCombobox.h"

#include "zkcore/base/assert.h"
#include "zkcore/media/imageCache.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/services/translate.h"
#include "zkcore/values/validator.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/widgets/isolatedText.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/richItemDelegate.h"
#include "zkeditor/widgets/validatorSet.h"

#include <QApplication>
#include <QBitmap>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <algorithm>
#include <type_traits>

namespace {

constexpr int swatchWidth = 80;
constexpr QSize largestItemImage(160, 64);

} // namespace

ObserverComboBox::ObserverComboBox(QWidget* parent, const QString& name)
    : ComboBox(parent, name), PropertyObserver(this), m_trueString(tr("true")), m_falseString(tr("false"))
{
}

void ObserverComboBox::setEditable(bool editable)
{
    if (editable == isEditable())
        return;
    ComboBox::setEditable(editable);
    if (!editable)
        return;
    setInsertPolicy(QComboBox::NoInsert);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ObserverComboBox::showEditText);
}

// Binding

void ObserverComboBox::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::bind(document, nodes);
    // What is left over from nodes bound before says nothing about these.
    if (alive && m_props.empty())
        setNoValue(true);
}

void ObserverComboBox::unbind()
{
    hidePopup();
    PropertyObserver::unbind();
    m_validatorsDiffer = false;
}

bool ObserverComboBox::isPropertyWriteable() const
{
    return !m_validatorsDiffer && PropertyObserver::isPropertyWriteable();
}

void ObserverComboBox::setupWidget()
{
    ZK_ASSERT(!m_props.empty());
    readSubstitutions();
    const QPointer<POReceiver> alive(m_receiver);
    onValidatorChanged();
    if (!alive)
        return;
    connect(this, &QComboBox::activated, this, &ObserverComboBox::onWidgetValueChanged, Qt::UniqueConnection);
    onStateChanged();
}

void ObserverComboBox::readSubstitutions()
{
    static const Property::Key key = Property::getKeyForString("meta-ui-substitutions");
    m_substitutions.clear();
    const ElementImplSet selection = m_document->getSelection();
    if (selection.empty())
        return;
    const ElementImpl* first = *selection.begin();
    if (first->hasProperty(key))
        m_substitutions = first->valueOfProperty(key).toValueMap();
}

bool ObserverComboBox::validatorsAgree() const
{
    if (m_props.size() < 2 || validators().commonTo(m_props.frontTag()))
        return true;
    const auto isThere = [](const interface::Validator&) { return false; };
    return validators().all(isThere); // none has one
}

void ObserverComboBox::onValidatorChanged()
{
    ZK_ASSERT(!m_props.empty());
    const QPointer<POReceiver> alive(m_receiver);
    const ShowingValue showing(this); // what is emitted here is no edit
    const bool differed = std::exchange(m_validatorsDiffer, !validatorsAgree());
    if (m_validatorsDiffer) {
        setDisabled(true);
        hidePopup();
        clear();
        m_comboValues.clear();
        setNoValue(true);
        return;
    }
    if (differed)
        onStateChanged();
    buildContent();
    if (m_comboValues.empty()) {
        qWarning("ObserverComboBox: Found no combo items during setup");
        return;
    }
    showFirstValue();
    if (alive)
        Q_EMIT textActivated(currentText());
    if (alive)
        Q_EMIT activated(currentIndex());
}

// Items

void ObserverComboBox::buildContent()
{
    hidePopup();
    clear();
    m_comboValues.clear();
    m_hasRichItems = false;
    m_imageSize = QSize();
    setIconSize(QSize()); // the style's own
    buildItems();
    if (!m_imageSize.isEmpty())
        setIconSize(m_imageSize);
}

void ObserverComboBox::buildItems()
{
    if (m_valueType == Value::BOOL) {
        buildBoolContent();
        return;
    }
    const auto* set =
        m_props.empty() ? nullptr : dynamic_cast<const SetValidator*>(m_props.front()->definition().validator.get());
    if (!set) {
        qWarning("%s: No SetValidator found on Property %s. Maybe an unintialised proxy?", metaObject()->className(),
                 qPrintable(modelProperty()));
        return;
    }
    const Value list = set->getValidValues();
    if (m_valueType == Value::COLOR) {
        buildColorContent(list.toValueVector());
        return;
    }
    if (m_valueType == Value::STRING) {
        buildStringContent(list.toStringVector());
        return;
    }
    switch (list.type()) {
    case Value::INTVECTOR:
        buildContent(list.toIntVector());
        break;
    case Value::DOUBLEVECTOR:
        buildContent(list.toDoubleVector());
        break;
    case Value::POINTVECTOR:
        buildContent(list.toPointVector());
        break;
    case Value::RESOURCEVECTOR:
        buildContent(list.toResourceVector());
        break;
    case Value::VALUEVECTOR:
        buildContent(list.toValueVector());
        break;
    default:
        qFatal("ObserverComboBox: SetValidator contains un-handled types");
    }
}

void ObserverComboBox::buildBoolContent()
{
    addValue(Value(true), m_trueString);
    addValue(Value(false), m_falseString);
}

void ObserverComboBox::buildColorContent(const std::vector<Value>& values)
{
    const QSize size = swatchSize();
    for (const Value& value : values) {
        ZK_ASSERT_TEXT(value.type() == Value::COLOR, "I->type() == Value::COLOR");
        const QColor color = value.toQColor();
        addImage(value, getPixmapFromColor(color, size), color.name());
    }
}

void ObserverComboBox::buildStringContent(const std::vector<QString>& strings)
{
    for (const QString& string : strings) {
        const Value value(string);
        const QPixmap image = substituteImage(string);
        if (!image.isNull()) {
            addImage(value, image, displayText(string));
            continue;
        }
        const QString text = displayText(string);
        if (!m_enableRichText || !Qt::mightBeRichText(text)) {
            addValue(value, text);
            continue;
        }
        addValue(value, RichItemDelegate::plainText(text));
        setItemData(count() - 1, text, RichItemDelegate::markupRole);
        m_hasRichItems = true;
    }
}

template <typename Element> void ObserverComboBox::addElements(const std::vector<Element>& values)
{
    for (const Element& element : values) {
        if constexpr (std::is_same_v<Element, Value>)
            addValue(element, formatValueAsString(element));
        else
            addValue(Value(element), formatValueAsString(Value(element)));
    }
}

void ObserverComboBox::buildContent(const std::vector<int>& values)
{
    addElements(values);
}

void ObserverComboBox::buildContent(const std::vector<double>& values)
{
    addElements(values);
}

void ObserverComboBox::buildContent(const std::vector<zk::Point>& values)
{
    addElements(values);
}

void ObserverComboBox::buildContent(const std::vector<Resource>& values)
{
    addElements(values);
}

void ObserverComboBox::buildContent(const std::vector<Value>& values)
{
    addElements(values);
}

void ObserverComboBox::addValue(const Value& value, const QString& text)
{
    m_comboValues.push_back(value);
    addItem(text);
}

void ObserverComboBox::addImage(const Value& value, const QPixmap& image, const QString& description)
{
    m_comboValues.push_back(value);
    addItem(QIcon(image), QString());
    setItemData(count() - 1, description, Qt::ToolTipRole);
    setItemData(count() - 1, description, Qt::AccessibleTextRole);
    m_imageSize = m_imageSize.expandedTo(image.deviceIndependentSize().toSize());
}

QString ObserverComboBox::displayText(const QString& string) const
{
    QString source = string;
    if (m_substitutions.count(string) == 1) {
        const Value& substitute = m_substitutions.find(string)->second;
        if (substitute.type() == Value::STRING)
            source = substitute.toQString();
    }
    const NodeImpl* owner = m_props.empty() ? nullptr : m_props.front()->owner();
    const QString text = translateStringFromContext(owner, source);
    if (spacePropertyCid() == INVALID_CID || text != source)
        return text;
    return QApplication::translate(findStringForCid(spacePropertyCid()).toUtf8().constData(),
                                   source.toUtf8().constData());
}

QPixmap ObserverComboBox::substituteImage(const QString& string) const
{
    if (m_substitutions.count(string) != 1)
        return {};
    const Value& substitute = m_substitutions.find(string)->second;
    if (substitute.type() != Value::RESOURCE)
        return {};
    const QPixmap image = ImageCache::getPixmap(substitute.toResource());
    if (image.isNull())
        return {};
    return ImageCache::getPixmap(substitute.toResource(), image.size().boundedTo(largestItemImage),
                                 devicePixelRatioF());
}

QSize ObserverComboBox::swatchSize() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    // Before its first layout a widget has a size that means nothing, and in a folded section none.
    const int height = sizeHint().height();
    if (!testAttribute(Qt::WA_Resized) || option.rect.height() < height)
        option.rect.setHeight(height);
    return {swatchWidth,
            style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).height()};
}

QPixmap ObserverComboBox::getPixmapFromColor(const QColor& color, const QSize& size) const
{
    const double ratio = devicePixelRatioF();
    QPixmap pixmap(size * ratio);
    pixmap.fill(Qt::white);
    pixmap.setDevicePixelRatio(ratio);
    QPainter painter(&pixmap);
    painter.setBrush(color);
    painter.setPen(Qt::black);
    painter.drawRect(0, 2, size.width() - 5, size.height() - 5); // the outline adds one
    painter.end();
    pixmap.setMask(pixmap.createHeuristicMask(true));
    return pixmap;
}

// From the model

void ObserverComboBox::onPropertyValueChanged(Property, Value value)
{
    if (!value.isValid() || !isTypeCompatible(value.type())) {
        setNoValue(true);
        return;
    }
    if (m_validatorsDiffer || !hasCompatibleValues()) {
        setNoValue(true);
        return;
    }
    setNoValue(false);
    const int current = currentIndex();
    if (current >= 0 && static_cast<size_t>(current) < m_comboValues.size() &&
        m_comboValues[static_cast<size_t>(current)] == value)
        return;
    const auto found = std::find(m_comboValues.begin(), m_comboValues.end(), value);
    if (found != m_comboValues.end())
        setCurrentIndex(static_cast<int>(found - m_comboValues.begin()));
}

void ObserverComboBox::setNoValue(bool noValue)
{
    if (noValue == m_noValue)
        return;
    m_noValue = noValue;
    showEditText();
    repaint();
}

void ObserverComboBox::showEditText()
{
    if (isEditable())
        setEditText(m_noValue ? QString() : currentIndex() < 0 ? QString() : itemText(currentIndex()));
}

// From the user

void ObserverComboBox::onWidgetValueChanged(int index)
{
    if (m_props.empty() || isShowingValue())
        return;
    const auto uindex = static_cast<size_t>(index);
    if (index < 0 || m_comboValues.size() <= uindex) {
        qWarning("m_comboValues.size() <= uindex : returning early from onWidgetValueChanged");
        return;
    }
    ZK_ASSERT(m_comboValues.size() > uindex);
    const Value value = m_comboValues[uindex];
    const QPointer<POReceiver> alive(m_receiver);
    if (validateValue(value))
        setPropertyValue(value);
    if (alive)
        showFirstValue();
}

void ObserverComboBox::setEnabled(bool enabled)
{
    ComboBox::setEnabled(enabled && isPropertyWriteable());
}

void ObserverComboBox::setDisabled(bool disabled)
{
    ComboBox::setDisabled(disabled || !isPropertyWriteable());
}

void ObserverComboBox::changeEvent(QEvent* event)
{
    ComboBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ObserverComboBox::showPopup()
{
    endGesture();
    // Not before: the list is made only when it is wanted.
    const bool drawn = m_hasRichItems || (isRightToLeft() && m_imageSize.isEmpty());
    if (drawn && !qobject_cast<RichItemDelegate*>(itemDelegate()))
        setItemDelegate(new RichItemDelegate(this));
    ComboBox::showPopup();
}

// What a held key runs through is one undo step.

void ObserverComboBox::keyPressEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        beginGesture();
    ComboBox::keyPressEvent(event);
}

void ObserverComboBox::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        endGesture();
    ComboBox::keyReleaseEvent(event);
}

void ObserverComboBox::mousePressEvent(QMouseEvent* event)
{
    endGesture();
    ComboBox::mousePressEvent(event);
}

void ObserverComboBox::focusOutEvent(QFocusEvent* event)
{
    endGesture();
    ComboBox::focusOutEvent(event);
}

// Painting

void ObserverComboBox::initStyleOption(QStyleOptionComboBox* option) const
{
    ComboBox::initStyleOption(option);
    if (isRightToLeft())
        option->currentText = isolatedText(option->currentText);
}

QRect ObserverComboBox::editFieldRect() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
}

void ObserverComboBox::paintEvent(QPaintEvent* event)
{
    if (m_noValue) {
        ComboBox::paintEvent(event);
        QPainter painter(this);
        painter.fillRect(editFieldRect(), palette().color(isEnabled() ? QPalette::Base : QPalette::Window));
        return;
    }
    const QString markup = currentData(RichItemDelegate::markupRole).toString();
    if (markup.isEmpty() || isEditable()) {
        ComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText.clear();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    RichItemDelegate::draw(painter, markup, editFieldRect().adjusted(1, 0, -1, 0),
                           Fonts::getWidgetFont(this, Fonts::Normal), palette().color(QPalette::ButtonText),
                           layoutDirection());
}
