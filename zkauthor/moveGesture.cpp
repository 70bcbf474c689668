#include "zkauthor/moveGesture.h"

#include "zkauthor/partRules.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkeditor/duplication.h"

#include <QCoreApplication>
#include <cmath>

namespace {

struct MoveTexts
{
    Q_DECLARE_TR_FUNCTIONS(MoveGesture)
};

// Sums of steps leave no tails of digits in the document.
double toNanometre(double metres)
{
    return std::round(metres * 1e9) / 1e9;
}

} // namespace

bool MoveGesture::isMovable(const ElementImpl& element)
{
    return !isConnection(element) && userMayChange(element, coreKeys::position()) &&
           !element.isEffectivelyLocked(LockPosition);
}

bool MoveGesture::begin(DocumentImpl* document, const std::vector<ElementImpl*>& parts)
{
    finish();
    for (const ElementImpl* part : parts) {
        if (isMovable(*part))
            m_parts.push_back({part->instanceId(), part->position()});
    }
    m_document = document;
    m_offset = {};
    m_stepOpen = false;
    m_written = false;
    return isActive();
}

void MoveGesture::moveTo(zk::Point offset)
{
    if (!isActive() || !m_document || offset == m_offset)
        return;
    if (!m_stepOpen) {
        const int count = static_cast<int>(m_parts.size());
        m_document->executeCommand(new PushUndoCommand([count] {
            return count == 1 ? MoveTexts::tr("Move part") : MoveTexts::tr("Move %n parts", nullptr, count);
        }));
        m_stepOpen = true;
    }
    m_offset = offset;
    auto* command = new SetValueCommand(false);
    bool any = false;
    for (const Start& start : m_parts) {
        if (!m_document->nodeById(start.id))
            continue;
        zk::Point place = start.position;
        if (offset != zk::Point{})
            place = {toNanometre(place.x + offset.x), toNanometre(place.y + offset.y)};
        command->addAddress({start.id, INVALID_CID, coreKeys::position()}, Value(place));
        any = true;
    }
    const bool done = m_document->executeCommand(command).isValid();
    m_written = m_written || (done && any);
}

void MoveGesture::finish()
{
    m_parts.clear();
    m_stepOpen = false;
    m_written = false;
}

void MoveGesture::cancel()
{
    const bool written = m_written && isActive();
    finish();
    if (written && m_document)
        m_document->undo();
}
