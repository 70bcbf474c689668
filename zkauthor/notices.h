#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

class DocumentFiles;
class NoticeBar;
class QVBoxLayout;

/// The middle of the main window: what must be told about the document's file and about left-over documents, above what
/// shows the document.
class Notices : public QWidget
{
    Q_OBJECT

public:
    /// Takes the content over as its child. The files must outlive this widget.
    Notices(DocumentFiles* files, QWidget* content);

private:
    void showDiskState();
    void showOffers();
    NoticeBar* addBar(const QString& title, const QString& details);
    void orderTabs(NoticeBar* bar);
    void remove(QPointer<NoticeBar>& bar);

    DocumentFiles* m_files;
    QWidget* m_content;
    QVBoxLayout* m_column;
    QPointer<NoticeBar> m_disk;
    std::vector<QPointer<NoticeBar>> m_offers;
};
