#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Looks for everything that is wrong with a package folder: package.xml, the forms, and files that nothing uses.
class PackageCheck
{
    Q_DECLARE_TR_FUNCTIONS(PackageCheck)

public:
    /// A folder with a package.xml. A package of the same name that is installed is left out meanwhile, and stays
    /// forgotten.
    explicit PackageCheck(const QString& folder) : m_folder(folder) {}

    void run();
    /// "FILE:LINE: error: text", or "FILE:LINE:COLUMN: error: text" for package.xml.
    const QStringList& lines() const { return m_lines; }
    int errors() const { return m_errors; }
    int warnings() const { return m_warnings; }

private:
    void checkForms(bool hasClasses);
    void checkUse();
    void addError(const QString& place, const QString& text);
    void addWarning(const QString& place, const QString& text);
    QStringList files() const;
    QString resourceName(const QString& file) const;

    QString m_folder;
    QStringList m_lines;
    int m_errors = 0;
    int m_warnings = 0;
};
