#pragma once

#include "zkcore/model/handles.h"
#include "zkeditor/editPalette.h"

#include <QPointer>
#include <set>

class DocumentImpl;
class DoubleSpinBox;
class NodeImpl;
class ObserverLineEdit;
class PaletteBox;
class QLabel;
class QVBoxLayout;
class SpaceImpl;
class ValueChooser;

/// What is seldom changed about the selected parts: what a click on them does, copies in a row, and their pop-ups. A
/// hidden palette does not follow the selection.
class ZKEDITOR_EXPORT AdvancedPalette : public EditPalette
{
    Q_OBJECT

public:
    explicit AdvancedPalette(QWidget* parent = nullptr, const char* name = "advancedPalette");
    explicit AdvancedPalette(Place place, QWidget* parent = nullptr, const char* name = "advancedPalette");
    ~AdvancedPalette() override;

    /// Null lets go of the document.
    void setDocument(DocumentImpl* document) override;
    void resetCaption() override;
    void setupTopLevelWidgets() override;

public Q_SLOTS:
    void selectionChanged();

Q_SIGNALS:
    /// Something the user asked for could not be done; one translated sentence.
    void failed(const QString& reason);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void init();
    QWidget* makeClickSection();
    QWidget* makeDuplicationSection();
    QWidget* makePopupSection(const std::set<SpaceImpl*>& popups);
    /// When and how often explanations open; nothing for pop-ups of other parts.
    void addExplanationBoxes(QVBoxLayout* layout, const std::set<SpaceImpl*>& popups);
    void refresh();
    void showClickFields();
    void showScenes();
    void bindClickSection(const std::set<NodeImpl*>& nodes);
    void showPopups(const std::set<SpaceImpl*>& popups);
    void duplicate();
    void openPopup();

    QPointer<DocumentImpl> m_document;
    PaletteBox* m_box = nullptr;
    QWidget* m_clickSection = nullptr;
    ValueChooser* m_action = nullptr;
    QLabel* m_linkLabel = nullptr;
    ObserverLineEdit* m_link = nullptr;
    QLabel* m_sceneLabel = nullptr;
    ValueChooser* m_scene = nullptr;
    QWidget* m_duplicationSection = nullptr;
    DoubleSpinBox* m_count = nullptr;
    DoubleSpinBox* m_offsetX = nullptr;
    DoubleSpinBox* m_offsetY = nullptr;
    unsigned int m_popupNumber = 0; // of the pop-up section asked for last
    bool m_stale = true;            // the selection changed while the palette was hidden
};
