#pragma once

#include "zkeditor/export.h"

#include <QDockWidget>

class DocumentImpl;
class QBoxLayout;

/// The base of all palettes: a dock window with common rules for its size, and hooks for the document. Inside a
/// PaletteBox it has no title bar and stays where it is.
class ZKEDITOR_EXPORT EditPalette : public QDockWidget
{
    Q_OBJECT

public:
    enum Place { InDock = 0, OutsideDock = 1 };
    Q_ENUM(Place)

    /// In pixels.
    static const unsigned int s_minWidth;

    EditPalette(QWidget* parent, const char* name);
    /// OutsideDock starts as a floating window.
    EditPalette(Place place, QWidget* parent, const char* name);
    ~EditPalette() override;

    /// The document to follow from now on. The base does nothing.
    virtual void setDocument(DocumentImpl* document);
    /// Brings the caption back that stands there without a selection. The base does nothing.
    virtual void resetCaption();
    /// Builds the widgets; subclasses call theirs in their constructors. The base does nothing.
    virtual void setupTopLevelWidgets();

    /// Whether the user may change the size. A palette that may not be resized keeps the size of its content while it
    /// floats; once docked, it can be resized like every other.
    virtual void setResizeEnabled(bool enabled);
    /// Whether the user may change the size now, in the place where the palette is.
    bool isResizeEnabled() const { return m_resizeNow; }
    /// Makes it a floating window as large as its content; inside a PaletteBox it stays where it is.
    virtual void undock();

    Place place() const { return isFloating() ? OutsideDock : InDock; }
    /// True while the palette is on its way to another place or parent.
    bool isReparenting() const { return m_reparenting; }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// After the palette was docked or undocked.
    void placeChanged(EditPalette::Place place);

public Q_SLOTS:
    void handlePlaceChanged(EditPalette::Place place);

protected Q_SLOTS:
    /// To be connected to whatever tells that the content wants another size: a floating palette takes it, a docked one
    /// is left to its dock area.
    virtual void onChildLayoutChanged();

protected:
    /// The vertical layout within the dock window that holds the content; made, with its widget, when there is none.
    /// Not for palettes that gave the dock window a widget of their own.
    QBoxLayout* dockLayout();
    /// setParent(), or setFloating(), with isReparenting() set meanwhile: signals of a selection that come in between
    /// are not the user's.
    virtual void reparent(QWidget* parent, Qt::WindowFlags windowFlags, const QPoint& position, bool showIt);
    void setPlace(Place place);

    bool event(QEvent* event) override;

private:
    void init(const char* name);
    void applyResizeEnabled(bool enabled);
    void adjustToContent();
    void followContent();
    void followParent();

    QWidget* m_body = nullptr; // made by dockLayout()
    bool m_resizeEnabled = true;
    bool m_resizeNow = true;
    bool m_reparenting = false;
    bool m_inBox = false; // inside a PaletteBox
};
