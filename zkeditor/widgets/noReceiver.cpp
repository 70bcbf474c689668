#include "zkeditor/widgets/noReceiver.h"

#include "zkcore/base/assert.h"
#include "zkeditor/widgets/numericalObserver.h"

NOReceiver::NOReceiver(NumericalObserver* no) : m_no(no)
{
    ZK_ASSERT(m_no);
}

void NOReceiver::onFormatChanged()
{
    // The connections outlast the binding; with nothing bound there is nothing to show.
    if (m_no->m_props.empty())
        return;
    m_no->onFormatChanged();
}
