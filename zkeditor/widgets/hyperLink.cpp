// Links to pages and files.
#include "zkeditor/widgets/hyperLink.h"

#include "zkcore/services/openUrl.h"

#include <QDir>

HyperLink::HyperLink(QWidget* parent, const QString& name) : LinkLabel(parent, name)
{
    // A role rather than a colour: it follows light and dark palettes.
    setForegroundRole(QPalette::Link);
    connect(this, &LinkLabel::clicked, this, &HyperLink::open);
}

HyperLink::HyperLink(const QString& url, QWidget* parent, const QString& name) : HyperLink(parent, name)
{
    setUrl(url);
}

void HyperLink::setUrl(const QString& url)
{
    m_url = QDir::isAbsolutePath(url) ? QUrl::fromLocalFile(url) : QUrl(url);
    // The '&' and '<' of URLs are no markup.
    setTextFormat(Qt::PlainText);
    setText(getUrlAsString());
    setToolTip(QString());
}

void HyperLink::setDisplayText(const QString& text)
{
    setTextFormat(Qt::RichText);
    setText(text);
    setToolTip(getUrlAsString());
}

QString HyperLink::getUrlAsString() const
{
    return m_url.isLocalFile() ? m_url.toLocalFile() : m_url.toString();
}

void HyperLink::open()
{
    if (!m_url.isValid())
        return;
    qDebug("HyperLink: attempting to open url %s", qPrintable(m_url.toString()));
    openUrl(m_url);
}
