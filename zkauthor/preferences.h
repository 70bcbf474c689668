#pragma once

#include "zkauthor/startOptions.h"

#include <QString>
#include <optional>

class QWidget;

/// What the user has chosen in the preferences dialog; kept by the settings service. Without a service, as in tests,
/// the defaults hold.
struct Preferences
{
    static constexpr int defaultUndoLimit = 1000;
    static constexpr int greatestUndoLimit = 100000;

    /// A locale's name ("de_DE"); empty for the system's.
    QString language;
    /// The unit in which lengths are shown at first: "mm", "cm" or "in"; empty for what each property says.
    QString lengthUnit;
    /// Steps kept for undo; 0 for all.
    int undoLimit = defaultUndoLimit;
    /// Whether the wheel over a scene zooms, and scrolls with Ctrl, instead of the other way round.
    bool wheelZooms = false;
    /// Where messages go when the command line says nothing: as for --log; empty for the default.
    QString log;

    static Preferences read();
    /// False when they cannot be kept; read() gives them all the same until the program ends.
    bool write() const;
    /// Makes numbers, units and the wheel follow; what the document and the start of the program take from here is up
    /// to them.
    void apply() const;
    StartOptions::Log logTarget() const;

    /// Shows the dialog. What the user accepted, which is written and applied by then; nothing when not.
    static std::optional<Preferences> edit(QWidget* parent);
};
