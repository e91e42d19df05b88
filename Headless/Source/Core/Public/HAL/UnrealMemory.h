// Raw memory for containers. Every block comes from malloc (or posix_memalign when over-aligned), so
// one Free releases any of them and type-erased code can grow a block another part allocated.
#pragma once

#include "HAL/Platform.h"

#include <cstdlib>
#include <cstring>
#include <malloc.h>

struct FMemory
{
	static constexpr uint32 MinAlignment = alignof(std::max_align_t);

	static FORCEINLINE void* Malloc(SIZE_T Count, uint32 Alignment = 0)
	{
		if (Count == 0)
		{
			Count = 1;
		}
		if (Alignment <= MinAlignment)
		{
			return std::malloc(Count);
		}
		void* Result = nullptr;
		if (posix_memalign(&Result, Alignment, Count) != 0)
		{
			return nullptr;
		}
		return Result;
	}

	static FORCEINLINE void* Realloc(void* Original, SIZE_T Count, uint32 Alignment = 0)
	{
		if (Alignment <= MinAlignment)
		{
			return std::realloc(Original, Count ? Count : 1);
		}
		void* Result = Malloc(Count, Alignment);
		if (Original)
		{
			const SIZE_T OldSize = malloc_usable_size(Original);
			std::memcpy(Result, Original, OldSize < Count ? OldSize : Count);
			std::free(Original);
		}
		return Result;
	}

	static FORCEINLINE void Free(void* Original)
	{
		std::free(Original);
	}

	static FORCEINLINE void* Memcpy(void* Dest, const void* Src, SIZE_T Count)
	{
		return Count ? std::memcpy(Dest, Src, Count) : Dest;
	}

	static FORCEINLINE void* Memmove(void* Dest, const void* Src, SIZE_T Count)
	{
		return Count ? std::memmove(Dest, Src, Count) : Dest;
	}

	static FORCEINLINE int32 Memcmp(const void* Buf1, const void* Buf2, SIZE_T Count)
	{
		return Count ? std::memcmp(Buf1, Buf2, Count) : 0;
	}

	static FORCEINLINE void* Memset(void* Dest, uint8 Char, SIZE_T Count)
	{
		return Count ? std::memset(Dest, Char, Count) : Dest;
	}

	static FORCEINLINE void* Memzero(void* Dest, SIZE_T Count)
	{
		return Memset(Dest, 0, Count);
	}

	template <typename T>
	static FORCEINLINE void Memzero(T& Src)
	{
		Memzero(&Src, sizeof(T));
	}
};
