#pragma once

#include "zkeditor/export.h"

#include <QIcon>
#include <QPixmap>
#include <QWidget>
#include <set>

class DocumentImpl;
class NodeImpl;
class PaletteButtonBar;

/// Marks out one collapsible section in a form. The form only shows where the section is and whether it will start
/// open; who shows the form lifts the contents out with getSectionWidget().
class ZKEDITOR_EXPORT PaletteBoxSection : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString label READ label WRITE setLabel)
    Q_PROPERTY(bool open READ open WRITE setOpen)

public:
    explicit PaletteBoxSection(QWidget* parent = nullptr, const QString& name = {});

    /// The section's title, which the header shows with the state behind it.
    QString label() const { return m_label; }
    void setLabel(const QString& label);
    /// Whether the section starts open.
    bool open() const;
    void setOpen(bool open);

    /// Moves the contents into a new widget, one below the other in the order in which they stand in the form. The new
    /// widget is owned by the parent, or without one by the caller. What was hidden stays hidden.
    QWidget* getSectionWidget(QWidget* parent);
    /// Binds the contents, which must not have been lifted out yet.
    void setupPaneWidgets(DocumentImpl* document, const std::set<NodeImpl*>& nodes);
    /// Makes all observers below edit properties of spaces; see PropertyObserver::setSpacePropertyCid().
    void setSpacePropertyCid(unsigned int cid);

    /// The pictures of a section's header, in the colours of the application's palette: the left end (21 by 17 pixels),
    /// which differs by state, what is tiled behind the text (135 by 17), and the right end (18 by 17).
    static QPixmap getLeftIcon(QIcon::Mode mode, QIcon::State state);
    static QPixmap getCenterIcon(QIcon::Mode mode, QIcon::State state);
    static QPixmap getRightIcon(QIcon::Mode mode, QIcon::State state);

protected Q_SLOTS:
    void onButtonClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateHeaderText();

    static const QString s_open;
    static const QString s_closed;

    PaletteButtonBar* m_header;
    QString m_label;
};
