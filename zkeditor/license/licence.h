#pragma once

#include <QDate>
#include <QString>

/// What a licence code says.
struct Licence
{
    QString holder;
    QString product; ///< the product code that it is for
    QString edition; ///< such as "School"; may be empty
    int seats = 1;
    QDate issued;
    QDate expires; ///< the last day on which it counts; invalid: it does not expire

    friend bool operator==(const Licence&, const Licence&) = default;
};
