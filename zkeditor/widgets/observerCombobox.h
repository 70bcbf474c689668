#pragma once

#include "zkcore/values/point.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <vector>

class QPixmap;

/// A combo box over a property that may take one of a set of values: those that the property's set validator allows,
/// or true and false. Each item stands for one value; choosing it writes that value. Blank while the selected nodes
/// have different values, disabled while they are allowed different ones.
///
/// Whenever the items were built, activated() and textActivated() are emitted for the item that is shown, so that what
/// is connected to them knows it.
class ZKEDITOR_EXPORT ObserverComboBox : public ComboBox, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(QString trueString READ trueString WRITE setTrueString)
    Q_PROPERTY(QString falseString READ falseString WRITE setFalseString)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool enableRichText READ richTextEnabled WRITE setRichTextEnabled)
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable DESIGNABLE false)

public:
    explicit ObserverComboBox(QWidget* parent = nullptr, const QString& name = {});

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;
    /// Also false while the bound properties are allowed different values.
    bool isPropertyWriteable() const override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    // The settings of items take effect when they are built next.
    /// The texts of the two items over a BOOL property.
    QString trueString() const { return m_trueString; }
    void setTrueString(const QString& text) { m_trueString = text; }
    QString falseString() const { return m_falseString; }
    void setFalseString(const QString& text) { m_falseString = text; }
    /// Whether markup in the texts of STRING values is rendered; on unless switched off.
    bool richTextEnabled() const { return m_enableRichText; }
    void setRichTextEnabled(bool enable) { m_enableRichText = enable; }
    /// In an editable box an item can be chosen by typing its text; other texts are not taken.
    void setEditable(bool editable);

    /// Whether the field is blank because there is no single value.
    bool showsNoValue() const { return m_noValue; }
    /// Builds the items anew from what the first bound property may be.
    void buildContent();

    void showPopup() override;

public Q_SLOTS:
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user chose an item.
    void onWidgetValueChanged(int index);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onValidatorChanged() override;

    void buildBoolContent();
    void buildColorContent(const std::vector<Value>& values);
    void buildStringContent(const std::vector<QString>& strings);
    void buildContent(const std::vector<int>& values);
    void buildContent(const std::vector<double>& values);
    void buildContent(const std::vector<zk::Point>& values);
    void buildContent(const std::vector<Resource>& values);
    void buildContent(const std::vector<Value>& values);

    void initStyleOption(QStyleOptionComboBox* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool validatorsAgree() const;
    void readSubstitutions();
    void buildItems();
    template <typename Element> void addElements(const std::vector<Element>& values);
    void addValue(const Value& value, const QString& text);
    void addImage(const Value& value, const QPixmap& image, const QString& description);
    QString displayText(const QString& string) const;
    QPixmap substituteImage(const QString& string) const;
    QPixmap getPixmapFromColor(const QColor& color, const QSize& size) const;
    QSize swatchSize() const;
    QRect editFieldRect() const;
    void setNoValue(bool noValue);
    void showEditText();

    bool m_noValue = false;
    std::vector<Value> m_comboValues; // one for each item
    QString m_trueString;
    QString m_falseString;
    ValueMap m_substitutions; // what is shown in the place of a STRING value: a picture or another text
    bool m_enableRichText = true;
    bool m_validatorsDiffer = false;
    bool m_hasRichItems = false;
    QSize m_imageSize;
};
