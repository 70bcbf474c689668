#pragma once

#include "zkeditor/export.h"

#include <QColor>
#include <QPoint>
#include <QPointer>
#include <QPushButton>
#include <functional>
#include <vector>

class ColorPopup;
class QColorDialog;

/// A button with a swatch of its colour. Clicked, or with the Down key, it opens the standard colours, the colours that
/// are in use, and the system's colour dialog. The colour can be dragged from it.
class ZKEDITOR_EXPORT QtColorPicker : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(bool colorDialogEnabled READ isColorDialogEnabled WRITE setColorDialogEnabled)

public:
    explicit QtColorPicker(QWidget* parent = nullptr, const QString& name = {});
    ~QtColorPicker() override;

    /// The invalid colour when there is no single one.
    QColor color() const { return m_color; }
    /// Whether the pop-up leads to the system's dialog.
    bool isColorDialogEnabled() const { return m_colorDialogEnabled; }
    void setColorDialogEnabled(bool enabled) { m_colorDialogEnabled = enabled; }
    /// Asked each time the pop-up opens for the colours that are in use.
    void setUsedColors(std::function<std::vector<QColor>()> usedColors) { m_usedColors = std::move(usedColors); }

    /// The pop-up while it is open; null otherwise. A QFrame whose colours are tool buttons.
    QWidget* popup() const;
    /// The colour dialog while it is open; null otherwise.
    QColorDialog* colorDialog() const;
    /// Closes the pop-up and the dialog; nothing is chosen.
    void dismiss();

public Q_SLOTS:
    /// The invalid colour shows a hatched swatch.
    void setColor(const QColor& color);
    void showPopup();

Q_SIGNALS:
    /// After the colour changed, whoever changed it.
    void colorChanged(const QColor& color);
    /// After the user chose a colour, which the picker shows already. Chosen again, the same colour is told again.
    void colorChosen(const QColor& color);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void choose(const QColor& color);
    void openDialog();
    void showSwatch();

    QColor m_color;
    bool m_colorDialogEnabled = true;
    std::function<std::vector<QColor>()> m_usedColors;
    QPointer<ColorPopup> m_popup;
    QPointer<QColorDialog> m_dialog;
    QPoint m_pressedAt;
};
