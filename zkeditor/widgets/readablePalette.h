#pragma once

#include "zkeditor/export.h"

#include <QObject>
#include <QPalette>

/// Keeps the application's palette readable while it lives: where the desktop's colours for placeholders, links or
/// selected rows have too little contrast, they are made lighter or darker, and again whenever the desktop, or the
/// program, changes its colours.
class ZKEDITOR_EXPORT ReadablePalette : public QObject
{
    Q_OBJECT

public:
    explicit ReadablePalette(QObject* parent = nullptr);
    ~ReadablePalette() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void adapt();

    QPalette m_given; // as it was before our changes
    QPalette m_own;   // with them
    bool m_adapting = false;
};
