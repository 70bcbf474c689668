#pragma once

#include <QIcon>

class QString;
class QWidget;

/// An icon from an image resource, drawn for the widget's screen in the given side (device-independent pixels). Null
/// when there is no such picture.
QIcon resourceIcon(const QString& name, int side, const QWidget* widget);
