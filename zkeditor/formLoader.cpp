#include "zkeditor/formLoader.h"

#include "zkeditor/formFactory.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QUiLoader>
#include <QXmlStreamReader>

namespace {

// The toolkit reads forms recursively, so a form that is nothing but nesting would overflow the stack.
bool isFormTooDeep(const QByteArray& form)
{
    QXmlStreamReader reader(form);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > FormLoader::maximumDepth)
                return true;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return false; // what is wrong with it otherwise, the toolkit says
}

} // namespace

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
    if (isFormTooDeep(form)) {
        qWarning("FormLoader: the form is nested more than %d levels deep", maximumDepth);
        return nullptr;
    }
    QBuffer device;
    device.setData(form);
    device.open(QIODevice::ReadOnly);
    return m_reader->load(&device, parent);
}
