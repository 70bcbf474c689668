// What the running product is.
#include "zkcore/services/productPackage.h"

#include <QCoreApplication>

ProductPackage& ProductPackage::instance()
{
    static ProductPackage package;
    return package;
}

ProductPackage::ProductPackage() : m_productCode(QStringLiteral("ZK")) {}

QString ProductPackage::version() const
{
    return QStringLiteral(ZK_VERSION);
}

QString ProductPackage::documentExtension() const
{
    return QStringLiteral("zkdoc");
}

QString ProductPackage::getLoadFilters() const
{
    return getSaveFilter() + QStringLiteral(";;") + QCoreApplication::translate("ProductPackage", "All files (*)");
}

QString ProductPackage::getSaveFilter() const
{
    return QCoreApplication::translate("ProductPackage", "Models (*.%1)").arg(documentExtension());
}
