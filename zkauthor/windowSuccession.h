#pragma once

class MainWindow;

/// Lets a new window take the place of another one that shows the same document: the same place, tabs, zoom, selection,
/// palettes and page setup. Shows the new one; the one before can go then. What runs ends: gestures and flowcharts.
void succeedWindow(MainWindow& before, MainWindow& now);
