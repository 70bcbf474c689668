#pragma once

#include <QString>
#include <QStringList>

/// The known word that somebody who wrote the other one most likely meant; the null string when none is near.
QString nearestWord(const QString& word, const QStringList& known);
