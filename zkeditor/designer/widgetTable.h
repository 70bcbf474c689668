#pragma once

#include <QSize>

struct QMetaObject;

/// One widget as the designer offers it.
struct DesignerWidget
{
    const char* key;         ///< the class
    const char* includeFile; ///< null for none, like the texts
    const char* toolTip;
    const char* whatsThis;
    const QMetaObject* metaObject;
    QSize size; ///< of a new one in a form
    bool container = false;
};

/// All widgets in the order in which they are offered.
namespace widgetTable {

const DesignerWidget* begin();
const DesignerWidget* end();
/// Null for a key that is not in the table.
const DesignerWidget* find(const class QString& key);

} // namespace widgetTable
