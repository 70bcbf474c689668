#include "zkeditor/widgets/fontChooser.h"

#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/expressionParser.h"
#include "zkeditor/widgets/checkBox.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/toolAction.h"

#include <QAction>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

constexpr double metresPerPoint = 0.0254 / 72;
constexpr double leastFontPoints = 1;
constexpr double mostFontPoints = 1000;
constexpr int leastSampleHeight = 40;
constexpr int mostSampleHeight = 120; // of greater letters a piece is seen

struct WeightName
{
    int weight;
    const char* name;
};

constexpr WeightName weightNames[] = {
    {QFont::Light, QT_TRANSLATE_NOOP("FontChooser", "Light")},
    {QFont::Normal, QT_TRANSLATE_NOOP("FontChooser", "Normal")},
    {QFont::Medium, QT_TRANSLATE_NOOP("FontChooser", "Medium")},
    {QFont::DemiBold, QT_TRANSLATE_NOOP("FontChooser", "Half bold")},
    {QFont::Bold, QT_TRANSLATE_NOOP("FontChooser", "Bold")},
    {QFont::Black, QT_TRANSLATE_NOOP("FontChooser", "Black")},
};

const char* const attributeKeys[] = {"family", "size", "weight", "italic"};

QString pointsText(double metres)
{
    const double points = std::round(metres / metresPerPoint * 10) / 10;
    return QLocale().toString(points, 'g', 6);
}

/// The style of the family that comes nearest to the font's weight and slant. The toolkit's dialog looks for a name,
/// and where it finds none it begins with the first style, which may be bold.
QFont withStyleName(QFont font)
{
    const auto distance = [&font](const QString& style) {
        const QString family = font.family();
        return std::abs(QFontDatabase::weight(family, style) - font.weight()) +
               (QFontDatabase::italic(family, style) == font.italic() ? 0 : QFont::Black);
    };
    const QStringList styles = QFontDatabase::styles(font.family());
    const auto nearest = std::min_element(
        styles.begin(), styles.end(), [&](const QString& a, const QString& b) { return distance(a) < distance(b); });
    if (nearest != styles.end())
        font.setStyleName(*nearest);
    return font;
}

} // namespace

FontChooser::FontChooser(QWidget* parent, const QString& name)
    : QWidget(parent), PropertyObserver(this, Value::VALUEMAP), m_family(new QFontComboBox(this)),
      m_size(new ComboBox(this, QStringLiteral("size"))), m_weight(new ComboBox(this, QStringLiteral("weight"))),
      m_italic(new CheckBox(tr("Italic"), this, QStringLiteral("italic"))), m_sample(new QLabel(this))
{
    setObjectName(name);
    m_family->setObjectName(QStringLiteral("family"));
    m_family->setEditable(false);
    m_family->setFocusPolicy(Qt::StrongFocus);
    m_family->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_family->setMinimumContentsLength(8);
    m_size->setLineEdit(new LineEdit(m_size, QStringLiteral("sizeEdit")));
    m_size->setInsertPolicy(QComboBox::NoInsert);
    m_size->setCompleter(nullptr);
    for (const int points : QFontDatabase::standardSizes())
        m_size->addItem(QLocale().toString(points));
    for (const WeightName& weight : weightNames)
        m_weight->addItem(tr(weight.name), weight.weight);
    m_sample->setObjectName(QStringLiteral("sample"));
    m_sample->setText(tr("AaBbYyZz 123"));
    m_sample->setAccessibleName(tr("Sample"));
    m_sample->setFrameShape(QFrame::StyledPanel);
    m_sample->setFixedHeight(leastSampleHeight);
    m_sample->setMinimumWidth(1);
    auto* more = new QAction(tr("All fonts..."), this);
    QToolButton* moreButton = toolAction::addButton(this, more, {});
    moreButton->setText(tr("..."));
    moreButton->setToolTip(tr("All fonts..."));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    grid->addWidget(m_family, 0, 0, 1, 3);
    grid->addWidget(moreButton, 0, 3);
    grid->addWidget(m_size, 1, 0);
    grid->addWidget(m_weight, 1, 1);
    grid->addWidget(m_italic, 1, 2, 1, 2);
    grid->addWidget(m_sample, 2, 0, 1, 4);
    grid->setColumnStretch(1, 1);
    setTabOrder(m_family, moreButton);
    setTabOrder(moreButton, m_size);
    setFocusProxy(m_family);
    m_size->installEventFilter(this); // it has the focus of its line edit
    connect(m_family, &QComboBox::activated, this,
            [this](int index) { writeAttribute(Family, Value(m_family->itemText(index))); });
    connect(m_size, &QComboBox::activated, this, &FontChooser::commitSize);
    connect(m_size->lineEdit(), &QLineEdit::textEdited, this, &FontChooser::onSizeEdited);
    connect(m_weight, &QComboBox::activated, this,
            [this](int index) { writeAttribute(Weight, Value(m_weight->itemData(index).toInt())); });
    connect(m_italic, &QAbstractButton::clicked, this,
            [this] { writeAttribute(Italic, Value(m_italic->checkState() == Qt::Checked)); });
    connect(more, &QAction::triggered, this, &FontChooser::openDialog);
}

