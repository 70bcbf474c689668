#pragma once

#include "zkeditor/export.h"

#include <QObject>

class NumericalObserver;

/// Receives the format changes of properties on behalf of a NumericalObserver, which is no QObject itself. Owned by it.
class ZKEDITOR_EXPORT NOReceiver : public QObject
{
    Q_OBJECT

public:
    explicit NOReceiver(NumericalObserver* no);

public Q_SLOTS:
    void onFormatChanged();

private:
    NumericalObserver* const m_no;
};
