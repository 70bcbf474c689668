#include "zkeditor/formLoader.h"

#include "zkeditor/formDescription.h"
#include "zkeditor/formFactory.h"
#include "zkeditor/widgets/mnemonics.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QUiLoader>

/// The toolkit's loader, which asks our factories first.
class FormLoader::Reader : public QUiLoader
{
public:
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override
    {
        for (FormFactory* factory : std::as_const(factories)) {
            if (QWidget* widget = factory->createWidget(className, parent, name))
                return widget;
        }
        return QUiLoader::createWidget(className, parent, name);
    }

    QList<FormFactory*> factories;
};

FormLoader& FormLoader::instance()
{
    static FormLoader* const loader = new FormLoader;
    return *loader;
}

FormLoader::FormLoader()
{
    // The toolkit's loader begins by loading every designer plug-in that it finds on the library paths.
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    m_reader = std::make_unique<Reader>();
    QCoreApplication::setLibraryPaths(paths);
}

FormLoader::~FormLoader() = default;

void FormLoader::addFactory(FormFactory* factory)
{
    if (!m_reader->factories.contains(factory))
        m_reader->factories.append(factory);
}

const QList<FormFactory*>& FormLoader::factories() const
{
    return m_reader->factories;
}

QWidget* FormLoader::loadForm(const QByteArray& form, QWidget* parent)
{
    // The toolkit takes every form at its word: nesting without end, grids of a thousand million rows, and classes that
    // refine themselves would end the program.
    FormDescription description;
    FormFinding error;
    if (!description.read(form, error)) {
        qWarning("FormLoader: line %lld: %s", error.line, qPrintable(error.text));
        return nullptr;
    }
    QBuffer device;
    device.setData(form);
    device.open(QIODevice::ReadOnly);
    QWidget* loaded = m_reader->load(&device, parent);
    if (loaded)
        mnemonics::remove(loaded, mnemonics::reserved());
    return loaded;
}