QFont FontChooser::fontFrom(const ValueMap& map)
{
    const Attributes attributes = attributesOf(Value(map));
    QFont font;
    font.setFamily(attributes[Family].toQString());
    font.setPointSizeF(qBound(leastFontPoints, attributes[Size].toDouble() / metresPerPoint, mostFontPoints));
    font.setWeight(static_cast<QFont::Weight>(qBound(1, attributes[Weight].toInt(), 1000)));
    font.setItalic(attributes[Italic].toBool());
    return font;
}

FontChooser::Attributes FontChooser::attributesOf(const Value& value)
{
    static const QFont usual;
    const double usualPoints = usual.pointSizeF() > 0 ? usual.pointSizeF() : QFontInfo(usual).pointSizeF();
    Attributes attributes{Value(usual.family()), Value(usualPoints * metresPerPoint), Value(int(usual.weight())),
                          Value(usual.italic())};
    const ValueMap map = value.toValueMap();
    for (size_t i = 0; i < AttributeCount; ++i) {
        const auto entry = map.find(QLatin1String(attributeKeys[i]));
        if (entry != map.end() && entry->second.type() == attributes[i].type())
            attributes[i] = entry->second;
    }
    return attributes;
}

void FontChooser::setAttribute(ValueMap& map, Attribute attribute, const Value& value)
{
    const QString key = QLatin1String(attributeKeys[attribute]);
    map.erase(key);
    map.emplace(key, value);
}

// Binding and showing

void FontChooser::setupWidget()
{
    const QString whole = accessibleName();
    m_family->setAccessibleName(tr("%1, family").arg(whole));
    m_size->setAccessibleName(tr("%1, size in points").arg(whole));
    m_size->setToolTip(tr("Size in points"));
    m_weight->setAccessibleName(tr("%1, weight").arg(whole));
    m_italic->setAccessibleName(tr("%1, italic").arg(whole));
    PropertyObserver::setupWidget();
}

void FontChooser::unbind()
{
    const QPointer<POReceiver> alive(m_receiver);
    // What was typed belongs to the nodes that were bound while it was typed.
    if (!m_props.empty() && m_size->lineEdit()->isModified())
        commitSize();
    if (alive)
        PropertyObserver::unbind();
}

Value FontChooser::commonAttribute(Attribute attribute, const Attributes& first) const
{
    const auto differs = [&](const PropertyImpl* property) {
        return !(attributesOf(property->getValue())[attribute] == first[attribute]);
    };
    if (m_props.size() > 1 && !hasCompatibleValues() && m_props.findFrom(m_attributeDiffersAt[attribute], differs))
        return {};
    return first[attribute];
}

void FontChooser::onPropertyValueChanged(Property, Value)
{
    const Attributes first = attributesOf(m_props.front()->getValue());
    Attributes common;
    for (size_t i = 0; i < AttributeCount; ++i)
        common[i] = commonAttribute(static_cast<Attribute>(i), first);
    const QString family = common[Family].toQString();
    m_family->setPlaceholderText(family); // of a family that is not installed here; an empty one chooses the first item
    m_family->setCurrentIndex(common[Family].isValid() ? m_family->findText(family) : -1);
    if (!m_size->lineEdit()->isModified() || !m_size->lineEdit()->hasFocus()) {
        showSize(common[Size]);
        m_size->lineEdit()->setModified(false);
        showSizeError({});
    }
    m_weight->setPlaceholderText(common[Weight].isValid() ? common[Weight].toQString() : QString());
    m_weight->setCurrentIndex(common[Weight].isValid() ? m_weight->findData(common[Weight].toInt()) : -1);
    m_italic->setCheckBoxState(common[Italic].toBool(), !common[Italic].isValid());
    m_sample->setFont(fontFrom(m_props.front()->getValue().toValueMap()));
    m_sample->setFixedHeight(qBound(leastSampleHeight, m_sample->fontMetrics().height() + 8, mostSampleHeight));
    m_sample->setEnabled(hasCompatibleValues()); // of the first only
}

