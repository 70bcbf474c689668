#include "zkauthor/startOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <string_view>
#include <utility>

namespace {

struct StartTexts
{
    Q_DECLARE_TR_FUNCTIONS(StartOptions)
};

} // namespace

bool StartOptions::needsNoDisplay(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument(argv[i]);
        if (argument == "--")
            return false;
        const std::string_view name = argument.substr(0, argument.find('='));
        for (const std::string_view option :
             {"-h", "--help", "--help-all", "-v", "--version", "--screenshot", "--check-form", "--check-package"}) {
            if (name == option)
                return true;
        }
    }
    return false;
}

bool StartOptions::parseLog(const QString& text, Log& log)
{
    static const std::pair<const char*, Log> targets[] = {{"stdout", Log::Stdout},
                                                          {"stderr", Log::Stderr},
                                                          {"file", Log::File},
                                                          {"console", Log::Console},
                                                          {"none", Log::None}};
    for (const auto& [name, target] : targets) {
        if (text == QLatin1String(name)) {
            log = target;
            return true;
        }
    }
    return false;
}

bool StartOptions::parse(const QCoreApplication& application, StartOptions& options, QString& error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(StartTexts::tr("Shows and edits interactive teaching models."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption logOption(
        QStringLiteral("log"),
        StartTexts::tr(
            "Where messages go: stdout, stderr, file (velmor.log in the current folder), console (a window) or none."),
        QStringLiteral("target"));
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"), StartTexts::tr("Write a picture of the main window into a PNG file and quit."),
        QStringLiteral("file"));
    const QCommandLineOption selectOption(
        QStringLiteral("select"),
        StartTexts::tr("Select the part with this id for the picture. May be given several times."),
        QStringLiteral("id"));
    parser.addOption(logOption);
    parser.addOption(screenshotOption);
    parser.addOption(selectOption);
    const QCommandLineOption formsOption(
        QStringLiteral("forms"),
        StartTexts::tr("Let the picture show the forms of what is selected from top to bottom, alone."));
    const QCommandLineOption darkOption(QStringLiteral("dark"),
                                        StartTexts::tr("Dark colours, whatever those of the desktop are."));
    const QCommandLineOption dialogOption(
        QStringLiteral("dialog"),
        StartTexts::tr("Let the picture show the dialog of a menu entry: preferences, "
                       "page-setup, save-custom-part, licence or about."),
        QStringLiteral("entry"));
    const QCommandLineOption runOption(QStringLiteral("run"),
                                       StartTexts::tr("Run the flowcharts for so many seconds before the picture."),
                                       QStringLiteral("seconds"));
    const QCommandLineOption paletteOption(
        QStringLiteral("palette"),
        StartTexts::tr("Let the picture show a palette alone: lockPalette, assocPalette, advancedPalette, debugPalette "
                       "or inspector."),
        QStringLiteral("name"));
    parser.addOptions({dialogOption, paletteOption, runOption});
    parser.addOption(formsOption);
    parser.addOption(darkOption);
    const QCommandLineOption checkFormOption(
        QStringLiteral("check-form"),
        StartTexts::tr("Tell what is wrong with a form, and quit. The exit code is 0 when nothing "
                       "is, 1 for errors, 2 when the form cannot be read."),
        QStringLiteral("file"));
    const QCommandLineOption classOption(
        QStringLiteral("class"),
        StartTexts::tr("Check the form for this class. May be given several times. Without it, the form "
                       "is checked for the classes that name it."),
        QStringLiteral("id"));
    const QCommandLineOption checkPackageOption(
        QStringLiteral("check-package"),
        StartTexts::tr("Tell what is wrong with a package folder and its forms, and quit."), QStringLiteral("folder"));
    parser.addOption(checkFormOption);
    parser.addOption(classOption);
    parser.addOption(checkPackageOption);
    const QCommandLineOption languageOption(QStringLiteral("language"),
                                            StartTexts::tr("The language of this run, such as de or fr_FR."),
                                            QStringLiteral("locale"));
    parser.addOption(languageOption);
    parser.addPositionalArgument(QStringLiteral("document"), StartTexts::tr("The document to open."),
                                 QStringLiteral("[document]"));
    parser.process(application);

    if (parser.isSet(logOption)) {
        const QString text = parser.value(logOption);
        options.logGiven = true;
        if (!parseLog(text, options.log)) {
            error = StartTexts::tr("--log takes stdout, stderr, file, console or none, not \"%1\".").arg(text);
            return false;
        }
    }
    if (parser.positionalArguments().size() > 1) {
        error = StartTexts::tr("Only one document can be opened, but %n were given.", nullptr,
                               static_cast<int>(parser.positionalArguments().size()));
        return false;
    }
    if (!parser.positionalArguments().isEmpty())
        options.document = parser.positionalArguments().constFirst();
    if (parser.isSet(screenshotOption) && parser.value(screenshotOption).isEmpty()) {
        error = StartTexts::tr("--screenshot needs the name of a file.");
        return false;
    }
    for (const QCommandLineOption& option : {checkFormOption, checkPackageOption}) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            error = StartTexts::tr("--%1 needs the name of a file or folder.").arg(option.names().constFirst());
            return false;
        }
    }
    options.checkForm = parser.value(checkFormOption);
    options.checkPackage = parser.value(checkPackageOption);
    options.classes = parser.values(classOption);
    if (!options.classes.isEmpty() && options.checkForm.isEmpty()) {
        error = StartTexts::tr("--class only works together with --check-form.");
        return false;
    }
    if (!options.checkForm.isEmpty() && !options.checkPackage.isEmpty()) {
        error = StartTexts::tr("--check-form and --check-package cannot be given together.");
        return false;
    }
    options.screenshot = parser.value(screenshotOption);
    options.language = parser.value(languageOption);
    options.select = parser.values(selectOption);
    options.forms = parser.isSet(formsOption);
    options.dark = parser.isSet(darkOption);
    options.dialog = parser.value(dialogOption);
    options.palette = parser.value(paletteOption);
    if (parser.isSet(runOption)) {
        bool number = false;
        options.runTime = parser.value(runOption).toDouble(&number);
        if (!number || options.runTime <= 0.0 || options.runTime > StartOptions::longestRun) {
            error = StartTexts::tr("--run takes seconds up to %1, not \"%2\".")
                        .arg(StartOptions::longestRun)
                        .arg(parser.value(runOption));
            return false;
        }
    }
    for (const QCommandLineOption& option : {selectOption, formsOption, dialogOption, paletteOption, runOption}) {
        if (parser.isSet(option) && options.screenshot.isEmpty()) {
            error = StartTexts::tr("--%1 only works together with --screenshot.").arg(option.names().constFirst());
            return false;
        }
    }
    return true;
}
