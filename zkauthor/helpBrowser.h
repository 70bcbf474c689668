#pragma once

#include <QTextBrowser>

/// Shows the pages of the documentation that are compiled in, and leads from one to the other. Links that lead out of
/// them are not followed.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// A file of docs/ without extension, with or without a heading: "dialogs#page-setup".
    void showPage(const QString& page);
    /// The one on view.
    QString page() const;

    /// Pictures come as wide as the page lets them.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showHeading();
    void colorLinks();

    QString m_heading; // as in links; empty for the top of the page
};
