#include "zkauthor/reflectMenu.h"

#include "zkcore/commands/reflectCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPointer>

namespace {

QString menuText(const char* text)
{
    return QCoreApplication::translate("ReflectMenu", text);
}

std::vector<SpaceImpl*> spacesOf(const DocumentImpl& document)
{
    std::vector<SpaceImpl*> spaces;
    for (SceneImpl* scene : document.getModel()->getScenes())
        spaces.push_back(scene);
    for (PopupImpl* popup : document.getModel()->getPopups())
        spaces.push_back(popup);
    return spaces;
}

/// The reflection of that kind that stands in the space itself; null when there is none.
ElementImpl* reflectionIn(const SpaceImpl& space, const DocumentImpl& document, const PartImpl& part,
                          ReflectionKind kind)
{
    for (ElementImpl* reflection : document.reflectionsOf(&part)) {
        if (reflection->parentNode() == &space && reflection->reflectionKind() == kind)
            return reflection;
    }
    return nullptr;
}

} // namespace

void fillReflectMenu(QMenu* menu, DocumentImpl* document, PartImpl* part,
                     const std::function<void(const QString&)>& failed)
{
    const struct
    {
        ReflectionKind kind;
        QString text;
    } kinds[] = {{ReflectionKind::Controls, menuText(QT_TRANSLATE_NOOP("ReflectMenu", "&Controls"))},
                 {ReflectionKind::Pads, menuText(QT_TRANSLATE_NOOP("ReflectMenu", "&Pads"))},
                 {ReflectionKind::Body, menuText(QT_TRANSLATE_NOOP("ReflectMenu", "&Body"))}};
    if (!part->canReflect())
        return;
    const Part handle(part);
    for (const auto& [kind, text] : kinds) {
        const bool hasPicture = kind == ReflectionKind::Body && part->prototype().body.isValid();
        if (!hasPicture && part->getChildrenWithRole(RoleSet(roleOfReflection(kind))).empty())
            continue;
        QMenu* places = menu->addMenu(text);
        for (SpaceImpl* space : spacesOf(*document)) {
            if (space == part->popup())
                continue;
            const bool there = reflectionIn(*space, *document, *part, kind) != nullptr;
            QAction* action = places->addAction(space->displayName().replace(QLatin1Char('&'), QLatin1String("&&")));
            action->setCheckable(true);
            action->setChecked(there);
            const Node place(space);
            QObject::connect(action, &QAction::triggered, document, [=, kind = kind] {
                if (!handle.valid() || !place.valid())
                    return;
                Command* command = nullptr;
                if (kind == ReflectionKind::Controls)
                    command = new ReflectControlsCommand(handle, place, !there);
                else if (kind == ReflectionKind::Pads)
                    command = new ReflectPadsCommand(handle, place, !there);
                else
                    command = new ReflectBodyCommand(handle, place, !there);
                if (!document->executeCommand(command).isValid())
                    failed(document->lastError());
            });
        }
    }
}
