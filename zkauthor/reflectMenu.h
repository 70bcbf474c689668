#pragma once

#include <QString>
#include <functional>

class DocumentImpl;
class PartImpl;
class QMenu;

/// Fills a menu with what can be reflected of a part (its controls, pads or body) and where to: each scene, and each
/// pop-up but its own. What is there already has a check mark; choosing it removes the reflection. Nothing is added for
/// a part that cannot be reflected. `failed` gets the reason when a command fails.
void fillReflectMenu(QMenu* menu, DocumentImpl* document, PartImpl* part,
                     const std::function<void(const QString&)>& failed);