void FontChooser::showSize(const Value& size)
{
    // The list opens at the greatest size that is not above, and the arrow keys go on from there.
    const QList<int> offered = QFontDatabase::standardSizes();
    const auto above = std::upper_bound(offered.begin(), offered.end(), size.toDouble() / metresPerPoint + 0.05);
    m_size->setCurrentIndex(size.isValid() ? static_cast<int>(above - offered.begin()) - 1 : -1);
    m_size->setEditText(size.isValid() ? pointsText(size.toDouble()) : QString());
}

// Editing

void FontChooser::write(const Change& change)
{
    if (m_props.empty() || isShowingValue() || !isPropertyWriteable())
        return;
    auto command = std::make_unique<SetValueCommand>(m_pushUndoOnSetProperty);
    bool differs = false;
    for (PropertyImpl* property : m_props) {
        ValueMap map = property->getValue().toValueMap();
        change(map);
        const Value value(map);
        if (value == property->getValue())
            continue;
        command->addProperty(Property(property), value);
        differs = true;
    }
    const QPointer<POReceiver> alive(m_receiver);
    if (differs)
        m_document->executeCommand(command.release());
    if (alive)
        showFirstValue();
}

void FontChooser::writeAttribute(Attribute attribute, const Value& value)
{
    write([attribute, &value](ValueMap& map) {
        if (!(attributesOf(Value(map))[attribute] == value))
            setAttribute(map, attribute, value);
    });
}

bool FontChooser::readSize(Value* size) const
{
    const ExpressionParser::ExpressionResult points = ExpressionParser::eval(m_size->currentText());
    if (!points.isValid() || points.toDouble() < leastFontPoints || points.toDouble() > mostFontPoints)
        return false;
    *size = Value(points.toDouble() * metresPerPoint);
    return true;
}

void FontChooser::showSizeError(const QString& reason)
{
    QPalette palette;
    if (!reason.isEmpty())
        palette.setColor(QPalette::Text, invalidColor());
    m_size->lineEdit()->setPalette(palette);
    m_size->setToolTip(reason.isEmpty() ? tr("Size in points") : reason);
    m_size->setAccessibleDescription(reason);
}

void FontChooser::onSizeEdited()
{
    Value size;
    const bool fine = m_size->currentText().isEmpty() || readSize(&size);
    showSizeError(fine ? QString() : tr("The size is a number from 1 to 1000."));
}

void FontChooser::commitSize()
{
    Value size;
    const bool fine = readSize(&size);
    m_size->lineEdit()->setModified(false);
    if (m_props.empty())
        return;
    if (fine)
        writeAttribute(Size, size);
    else
        showFirstValue();
}

bool FontChooser::eventFilter(QObject* object, QEvent* event)
{
    QLineEdit* edit = m_size->lineEdit();
    if (object != m_size || m_props.empty() || !edit->isModified())
        return QWidget::eventFilter(object, event);
    if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        commitSize();
        return false;
    }
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool commits = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!commits && key != Qt::Key_Escape)
        return false;
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return false;
    }
    if (commits) {
        commitSize();
    } else {
        edit->setModified(false);
        showFirstValue();
    }
    return true;
}

void FontChooser::openDialog()
{
    if (m_props.empty() || !isPropertyWriteable())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    const QFont font = withStyleName(fontFrom(m_props.front()->getValue().toValueMap()));
    const QPointer<QFontDialog> dialog(new QFontDialog(font, window()));
    // It knows whole sizes only, and the styles that the family names itself.
    const QFont before = dialog->currentFont();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QFont after = dialog ? dialog->selectedFont() : before;
    delete dialog;
    if (!accepted || !alive || binding != bindingNumber())
        return;
    write([&](ValueMap& map) {
        if (after.family() != before.family())
            setAttribute(map, Family, Value(after.family()));
        if (qAbs(after.pointSizeF() - before.pointSizeF()) > 0.05)
            setAttribute(map, Size, Value(after.pointSizeF() * metresPerPoint));
        if (after.weight() != before.weight())
            setAttribute(map, Weight, Value(static_cast<int>(after.weight())));
        if (after.italic() != before.italic())
            setAttribute(map, Italic, Value(after.italic()));
    });
}

void FontChooser::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void FontChooser::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled && isPropertyWriteable());
}

void FontChooser::setDisabled(bool disabled)
{
    QWidget::setDisabled(disabled || !isPropertyWriteable());
}
