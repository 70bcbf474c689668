#pragma once

#include "zkcore/storage/recoveryFile.h"
#include "zkcore/storage/recoveryPlace.h"

#include <QObject>
#include <memory>
#include <vector>

/// What programs that ended badly left over, until the user says what becomes of it.
class RecoveryOffers : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    struct Offer
    {
        std::unique_ptr<RecoveryPlace> place; // null: damaged, there is only something to tell
        RecoveryFile file;
        QString damaged; // where the damaged file is now

        /// What to tell, in the language of now.
        QString title() const;
        QString details() const;
    };

    /// Looks for left-overs in the folder. They are this program's until they are dropped.
    void look(const QString& folder);
    /// Oldest first.
    const std::vector<Offer>& offers() const { return m_offers; }
    /// Hands out an offer, which is not offered any more.
    Offer take(size_t index);

Q_SIGNALS:
    void changed();

private:
    std::vector<Offer> m_offers;
};
