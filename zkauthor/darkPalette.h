#pragma once

class QPalette;

/// Light letters on dark ground, for those who ask for it on a desktop that has no such colours of its own.
QPalette darkPalette();
