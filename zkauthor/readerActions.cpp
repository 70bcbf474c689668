#include "zkauthor/readerActions.h"

#include "zkcore/commands/setValueCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/services/openUrl.h"

#include <QUrl>
#include <utility>
#include <vector>

namespace {

PropertyKey opensOnKey()
{
    static const PropertyKey key = PropertyKey::fromString("opens-on");
    return key;
}

PropertyKey beenReadKey()
{
    static const PropertyKey key = PropertyKey::fromString("been-read");
    return key;
}

} // namespace

ReaderActions::ReaderActions(QObject* parent) : QObject(parent) {}

ReaderActions::~ReaderActions() = default;

void ReaderActions::setDocument(DocumentImpl* document)
{
    stop();
    m_document = document;
}

void ReaderActions::start()
{
    static const PropertyKey openAtStart = PropertyKey::fromString("open-at-start");
    if (m_running || !m_document)
        return;
    m_running = true;
    std::vector<Part> owners;
    for (const PopupImpl* popup : m_document->getModel()->getPopups()) {
        if (popup->valueOfProperty(openAtStart).toBool() && !popup->valueOfProperty(coreKeys::open()).toBool())
            owners.emplace_back(popup->owner());
    }
    for (const Part& owner : owners) {
        if (!m_running || !m_document || !owner.valid())
            continue;
        m_opened.insert(owner.instanceId());
        m_document->executeCommand(new ShowPopupCommmand(owner, true));
    }
}

void ReaderActions::stop()
{
    m_running = false;
    const QSet<InstanceId> opened = std::exchange(m_opened, {});
    for (const InstanceId id : opened) {
        auto* owner = m_document ? qobject_cast<PartImpl*>(m_document->nodeById(id)) : nullptr;
        if (owner && owner->popup())
            m_document->executeCommand(new ShowPopupCommmand(Part(owner), false));
    }
    const QSet<InstanceId> read = std::exchange(m_read, {});
    for (const InstanceId id : read) {
        if (m_document)
            setRead(Node(m_document->nodeById(id)), false);
    }
}

void ReaderActions::setRead(const Node& explanation, bool read)
{
    if (!explanation.valid() || !explanation.hasProperty(beenReadKey()))
        return;
    m_document->executeCommand(new SetValueCommand(explanation.getProperty(beenReadKey()), Value(read), false));
}

void ReaderActions::click(const PartImpl& part)
{
    static const PropertyKey actionKey = PropertyKey::fromString("click-action");
    static const PropertyKey linkKey = PropertyKey::fromString("click-link");
    static const PropertyKey sceneKey = PropertyKey::fromString("click-scene");
    if (!m_running)
        return;
    const QString action = part.valueOfProperty(actionKey).toQString();
    if (action == QLatin1String("nothing") && part.popup() && part.hasProperty(opensOnKey())) {
        Q_EMIT spaceRequested(Node(part.popup())); // an explanation is there to be opened
    } else if (action == QLatin1String("show pop-up")) {
        if (part.popup())
            Q_EMIT spaceRequested(Node(part.popup()));
    } else if (action == QLatin1String("show scene")) {
        const Node scene = part.valueOfProperty(sceneKey).toNode();
        if (scene.valid())
            Q_EMIT spaceRequested(scene);
    } else if (action == QLatin1String("open link")) {
        const QUrl url = QUrl::fromUserInput(part.valueOfProperty(linkKey).toQString());
        if (!openUrl(url))
            Q_EMIT noticed(tr("The link \"%1\" cannot be opened.").arg(url.toDisplayString()));
    }
}

void ReaderActions::restOn(const PartImpl& part)
{
    if (m_running && part.popup() && part.valueOfProperty(opensOnKey()).toQString() == QLatin1String("hover"))
        Q_EMIT spaceRequested(Node(part.popup()));
}

void ReaderActions::leave(const PopupImpl& popup)
{
    static const PropertyKey showOnce = PropertyKey::fromString("show-once");
    const Part owner(popup.owner());
    if (!m_running || !owner.valid() || !owner.impl()->valueOfProperty(showOnce).toBool())
        return;
    m_read.insert(owner.instanceId());
    setRead(Node(owner.impl()), true);
}
