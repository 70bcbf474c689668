#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

class DocumentFiles;
class NoticeBar;
class QVBoxLayout;
class SpaceTabs;

/// The middle of the main window: what must be told about the document's file and about left-over documents, above what
/// shows the document.
class Notices : public QWidget
{
    Q_OBJECT

public:
    /// Takes the tabs over as its child. The files must outlive this widget.
    Notices(DocumentFiles* files, SpaceTabs* tabs);

private:
    void showDiskState();
    void showOffers();
    NoticeBar* addBar(const QString& title, const QString& details);
    void orderTabs(NoticeBar* bar);
    void remove(QPointer<NoticeBar>& bar);

    DocumentFiles* m_files;
    SpaceTabs* m_tabs;
    QVBoxLayout* m_column;
    QPointer<NoticeBar> m_disk;
    std::vector<QPointer<NoticeBar>> m_offers;
};
