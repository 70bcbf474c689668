#pragma once

#include <QLabel>

/// A label of plain text that begins at the side where reading begins, in mirrored windows too, whatever the letters.
class LeadingLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LeadingLabel(const QString& text = {}, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void align();
};
