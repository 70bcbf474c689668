#pragma once

#include <QObject>
#include <QStringList>

class QMenu;

/// The files opened or saved last, newest first, kept by the settings service and offered in a menu.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    explicit RecentFiles(QObject* parent = nullptr);

    /// Newest first; empty without a settings service.
    QStringList files() const;
    /// Puts the file first. Written at once, so that other windows find it.
    void add(const QString& fileName);
    void remove(const QString& fileName);
    /// Fills the menu afresh whenever it is about to be shown. The menu must not outlive this object.
    void attachTo(QMenu* menu);

Q_SIGNALS:
    /// The user chose a file of the menu.
    void chosen(const QString& fileName);

private:
    void fill(QMenu* menu);
};
