#pragma once

#include "zkeditor/export.h"

#include <QGroupBox>

/// A group box that a text signal can enable, disable, show or hide: a form connects, say, a combo box's text to
/// setEnabledByString and names the text that counts.
class ZKEDITOR_EXPORT GroupBox : public QGroupBox
{
    Q_OBJECT
    Q_PROPERTY(QString activateString READ activateString WRITE setActivateString)

public:
    explicit GroupBox(QWidget* parent = nullptr, const QString& name = {});

    /// The text that the slots below wait for; compared exactly.
    QString activateString() const { return m_activateString; }
    void setActivateString(const QString& text) { m_activateString = text; }

public Q_SLOTS:
    /// Enabled by the activation text, disabled by every other.
    void setEnabledByString(const QString& text);
    /// Disabled by the activation text, enabled by every other.
    void setDisabledByString(const QString& text);
    /// Shown by the activation text, hidden by every other.
    void setShownByString(const QString& text);
    /// Hidden by the activation text, shown by every other.
    void setHiddenByString(const QString& text);

private:
    QString m_activateString;
};
