#include "zkeditor/widgets/doubleSpinbox.h"

#include "zkeditor/widgets/doubleSpinboxValidator.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/spinControls.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPointer>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

DoubleSpinBox::DoubleSpinBox(QWidget* parent, const QString& name)
    : QWidget(parent), DoubleRangeControl(0.0, 99.0, 1.0, 1.0, 0.0)
{
    setObjectName(name);
    initialise();
}

DoubleSpinBox::DoubleSpinBox(double minValue, double maxValue, double step, int precision, QWidget* parent,
                             const QString& name)
    : QWidget(parent), DoubleRangeControl(minValue, maxValue, step, step, minValue), m_precision(precision)
{
    setObjectName(name);
    initialise();
}

DoubleSpinBox::~DoubleSpinBox()
{
    // A focused editor tells of the loss of its focus, and asks its validator, while it is destroyed.
    m_editor->removeEventFilter(this);
    m_editor->setValidator(nullptr);
    m_editor->disconnect(this);
}

void DoubleSpinBox::initialise()
{
    m_controls = new SpinControls(this, QStringLiteral("controls"));
    connect(m_controls, &SpinControls::stepUpPressed, this, &DoubleSpinBox::stepUp);
    connect(m_controls, &SpinControls::stepDownPressed, this, &DoubleSpinBox::stepDown);
    m_editor = new LineEdit(m_controls, QStringLiteral("double_spinbox_edit"));
    m_controls->setEditWidget(m_editor);
    m_editor->setValidator(new DoubleSpinBoxValidator(this));
    m_editor->installEventFilter(this);
    m_editor->setFrame(false);
    setFocusProxy(m_editor);
    setFocusPolicy(Qt::WheelFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    DoubleSpinBox::updateDisplay();
    connect(m_editor, &QLineEdit::textChanged, this, &DoubleSpinBox::textChanged);
}

QString DoubleSpinBox::text() const
{
    return m_editor->text();
}

QString DoubleSpinBox::prefix() const
{
    return m_prefix;
}

QString DoubleSpinBox::suffix() const
{
    return m_suffix;
}

QString DoubleSpinBox::cleanText() const
{
    QString text = m_editor->text().trimmed();
    const QString before = m_prefix.trimmed();
    if (!before.isEmpty() && text.startsWith(before))
        text.remove(0, before.size());
    const QString after = m_suffix.trimmed();
    if (!after.isEmpty() && text.endsWith(after))
        text.chop(after.size());
    return text.trimmed();
}

void DoubleSpinBox::setPrefix(const QString& text)
{
    m_prefix = text;
    updateDisplay();
}

void DoubleSpinBox::setSuffix(const QString& text)
{
    m_suffix = text;
    updateDisplay();
}

void DoubleSpinBox::setSpecialValueText(const QString& text)
{
    m_specialValueText = text;
    updateDisplay();
}

void DoubleSpinBox::setValidator(const QValidator* validator)
{
    const QValidator* before = m_editor->validator();
    m_editor->setValidator(validator);
    if (before != validator)
        delete before;
}

const QValidator* DoubleSpinBox::validator() const
{
    return m_editor->validator();
}

void DoubleSpinBox::setPrecision(int precision)
{
    if (precision == m_precision)
        return;
    m_precision = precision;
    precisionChange();
}

double DoubleSpinBox::value()
{
    if (m_edited) {
        m_edited = false;
        interpretText();
    }
    return DoubleRangeControl::value();
}

void DoubleSpinBox::setValue(double value)
{
    m_edited = false;
    const QPointer<DoubleSpinBox> alive(this);
    DoubleRangeControl::setValue(value);
    if (alive)
        updateDisplay();
}

void DoubleSpinBox::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    updateDisplay();
}

void DoubleSpinBox::stepUp()
{
    if (m_edited)
        interpretText();
    addLine();
}

void DoubleSpinBox::stepDown()
{
    if (m_edited)
        interpretText();
    subtractLine();
}

QRect DoubleSpinBox::upRect() const
{
    return m_controls->upRect();
}

QRect DoubleSpinBox::downRect() const
{
    return m_controls->downRect();
}

// Text

QString DoubleSpinBox::currentValueText()
{
    const double current = value();
    if (current == minValue() && !m_specialValueText.isEmpty())
        return m_specialValueText;
    return prefix() + mapValueToText(current) + suffix();
}

QString DoubleSpinBox::mapValueToText(double value)
{
    return QString::number(value, 'f', std::max(m_precision, 0));
}

double DoubleSpinBox::mapTextToValue(bool* ok)
{
    const QString typed = m_prefix.isEmpty() && m_suffix.isEmpty() ? m_editor->text() : cleanText();
    const double number = typed.toDouble(ok);
    if (!std::isfinite(number)) {
        *ok = false;
        return 0.0;
    }
    return number;
}

void DoubleSpinBox::interpretText()
{
    bool ok = true;
    double number = 0.0;
    const QString special = m_specialValueText.trimmed();
    if (!special.isEmpty() && m_editor->text().trimmed() == special)
        number = minValue();
    else
        number = mapTextToValue(&ok);
    if (ok) {
        setValue(number);
    } else {
        m_edited = false;
        updateDisplay();
    }
}

