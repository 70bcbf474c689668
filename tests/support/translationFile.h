#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// One text of a translation file (.ts).
struct TranslationMessage
{
    QString context;
    QString source;
    QString type; // "unfinished", ...; empty when it is finished
    bool numerus = false;
    QStringList translations; // one, or one for each plural form

    QString name() const { return context + QStringLiteral(": ") + source; }
};

/// Reports a test failure when the text is no translation file.
std::vector<TranslationMessage> readTranslations(const QString& text);
/// The content of a file in translations/ ("zkeditor_de").
std::vector<TranslationMessage> translationsOf(const QString& name);
