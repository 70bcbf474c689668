#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;

/// What the command line asked for.
struct StartOptions
{
    enum class Log { Default, Stdout, Stderr, File, Console, None };

    /// Seconds.
    static constexpr int longestRun = 600;

    Log log = Log::Default;
    /// The document to open; empty for a new one.
    QString document;
    /// The locale whose language the run has; empty for that of the preferences.
    QString language;
    /// The picture to write instead of opening a window; empty for none.
    QString screenshot;
    /// What to select for the picture: "id" texts or instance ids.
    QStringList select;
    /// Whether the picture shows the forms of what is selected, all of them, instead of the window.
    bool forms = false;
    /// The object name of the menu entry whose dialog the picture shows instead of the window; empty for none.
    QString dialog;
    /// The object name of the palette that the picture shows instead of the window; empty for none.
    QString palette;
    /// For how many seconds of model time the flowcharts run before the picture is taken; 0 for not at all.
    double runTime = 0.0;
    /// Whether the program takes dark colours, whatever those of the desktop are.
    bool dark = false;

    /// The form to check instead of opening a window; empty for none.
    QString checkForm;
    /// The classes that the form is checked against; empty for those that name it.
    QStringList classes;
    /// The package folder to check instead of opening a window; empty for none.
    QString checkPackage;

    /// Whether --log was given.
    bool logGiven = false;

    /// False for a text that names no target.
    static bool parseLog(const QString& text, Log& log);
    /// Whether the arguments ask for something that needs no display. Looked at before the application object exists.
    static bool needsNoDisplay(int argc, char** argv);
    /// Reads the application's arguments. Prints the answer to --help and --version and ends the program. False, with
    /// the message, when the arguments make no sense.
    static bool parse(const QCoreApplication& application, StartOptions& options, QString& error);
};
