#pragma once

#include <QObject>
#include <QStringList>

class QMenu;

/// The files opened or saved last, newest first, kept in the user's settings and offered in a menu.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximum = 4;

    explicit RecentFiles(QObject* parent = nullptr);

    QStringList files() const { return m_files; }
    /// Puts the file first. Written at once, so that other windows find it.
    void add(const QString& fileName);
    void remove(const QString& fileName);
    /// Fills the menu afresh whenever it is about to be shown. The menu must not outlive this object.
    void attachTo(QMenu* menu);

Q_SIGNALS:
    /// The user chose a file of the menu.
    void chosen(const QString& fileName);

private:
    void read();
    void write() const;
    void fill(QMenu* menu);

    QStringList m_files;
};
