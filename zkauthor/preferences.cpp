#include "zkauthor/preferences.h"

#include "zkauthor/helpWindow.h"
#include "zkauthor/sceneView.h"
#include "zkcore/values/preferredUnits.h"
#include "zkcore/values/value.h"
#include "zkeditor/settingsService.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QSpinBox>
#include <algorithm>
#include <optional>

namespace {

const QString languageKey = QStringLiteral("/Preferences/Language");
const QString lengthUnitKey = QStringLiteral("/Preferences/LengthUnit");
const QString undoLimitKey = QStringLiteral("/Preferences/UndoLimit");
const QString wheelKey = QStringLiteral("/Preferences/WheelZooms");
const QString logKey = QStringLiteral("/Preferences/Log");

QString preferencesText(const char* text)
{
    return QCoreApplication::translate("Preferences", text);
}

struct Choice
{
    const char* value;
    const char* label;
};

constexpr Choice lengthUnits[] = {{"", QT_TRANSLATE_NOOP("Preferences", "As each property says")},
                                  {"mm", QT_TRANSLATE_NOOP("Preferences", "Millimetres")},
                                  {"cm", QT_TRANSLATE_NOOP("Preferences", "Centimetres")},
                                  {"in", QT_TRANSLATE_NOOP("Preferences", "Inches")}};
constexpr Choice logTargets[] = {{"", QT_TRANSLATE_NOOP("Preferences", "The crash report only")},
                                 {"stdout", QT_TRANSLATE_NOOP("Preferences", "Standard output")},
                                 {"stderr", QT_TRANSLATE_NOOP("Preferences", "Standard error")},
                                 {"file", QT_TRANSLATE_NOOP("Preferences", "A file (velmor.log)")},
                                 {"console", QT_TRANSLATE_NOOP("Preferences", "A window")},
                                 {"none", QT_TRANSLATE_NOOP("Preferences", "Nowhere")}};

template <size_t n> QComboBox* choiceBox(const Choice (&choices)[n], const QString& current)
{
    auto* box = new QComboBox;
    for (const Choice& choice : choices)
        box->addItem(preferencesText(choice.label), QString::fromLatin1(choice.value));
    box->setCurrentIndex(std::max(0, box->findData(current)));
    return box;
}

QComboBox* languageBox(const QString& current)
{
    auto* box = new QComboBox;
    box->addItem(preferencesText(QT_TRANSLATE_NOOP("Preferences", "The system's")), QString());
    for (const QString& name :
         {QStringLiteral("en_GB"), QStringLiteral("de_DE"), QStringLiteral("fr_FR"), QStringLiteral("ar_EG")})
        box->addItem(QLocale(name).nativeLanguageName(), name);
    box->setCurrentIndex(std::max(0, box->findData(current)));
    return box;
}

QString text(const SettingsService& settings, const QString& key)
{
    return settings.hasSetting(key) ? settings.readSetting(key, Value(QString())).toQString() : QString();
}

/// What was chosen where nothing can be written; it holds until the program ends.
std::optional<Preferences>& unkeptPreferences()
{
    static std::optional<Preferences> preferences;
    return preferences;
}

} // namespace

Preferences Preferences::read()
{
    if (unkeptPreferences())
        return *unkeptPreferences();
    Preferences preferences;
    if (!SettingsService::exists())
        return preferences;
    const SettingsService& settings = *SettingsService::instance();
    preferences.language = text(settings, languageKey);
    preferences.lengthUnit = text(settings, lengthUnitKey);
    preferences.log = text(settings, logKey);
    if (settings.hasSetting(undoLimitKey))
        preferences.undoLimit =
            std::clamp(settings.readSetting(undoLimitKey, Value(defaultUndoLimit)).toInt(), 0, greatestUndoLimit);
    if (settings.hasSetting(wheelKey))
        preferences.wheelZooms = settings.readSetting(wheelKey, Value(false)).toBool();
    return preferences;
}

