#pragma once

#include "GenericPlatform/GenericPlatformMath.h"

typedef FGenericPlatformMath FPlatformMath;
