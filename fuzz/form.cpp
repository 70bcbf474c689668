// Forms: what can be loaded is bound to parts, shown, let go and destroyed.
#include "fuzz/support/harness.h"
#include "fuzz/support/xmlMutator.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/formLoader.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/formSections.h"
#include "zkeditor/widgets/paneScrollArea.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QApplication>
#include <QVBoxLayout>

namespace {

/// A document with parts to bind to, two of a kind with different values, and a place where panes are shown.
struct Place
{
    DocumentImpl document;
    PaneScrollArea area;
    std::vector<std::set<NodeImpl*>> selections;

    Place()
    {
        area.resize(260, 400);
        area.show();
        for (const char* cid : {"core/gallery", "core/collections", "electronics/led"}) {
            std::set<NodeImpl*> nodes;
            for (const char* title : {"first", "second"})
                nodes.insert(addPart(cid, QLatin1String(title)));
            selections.push_back(nodes);
        }
        delete loadUIFromResource(Resource("core/forms/text"), nullptr); // makes our own widgets known
    }

private:
    NodeImpl* addPart(const char* cid, const QString& title)
    {
        const Space scene(document.getModel()->getScenes().front());
        const Value added =
            document.executeCommand(new AddPartCommand(scene, getCidForString(QLatin1String(cid)), {0.01, 0.01}));
        NodeImpl* part = added.toNode().impl();
        fuzz::require(part != nullptr, "parts can be made", document.lastError());
        document.executeCommand(
            new SetValueCommand(Property(part->getProperty(PropertyKey::fromString("title"))), Value(title), false));
        return part;
    }
};

void showForm(Place& place, const QByteArray& form, const std::set<NodeImpl*>& nodes)
{
    std::unique_ptr<QWidget> loaded(FormLoader::instance().loadForm(form, nullptr));
    if (!loaded)
        return;
    FormSections sections;
    sections.add(std::move(loaded), &place.document, nodes);
    if (sections.empty())
        return;
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->addWidget(sections.lift((*nodes.begin())->classId(), pane));
    place.area.setWidget(pane);
    QApplication::sendPostedEvents();
    PaneWidget::unbindChildren(pane);
    delete place.area.takeWidget();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static auto* const place = new Place;
    const QByteArray form(reinterpret_cast<const char*>(data), qsizetype(size));
    const QByteArray before = fuzz::bytesOf(place->document);
    for (const std::set<NodeImpl*>& nodes : place->selections)
        showForm(*place, form, nodes);
    fuzz::require(fuzz::bytesOf(place->document) == before, "showing a form changes nothing in the document");
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    return fuzz::mutateXml(data, size, maximum, seed);
}
