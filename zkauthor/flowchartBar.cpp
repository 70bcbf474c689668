#include "zkauthor/flowchartBar.h"

#include "zkauthor/readerActions.h"
#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/services/flowchartRunner.h"
#include "zkeditor/flowchartSpeedWidget.h"
#include "zkeditor/widgets/animatedButton.h"
#include "zkeditor/widgets/observerButton.h"

#include <QAction>
#include <QBuffer>
#include <QMessageBox>
#include <QMovie>

namespace {

void setMovieFrom(AnimatedButton* button, const char* resource, AnimatedButton::State state)
{
    QByteArray bytes = Resource(resource).data();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    button->setMovie(QMovie(&buffer), state);
}

} // namespace

FlowchartBar::FlowchartBar(QWidget* parent)
    : QToolBar(tr("Flowcharts"), parent), m_runner(new FlowchartRunner(nullptr, this)),
      m_reader(new ReaderActions(this)), m_run(new QAction(tr("&Run Flowcharts"), this)),
      m_button(new AnimatedButton(this)), m_pause(new ObserverButton(tr("Pause"), this, QStringLiteral("pause"))),
      m_speed(new FlowchartSpeedWidget(true, this))
{
    setObjectName(QStringLiteral("flowchartBar"));
    setAccessibleName(windowTitle());
    m_run->setObjectName(QStringLiteral("run"));
    m_run->setCheckable(true);
    m_run->setShortcut(QKeySequence(QStringLiteral("F5")));
    m_run->setStatusTip(tr("Start the flowcharts, or stop them"));
    m_button->setCheckable(true);
    m_button->setFocusPolicy(Qt::TabFocus);
    m_button->setAccessibleName(tr("Run flowcharts"));
    m_button->setToolTip(tr("Start the flowcharts, or stop them (F5)"));
    setMovieFrom(m_button, "editor/running", AnimatedButton::On);
    setMovieFrom(m_button, "editor/standing", AnimatedButton::Off);
    m_pause->setCheckable(true);
    m_pause->setFocusPolicy(Qt::TabFocus);
    m_pause->setModelProperty(QStringLiteral("paused"));
    m_pause->setPushUndoOnSetProperty(false);
    addWidget(m_button);
    addWidget(m_pause);
    addWidget(m_speed);

    connect(m_run, &QAction::toggled, this, &FlowchartBar::setRunning);
    connect(m_button, &QAbstractButton::toggled, this, &FlowchartBar::setRunning);
    connect(m_runner, &FlowchartRunner::runningChanged, this, [this](bool running) {
        m_run->setChecked(running);
        m_button->setStateNoSignals(running);
        Q_EMIT runningChanged(running);
        if (running)
            m_reader->start();
        else
            m_reader->stop();
    });
    connect(m_reader, &ReaderActions::spaceRequested, this, &FlowchartBar::spaceRequested);
    connect(m_reader, &ReaderActions::noticed, this, &FlowchartBar::noticed);
    connect(m_runner, &FlowchartRunner::messageShown, this, &FlowchartBar::showMessage);
    connect(m_runner, &FlowchartRunner::problemFound, this, &FlowchartBar::noticed);
    connect(m_runner, &FlowchartRunner::finished, this,
            [this] { Q_EMIT noticed(tr("All flowcharts have come to their end.")); });
}

FlowchartBar::~FlowchartBar()
{
    m_runner->setDocument(nullptr);
    m_reader->setDocument(nullptr);
}

void FlowchartBar::setDocument(DocumentImpl* document)
{
    m_runner->stop();
    m_speed->unbind();
    m_pause->unbind();
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    m_runner->setDocument(document);
    m_reader->setDocument(document);
    if (!document)
        return;
    connect(document, &DocumentImpl::Loaded, this, &FlowchartBar::bindPause);
    bindPause();
}

void FlowchartBar::bindPause()
{
    m_pause->bind(m_document, {m_document->getModel()});
}

void FlowchartBar::setSpace(SpaceImpl* space)
{
    if (m_speed->space().impl() == space && space)
        return;
    static const ClassId flowcharts = getCidForString("flowcharts/*");
    static const PropertyKey speed = PropertyKey::fromString("speed");
    if (space && m_document && Space(space).getProperty(speed, flowcharts).isValid())
        m_speed->bind(m_document, Space(space));
    else
        m_speed->unbind();
}

bool FlowchartBar::isRunning() const
{
    return m_runner->isRunning();
}

void FlowchartBar::setRunning(bool run)
{
    if (!run) {
        m_runner->stop();
        return;
    }
    if (!m_runner->hasCharts()) {
        m_run->setChecked(false);
        m_button->setStateNoSignals(false);
        Q_EMIT noticed(tr("There is no flowchart in this document: add a start block first."));
        return;
    }
    m_runner->start();
}

void FlowchartBar::showMessage(const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Information, tr("Flowchart"), text, QMessageBox::Ok, window());
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}

void FlowchartBar::pressPart(PartImpl* part, bool down)
{
    if (!isRunning() || !part)
        return;
    const Node handle(part);
    m_runner->press(Part(part), down);
    if (!down && handle.valid())
        m_reader->click(*part);
}

bool FlowchartBar::pressKey(QChar key, bool down)
{
    return isRunning() && m_runner->pressKey(key.toUpper(), down);
}

void FlowchartBar::restOn(const PartImpl& part)
{
    m_reader->restOn(part);
}

void FlowchartBar::leavePopup(const PopupImpl& popup)
{
    m_reader->leave(popup);
}
