#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QWidget>

class LineEdit;
class QMimeData;
class QtColorPicker;

/// Edits a COLOR property: a button with the colour and a field for its name. Takes colours that are dropped on it as
/// well. Hatched, with an empty field, while the selected nodes have different colours.
class ZKEDITOR_EXPORT ObserverColorPicker : public QWidget, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool colorDialogEnabled READ isColorDialogEnabled WRITE setColorDialogEnabled)
    Q_PROPERTY(bool nameShown READ isNameShown WRITE setNameShown)

public:
    explicit ObserverColorPicker(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    bool isColorDialogEnabled() const;
    void setColorDialogEnabled(bool enabled);
    /// Whether there is a field for the name.
    bool isNameShown() const { return m_nameShown; }
    void setNameShown(bool shown);

    QtColorPicker* picker() const { return m_picker; }
    LineEdit* editor() const { return m_editor; }

public Q_SLOTS:
    /// Does not enable the picker over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user chose a colour.
    void onWidgetValueChanged(const QColor& color);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;

    bool eventFilter(QObject* object, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::vector<QColor> usedColors() const;
    void commitText();
    void showText();
    void onTextEdited();
    bool isTyping() const;
    static QColor draggedColor(const QMimeData* content);

    QtColorPicker* m_picker;
    LineEdit* m_editor;
    bool m_nameShown = true;
};
