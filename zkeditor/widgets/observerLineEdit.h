#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/numericalObserver.h"

/// A line edit over a property of any single-valued type, as text of the property's formatter. What the user typed is
/// written on Return, when the field loses the focus and when other nodes are bound; it turns red while it cannot be.
/// Escape gives the old text back. Empty while the selected nodes have different values.
///
/// In link style the field looks like a link until it is being edited.
class ZKEDITOR_EXPORT ObserverLineEdit : public LineEdit, public NumericalObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool linkStyle READ linkStyle WRITE setLinkStyle)

public:
    explicit ObserverLineEdit(QWidget* parent = nullptr, const QString& name = {});

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    bool linkStyle() const { return m_linkStyle; }
    void setLinkStyle(bool linkStyle);

    /// Whether the field is empty because there is no single value.
    bool showsNoValue() const { return m_noValue; }

public Q_SLOTS:
    /// Writes the text if it differs from what the field last showed of the model; text that cannot be written or
    /// mended is replaced by the model's, with a warning.
    void applyText();
    void setReadOnly(bool readOnly);
    /// Does not enable the field over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    void onTextChanged(const QString& text);
    /// Writes the text.
    void onWidgetValueChanged();

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool displayLinkStyle() const;
    Value getValueFromString(const QString& text) const;
    QString textOf(const Value& value) const;
    bool hasPendingText() const { return text() != m_shownText; }
    void showText(const QString& text);
    void showModel();
    void refuse(const Value& value, const QString& text);
    QRect contentRect() const;
    QString linkText() const;
    int linkAlignment() const;
    QRect linkRect() const;
    void updateLink(const QPoint& pointer);

    bool m_noValue = false;
    bool m_linkStyle = false;
    bool m_linkHovered = false;
    bool m_settingText = false;
    QString m_shownText; // what was last shown of the model
};
