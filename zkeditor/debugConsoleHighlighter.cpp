#include "zkeditor/debugConsoleHighlighter.h"

#include "zkeditor/widgets/readableColors.h"

#include <QColor>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
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

QTextCharFormat readableFormat(const QColor& color)
{
    QTextCharFormat format;
    format.setForeground(color);
    const QColor ground = QGuiApplication::palette().color(QPalette::Base);
    if (readableColors::on(ground, color) != color) {
        const bool black = readableColors::contrast(color, Qt::black) > readableColors::contrast(color, Qt::white);
        format.setBackground(black ? Qt::black : Qt::white);
    }
    return format;
}

} // namespace

DebugConsoleHighlighter::DebugConsoleHighlighter(QTextDocument* document) : QSyntaxHighlighter(document)
{
    qApp->installEventFilter(this);
}

bool DebugConsoleHighlighter::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && object == qApp)
        rehighlight();
    return QSyntaxHighlighter::eventFilter(object, event);
}

void DebugConsoleHighlighter::highlightBlock(const QString& text)
{
    setCurrentBlockState(0);
    for (const LevelColor& level : s_levelColors) {
        if (level.word.match(text).hasMatch()) {
            setFormat(0, static_cast<int>(text.length()) - 1, readableFormat(QColor(level.color)));
            return;
        }
    }
}
