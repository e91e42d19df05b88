// Forward declarations of the shared pointer family; the default thread-safety mode lives here only.
#pragma once

#include "HAL/Platform.h"

enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;
