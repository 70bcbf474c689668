#pragma once

#include "zkeditor/widgets/shortcutButton.h"

#include <QMainWindow>
#include <memory>

struct Actions;
class DocumentFiles;
class DocumentImpl;
class FlowchartBar;
class LicenceManager;
class Node;
class Palettes;
class PartEditor;
class Printing;
class QLabel;
class QMenu;
class SceneView;
class SpaceTabs;
class ViewManager;

/// The main window: one document, its scenes and pop-ups in tabs, and the forms of what is selected.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows the document of the files; without files, a new document. Of several windows for the same files, the last
    /// one asks and tells the user; the ones before should go.
    explicit MainWindow(QWidget* parent = nullptr, std::shared_ptr<DocumentFiles> files = nullptr);
    ~MainWindow() override;

    DocumentImpl* document() const { return m_document; }
    /// The document and its file live on when a window made with these files follows this one.
    const std::shared_ptr<DocumentFiles>& files() const { return m_files; }
    ViewManager* viewManager() const { return m_views; }
    SpaceTabs* spaceTabs() const { return m_tabs; }
    FlowchartBar* flowcharts() const { return m_flowcharts; }
    Printing* printing() const { return m_printing; }
    Palettes* palettes() const { return m_palettes; }

    /// Opens the file in place of the present document, without a question. False, with the message, when it cannot be
    /// read; the present document stays then.
    bool openFile(const QString& fileName, QString& error);
    /// As openFile, and puts the file among the recent ones.
    bool openStartDocument(const QString& fileName, QString& error);
    /// Selects parts by their "id" texts or instance ids and shows the space in which the first of them stands. False,
    /// with the message, when one of them is unknown; nothing is selected then.
    bool selectParts(const QStringList& ids, QString& error);
    /// Shows the same tabs as another window of the same document; what is selected stays so.
    void showTabsLike(const MainWindow& other);
    /// To be called when the settings service was made after the window: takes over what is kept there.
    void followSettings();
    /// The file of the document; empty when it was never saved.
    QString fileName() const;

Q_SIGNALS:
    /// The user wants another language: the name of a locale, null for the system's. The window itself does not follow;
    /// another one has to take its place.
    void languageChosen(const QString& localeName);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void connectActions();
    void setDocument(DocumentImpl* document);
    /// The underlined letters of the menu bar and of what stands above the scenes, upper case.
    QString ownLetters() const;
    void fillInsertMenu();
    void showError(const QString& text, const QString& reason);
    void about();
    void showLicence();
    void editPreferences();
    void applyPreferences();
    void saveCustomPart();

    void undo();
    void redo();
    void addPart(unsigned int cid);
    void addScene();
    void removeScene();
    void openPopup();
    /// Shows the space in which a node stands, or which it is.
    void showNode(const Node& node);
    void onShortcut(ShortcutButton::Type type);
    void toggleLock();
    void showReflectMenu();
    /// Shows the space in which the selection stands.
    void showSelection();
    /// Runs a command of the part editor on the current space, after what is being typed was entered.
    template <typename Function> void edit(Function function);

    void updateTitle();
    void updateActions();
    void updateUndoActions();
    void updateSelectionText();
    void showPointer(const QPointF& place);
    void onCurrentSpaceChanged();

    std::shared_ptr<DocumentFiles> m_files;
    DocumentImpl* m_document = nullptr;
    ViewManager* m_views;
    PartEditor* m_editor;
    SpaceTabs* m_tabs;
    Palettes* m_palettes;
    LicenceManager* m_licence;
    Printing* m_printing;
    FlowchartBar* m_flowcharts;
    std::unique_ptr<Actions> m_actions;
    QLabel* m_selectionText;
    QLabel* m_pointerText;
    QLabel* m_zoomText;
    bool m_showingSelection = false;
};
