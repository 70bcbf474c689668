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
        Offer offer;
        if (offer.file.read(place->fileName())) {
            offer.place = std::move(place);
        } else {
            offer.damaged = place->setAside();
            if (offer.damaged.isEmpty())
                offer.damaged = place->fileName();
        }
        m_offers.push_back(std::move(offer));
    }
    Q_EMIT changed();
}

QString RecoveryOffers::Offer::title() const
{
    if (!place)
        return RecoveryOffers::tr("What was kept of a document cannot be read.");
    if (file.original.isEmpty())
        return RecoveryOffers::tr("A document that was never saved can be recovered.");
    return RecoveryOffers::tr("Changes to %1 that were not saved can be recovered.")
        .arg(QDir::toNativeSeparators(file.original));
}

QString RecoveryOffers::Offer::details() const
{
    if (!place)
        return RecoveryOffers::tr("The damaged file is %1.").arg(QDir::toNativeSeparators(damaged));
    QStringList sentences;
    if (file.stamp.valid)
        sentences << RecoveryOffers::tr("Last saved: %1.").arg(timeText(file.stamp.modified));
    sentences << RecoveryOffers::tr("Last kept: %1.").arg(timeText(file.written));
    FileStamp stamp = file.stamp;
    const QDateTime changed = QFileInfo(file.original).lastModified();
    switch (file.original.isEmpty() ? FileStamp::State::Same : stamp.compare(file.original)) {
    case FileStamp::State::Same:
        break;
    case FileStamp::State::Gone:
        sentences << RecoveryOffers::tr("The file itself is not there any more.");
        break;
    case FileStamp::State::Changed:
        sentences << (changed > file.written ? RecoveryOffers::tr("The file itself is newer: it was changed on %1.")
                                             : RecoveryOffers::tr("The file itself was changed since, on %1."))
                         .arg(timeText(changed));
        break;
    }
    return sentences.join(u' ');
}

RecoveryOffers::Offer RecoveryOffers::take(size_t index)
{
    Offer taken = std::move(m_offers.at(index));
    m_offers.erase(m_offers.begin() + static_cast<std::ptrdiff_t>(index));
    Q_EMIT changed();
    return taken;
}
