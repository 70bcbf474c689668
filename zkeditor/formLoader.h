#pragma once

#include "zkeditor/export.h"

#include <QUiLoader>

class FormFactory;

/// Reads forms with the toolkit's loader, with the widgets of the registered factories. One serves the whole process.
class ZKEDITOR_EXPORT FormLoader : public QUiLoader
{
    Q_OBJECT

public:
    /// Made at the first call, never destroyed. Offers no designer plug-ins: programs need none to show their forms.
    static FormLoader& instance();

    /// Asks this factory, after those registered before it, for every widget of a form. Not owned; must outlive the
    /// loader's use. Registering one again does nothing.
    void addFactory(FormFactory* factory);
    const QList<FormFactory*>& factories() const { return m_factories; }

    /// Makes the widgets of a form; null when it cannot be read, is nested too deeply to be one, or its top widget is
    /// of an unknown class. The new widget is owned by the parent, or without one by the caller.
    QWidget* loadForm(const QByteArray& form, QWidget* parent);

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

    /// Deepest nesting of elements that is read.
    static constexpr int maximumDepth = 200;

private:
    FormLoader() = default;

    QList<FormFactory*> m_factories;
};
