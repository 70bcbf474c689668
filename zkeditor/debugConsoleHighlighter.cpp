#include "zkeditor/debugConsoleHighlighter.h"

#include <QColor>
#include <QRegularExpression>

namespace {

struct LevelColor
{
    QRegularExpression word;
    const char* color;
};

const LevelColor s_levelColors[] = {
    {QRegularExpression(QStringLiteral("DEBUG"), QRegularExpression::CaseInsensitiveOption), "blue"},
    {QRegularExpression(QStringLiteral("WARNING"), QRegularExpression::CaseInsensitiveOption), "orange"},
    {QRegularExpression(QStringLiteral("FATAL"), QRegularExpression::CaseInsensitiveOption), "red"},
};

} // namespace

DebugConsoleHighlighter::DebugConsoleHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

void DebugConsoleHighlighter::highlightBlock(const QString& text)
{
    setCurrentBlockState(0);
    for (const LevelColor& level : s_levelColors) {
        if (level.word.match(text).hasMatch()) {
            setFormat(0, static_cast<int>(text.length()) - 1, QColor(level.color));
            return;
        }
    }
}
