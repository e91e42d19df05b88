// SlateCore is mostly headers; this unit gives the module its library.
#include "Layout/Margin.h"

static_assert(sizeof(FMargin) == 4 * sizeof(float), "FMargin is four packed floats, as reflection expects");
