#pragma once

#include "zkcore/model/node.h"
#include "zkeditor/widgets/shortcutButton.h"

#include <QObject>
#include <QPointer>
#include <QRect>
#include <vector>

class AdvancedPalette;
class AssocPalette;
class DebugPalette;
class DocumentImpl;
class EditPalette;
class Inspector;
class LockPalette;
class PropPalette;
class QMainWindow;
class QMenu;
class SidePane;
class ViewManager;

/// The palettes beside the main window's document, and the inspector: makes them, gives them the document, and passes
/// on what they ask the window to do.
class Palettes : public QObject
{
    Q_OBJECT

public:
    /// The palettes become docks of the window; only the side pane is shown at first.
    Palettes(QMainWindow* window, ViewManager* views);

    /// Appends an entry for each palette and for the inspector.
    void addEntriesTo(QMenu* menu);
    /// Not owned; called before the document shown until then is destroyed.
    void setDocument(DocumentImpl* document);
    /// Deletes the palettes: they must let go of the document while it is still there.
    void close();
    /// Ends the typing in a field of a palette, which enters it. The field keeps the focus.
    void commitPendingEdit();

    /// Where a menu of the button above the properties belongs, on the screen; at the mouse pointer when it is not
    /// shown.
    QPoint placeBelow(ShortcutButton::Type type) const;

    SidePane* sidePane() const { return m_sidePane; }
    PropPalette* properties() const;
    DebugPalette* debugPalette() const { return m_debug; }

    /// Where the inspector is; not valid while it is not on view.
    QRect inspectorGeometry() const;
    /// Shows the inspector, where it was or where it is told to.
    void showInspector(const QRect& geometry = {});

Q_SIGNALS:
    /// The user asked for a part of this class.
    void partChosen(unsigned int cid);
    void documentChosen(const QString& fileName);
    /// One of the buttons above the properties.
    void shortcutClicked(ShortcutButton::Type type);
    /// The user wants to see a node that cannot be selected.
    void nodeRequested(Node node);
    /// Something could not be done; one translated sentence.
    void failed(const QString& reason);

private:
    QMainWindow* m_window;
    QPointer<DocumentImpl> m_document;
    SidePane* m_sidePane;
    LockPalette* m_locks;
    AssocPalette* m_associations;
    AdvancedPalette* m_advanced;
    DebugPalette* m_debug;
    std::vector<EditPalette*> m_all;
    QPointer<Inspector> m_inspector; // made when first asked for
};
