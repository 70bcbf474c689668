#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QFont>
#include <QWidget>
#include <array>
#include <functional>

class CheckBox;
class ComboBox;

class QFontComboBox;
class QLabel;

/// Edits a font: a value map property with "family" (text), "size" (the height of the letters in metres), "weight" (100
/// to 900, 400 is normal) and "italic". Attributes that are not in the map are the product's font's. Each attribute
/// shows whether the selected nodes agree in it, and writes only itself.
class ZKEDITOR_EXPORT FontChooser : public QWidget, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit FontChooser(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

    /// The font that a value map stands for.
    static QFont fontFrom(const ValueMap& map);

public Q_SLOTS:
    /// Opens the toolkit's dialog; what is changed in it is written in one undo step.
    void openDialog();
    /// Does not enable the chooser over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;

    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    using Change = std::function<void(ValueMap&)>;
    enum Attribute { Family, Size, Weight, Italic, AttributeCount };
    using Attributes = std::array<Value, AttributeCount>;

    /// Those of a map, or of the product's font where it has none.
    static Attributes attributesOf(const Value& map);
    static void setAttribute(ValueMap& map, Attribute attribute, const Value& value);
    void write(const Change& change);
    void writeAttribute(Attribute attribute, const Value& value);
    /// Invalid while the nodes differ in it.
    Value commonAttribute(Attribute attribute, const Attributes& first) const;
    bool readSize(Value* size) const;
    void onSizeEdited();
    void commitSize();
    void showSize(const Value& size);
    void showSizeError(const QString& reason);

    QFontComboBox* m_family;
    ComboBox* m_size;
    ComboBox* m_weight;
    CheckBox* m_italic;
    QLabel* m_sample;
    mutable std::array<size_t, AttributeCount> m_attributeDiffersAt{};
};
