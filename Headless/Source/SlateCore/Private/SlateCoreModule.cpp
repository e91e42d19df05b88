// The SlateCore module: widgets' base classes, layout, fonts and draw elements.
#include "Layout/Margin.h"
#include "Modules/ModuleManager.h"

static_assert(sizeof(FMargin) == 4 * sizeof(float), "FMargin is four packed floats, as reflection expects");

IMPLEMENT_MODULE(FDefaultModuleImpl, SlateCore);