bool Preferences::write() const
{
    if (!SettingsService::exists())
        return false;
    SettingsService& settings = *SettingsService::instance();
    bool written = settings.writeSetting(languageKey, Value(language));
    written = settings.writeSetting(lengthUnitKey, Value(lengthUnit)) && written;
    written = settings.writeSetting(undoLimitKey, Value(undoLimit)) && written;
    written = settings.writeSetting(wheelKey, Value(wheelZooms)) && written;
    written = settings.writeSetting(logKey, Value(log)) && written;
    if (written)
        unkeptPreferences().reset();
    else
        unkeptPreferences() = *this;
    return written;
}

void Preferences::apply() const
{
    std::vector<Unit> units;
    if (const Unit unit = Unit::fromText(lengthUnit); !unit.isNull())
        units.push_back(unit);
    setPreferredUnits(units);
    SceneView::setWheelZooms(wheelZooms);
}

StartOptions::Log Preferences::logTarget() const
{
    StartOptions::Log target = StartOptions::Log::Default;
    StartOptions::parseLog(log, target);
    return target;
}

std::optional<Preferences> Preferences::edit(QWidget* parent)
{
    Preferences preferences = read();
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("preferences"));
    dialog.setWindowTitle(preferencesText(QT_TRANSLATE_NOOP("Preferences", "Preferences")));
    auto* form = new QFormLayout(&dialog);

    QComboBox* language = languageBox(preferences.language);
    language->setToolTip(
        preferencesText(QT_TRANSLATE_NOOP("Preferences", "The language of all texts, and how numbers are written.")));
    form->addRow(preferencesText(QT_TRANSLATE_NOOP("Preferences", "&Language:")), language);
    QComboBox* lengths = choiceBox(lengthUnits, preferences.lengthUnit);
    lengths->setToolTip(preferencesText(QT_TRANSLATE_NOOP(
        "Preferences", "The unit in which fields of lengths begin; each of them offers the others as well.")));
    form->addRow(preferencesText(QT_TRANSLATE_NOOP("Preferences", "Show lengths &in:")), lengths);
    auto* undoLimit = new QSpinBox;
    undoLimit->setRange(0, greatestUndoLimit);
    undoLimit->setSpecialValueText(preferencesText(QT_TRANSLATE_NOOP("Preferences", "All")));
    undoLimit->setValue(preferences.undoLimit);
    form->addRow(preferencesText(QT_TRANSLATE_NOOP("Preferences", "Steps kept for &undo:")), undoLimit);
    auto* wheel = new QCheckBox(
        preferencesText(QT_TRANSLATE_NOOP("Preferences", "The &wheel zooms scenes (with Ctrl it scrolls them)")));
    wheel->setChecked(preferences.wheelZooms);
    form->addRow(wheel);
    QComboBox* log = choiceBox(logTargets, preferences.log);
    log->setToolTip(preferencesText(QT_TRANSLATE_NOOP("Preferences", "Takes effect when the program starts again.")));
    form->addRow(preferencesText(QT_TRANSLATE_NOOP("Preferences", "&Messages go to:")), log);
    form->addRow(makeHelpLink(preferencesText(QT_TRANSLATE_NOOP("Preferences", "What these settings do")),
                              QStringLiteral("dialogs#preferences")));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;

    preferences.language = language->currentData().toString();
    preferences.lengthUnit = lengths->currentData().toString();
    preferences.undoLimit = undoLimit->value();
    preferences.wheelZooms = wheel->isChecked();
    preferences.log = log->currentData().toString();
    preferences.apply();
    if (SettingsService::exists() && !preferences.write())
        QMessageBox::warning(parent, dialog.windowTitle(),
                             preferencesText(QT_TRANSLATE_NOOP(
                                 "Preferences", "The preferences hold until the program ends: they cannot be kept.")));
    return preferences;
}
