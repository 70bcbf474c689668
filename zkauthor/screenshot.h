#pragma once

#include <QString>

class QPalette;
struct StartOptions;

/// The colours of a dark desktop, as pictures and tests show them.
QPalette darkPalette();

/// Opens the document of the options, selects what they name, and writes a picture of the main window, or of the forms
/// alone. False, with the
/// message, when the document cannot be read, an id is unknown or the picture cannot be written.
bool takeScreenshot(const StartOptions& options, QString& error);
