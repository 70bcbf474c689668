#pragma once

#include "zkeditor/editPalette.h"

#include <QPointer>

class CommandLogPane;
class PaletteBox;
class PropertyTable;
class QLabel;
class StatisticsPane;

/// For people who look for faults: every property of what is selected, statistics, how long things take, the commands
/// given to the document, and the messages of the program.
class ZKEDITOR_EXPORT DebugPalette : public EditPalette
{
    Q_OBJECT

public:
    explicit DebugPalette(QWidget* parent = nullptr, const char* name = "debugPalette");
    explicit DebugPalette(Place place, QWidget* parent = nullptr, const char* name = "debugPalette");
    ~DebugPalette() override;

    /// Null lets go of the document.
    void setDocument(DocumentImpl* document) override;
    void resetCaption() override;

    /// Another palette for the same document goes on with the session that is being recorded here.
    void passRecordingTo(DebugPalette& other);

public Q_SLOTS:
    /// Shows the first of the selected elements; nothing is done while the palette is hidden.
    void selectionChanged();

protected:
    void setupTopLevelWidgets() override;
    void showEvent(QShowEvent* event) override;

private:
    void init();

    QPointer<DocumentImpl> m_document;
    PaletteBox* m_box = nullptr;
    QLabel* m_selected = nullptr;
    PropertyTable* m_table = nullptr;
    StatisticsPane* m_statistics = nullptr;
    CommandLogPane* m_commands = nullptr;
};
