#pragma once

#include <QCoreApplication>
#include <QString>
#include <initializer_list>
#include <utility>
#include <vector>

class QIODevice;
struct PackageElement;

/// The first fault met in a package file, and where.
class PackageFault
{
public:
    /// Notes the fault unless there is one already. Always false, so that a failing check can be returned at once.
    bool raise(const PackageElement& at, const QString& reason);
    bool raise(qint64 line, qint64 column, const QString& reason);
    bool isRaised() const { return !m_reason.isNull(); }
    /// Forgets it, so that the next one can be noted.
    void clear() { m_reason = QString(); }
    /// "FILE:LINE:COLUMN: reason"
    QString message(const QString& fileName) const;

private:
    qint64 m_line = 1;
    qint64 m_column = 1;
    QString m_reason;
};

/// An element of a package file. Packages are small, and their classes may stand in any order: so the file is read into
/// a tree first. Each element knows its place (the end of its start tag) for messages.
struct PackageElement
{
    Q_DECLARE_TR_FUNCTIONS(Package)

public:
    QString name;
    std::vector<std::pair<QString, QString>> attributes;
    /// The characters directly in it.
    QString text;
    std::vector<PackageElement> children;
    qint64 line = 1;
    qint64 column = 1;

    /// Null string when the attribute is not given, and never null when it is.
    QString attribute(const char* attributeName) const;
    bool has(const char* attributeName) const { return !attribute(attributeName).isNull(); }

    enum Content { OnlyElements, MayHaveText };
    /// Whether it has no other attributes and children than those, and text only where it may have it.
    bool check(std::initializer_list<const char*> attributeNames, std::initializer_list<const char*> childNames,
               Content content, PackageFault& fault) const;

    /// The element with everything in it as XML.
    QString toXml() const;

    /// Reads a whole file; false with the fault when it is not XML, too large or nested too deep.
    static bool read(QIODevice& device, PackageElement& root, PackageFault& fault);
};
