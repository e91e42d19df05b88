// Enumerations shared across Slate.
#pragma once

#include "HAL/Platform.h"

enum EOrientation : int
{
	Orient_Horizontal,
	Orient_Vertical,
	Orient_MAX,
};
