#pragma once

#include <QString>
#include <functional>
#include <vector>

class DocumentImpl;
class PartImpl;
class QMenu;

/// Fills a menu with what can be reflected of the parts (their controls, pads or bodies) and where to: each scene, and
/// each pop-up but their own. A place that holds the reflections of all of them already has a check mark; choosing it
/// removes them, choosing another adds those that are missing; both are one undo step. Parts that cannot be reflected
/// are left out; nothing is added when there is no other. `failed` gets the reason when a command fails.
void fillReflectMenu(QMenu* menu, DocumentImpl* document, const std::vector<PartImpl*>& parts,
                     const std::function<void(const QString&)>& failed);