void DoubleSpinBox::updateDisplay()
{
    m_editor->setUpdatesEnabled(false);
    m_editor->setText(currentValueText());
    m_edited = false; // the text comes from the value; read back it would round it
    if (m_selectionRequested && isVisible() && (hasFocus() || m_editor->hasFocus()))
        selectAll();
    else if (!m_suffix.isEmpty() && m_editor->text().endsWith(m_suffix))
        m_editor->setCursorPosition(static_cast<int>(m_editor->text().size() - m_suffix.size()));
    m_editor->setUpdatesEnabled(true);
    m_editor->repaint();
    m_edited = false;
    const double shown = numberShown();
    m_controls->setUpEnabled(isEnabled() && shown < maxValue());
    m_controls->setDownEnabled(isEnabled() && shown > minValue());
    m_editor->setEnabled(isEnabled());
    repaint();
}

void DoubleSpinBox::selectAll()
{
    const QString shown = currentValueText();
    if ((m_prefix.isEmpty() && m_suffix.isEmpty()) || shown == m_specialValueText) {
        m_editor->selectAll();
        return;
    }
    const qsizetype overhead = m_prefix.size() + m_suffix.size();
    const qsizetype length = m_editor->text().size() - overhead;
    m_editor->setSelection(static_cast<int>(m_prefix.size()), static_cast<int>(std::max<qsizetype>(length, 0)));
}

void DoubleSpinBox::textChanged()
{
    m_edited = true;
}

// Hooks

void DoubleSpinBox::valueChange()
{
    const QPointer<DoubleSpinBox> alive(this);
    m_selectionRequested = hasFocus();
    updateDisplay();
    m_selectionRequested = false;
    Q_EMIT valueChanged(value());
    if (alive)
        Q_EMIT valueChanged(currentValueText());
}

void DoubleSpinBox::rangeChange()
{
    updateDisplay();
}

void DoubleSpinBox::precisionChange()
{
    updateDisplay();
}

void DoubleSpinBox::formatChange()
{
    updateDisplay();
}

// Events

bool DoubleSpinBox::filterKey(QObject*, QKeyEvent* event)
{
    const QPointer<DoubleSpinBox> alive(this);
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (event->modifiers() & Qt::ControlModifier)
            return false;
        if (m_edited)
            interpretText();
        if (alive)
            QApplication::sendEvent(this, event);
        return true;
    case Qt::Key_Escape:
        m_editor->undo();
        m_edited = false; // else the comparison would take the text over
        m_edited = m_editor->text() != currentValueText();
        return true;
    case Qt::Key_Up:
        stepUp();
        return true;
    case Qt::Key_Down:
        stepDown();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        interpretText();
        return false;
    default:
        return false;
    }
}

bool DoubleSpinBox::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_editor)
        return QWidget::eventFilter(object, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        return filterKey(object, static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
    case QEvent::Hide:
        if (m_edited)
            interpretText();
        break;
    default:
        break;
    }
    return false;
}

void DoubleSpinBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::StyleChange && m_controls)
        m_controls->arrange();
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && m_editor)
        updateDisplay();
}

void DoubleSpinBox::leaveEvent(QEvent*) {}

void DoubleSpinBox::resizeEvent(QResizeEvent*)
{
    m_controls->resize(size());
}

void DoubleSpinBox::wheelEvent(QWheelEvent* event)
{
    // One accumulator for all spin boxes: what one did not use up never turns another.
    static double accumulator = 0.0;
    static const DoubleSpinBox* owner = nullptr;
    event->accept();
    if (owner != this) {
        owner = this;
        accumulator = 0.0;
    }
    const int notches = event->angleDelta().y() / 120; // whole ones only
    accumulator -= notches;
    if (std::abs(accumulator) < 1.0)
        return;
    const int steps = static_cast<int>(accumulator);
    const bool up = accumulator <= 0.0;
    accumulator -= steps;
    const QPointer<DoubleSpinBox> alive(this);
    for (int i = 0; i < std::abs(steps) && alive; ++i) {
        if (up)
            stepUp();
        else
            stepDown();
    }
}

QSize DoubleSpinBox::sizeHint() const
{
    const QFontMetrics metrics(font());
    int width = 35;
    const int margin = 2 * metrics.horizontalAdvance(QLatin1Char('0'));
    // A fixed sample, so that boxes of different ranges line up.
    width = std::max(width, metrics.horizontalAdvance(m_prefix + QStringLiteral("0000.00") + m_suffix) + margin);
    if (!m_specialValueText.isEmpty())
        width = std::max(width, metrics.horizontalAdvance(m_specialValueText) + margin);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const QSize content(downRect().width() + width, m_editor->sizeHint().height() + 2 * frame);
    QStyleOptionSpinBox option;
    option.initFrom(this);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

QSize DoubleSpinBox::minimumSizeHint() const
{
    return {downRect().width() + m_editor->minimumSizeHint().width(),
            std::max(m_controls->minimumSizeHint().height(), m_editor->minimumSizeHint().height())};
}
