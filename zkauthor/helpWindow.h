#pragma once

#include <QString>

class LinkLabel;
class QWidget;

/// Shows a page of the documentation, which the program brings along, in a window beside the parent's; it goes with the
/// parent. The page is a file of docs/ without extension, with or without a heading: "dialogs#page-setup".
void showHelp(QWidget* parent, const QString& page);

/// A link that does so, for dialogs. The parent of the window is the one in which the link stands.
LinkLabel* makeHelpLink(const QString& text, const QString& page);
