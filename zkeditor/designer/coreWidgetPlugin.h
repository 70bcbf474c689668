#pragma once

#include <QIcon>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <memory>

class CoreWidgetFactory;

/// Offers the library's widgets to the form designer. What the designer asks about one of them, it asks the small
/// objects that customWidgets() gives; they pass it on to the operations here, which go by class name.
class CoreWidgetPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit CoreWidgetPlugin(QObject* parent = nullptr);
    ~CoreWidgetPlugin() override;

    /// One object for each key, in their order; owned by the plug-in.
    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

    /// The class names.
    Q_INVOKABLE QStringList keys() const;
    /// A new widget, which the parent owns; null for a class that is not the library's.
    Q_INVOKABLE QWidget* create(const QString& key, QWidget* parent, const QString& name);
    /// The heading in the widget box, the same for every key.
    Q_INVOKABLE QString group(const QString& key) const;
    /// The same for every key.
    Q_INVOKABLE QIcon iconSet(const QString& key) const;
    // Empty for a key that is not there or has none.
    Q_INVOKABLE QString includeFile(const QString& key) const;
    Q_INVOKABLE QString toolTip(const QString& key) const;
    Q_INVOKABLE QString whatsThis(const QString& key) const;
    /// Whether other widgets can be dropped into it.
    Q_INVOKABLE bool isContainer(const QString& key) const;

private:
    std::unique_ptr<CoreWidgetFactory> m_factory; // made when the first widget is
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

extern "C" {
/// A new plug-in object, for loaders that look for this name.
Q_DECL_EXPORT QDesignerCustomWidgetCollectionInterface* ucm_instantiate();
/// What such loaders compare before they load.
Q_DECL_EXPORT const char* qt_ucm_query_verification_data();
}
