#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QToolButton>

/// A tool button over a BOOL property, or in its string mode over a STRING property that switches between two texts. A
/// toggle button stays on while the property is; a plain one makes the property true exactly while it is held down.
class ZKEDITOR_EXPORT ObserverButton : public QToolButton, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(Mode mode READ mode WRITE setMode)
    Q_PROPERTY(QString onValue READ onValue WRITE setOnValue)
    Q_PROPERTY(QString offValue READ offValue WRITE setOffValue)
    Q_PROPERTY(bool invertBool READ invertBool WRITE setInvertBool)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    enum Mode { BOOLEAN = 0, STRING = 1 };
    Q_ENUM(Mode)

    explicit ObserverButton(QWidget* parent = nullptr, const QString& name = {});
    explicit ObserverButton(const QString& text, QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    Mode mode() const { return m_mode; }
    /// STRING also makes the button a toggle button; BOOLEAN leaves it as it is.
    void setMode(Mode mode);
    /// The texts for on and off in string mode, compared exactly. Both must have been set, if to an empty text, before
    /// the button is bound; an empty text in a form counts as not set.
    QString onValue() const { return m_onValue; }
    void setOnValue(const QString& text) { m_onValue = text; }
    QString offValue() const { return m_offValue; }
    void setOffValue(const QString& text) { m_offValue = text; }
    /// Whether on, or held down, stands for false.
    bool invertBool() const { return m_invertBool; }
    void setInvertBool(bool invert) { m_invertBool = invert; }
    /// Whether the size hint leaves no more than 3 pixels around the icon.
    bool wrapPixmaps() const { return m_wrapPixmaps; }
    void setWrapPixmaps(bool wrap);

    QSize sizeHint() const override;

protected Q_SLOTS:
    /// After the user pressed, released or toggled the button.
    void onWidgetValueChanged();

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void changeEvent(QEvent* event) override;

private:
    bool invertBool(bool value) const { return value != m_invertBool; }

    Mode m_mode = BOOLEAN;
    QString m_onValue;
    QString m_offValue;
    bool m_invertBool = false;
    bool m_wrapPixmaps = false;
};
