// The platform clock: seconds since an arbitrary start, never going backwards.
#pragma once

#include "HAL/Platform.h"

struct FPlatformTime
{
	/** A monotonic clock in seconds, for measuring intervals; its zero means nothing. */
	static CORE_API double Seconds();
};
