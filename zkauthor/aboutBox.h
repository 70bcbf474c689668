#pragma once

class LicenceManager;
class QWidget;

/// Shows what the program is, its version, and the state of the licence.
void showAboutBox(QWidget* parent, const LicenceManager& licence);
