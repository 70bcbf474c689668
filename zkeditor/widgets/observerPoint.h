#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/doubleSpinbox.h"
#include "zkeditor/widgets/numericalObserver.h"

class ObserverPoint;

/// One coordinate of an ObserverPoint.
class PrivatePointSpinBox : public DoubleSpinBox
{
    Q_OBJECT

public:
    /// 0 for x, 1 for y.
    PrivatePointSpinBox(int coordinate, ObserverPoint* owner, const QString& name);

    /// No event is looked at any more; for the time when the owner is being destroyed.
    void letGo();
    void setPeer(PrivatePointSpinBox* peer) { m_peer = peer; }
    /// Blank, because the nodes have different points.
    void setNoValue(bool noValue);
    bool showsNoValue() const { return m_noValue; }
    /// Shows a number of the model without telling anybody.
    void showNumber(double number);
    double heldValue() const { return DoubleRangeControl::value(); }
    bool isTyping() const;
    /// Takes over what was typed, if anything was.
    void commit();

public Q_SLOTS:
    void setValue(double value) override;

protected:
    QString mapValueToText(double value) override;
    double mapTextToValue(bool* ok) override;
    void interpretText() override;
    void updateDisplay() override;
    bool eventFilter(QObject* object, QEvent* event) override;

protected Q_SLOTS:
    void textChanged() override;

private:
    void takeOver(double value);

    int m_coordinate;
    PrivatePointSpinBox* m_peer = nullptr;
    ObserverPoint* m_owner;
    bool m_noValue = false;
    bool m_refreshing = false;
    bool m_refreshPending = false; // the model changed while the user typed
};

/// Edits a POINT property in two spin boxes, x above y, in the unit shown. Blank while the nodes have different points.
class ZKEDITOR_EXPORT ObserverPoint : public QWidget, public NumericalObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit ObserverPoint(QWidget* parent = nullptr, const QString& name = {});
    ~ObserverPoint() override;

    void unbind() override;

    void setModelProperty(const QString& key) { PropertyObserver::setModelProperty(key); }
    QString modelProperty() const { return PropertyObserver::modelProperty(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    QString subpart() const { return subpartId(); }
    void setSupportsMultipleProps(bool supports) { PropertyObserver::setSupportsMultipleProps(supports); }
    bool supportsMultipleProps() const { return PropertyObserver::supportsMultipleProps(); }

    DoubleSpinBox* xBox() const { return m_x; }
    DoubleSpinBox* yBox() const { return m_y; }

    QSize sizeHint() const override;

public Q_SLOTS:
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    void onXValueChanged(double x);
    void onYValueChanged(double y);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void setDisplayValid(bool valid) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend class PrivatePointSpinBox;

    void onWidgetValueChanged(const zk::Point& point);

    /// The gap between the boxes as a fraction of the height.
    static constexpr double s_percentGap = 0.07;

    PrivatePointSpinBox* m_x;
    PrivatePointSpinBox* m_y;
};
