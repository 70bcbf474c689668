#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QUrl>

/// A link that opens its URL in the system's browser or whatever handles it. It shows the URL, or another text.
class ZKEDITOR_EXPORT HyperLink : public LinkLabel
{
    Q_OBJECT
    Q_PROPERTY(QString url READ getUrlAsString WRITE setUrl)

public:
    explicit HyperLink(QWidget* parent = nullptr, const QString& name = {});
    HyperLink(const QString& url, QWidget* parent, const QString& name = {});

    /// Also shows the URL. An absolute path stands for the file of that name.
    void setUrl(const QString& url);
    /// Shows this text, which may hold markup, instead of the URL.
    void setDisplayText(const QString& text);
    QUrl getUrl() const { return m_url; }
    /// The URL as it is shown: blanks and letters of all languages as they are, files without "file://".
    QString getUrlAsString() const;

public Q_SLOTS:
    /// Does nothing without a valid URL. What clicked() is connected to.
    void open();

private:
    QUrl m_url;
};
