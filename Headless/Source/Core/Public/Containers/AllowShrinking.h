#pragma once

#include "HAL/Platform.h"

// Whether a removal may give memory back.
enum class EAllowShrinking : uint8
{
	No,
	Yes,

	Default = Yes
};
