#pragma once

#include "zkeditor/export.h"
#include "zkeditor/license/licence.h"

#include <QByteArray>

/// Licence codes: a licence with an Ed25519 signature over it, as groups of letters.
namespace licenceCode {

/// What licences are signed with (secret) and checked with (public).
struct KeyPair
{
    QByteArray publicKey; ///< 32 bytes
    QByteArray secretKey; ///< 64 bytes
};

/// The public key of those who sell the product; compiled in.
ZKEDITOR_EXPORT QByteArray builtInPublicKey();
ZKEDITOR_EXPORT KeyPair makeKeyPair();

/// Empty, with the reason in `error` (translated), when the licence cannot be written as a code: texts longer than 80
/// bytes, no holder or product, no date of issue, dates or seats out of range, a key that is none.
ZKEDITOR_EXPORT QString sign(const Licence& licence, const QByteArray& secretKey, QString* error = nullptr);

/// What became of reading a code.
struct ZKEDITOR_EXPORT Check
{
    enum Fault {
        None,
        Typing,    ///< a group is wrong: see `group`
        Length,    ///< groups are missing at the end, or there are too many
        Signature, ///< each group is right for itself, but the code was not made by those who sell the product
        Product,   ///< it is for another product
        NotYet,    ///< it was issued later than today: the clock is wrong
        Expired,
        ClockSetBack, ///< never given here: the program was used on a later day before
    };

    Fault fault = None;
    Licence licence; ///< valid when there is no fault, or it is one of the last four
    int group = 0;   ///< the first wrong group, counted from 1; 0 when the fault is not in one group
    QString message; ///< what is wrong, translated, for the user; empty when nothing is
};

/// Says what is wrong with a code, the first fault in the order above. Any text may be given.
ZKEDITOR_EXPORT Check check(const QString& code, const QByteArray& publicKey, const QString& product, QDate today);

} // namespace licenceCode
