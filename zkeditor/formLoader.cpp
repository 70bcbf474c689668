#include "zkeditor/formLoader.h"

#include "zkeditor/formFactory.h"

#include <QBuffer>
#include <QCoreApplication>
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

FormLoader& FormLoader::instance()
{
    static FormLoader* const loader = [] {
        // The base's constructor loads every designer plug-in that it finds on the library paths.
        const QStringList paths = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        auto* made = new FormLoader;
        QCoreApplication::setLibraryPaths(paths);
        return made;
    }();
    return *loader;
}

void FormLoader::addFactory(FormFactory* factory)
{
    if (!m_factories.contains(factory))
        m_factories.append(factory);
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
    return load(&device, parent);
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name)
{
    for (FormFactory* factory : std::as_const(m_factories)) {
        if (QWidget* widget = factory->createWidget(className, parent, name))
            return widget;
    }
    return QUiLoader::createWidget(className, parent, name);
}
