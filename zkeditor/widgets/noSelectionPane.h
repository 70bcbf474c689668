#pragma once

#include "zkeditor/export.h"

#include <QWidget>

/// What is shown while nothing is selected: a word about what to do, and the way to the properties of the scene.
class ZKEDITOR_EXPORT NoSelectionPane : public QWidget
{
    Q_OBJECT

public:
    explicit NoSelectionPane(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user asks for the properties of the scene.
    void clicked();
};
