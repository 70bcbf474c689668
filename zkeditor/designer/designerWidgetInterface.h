#pragma once

#include <QObject>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class CoreWidgetPlugin;

/// One of the library's widgets in the form designer: answers with what the plug-in says about its class.
class DesignerWidgetInterface : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    /// The plug-in owns it.
    DesignerWidgetInterface(const QString& key, CoreWidgetPlugin* plugin);

    QString name() const override { return m_key; }
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const QString m_key;
    CoreWidgetPlugin* const m_plugin;
};
