#pragma once

#include "zkeditor/export.h"

#include <QWidget>

class QAction;
class QToolButton;

/// A small plus and a small minus button side by side, for adding and removing entries of a list.
class ZKEDITOR_EXPORT PlusMinusButton : public QWidget
{
    Q_OBJECT

public:
    /// The tips, translated, are what the buttons are called too; an empty one leaves the button without.
    explicit PlusMinusButton(QWidget* parent = nullptr, QString plusTooltip = {}, QString minusTooltip = {});

    /// Lets the buttons trigger the actions, and follow whether these are enabled and their tool tips. The actions are
    /// not owned and must outlive the buttons.
    void setActions(QAction* plus, QAction* minus);
    void setPlusEnabled(bool enabled);
    void setMinusEnabled(bool enabled);
    void setPlusTooltip(const QString& tooltip);
    void setMinusTooltip(const QString& tooltip);

Q_SIGNALS:
    void plusClicked();
    void minusClicked();

private:
    QToolButton* addButton(const char* picture);
    void onMinusClicked();

    QToolButton* m_plus;
    QToolButton* m_minus;
};
