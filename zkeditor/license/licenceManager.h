#pragma once

#include "zkeditor/export.h"
#include "zkeditor/license/licenceCode.h"

#include <QObject>
#include <functional>

/// Keeps the licence code in the settings and knows what it allows. Without a licence nothing is locked: the program
/// says so, and printouts carry a line at their foot.
class ZKEDITOR_EXPORT LicenceManager : public QObject
{
    Q_OBJECT

public:
    enum State {
        Evaluation, ///< no code was entered
        Licensed,
        Refused, ///< there is a code that does not count (any more); see statusText()
    };
    Q_ENUM(State)

    /// Days before the expiry from which on it is pointed out.
    static constexpr int warningDays = 30;

    /// For the running product and the built-in key. Codes are kept by the settings service, if there is one.
    explicit LicenceManager(QObject* parent = nullptr);
    /// For another key, product and clock.
    LicenceManager(const QByteArray& publicKey, const QString& product, std::function<QDate()> today,
                   QObject* parent = nullptr);

    State state() const { return m_state; }
    /// Of the code that was entered; without holder when there is none that can be read.
    const Licence& licence() const { return m_check.licence; }
    /// Days until the licence expires, 0 on the last; -1 when it does not, or there is none.
    int daysLeft() const;

    /// One or two sentences for the about box: "Unlicensed evaluation", "Licensed to ...", what is wrong with the code.
    QString statusText() const;
    /// For the caption of the main window; empty when there is nothing to say.
    QString captionText() const;
    /// For Printer::setFootLine(); empty with a licence.
    QString footLine() const;

    /// What is wrong with a code, without keeping it.
    licenceCode::Check checkCode(const QString& code) const;
    /// Keeps a code that counts. Emits statusChanged().
    licenceCode::Check enterCode(const QString& code);
    /// Forgets the code. Emits statusChanged().
    void removeCode();

public Q_SLOTS:
    /// Looks at the stored code and the clock again; call it when a day may have passed. Emits statusChanged() when
    /// something changed by it.
    void refresh();

Q_SIGNALS:
    void statusChanged();

private:
    QString storedCode() const;
    QDate lastDay() const;
    void store(const QString& code, QDate lastDay);
    void update();
    licenceCode::Check checkWithClock(const QString& code, QDate latest) const;

    QByteArray m_publicKey;
    QString m_product;
    std::function<QDate()> m_today;
    State m_state = Evaluation;
    licenceCode::Check m_check;
};
