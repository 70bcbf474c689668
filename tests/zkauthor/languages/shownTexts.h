#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <vector>

/// A text that a widget shows or has read out.
struct ShownText
{
    QString text;
    QString where; // "PropertyLabel powerLabel: toolTip"
};

/// All texts of a widget and what is in it, hidden parts included: labels, buttons, titles, tool tips, accessible
/// names, items of lists, trees and tables, headers, tabs, menus and actions.
std::vector<ShownText> shownTexts(const QWidget& root);

/// Labels, buttons, titles, tabs and headers on view that have less room than their text needs, each with both.
QStringList clippedTexts(const QWidget& root);

/// Shortcut letters that more than one command of a menu, or more than one control of the window, has.
QStringList sharedMnemonics(const QWidget& root);
