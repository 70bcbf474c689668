#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/model/node.h"
#include "zkeditor/editPalette.h"

#include <QPointer>
#include <QTimer>

class AssociationList;
class DocumentImpl;
class LinkPane;
class PaletteBox;
class QLabel;
struct Association;

/// Shows what the selected part has to do with: the properties that it follows and that follow its own, its subparts,
/// its reflections and its pop-up. What is clicked gets selected; links can be made, links and reflections ended. A
/// hidden palette does not follow the document.
class ZKEDITOR_EXPORT AssocPalette : public EditPalette
{
    Q_OBJECT

public:
    explicit AssocPalette(QWidget* parent = nullptr, const char* name = "assocPalette");
    explicit AssocPalette(Place place, QWidget* parent = nullptr, const char* name = "assocPalette");

    /// Null lets go of the document.
    void setDocument(DocumentImpl* document) override;
    void resetCaption() override;
    void setupTopLevelWidgets() override;

public Q_SLOTS:
    void selectionChanged();

Q_SIGNALS:
    /// After the user asked for a node that cannot be selected, a scene say: the host may show it.
    void nodeRequested(Node node);
    /// Something the user asked for could not be done; one translated sentence.
    void failed(const QString& reason);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void init();
    AssociationList* addList(const QString& label);
    void refreshSoon();
    void refresh();
    void select(InstanceId id);
    void detach(const Association& association);

    QPointer<DocumentImpl> m_document;
    QTimer m_refresh;
    PaletteBox* m_box = nullptr;
    QLabel* m_heading = nullptr;
    AssociationList* m_links = nullptr;
    AssociationList* m_subparts = nullptr;
    AssociationList* m_reflections = nullptr;
    AssociationList* m_popup = nullptr;
    LinkPane* m_newLink = nullptr;
};
