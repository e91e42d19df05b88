// A type-erased view of TArray's storage, as reflection uses it: the caller supplies element size and
// alignment and constructs or destroys the elements itself. Growth moves elements bitwise.
#pragma once

#include "Containers/AllowShrinking.h"
#include "Containers/Array.h"
#include "HAL/Platform.h"
#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"

#include <cstddef>

class FScriptArray
{
public:
	FScriptArray() = default;
	FScriptArray(const FScriptArray&) = delete;
	FScriptArray& operator=(const FScriptArray&) = delete;

	~FScriptArray()
	{
		FMemory::Free(Data);
	}

	FORCEINLINE void* GetData()
	{
		return Data;
	}

	FORCEINLINE const void* GetData() const
	{
		return Data;
	}

	FORCEINLINE int32 Num() const
	{
		return ArrayNum;
	}

	FORCEINLINE int32 Max() const
	{
		return ArrayMax;
	}

	FORCEINLINE bool IsEmpty() const
	{
		return ArrayNum == 0;
	}

	FORCEINLINE bool IsValidIndex(int32 Index) const
	{
		return Index >= 0 && Index < ArrayNum;
	}

	SIZE_T GetAllocatedSize(int32 NumBytesPerElement) const
	{
		return SIZE_T(ArrayMax) * NumBytesPerElement;
	}

	int32 Add(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(Count >= 0);
		const int32 OldNum = ArrayNum;
		if (ArrayNum + Count > ArrayMax)
		{
			ResizeTo(UE::Core::Private::CalculateSlackGrow(ArrayNum + Count, ArrayMax), NumBytesPerElement, AlignmentOfElement);
		}
		ArrayNum += Count;
		return OldNum;
	}

	int32 AddZeroed(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		const int32 Index = Add(Count, NumBytesPerElement, AlignmentOfElement);
		FMemory::Memzero(ElementAt(Index, NumBytesPerElement), SIZE_T(Count) * NumBytesPerElement);
		return Index;
	}

	void Insert(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(Index >= 0 && Index <= ArrayNum && Count >= 0);
		const int32 OldNum = ArrayNum;
		Add(Count, NumBytesPerElement, AlignmentOfElement);
		FMemory::Memmove(ElementAt(Index + Count, NumBytesPerElement), ElementAt(Index, NumBytesPerElement),
			SIZE_T(OldNum - Index) * NumBytesPerElement);
	}

	void InsertZeroed(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		Insert(Index, Count, NumBytesPerElement, AlignmentOfElement);
		FMemory::Memzero(ElementAt(Index, NumBytesPerElement), SIZE_T(Count) * NumBytesPerElement);
	}

	// The caller has already destroyed the removed elements.
	void Remove(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement,
		EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (Count <= 0)
		{
			return;
		}
		check(Index >= 0 && Index + Count <= ArrayNum);
		FMemory::Memmove(ElementAt(Index, NumBytesPerElement), ElementAt(Index + Count, NumBytesPerElement),
			SIZE_T(ArrayNum - Index - Count) * NumBytesPerElement);
		ArrayNum -= Count;
		if (AllowShrinking == EAllowShrinking::Yes && ArrayNum < ArrayMax)
		{
			ResizeTo(UE::Core::Private::CalculateSlackShrink(ArrayNum, ArrayMax, NumBytesPerElement), NumBytesPerElement, AlignmentOfElement);
		}
	}

	// The caller has already destroyed the elements.
	void Empty(int32 Slack, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(Slack >= 0);
		ArrayNum = 0;
		ResizeTo(Slack, NumBytesPerElement, AlignmentOfElement);
	}

	void Reset(int32 NewSize, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		if (NewSize <= ArrayMax)
		{
			ArrayNum = 0;
		}
		else
		{
			Empty(NewSize, NumBytesPerElement, AlignmentOfElement);
		}
	}

	void SetNumUninitialized(int32 NewNum, int32 NumBytesPerElement, uint32 AlignmentOfElement,
		EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(NewNum >= 0);
		if (NewNum > ArrayNum)
		{
			Add(NewNum - ArrayNum, NumBytesPerElement, AlignmentOfElement);
		}
		else
		{
			Remove(NewNum, ArrayNum - NewNum, NumBytesPerElement, AlignmentOfElement, AllowShrinking);
		}
	}

	void Shrink(int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		ResizeTo(ArrayNum, NumBytesPerElement, AlignmentOfElement);
	}

	void SwapMemory(int32 A, int32 B, uint32 NumBytesPerElement)
	{
		check(IsValidIndex(A) && IsValidIndex(B));
		uint8* First = static_cast<uint8*>(ElementAt(A, NumBytesPerElement));
		uint8* Second = static_cast<uint8*>(ElementAt(B, NumBytesPerElement));
		for (uint32 Byte = 0; Byte < NumBytesPerElement; ++Byte)
		{
			const uint8 Temp = First[Byte];
			First[Byte] = Second[Byte];
			Second[Byte] = Temp;
		}
	}

	// Takes Other's storage; this array must hold no constructed elements.
	void MoveAssign(FScriptArray& Other, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(this != &Other);
		FMemory::Free(Data);
		Data = Other.Data;
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.Data = nullptr;
		Other.ArrayNum = 0;
		Other.ArrayMax = 0;
	}

private:
	void* ElementAt(int32 Index, int32 NumBytesPerElement)
	{
		return static_cast<uint8*>(Data) + SIZE_T(Index) * NumBytesPerElement;
	}

	void ResizeTo(int32 NewMax, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(NewMax >= ArrayNum);
		if (NewMax == ArrayMax)
		{
			return;
		}
		if (NewMax == 0)
		{
			FMemory::Free(Data);
			Data = nullptr;
		}
		else
		{
			Data = FMemory::Realloc(Data, SIZE_T(NewMax) * NumBytesPerElement, AlignmentOfElement);
		}
		ArrayMax = NewMax;
	}

	template <typename ArrayType>
	static constexpr bool MatchesLayout()
	{
		return sizeof(ArrayType) == sizeof(FScriptArray)
			&& alignof(ArrayType) == alignof(FScriptArray)
			&& offsetof(ArrayType, AllocatorData) == offsetof(FScriptArray, Data)
			&& offsetof(ArrayType, ArrayNum) == offsetof(FScriptArray, ArrayNum)
			&& offsetof(ArrayType, ArrayMax) == offsetof(FScriptArray, ArrayMax);
	}

	static void CheckLayout()
	{
		static_assert(MatchesLayout<TArray<int32>>(), "TArray<int32> must share FScriptArray's layout");
		static_assert(MatchesLayout<TArray<TArray<uint16>>>(), "TArray of heap-owning elements must share FScriptArray's layout");
		static_assert(MatchesLayout<TArray<double, TInlineAllocator<4>>>(), "TArray with any allocator tag must share FScriptArray's layout");
	}

	void* Data = nullptr;
	int32 ArrayNum = 0;
	int32 ArrayMax = 0;
};
