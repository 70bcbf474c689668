#include "zkeditor/loadUIFromResource.h"

#include "zkcore/media/resource.h"
#include "zkeditor/coreWidgetFactory.h"
#include "zkeditor/formLoader.h"

QWidget* loadUIFromResource(Resource resource, QWidget* parent)
{
    if (!resource.isValid() || resource.type() != Resource::FORM) {
        qWarning("loadUIFromResource passed bad resource");
        return nullptr;
    }
    static CoreWidgetFactory* const factory = [] {
        auto* made = new CoreWidgetFactory;
        FormLoader::instance().addFactory(made);
        return made;
    }();
    Q_UNUSED(factory)
    return FormLoader::instance().loadForm(resource.data(), parent);
}
