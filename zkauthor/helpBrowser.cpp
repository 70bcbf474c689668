#include "zkauthor/helpBrowser.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextFragment>
#include <utility>
#include <vector>

namespace {

// Where all pages and pictures are. The browser's own address is that of the page before while one is read.
const QUrl helpFolder(QStringLiteral("qrc:/zk/help/"));
constexpr int greatestPictureWidth = 330;

/// What links call a heading: small letters, hyphens for blanks.
QString linkNameOf(const QString& heading)
{
    static const QRegularExpression others(QStringLiteral("[^\\w\\- ]"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString name = heading.toLower();
    return name.remove(others).replace(u' ', u'-');
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("helpBrowser"));
}

void HelpBrowser::showPage(const QString& page)
{
    const QString heading = page.section(u'#', 1);
    QUrl url(page.section(u'#', 0, 0) + QLatin1String(".md"));
    if (!heading.isEmpty())
        url.setFragment(heading);
    setSource(url);
}

QString HelpBrowser::page() const
{
    return QFileInfo(source().path()).completeBaseName();
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    const QImage picture(u':' + helpFolder.resolved(name).path());
    if (picture.width() <= greatestPictureWidth)
        return picture;
    return picture.scaledToWidth(greatestPictureWidth, Qt::SmoothTransformation);
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    const QUrl whole = (name.path().isEmpty() ? source() : helpFolder).resolved(name);
    if (whole.scheme() != QLatin1String("qrc") || !QFile::exists(u':' + whole.path()))
        return;
    m_heading = whole.fragment();
    QTextBrowser::doSetSource(whole, type);
    showHeading();
}

void HelpBrowser::showEvent(QShowEvent* event)
{
    QTextBrowser::showEvent(event);
    showHeading(); // whose place depends on the width
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colorLinks();
}

void HelpBrowser::colorLinks()
{
    // Links keep the colour of the moment when the page was read.
    std::vector<std::pair<int, int>> links; // from, to
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            if (fragment.charFormat().isAnchor())
                links.emplace_back(fragment.position(), fragment.position() + fragment.length());
        }
    }
    QTextCharFormat format;
    format.setForeground(palette().color(QPalette::Link));
    QTextCursor cursor(document());
    for (const auto& [from, to] : links) {
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
}

void HelpBrowser::showHeading()
{
    if (m_heading.isEmpty())
        return;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || linkNameOf(block.text()) != m_heading)
            continue;
        setTextCursor(QTextCursor(block));
        const double top = document()->documentLayout()->blockBoundingRect(block).top();
        verticalScrollBar()->setValue(static_cast<int>(top));
        return;
    }
}
