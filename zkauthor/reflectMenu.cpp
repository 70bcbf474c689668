#include "zkauthor/reflectMenu.h"

#include "zkcore/commands/reflectCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"

#include <QCoreApplication>
#include <QMenu>
#include <algorithm>
#include <iterator>
#include <unordered_map>

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

bool reflectsKind(const PartImpl& part, ReflectionKind kind)
{
    const bool hasPicture = kind == ReflectionKind::Body && part.prototype().body.isValid();
    return part.canReflect() && (hasPicture || !part.getChildrenWithRole(RoleSet(roleOfReflection(kind))).empty());
}

bool isReflectedIn(const NodeImpl* space, const DocumentImpl& document, const PartImpl& part, ReflectionKind kind)
{
    const auto reflections = document.reflectionsOf(&part);
    return std::any_of(reflections.begin(), reflections.end(), [=](const ElementImpl* reflection) {
        return reflection->parentNode() == space && reflection->reflectionKind() == kind;
    });
}

Command* makeReflectCommand(ReflectionKind kind, const Part& part, const Node& place, bool reflect, int flags)
{
    if (kind == ReflectionKind::Controls)
        return new ReflectControlsCommand(part, place, reflect, flags);
    if (kind == ReflectionKind::Pads)
        return new ReflectPadsCommand(part, place, reflect, flags);
    return new ReflectBodyCommand(part, place, reflect, flags);
}

/// Adds the reflections that are missing in the place, or removes those that are there. The reason when one fails.
QString reflectAll(DocumentImpl* document, const std::vector<Part>& parts, ReflectionKind kind, const Node& place,
                   bool reflect)
{
    int flags = Command::PushUndo;
    for (const Part& part : parts) {
        if (!part.valid() || !place.valid() || part.impl()->popup() == place.impl() ||
            isReflectedIn(place.impl(), *document, *part.impl(), kind) == reflect)
            continue;
        if (!document->executeCommand(makeReflectCommand(kind, part, place, reflect, flags)).isValid())
            return document->lastError();
        flags = Command::JoinUndo;
    }
    return {};
}

void addPlaces(QMenu* menu, DocumentImpl* document, const std::vector<PartImpl*>& parts, ReflectionKind kind,
               const std::function<void(const QString&)>& failed)
{
    // For each space the parts that have nothing to add there.
    std::unordered_map<const NodeImpl*, size_t> reflected;
    std::unordered_map<const NodeImpl*, size_t> own;
    std::vector<Part> handles;
    for (PartImpl* part : parts) {
        handles.emplace_back(part);
        if (part->popup())
            ++own[part->popup()];
        for (const ElementImpl* reflection : document->reflectionsOf(part)) {
            if (reflection->reflectionKind() == kind)
                ++reflected[reflection->parentNode()];
        }
    }
    for (SpaceImpl* space : spacesOf(*document)) {
        const size_t others = parts.size() - own[space];
        if (others == 0)
            continue;
        const bool there = reflected[space] == others;
        QAction* action = menu->addAction(space->displayName().replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(there);
        const Node place(space);
        QObject::connect(action, &QAction::triggered, document, [=] {
            const QString error = reflectAll(document, handles, kind, place, !there);
            if (!error.isEmpty())
                failed(error);
        });
    }
}

} // namespace

void fillReflectMenu(QMenu* menu, DocumentImpl* document, const std::vector<PartImpl*>& parts,
                     const std::function<void(const QString&)>& failed)
{
    const struct
    {
        ReflectionKind kind;
        QString text;
    } kinds[] = {{ReflectionKind::Controls, menuText(QT_TRANSLATE_NOOP("ReflectMenu", "&Controls"))},
                 {ReflectionKind::Pads, menuText(QT_TRANSLATE_NOOP("ReflectMenu", "&Pads"))},
                 {ReflectionKind::Body, menuText(QT_TRANSLATE_NOOP("ReflectMenu", "&Body"))}};
    for (const auto& [kind, text] : kinds) {
        std::vector<PartImpl*> fitting;
        std::copy_if(parts.begin(), parts.end(), std::back_inserter(fitting),
                     [kind = kind](const PartImpl* part) { return reflectsKind(*part, kind); });
        if (!fitting.empty())
            addPlaces(menu->addMenu(text), document, fitting, kind, failed);
    }
}
