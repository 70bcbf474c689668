#pragma once

#include "zkeditor/export.h"

class QWidget;
class Resource;

/// Makes the widgets of a form resource, the library's own included. Gives the top widget, owned by the parent or
/// without one by the caller; null for a form that cannot be read, and with a warning for a resource that is no form.
ZKEDITOR_EXPORT QWidget* loadUIFromResource(Resource resource, QWidget* parent);
