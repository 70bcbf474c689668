#pragma once

#include "zkeditor/export.h"

#include <QSyntaxHighlighter>

/// Colours the paragraphs of the debug console by the first level word, in the order DEBUG, WARNING, FATAL and in any
/// case of letters, that stands anywhere in them. The last character keeps the default colour. Where a colour could
/// not be read on the palette's ground it gets a black or a white one.
class ZKEDITOR_EXPORT DebugConsoleHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit DebugConsoleHighlighter(QTextDocument* document);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void highlightBlock(const QString& text) override;
};
