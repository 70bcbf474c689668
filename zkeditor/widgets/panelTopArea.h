#pragma once

#include "zkcore/base/propertyKey.h"
#include "zkcore/model/node.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/paneWidget.h"
#include "zkeditor/widgets/shortcutButton.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <set>
#include <vector>

class PartIdLineEdit;
class QLabel;

/// The top of a pane: icon and name of what is selected (how many, when several), its id (for several of one class a
/// pattern for their ids), and buttons for what is often done with it. The buttons only tell that they were clicked.
class ZKEDITOR_EXPORT PanelTopArea : public QWidget, public PaneWidget
{
    Q_OBJECT

public:
    /// Shows that nothing is selected until bind().
    explicit PanelTopArea(QWidget* parent = nullptr);

    /// Shows the nodes: elements, or one space. Follows their names, ids and locks.
    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    /// An id that was typed and not entered yet is entered first, if it may be.
    void unbind() override;

    ShortcutButton* button(ShortcutButton::Type type) const;

Q_SIGNALS:
    void shortcutClicked(ShortcutButton::Type type);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void refreshButtons();
    void refreshHeading();
    void showName();
    void bindId();
    void onNodeValueChanged(NodeImpl* node, PropertyKey key);
    void onShortcut(ShortcutButton::Type type);
    NodeImpl* onlyNode() const;

    QPointer<DocumentImpl> m_document;
    std::vector<Node> m_nodes;
    QTimer m_refreshSoon; // merges bursts of lock changes
    QLabel* m_icon;
    QLabel* m_name;
    PartIdLineEdit* m_id;
    std::vector<ShortcutButton*> m_buttons;
    QString m_fullName;
};
