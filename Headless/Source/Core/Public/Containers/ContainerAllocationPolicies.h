// Allocation policy tags. The headless containers always allocate from the heap; the tags exist so
// that engine code naming them compiles and keeps its meaning.
#pragma once

#include "HAL/Platform.h"

template <int IndexSize>
class TSizedHeapAllocator
{
public:
	using SizeType = int32;
};

using FHeapAllocator = TSizedHeapAllocator<32>;

class FDefaultAllocator : public TSizedHeapAllocator<32>
{
};

template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator
{
public:
	using SizeType = int32;
};

class FDefaultSetAllocator
{
};

template <uint32 NumInlineElements>
class TInlineSetAllocator
{
};
