#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/model/handles.h"

#include <QDockWidget>
#include <QPointer>
#include <QSet>
#include <set>
#include <utility>
#include <vector>

class DocumentImpl;
class QLabel;
class QScrollArea;

/// Shows the forms of the selected parts, bound to all of them; with nothing selected those of the space on view. Parts
/// of one class are edited together. A selection of the class that is shown already keeps its forms and binds them
/// anew.
class FormsDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit FormsDock(QWidget* parent = nullptr);
    ~FormsDock() override;

    /// Null lets go of the document, which must be done before it is destroyed.
    void setDocument(DocumentImpl* document);
    /// The space whose properties are shown while nothing is selected; null for none.
    void setSpace(SpaceImpl* space);
    /// Ends the typing in a field of the forms, which enters it. The field keeps the focus.
    void commitPendingEdit();

private:
    void refresh();
    void onLoaded();
    std::set<NodeImpl*> nodesToShow() const;
    void showNodes(const std::set<NodeImpl*>& nodes);
    void showMessage(const QString& caption, const QString& text);
    void replacePane(QWidget* pane, ClassId cid);
    QWidget* makePane(NodeImpl* node, const QStringList& forms);
    void addSection(QWidget* pane, ClassId cid, const QString& label, QWidget* content);
    void setHeading(const std::set<NodeImpl*>& nodes);
    void onNodeValueChanged(NodeImpl* node, PropertyKey key);

    QPointer<DocumentImpl> m_document;
    Space m_space;
    QScrollArea* m_area;
    QLabel* m_heading;
    QPointer<QWidget> m_pane;
    ClassId m_paneClass = INVALID_CID; // INVALID_CID for a message
    Node m_onlyNode;                   // the one node that the heading names
    std::vector<Node> m_bound;
    QSet<std::pair<ClassId, QString>> m_folded; // sections that the user closed, by class and label
};
