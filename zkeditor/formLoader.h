#pragma once

#include "zkeditor/export.h"

#include <QList>
#include <memory>

class FormFactory;
class QByteArray;
class QWidget;

/// Reads forms with the toolkit's loader and the widgets of the registered factories. One serves the whole process.
class ZKEDITOR_EXPORT FormLoader
{
public:
    /// Made at the first call, never destroyed. Loads no designer plug-ins: programs need none to show their forms.
    static FormLoader& instance();

    /// Asks this factory, after those registered before it, for every widget of a form. Not owned; must live as long as
    /// forms are loaded. Registering one again does nothing.
    void addFactory(FormFactory* factory);
    const QList<FormFactory*>& factories() const;

    /// Makes the widgets of a form; null, with a warning, when it cannot be read or would not be safe to read
    /// (FormDescription says what is not), or its top widget is of an unknown class. The new widget is owned by the
    /// parent, or without one by the caller.
    QWidget* loadForm(const QByteArray& form, QWidget* parent);

private:
    class Reader;
    FormLoader();
    ~FormLoader();

    std::unique_ptr<Reader> m_reader;
};
