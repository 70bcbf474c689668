#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/doubleRangeControl.h"

#include <QWidget>

class LineEdit;
class QValidator;
class QKeyEvent;
class SpinControls;

/// A spin box for a double: a line edit between a prefix and a suffix, with two buttons; or a special text while the
/// value is the minimum. What is typed is interpreted on Return, when the focus goes, and whenever the value is asked
/// for.
class ZKEDITOR_EXPORT DoubleSpinBox : public QWidget, public DoubleRangeControl
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString specialValueText READ specialValueText WRITE setSpecialValueText)
    Q_PROPERTY(QString cleanText READ cleanText)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(double lineStep READ lineStep WRITE setLineStep)
    Q_PROPERTY(int precision READ precision WRITE setPrecision)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /// From 0 to 99 in steps of 1, with two decimals.
    explicit DoubleSpinBox(QWidget* parent = nullptr, const QString& name = {});
    DoubleSpinBox(double minValue, double maxValue, double step, int precision, QWidget* parent = nullptr,
                  const QString& name = {});
    ~DoubleSpinBox() override;

    /// The editor's text as it stands.
    QString text() const;
    virtual QString prefix() const;
    virtual QString suffix() const;
    /// The editor's text without prefix, suffix and surrounding white space.
    virtual QString cleanText() const;
    /// Shown instead of the number while the value is the minimum; empty for none.
    virtual void setSpecialValueText(const QString& text);
    QString specialValueText() const { return m_specialValueText; }
    /// Replaces the editor's validator, which is deleted; the new one is not owned unless the caller makes this its
    /// parent.
    virtual void setValidator(const QValidator* validator);
    const QValidator* validator() const;
    /// Decimals shown; they never limit what is stored.
    virtual void setPrecision(int precision);
    int precision() const { return m_precision; }

    /// Interprets what was typed first.
    double value();
    double minValue() const { return DoubleRangeControl::minValue(); }
    double maxValue() const { return DoubleRangeControl::maxValue(); }
    double lineStep() const { return DoubleRangeControl::lineStep(); }
    void setMinValue(double minValue) { DoubleRangeControl::setMinValue(minValue); }
    void setMaxValue(double maxValue) { DoubleRangeControl::setMaxValue(maxValue); }
    /// Keeps the page step.
    void setLineStep(double step) { setSteps(step, pageStep()); }

    QRect upRect() const;
    QRect downRect() const;
    LineEdit* editor() const { return m_editor; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setValue(double value) override;
    virtual void setPrefix(const QString& text);
    virtual void setSuffix(const QString& text);
    virtual void stepUp();
    virtual void stepDown();
    void setEnabled(bool enabled);
    /// Selects the number, without prefix and suffix.
    virtual void selectAll();

Q_SIGNALS:
    /// After the value changed, in this order.
    void valueChanged(double value);
    void valueChanged(const QString& text);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

    void valueChange() override;
    void rangeChange() override;

    /// The text of a number, without prefix and suffix.
    virtual QString mapValueToText(double value);
    /// The number that the editor's text stands for; `ok` tells whether it stands for one.
    virtual double mapTextToValue(bool* ok);
    /// Shows the value, and what the buttons can do.
    virtual void updateDisplay();
    /// Takes over what was typed; text that is no number gives way to the value.
    virtual void interpretText();
    virtual void precisionChange();
    virtual void formatChange();

    QString currentValueText();
    bool isEdited() const { return m_edited; }
    void setEdited(bool edited) { m_edited = edited; }
    SpinControls* controls() const { return m_controls; }

protected Q_SLOTS:
    /// The editor's text changed.
    virtual void textChanged();

private:
    void initialise();
    bool filterKey(QObject* editor, QKeyEvent* event);
    double numberShown() const { return DoubleRangeControl::value(); }

    SpinControls* m_controls = nullptr;
    LineEdit* m_editor = nullptr;
    QString m_prefix;
    QString m_suffix;
    QString m_specialValueText;
    bool m_edited = false;
    int m_precision = 2;
    bool m_selectionRequested = false;
};
