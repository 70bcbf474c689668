// The licence of this copy of the program.
#include "zkeditor/license/licenceManager.h"

#include "zkcore/services/productPackage.h"
#include "zkcore/values/value.h"
#include "zkeditor/license/licenceText.h"
#include "zkeditor/settingsService.h"

#include <QLocale>
#include <algorithm>

namespace {

const QString codeKey = QStringLiteral("/Licence/Code");
const QString lastDayKey = QStringLiteral("/Licence/LastDay");

/// No warning for what was never kept.
QString readLicenceSetting(const QString& key)
{
    if (!SettingsService::exists() || !SettingsService::instance()->hasSetting(key))
        return QString();
    return SettingsService::instance()->readSetting(key, Value(QString())).toQString();
}

void writeLicenceSetting(const QString& key, const QString& text)
{
    if (SettingsService::exists() && readLicenceSetting(key) != text)
        SettingsService::instance()->writeSetting(key, Value(text));
}

} // namespace

LicenceManager::LicenceManager(QObject* parent)
    : LicenceManager(
          licenceCode::builtInPublicKey(), ProductPackage::instance().productCode(),
          [] { return QDate::currentDate(); }, parent)
{
}

LicenceManager::LicenceManager(const QByteArray& publicKey, const QString& product, std::function<QDate()> today,
                               QObject* parent)
    : QObject(parent), m_publicKey(publicKey), m_product(product), m_today(std::move(today))
{
    update();
}

QString LicenceManager::storedCode() const
{
    return readLicenceSetting(codeKey);
}

/// The latest day on which the program is known to have run.
QDate LicenceManager::lastDay() const
{
    return QDate::fromString(readLicenceSetting(lastDayKey), Qt::ISODate);
}

void LicenceManager::store(const QString& code, QDate lastDay)
{
    writeLicenceSetting(codeKey, code);
    writeLicenceSetting(lastDayKey, lastDay.toString(Qt::ISODate));
}

licenceCode::Check LicenceManager::checkWithClock(const QString& code, QDate latest) const
{
    licenceCode::Check check = licenceCode::check(code, m_publicKey, m_product, m_today());
    // A day more or less comes of travelling.
    if (check.fault == licenceCode::Check::None && check.licence.expires.isValid() && latest.isValid() &&
        m_today().addDays(1) < latest) {
        check.fault = licenceCode::Check::ClockSetBack;
        check.message = tr("The program was used on %1 before, but the clock of this computer says that today is %2. "
                           "Please set the clock.")
                            .arg(QLocale().toString(latest, QLocale::ShortFormat),
                                 QLocale().toString(m_today(), QLocale::ShortFormat));
    }
    return check;
}

licenceCode::Check LicenceManager::checkCode(const QString& code) const
{
    // A code never entered before is looked at with the clock as it is: it may be the help after a wrong clock.
    const bool known = licenceText::toBytes(code).bytes == licenceText::toBytes(storedCode()).bytes;
    return checkWithClock(code, known ? lastDay() : QDate());
}

licenceCode::Check LicenceManager::enterCode(const QString& code)
{
    licenceCode::Check check = checkCode(code);
    if (check.fault != licenceCode::Check::None)
        return check;
    store(licenceText::normalised(code), m_today());
    m_state = Licensed;
    m_check = check;
    Q_EMIT statusChanged();
    return check;
}

void LicenceManager::removeCode()
{
    writeLicenceSetting(codeKey, QString());
    m_state = Evaluation;
    m_check = {};
    Q_EMIT statusChanged();
}

void LicenceManager::update()
{
    const QString code = storedCode();
    if (code.isEmpty()) {
        m_state = Evaluation;
        m_check = {};
        return;
    }
    const QDate latest = lastDay();
    m_check = checkWithClock(code, latest);
    m_state = m_check.fault == licenceCode::Check::None ? Licensed : Refused;
    if (!latest.isValid() || latest < m_today())
        store(code, m_today());
}

void LicenceManager::refresh()
{
    const QString before = statusText();
    update();
    if (statusText() != before)
        Q_EMIT statusChanged();
}

int LicenceManager::daysLeft() const
{
    if (m_state != Licensed || !licence().expires.isValid())
        return -1;
    return static_cast<int>(m_today().daysTo(licence().expires));
}

QString LicenceManager::statusText() const
{
    if (m_state == Evaluation)
        return tr("Unlicensed evaluation.");
    if (m_state == Refused)
        return tr("Unlicensed evaluation. %1").arg(m_check.message);
    QString text = licence().edition.isEmpty()
                       ? tr("Licensed to %1.").arg(licence().holder)
                       : tr("Licensed to %1, edition %2.").arg(licence().holder, licence().edition);
    if (licence().seats > 1)
        text += QLatin1Char(' ') + tr("For %n seats.", nullptr, licence().seats);
    if (daysLeft() == 0)
        text += QLatin1Char(' ') + tr("The licence expires today.");
    else if (daysLeft() > 0)
        text += QLatin1Char(' ') + tr("The licence expires in %n days.", nullptr, daysLeft());
    return text;
}

QString LicenceManager::captionText() const
{
    if (m_state != Licensed)
        return tr("unlicensed evaluation");
    if (daysLeft() < 0 || daysLeft() > warningDays)
        return QString();
    return daysLeft() == 0 ? tr("licence expires today") : tr("licence expires in %n days", nullptr, daysLeft());
}

QString LicenceManager::footLine() const
{
    return m_state == Licensed ? QString() : tr("Printed with an unlicensed evaluation copy");
}
