// Forward declarations of the containers; the default template arguments live here only.
#pragma once

#include "HAL/Platform.h"

class FDefaultAllocator;
class FDefaultSetAllocator;

template <typename T, typename Allocator = FDefaultAllocator>
class TArray;

template <typename ElementType, bool bInAllowDuplicateKeys = false>
struct DefaultKeyFuncs;

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;

template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>, typename Allocator = FDefaultSetAllocator>
class TSet;

template <typename InKeyType, typename InValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapHashableKeyFuncs<InKeyType, InValueType, false>>
class TMap;
