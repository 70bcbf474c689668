#pragma once

#include "zkeditor/export.h"

#include <QWidget>
#include <set>

class DocumentImpl;
class SpaceImpl;

/// Shows and edits scenes or pop-ups, one or several at once: the sections of their class's forms, and those of the
/// domains that they hold properties of.
class ZKEDITOR_EXPORT SpacePropertyPane : public QWidget
{
    Q_OBJECT

public:
    /// The spaces must be alive and of the document; spaces of other classes than the first's are left out. Whoever
    /// destroys the pane unbinds its children first, as with every pane.
    SpacePropertyPane(DocumentImpl* document, const std::set<SpaceImpl*>& spaces, QWidget* parent = nullptr);

Q_SIGNALS:
    /// After a section was opened or closed.
    void layoutChanged();
};
