#include "HAL/PlatformTime.h"

#include <chrono>

double FPlatformTime::Seconds()
{
	return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}
