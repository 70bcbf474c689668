#pragma once

#include "zkcore/base/export.h"

#include <QString>

/// The running product: its code, name and version, and what files it opens.
class ZKCORE_EXPORT ProductPackage
{
public:
    static ProductPackage& instance();

    /// The short code that tells the products built from these libraries apart; "ZK" unless set otherwise.
    QString productCode() const { return m_productCode; }
    /// For products of another code, and for tests.
    void setProductCode(const QString& code) { m_productCode = code; }
    /// The version of the libraries, such as "0.1.0".
    QString version() const;
    /// The extension of document files, without the dot.
    QString documentExtension() const;
    /// Filters for an open dialog, translated, separated by ";;"; the one for documents comes first.
    QString getLoadFilters() const;
    /// The filter for a save dialog, translated.
    QString getSaveFilter() const;

private:
    ProductPackage();

    QString m_productCode;
};
