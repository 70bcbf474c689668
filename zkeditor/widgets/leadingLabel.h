#pragma once

#include <QLabel>

/// A label of plain text that begins at the side where reading begins, in mirrored windows too, whatever the letters.
class LeadingLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LeadingLabel(const QString& text = {}, QWidget* parent = nullptr);

    /// Wraps the text, and never asks for the room of a word that is longer than the line: names come from documents.
    void wrapInGivenWidth();

protected:
    void changeEvent(QEvent* event) override;

private:
    void align();
};
