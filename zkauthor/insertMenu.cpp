#include "zkauthor/insertMenu.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/model/documentImpl.h"
#include "zkeditor/duplication.h"

#include <QCoreApplication>
#include <QMenu>

void fillInsertMenu(QMenu* menu, const DocumentImpl& document, bool canConnect,
                    const std::function<void(ClassId)>& chosen)
{
    menu->clear();
    qDeleteAll(menu->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    for (const PartsTreeStructure::Folder& folder : document.getPartsTreeStructure().folders) {
        QMenu* group = menu->addMenu(folder.label);
        for (const ClassId cid : folder.classes) {
            QAction* action = group->addAction(document.getMetaLabelForCID(cid));
            const Resource icon = document.getMetaIconForCID(cid);
            if (icon.isValid())
                action->setIcon(QIcon(ImageCache::getPixmap(icon, true)));
            action->setData(cid);
            const NodePrototype* prototype = document.getNodeDb()->lookupPrototype(cid);
            if (prototype && isConnection(*prototype)) {
                action->setStatusTip(QCoreApplication::translate("InsertMenu", "Connect the two selected parts"));
                action->setEnabled(canConnect);
            }
            QObject::connect(action, &QAction::triggered, menu, [chosen, cid] { chosen(cid); });
        }
    }
}
