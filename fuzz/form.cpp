// Forms as the program shows them: checked, and what the checker lets through is bound to parts, shown, let go and
// destroyed. Neither may end the program.
#include "fuzz/support/harness.h"
#include "fuzz/support/xmlMutator.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/formChecker.h"
#include "zkeditor/formGate.h"
#include "zkeditor/widgets/formSections.h"
#include "zkeditor/widgets/paneScrollArea.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QApplication>
#include <QDir>
#include <QVBoxLayout>

namespace {

/// A document with parts to bind to, two of a kind with different values, and a pane that shows them.
class Desk
{
public:
    static Desk& instance()
    {
        static Desk desk;
        return desk;
    }

    void setForm(const QByteArray& form) const { fuzz::writeFile(m_folder + QStringLiteral("/form.ui"), form); }

    void checkForm(const QByteArray& form) const
    {
        std::vector<const NodePrototype*> classes;
        for (const std::set<NodeImpl*>& nodes : m_selections)
            classes.push_back(&(*nodes.begin())->prototype());
        for (const FormFinding& finding : FormChecker(form).checkAll(classes, *m_document.getNodeDb()))
            fuzz::require(finding.line >= 1 && !finding.text.isEmpty(), "a finding says where and what",
                          finding.description());
    }

    /// For one of the selections: each takes as long as all the rest. The form itself decides.
    void showForm(const QByteArray& form) { showFor(m_selections[qChecksum(form) % m_selections.size()]); }

    QByteArray document() const { return fuzz::bytesOf(m_document); }

private:
    Desk() : m_folder(fuzz::folder() + QStringLiteral("/fuzzed"))
    {
        m_area.resize(260, 400);
        m_area.show();
        for (const char* cid : {"core/gallery", "core/collections", "testkit/box"}) {
            std::set<NodeImpl*> nodes;
            for (const char* title : {"first", "second"})
                nodes.insert(addPart(cid, QLatin1String(title)));
            m_selections.push_back(nodes);
        }
        QDir().mkpath(m_folder);
        setForm({});
        fuzz::require(ResourceTable::instance().addFolder(m_folder), "the form is a resource");
        FormGate::instance().setClosed(true);
    }

    NodeImpl* addPart(const char* cid, const QString& title)
    {
        const Space scene(m_document.getModel()->getScenes().front());
        const Value added =
            m_document.executeCommand(new AddPartCommand(scene, getCidForString(QLatin1String(cid)), {0.01, 0.01}));
        NodeImpl* part = added.toNode().impl();
        fuzz::require(part != nullptr, "parts can be made", m_document.lastError());
        m_document.executeCommand(
            new SetValueCommand(Property(part->getProperty(PropertyKey::fromString("title"))), Value(title), false));
        return part;
    }

    void showFor(const std::set<NodeImpl*>& nodes)
    {
        const NodePrototype& prototype = (*nodes.begin())->prototype();
        FormSections sections;
        sections.add(
            FormGate::instance().load(QStringLiteral("fuzzed/form"), prototype, *m_document.getNodeDb(), nodes),
            &m_document, nodes);
        fuzz::require(!sections.empty(), "what the gate gives can be shown");
        auto* pane = new QWidget;
        auto* layout = new QVBoxLayout(pane);
        layout->addWidget(sections.lift(prototype.cid, pane));
        m_area.setWidget(pane);
        QApplication::sendPostedEvents();
        PaneWidget::unbindChildren(pane);
        delete m_area.takeWidget();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString m_folder;
    DocumentImpl m_document;
    PaneScrollArea m_area;
    std::vector<std::set<NodeImpl*>> m_selections;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Desk& desk = Desk::instance();
    const QByteArray form(reinterpret_cast<const char*>(data), qsizetype(size));
    const QByteArray before = desk.document();
    desk.setForm(form);
    desk.checkForm(form);
    desk.showForm(form);
    fuzz::require(desk.document() == before, "showing a form changes nothing in the document");
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    return fuzz::mutateXml(data, size, maximum, seed);
}
