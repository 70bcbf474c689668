#pragma once

#include "zkcore/widgetSupport/export.h"

#include <QString>
#include <QWidgetAction>

/// A menu item that shows rich text ("m<sup>2</sup>"). Behaves like any other item: it is highlighted under the pointer
/// and when reached by keyboard, and triggered by click and Return. Its text() is the plain text, for screen readers
/// and searching.
class ZKWIDGETSUPPORT_EXPORT RichMenuItem : public QWidgetAction
{
    Q_OBJECT

public:
    /// The parent owns the item; adding it to a menu does not change that.
    RichMenuItem(QWidget* parent, const QString& richText);
    ~RichMenuItem() override;

    QString richText() const { return m_richText; }
    /// Shows another text; also sets text(). Plain text is taken as it stands.
    void setRichText(const QString& richText);

protected:
    QWidget* createWidget(QWidget* parent) override;

private:
    QString m_richText;
};
