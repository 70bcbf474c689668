#pragma once

#include <QByteArray>
#include <QString>
#include <ostream>

// GoogleTest prints texts of the toolkit as texts. Every test file includes this by way of the build, so that all
// files of a program print alike.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << (text.isNull() ? "(null)" : '"' + text.toStdString() + '"');
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}
