#include "zkcore/storage/recoveryWriter.h"

#include "zkcore/model/documentImpl.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <utility>

namespace {

// Shares of the interval, counted from the oldest change that is not yet written.
constexpr double beginAt = 0.3;
constexpr double sweepAt = 0.5;
constexpr double finishAt = 0.9;

// Milliseconds of work between events. The longer ones are for when time runs out; all stay below what is noticed.
constexpr int shortStretch = 10;
constexpr int longStretch = 30;
constexpr int longestStretch = 40;
constexpr int pauseWhileChanging = 20;

} // namespace

RecoveryWriter::RecoveryWriter(std::unique_ptr<RecoveryPlace> place, QObject* parent)
    : QObject(parent), m_place(std::move(place)), m_marks([this] { onFirstChange(); })
{
    m_disk.setMaxThreadCount(1);
    m_wait.setSingleShot(true);
    m_wait.setTimerType(Qt::PreciseTimer);
    connect(&m_wait, &QTimer::timeout, this, &RecoveryWriter::beginPicture);
    connect(&m_step, &QTimer::timeout, this, &RecoveryWriter::continuePicture);
}

RecoveryWriter::~RecoveryWriter()
{
    if (m_document)
        m_document->setChangeMarks(nullptr);
    m_disk.waitForDone();
}

void RecoveryWriter::setDocument(DocumentImpl* document)
{
    if (m_document) {
        m_document->setChangeMarks(nullptr);
        m_document->disconnect(this);
    }
    discard();
    m_marks.take();
    m_pieces.reset();
    m_document = document;
    if (!document)
        return;
    m_pieces.emplace(*document);
    document->setChangeMarks(&m_marks);
    connect(document, &DocumentImpl::modifiedChanged, this, [this](bool modified) {
        if (modified)
            onFirstChange();
        else
            discard();
    });
    if (document->isModified())
        onFirstChange();
}

void RecoveryWriter::setOriginal(const QString& fileName, const FileStamp& stamp)
{
    m_original = fileName;
    m_stamp = stamp;
}

void RecoveryWriter::adopt(std::unique_ptr<RecoveryPlace> place)
{
    m_disk.waitForDone();
    m_place = std::move(place);
    m_onDisk = true;
}

void RecoveryWriter::stop()
{
    m_wait.stop();
    m_step.stop();
    m_sweeping = false;
    m_late = false;
    if (m_pieces)
        m_pieces->mark(m_marks.take());
}

void RecoveryWriter::discard()
{
    stop();
    if (!m_onDisk && !m_writing)
        return;
    m_onDisk = false;
    m_disk.start([name = m_place->fileName()] { QFile::remove(name); });
}

void RecoveryWriter::onFirstChange()
{
    // In the middle of a change: nothing must be looked at now.
    if (m_wait.isActive() || m_step.isActive())
        return;
    m_sinceChange.start();
    m_late = m_writing;
    if (!m_writing)
        m_wait.start(static_cast<int>(m_interval * beginAt));
}

double RecoveryWriter::shareOver() const
{
    return static_cast<double>(m_sinceChange.elapsed()) / m_interval;
}

void RecoveryWriter::beginPicture()
{
    if (!m_document || !m_document->isModified()) {
        stop();
        return;
    }
    m_sweeping = false;
    m_step.start(0);
}

void RecoveryWriter::continuePicture()
{
    if (m_document->isChanging()) { // somebody shows a dialog in the middle of a command
        m_step.start(pauseWhileChanging);
        return;
    }
    m_step.start(0);
    if (!m_sweeping) {
        m_pieces->mark(m_marks.take());
        if (shareOver() > sweepAt) {
            m_sweeping = true;
            m_sinceChange.start(); // of what is changed from now on
        }
    } else {
        m_pieces->mark(m_marks.takeShapes());
    }
    const bool hurry = m_sweeping && shareOver() > finishAt - sweepAt;
    if (m_pieces->update(hurry ? longestStretch : m_sweeping ? longStretch : shortStretch))
        takePicture();
}

void RecoveryWriter::takePicture()
{
    m_step.stop();
    DocumentPicture picture;
    picture.pieces = m_pieces->list();
    picture.resources = m_document->localResources();
    picture.nextId = m_document->nextFreeId();
    RecoveryFile file;
    file.original = m_original;
    file.stamp = m_stamp;
    file.written = QDateTime::currentDateTimeUtc();
    file.process = QCoreApplication::applicationPid();
    m_writing = true;
    m_late = m_marks.any(); // values changed while sweeping
    m_sweeping = false;
    m_disk.start([this, file = std::move(file), picture = std::move(picture), name = m_place->fileName()] {
        QString reason;
        const bool good = file.write(name, picture, reason);
        QMetaObject::invokeMethod(
            this, [this, good, reason] { onWritten(good, reason); }, Qt::QueuedConnection);
    });
}

void RecoveryWriter::onWritten(bool good, const QString& reason)
{
    m_writing = false;
    m_onDisk = good || m_onDisk;
    if (!good && m_document && m_document->isModified() && !m_late) {
        m_sinceChange.start();
        m_late = true;
    }
    if (m_late && !m_wait.isActive() && !m_step.isActive()) {
        m_late = false;
        const double left = good ? std::max(0.0, beginAt - shareOver()) : 1.0;
        m_wait.start(static_cast<int>(m_interval * left));
    }
    if (good) {
        m_failing = false;
        Q_EMIT written();
    } else if (!std::exchange(m_failing, true)) {
        Q_EMIT failed(reason);
    }
}
