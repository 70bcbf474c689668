#include "zkauthor/recoveryOffers.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

QString timeText(const QDateTime& time)
{
    return QLocale().toString(time.toLocalTime(), QLocale::ShortFormat);
}

} // namespace

void RecoveryOffers::look(const QString& folder)
{
    for (std::unique_ptr<RecoveryPlace>& place : RecoveryPlace::leftOvers(folder)) {
        RecoveryFile file;
        if (file.read(place->fileName()))
            addSound(std::move(place), std::move(file));
        else
            addDamaged(*place);
    }
    Q_EMIT changed();
}

void RecoveryOffers::addDamaged(const RecoveryPlace& place)
{
    const QString aside = place.setAside();
    Offer offer;
    offer.title = tr("What was kept of a document cannot be read.");
    offer.details =
        tr("The damaged file is %1.").arg(QDir::toNativeSeparators(aside.isEmpty() ? place.fileName() : aside));
    m_offers.push_back(std::move(offer));
}

void RecoveryOffers::addSound(std::unique_ptr<RecoveryPlace> place, RecoveryFile&& file)
{
    Offer offer;
    QStringList details;
    if (file.original.isEmpty()) {
        offer.title = tr("A document that was never saved can be recovered.");
        details << tr("Last kept: %1.").arg(timeText(file.written));
    } else {
        offer.title =
            tr("Changes to %1 that were not saved can be recovered.").arg(QDir::toNativeSeparators(file.original));
        if (file.stamp.valid)
            details << tr("Last saved: %1.").arg(timeText(file.stamp.modified));
        details << tr("Last kept: %1.").arg(timeText(file.written));
        FileStamp stamp = file.stamp;
        const QDateTime changed = QFileInfo(file.original).lastModified();
        switch (stamp.compare(file.original)) {
        case FileStamp::State::Same:
            break;
        case FileStamp::State::Gone:
            details << tr("The file itself is not there any more.");
            break;
        case FileStamp::State::Changed:
            details << (changed > file.written ? tr("The file itself is newer: it was changed on %1.")
                                               : tr("The file itself was changed since, on %1."))
                           .arg(timeText(changed));
            break;
        }
    }
    offer.details = details.join(u' ');
    offer.place = std::move(place);
    offer.file = std::move(file);
    m_offers.push_back(std::move(offer));
}

RecoveryOffers::Offer RecoveryOffers::take(size_t index)
{
    Offer taken = std::move(m_offers.at(index));
    m_offers.erase(m_offers.begin() + static_cast<std::ptrdiff_t>(index));
    Q_EMIT changed();
    return taken;
}
