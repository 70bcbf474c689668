#pragma once

#include <QString>

struct StartOptions;

/// Opens the document of the options, selects what they name, and writes a picture of the main window, or of the forms
/// alone. False, with the
/// message, when the document cannot be read, an id is unknown or the picture cannot be written.
bool takeScreenshot(const StartOptions& options, QString& error);
