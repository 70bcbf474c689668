#include "zkeditor/formFinding.h"

namespace {

constexpr int namedClasses = 3;
constexpr int longestName = 60;

/// Names come from the form: one that is endless would hide what is said about it.
QString shortFormName(const QString& name)
{
    const QString simple = name.simplified();
    return simple.size() <= longestName ? simple : simple.left(longestName) + QChar(0x2026);
}

} // namespace

QString FormFinding::description() const
{
    // The words in front of the text are for programs that read compilers' messages as well: not translated.
    QString out = severity == Error ? QStringLiteral("error: ") : QStringLiteral("warning: ");
    if (!widgetClass.isEmpty())
        out += QStringLiteral("widget '%1' (%2): ").arg(shortFormName(widget), shortFormName(widgetClass));
    if (!property.isEmpty())
        out += QStringLiteral("property '%1': ").arg(shortFormName(property));
    out += text;
    if (!classes.isEmpty()) {
        out += QStringLiteral(" [") + classes.mid(0, namedClasses).join(QStringLiteral(", "));
        if (classes.size() > namedClasses)
            out += QStringLiteral(" + %1").arg(classes.size() - namedClasses);
        out += QLatin1Char(']');
    }
    return out;
}

QString FormFinding::message(const QString& file) const
{
    return file + QLatin1Char(':') + QString::number(line) + QStringLiteral(": ") + description();
}
