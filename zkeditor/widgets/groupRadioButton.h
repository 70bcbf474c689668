#pragma once

// The one header that forms name for all kinds of radio buttons.
#include "zkeditor/widgets/radioButton.h" // IWYU pragma: export
