#include "zkeditor/debugPalette.h"

#include "zkcore/commands/command.h"
#include "zkcore/model/documentImpl.h"
#include "zkeditor/commandLogPane.h"
#include "zkeditor/messagesPane.h"
#include "zkeditor/perfMeter.h"
#include "zkeditor/propertyTable.h"
#include "zkeditor/statisticsPane.h"
#include "zkeditor/widgets/leadingLabel.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/paneScrollArea.h"

#include <QLabel>
#include <QVBoxLayout>

DebugPalette::DebugPalette(QWidget* parent, const char* name) : EditPalette(parent, name)
{
    init();
}

DebugPalette::DebugPalette(Place place, QWidget* parent, const char* name) : EditPalette(place, parent, name)
{
    init();
}

DebugPalette::~DebugPalette() = default;

void DebugPalette::init()
{
    resetCaption();
    setupTopLevelWidgets();
}

void DebugPalette::passRecordingTo(DebugPalette& other)
{
    m_commands->passRecordingTo(*other.m_commands);
}

void DebugPalette::resetCaption()
{
    setWindowTitle(tr("Debugging"));
}

void DebugPalette::setupTopLevelWidgets()
{
    auto* area = new PaneScrollArea(this);
    m_box = new PaletteBox(PaletteBox::StandardStyle, area);
    m_box->setChildResize(true);
    connect(m_box, &PaletteBox::layoutChanged, this, &DebugPalette::onChildLayoutChanged);

    auto* properties = new QWidget;
    auto* selected = new LeadingLabel;
    selected->wrapInGivenWidth();
    m_selected = selected;
    m_table = new PropertyTable;
    m_table->setMinimumHeight(fontMetrics().height() * 9);
    auto* column = new QVBoxLayout(properties);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(m_selected);
    column->addWidget(m_table, 1);
    m_statistics = new StatisticsPane;
    m_commands = new CommandLogPane;

    m_box->addItem(properties, tr("Properties"));
    m_box->addItem(m_statistics, tr("Statistics"));
    m_box->addItem(new PerfMeter, tr("Performance"));
    m_box->addItem(m_commands, tr("Commands"));
    m_box->addItem(new MessagesPane, tr("Messages"));
    for (int item = 1; item < m_box->count(); ++item)
        m_box->showItem(item, false);
    area->setWidget(m_box);
    dockLayout()->addWidget(area);
    selectionChanged();
}

void DebugPalette::setDocument(DocumentImpl* document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    m_commands->setDocument(document);
    if (document) {
        connect(document, &DocumentImpl::SelectionChanged, this, &DebugPalette::selectionChanged);
        connect(document, &DocumentImpl::SelectionChanged, m_statistics, &StatisticsPane::refreshSoon);
        connect(document, &DocumentImpl::commandExecuted, m_statistics, &StatisticsPane::refreshSoon);
    }
    selectionChanged();
}

void DebugPalette::selectionChanged()
{
    if (m_document && isHidden())
        return;
    const ElementImplSet selection = m_document ? m_document->getSelection() : ElementImplSet();
    if (selection.empty()) {
        m_table->setNode(Node());
        m_selected->setText(tr("Nothing is selected."));
        m_selected->setToolTip({});
        return;
    }
    const ElementImpl* first = *selection.begin();
    const QString name =
        QStringLiteral("%1 [%2] %3")
            .arg(first->displayName(), QString::number(first->instanceId()), findStringForCid(first->classId()));
    m_selected->setText(selection.size() == 1
                            ? name
                            : tr("%1 (the first of %2 selected)").arg(name, QString::number(selection.size())));
    m_selected->setToolTip(m_selected->text());
    m_table->setNode(Node(*selection.begin()));
}

void DebugPalette::showEvent(QShowEvent* event)
{
    EditPalette::showEvent(event);
    selectionChanged();
}
