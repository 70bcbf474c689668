#pragma once

#include "zkcore/base/classId.h"

#include <functional>

class DocumentImpl;
class QMenu;

/// Empties the menu and fills it with the classes of parts that can be added, by their groups. Connections are offered
/// only when there is something to connect. `chosen` gets the class.
void fillInsertMenu(QMenu* menu, const DocumentImpl& document, bool canConnect,
                    const std::function<void(ClassId)>& chosen);
