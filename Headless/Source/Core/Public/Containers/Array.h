// The engine's dynamic array. Its layout (element pointer, ArrayNum, ArrayMax) is shared with
// FScriptArray, through which reflection reads and grows arrays without knowing the element type.
#pragma once

#include "Containers/AllowShrinking.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ContainersFwd.h"
#include "HAL/Platform.h"
#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>
#include <initializer_list>
#include <new>
#include <type_traits>

class FScriptArray;

namespace UE::Core::Private
{
	// Growth and shrink policy of the engine's heap allocator: small arrays start at four elements,
	// larger ones grow by three eighths; shrinking only happens once the slack is clearly wasted.
	inline int32 CalculateSlackGrow(int32 NumElements, int32 NumAllocatedElements)
	{
		constexpr int64 FirstGrow = 4;
		constexpr int64 ConstantGrow = 16;
		int64 Grow = FirstGrow;
		if (NumAllocatedElements || NumElements > Grow)
		{
			Grow = int64(NumElements) + 3 * int64(NumElements) / 8 + ConstantGrow;
		}
		checkf(Grow <= 0x7fffffff, "TArray size overflow");
		return static_cast<int32>(Grow);
	}

	inline int32 CalculateSlackShrink(int32 NumElements, int32 NumAllocatedElements, SIZE_T BytesPerElement)
	{
		const int32 SlackElements = NumAllocatedElements - NumElements;
		const bool bTooManySlackBytes = SIZE_T(SlackElements) * BytesPerElement >= 16384;
		const bool bTooManySlackElements = 3 * int64(NumElements) < 2 * int64(NumAllocatedElements);
		if ((bTooManySlackBytes || bTooManySlackElements) && (SlackElements > 64 || NumElements == 0))
		{
			return NumElements;
		}
		return NumAllocatedElements;
	}

	template <typename T>
	inline constexpr bool TCanMemcpy = std::is_trivially_copyable_v<T>;

	// Moves Count constructed elements from Source to uninitialised Dest and destroys the sources.
	// The ranges may overlap.
	template <typename T>
	void RelocateItems(T* Dest, T* Source, int32 Count)
	{
		if (Count <= 0 || Dest == Source)
		{
			return;
		}
		if constexpr (TCanMemcpy<T>)
		{
			FMemory::Memmove(Dest, Source, SIZE_T(Count) * sizeof(T));
		}
		else if (Dest < Source)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				new (Dest + Index) T(static_cast<T&&>(Source[Index]));
				Source[Index].~T();
			}
		}
		else
		{
			for (int32 Index = Count - 1; Index >= 0; --Index)
			{
				new (Dest + Index) T(static_cast<T&&>(Source[Index]));
				Source[Index].~T();
			}
		}
	}

	template <typename T>
	void DestructItems(T* Elements, int32 Count)
	{
		if constexpr (!std::is_trivially_destructible_v<T>)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Elements[Index].~T();
			}
		}
	}

	// Sorting an array of pointers orders the pointees, as the engine does.
	template <typename T, typename PredicateType>
	struct TDereferenceWrapper
	{
		const PredicateType& Predicate;

		bool operator()(const T& A, const T& B) const
		{
			return Predicate(A, B);
		}
	};

	template <typename T, typename PredicateType>
	struct TDereferenceWrapper<T*, PredicateType>
	{
		const PredicateType& Predicate;

		bool operator()(T* A, T* B) const
		{
			return Predicate(*A, *B);
		}
	};

	struct FLess
	{
		template <typename T>
		bool operator()(const T& A, const T& B) const
		{
			return A < B;
		}
	};
}

// Range-for iterator that reports arrays changed while being iterated.
template <typename ElementType, typename SizeType>
struct TCheckedPointerIterator
{
	TCheckedPointerIterator(const SizeType& InNum, ElementType* InPtr)
		: Ptr(InPtr)
		, CurrentNum(InNum)
		, InitialNum(InNum)
	{
	}

	FORCEINLINE ElementType& operator*() const
	{
		return *Ptr;
	}

	FORCEINLINE ElementType* operator->() const
	{
		return Ptr;
	}

	FORCEINLINE TCheckedPointerIterator& operator++()
	{
		++Ptr;
		return *this;
	}

	FORCEINLINE friend bool operator!=(const TCheckedPointerIterator& Lhs, const TCheckedPointerIterator& Rhs)
	{
		ensureMsgf(Lhs.CurrentNum == Lhs.InitialNum, "Array has changed during ranged-for iteration!");
		return Lhs.Ptr != Rhs.Ptr;
	}

	FORCEINLINE friend bool operator==(const TCheckedPointerIterator& Lhs, const TCheckedPointerIterator& Rhs)
	{
		return !(Lhs != Rhs);
	}

private:
	ElementType* Ptr;
	const SizeType& CurrentNum;
	SizeType InitialNum;
};

// Index-based iterator that can remove the element it stands on.
template <typename ContainerType, typename ElementType, typename SizeType>
class TIndexedContainerIterator
{
public:
	TIndexedContainerIterator(ContainerType& InContainer, SizeType StartIndex = 0)
		: Container(InContainer)
		, Index(StartIndex)
	{
	}

	TIndexedContainerIterator& operator++()
	{
		++Index;
		return *this;
	}

	TIndexedContainerIterator& operator--()
	{
		--Index;
		return *this;
	}

	ElementType& operator*() const
	{
		return Container[Index];
	}

	ElementType* operator->() const
	{
		return &Container[Index];
	}

	FORCEINLINE explicit operator bool() const
	{
		return Container.IsValidIndex(Index);
	}

	SizeType GetIndex() const
	{
		return Index;
	}

	void Reset()
	{
		Index = 0;
	}

	void SetToEnd()
	{
		Index = Container.Num();
	}

	// The next increment lands on the element that followed the removed one.
	void RemoveCurrent()
	{
		Container.RemoveAt(Index);
		--Index;
	}

	void RemoveCurrentSwap()
	{
		Container.RemoveAtSwap(Index);
		--Index;
	}

	friend bool operator==(const TIndexedContainerIterator& Lhs, const TIndexedContainerIterator& Rhs)
	{
		return &Lhs.Container == &Rhs.Container && Lhs.Index == Rhs.Index;
	}

private:
	ContainerType& Container;
	SizeType Index;
};

template <typename InElementType, typename InAllocatorType>
class TArray
{
	friend class FScriptArray;

	template <typename OtherElementType, typename OtherAllocatorType>
	friend class TArray;

public:
	using SizeType = int32;
	using ElementType = InElementType;
	using AllocatorType = InAllocatorType;

	using TIterator = TIndexedContainerIterator<TArray, ElementType, SizeType>;
	using TConstIterator = TIndexedContainerIterator<const TArray, const ElementType, SizeType>;
	using RangedForIteratorType = TCheckedPointerIterator<ElementType, SizeType>;
	using RangedForConstIteratorType = TCheckedPointerIterator<const ElementType, SizeType>;

	TArray() = default;

	TArray(const ElementType* Ptr, SizeType Count)
	{
		check(Ptr != nullptr || Count == 0);
		CopyToEmpty(Ptr, Count, 0);
	}

	TArray(std::initializer_list<InElementType> InitList)
	{
		CopyToEmpty(InitList.begin(), static_cast<SizeType>(InitList.size()), 0);
	}

	TArray(const TArray& Other)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	template <typename OtherElementType, typename OtherAllocatorType>
	explicit TArray(const TArray<OtherElementType, OtherAllocatorType>& Other)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	TArray(const TArray& Other, SizeType ExtraSlack)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), ExtraSlack);
	}

	TArray(TArray&& Other)
		: AllocatorData(Other.AllocatorData)
		, ArrayNum(Other.ArrayNum)
		, ArrayMax(Other.ArrayMax)
	{
		Other.AllocatorData = nullptr;
		Other.ArrayNum = 0;
		Other.ArrayMax = 0;
	}

	template <typename OtherAllocatorType>
	TArray(TArray<ElementType, OtherAllocatorType>&& Other)
		: AllocatorData(Other.AllocatorData)
		, ArrayNum(Other.ArrayNum)
		, ArrayMax(Other.ArrayMax)
	{
		Other.AllocatorData = nullptr;
		Other.ArrayNum = 0;
		Other.ArrayMax = 0;
	}

	~TArray()
	{
		UE::Core::Private::DestructItems(GetData(), ArrayNum);
		FMemory::Free(AllocatorData);
	}

	TArray& operator=(std::initializer_list<InElementType> InitList)
	{
		Empty(static_cast<SizeType>(InitList.size()));
		CopyToEmpty(InitList.begin(), static_cast<SizeType>(InitList.size()), 0);
		return *this;
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			Empty(Other.Num());
			CopyToEmpty(Other.GetData(), Other.Num(), 0);
		}
		return *this;
	}

	template <typename OtherAllocatorType>
	TArray& operator=(const TArray<ElementType, OtherAllocatorType>& Other)
	{
		Empty(Other.Num());
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
		return *this;
	}

	TArray& operator=(TArray&& Other)
	{
		if (this != &Other)
		{
			UE::Core::Private::DestructItems(GetData(), ArrayNum);
			FMemory::Free(AllocatorData);
			AllocatorData = Other.AllocatorData;
			ArrayNum = Other.ArrayNum;
			ArrayMax = Other.ArrayMax;
			Other.AllocatorData = nullptr;
			Other.ArrayNum = 0;
			Other.ArrayMax = 0;
		}
		return *this;
	}

	// Size and access

	FORCEINLINE ElementType* GetData()
	{
		return static_cast<ElementType*>(AllocatorData);
	}

	FORCEINLINE const ElementType* GetData() const
	{
		return static_cast<const ElementType*>(AllocatorData);
	}

	FORCEINLINE static constexpr uint32 GetTypeSize()
	{
		return sizeof(ElementType);
	}

	FORCEINLINE SIZE_T GetAllocatedSize() const
	{
		return SIZE_T(ArrayMax) * sizeof(ElementType);
	}

	FORCEINLINE SizeType GetSlack() const
	{
		return ArrayMax - ArrayNum;
	}

	FORCEINLINE SizeType Num() const
	{
		return ArrayNum;
	}

	FORCEINLINE SizeType Max() const
	{
		return ArrayMax;
	}

	FORCEINLINE bool IsEmpty() const
	{
		return ArrayNum == 0;
	}

	FORCEINLINE bool IsValidIndex(SizeType Index) const
	{
		return Index >= 0 && Index < ArrayNum;
	}

	FORCEINLINE void CheckInvariants() const
	{
		checkSlow((ArrayNum >= 0) & (ArrayMax >= ArrayNum));
	}

	FORCEINLINE void RangeCheck(SizeType Index) const
	{
		CheckInvariants();
		checkf((Index >= 0) & (Index < ArrayNum), "Array index out of bounds");
	}

	FORCEINLINE ElementType& operator[](SizeType Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	FORCEINLINE const ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	ElementType& Last(SizeType IndexFromTheEnd = 0)
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return GetData()[ArrayNum - IndexFromTheEnd - 1];
	}

	const ElementType& Last(SizeType IndexFromTheEnd = 0) const
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return GetData()[ArrayNum - IndexFromTheEnd - 1];
	}

	ElementType& Top()
	{
		return Last();
	}

	const ElementType& Top() const
	{
		return Last();
	}

	// Searching

	SizeType Find(const ElementType& Item) const
	{
		const ElementType* Data = GetData();
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool Find(const ElementType& Item, SizeType& Index) const
	{
		Index = Find(Item);
		return Index != INDEX_NONE;
	}

	SizeType FindLast(const ElementType& Item) const
	{
		const ElementType* Data = GetData();
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Data[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool FindLast(const ElementType& Item, SizeType& Index) const
	{
		Index = FindLast(Item);
		return Index != INDEX_NONE;
	}

	template <typename Predicate>
	SizeType FindLastByPredicate(Predicate Pred) const
	{
		const ElementType* Data = GetData();
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Pred(Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		const ElementType* Data = GetData();
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename Predicate>
	SizeType IndexOfByPredicate(Predicate Pred) const
	{
		const ElementType* Data = GetData();
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Pred(Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key)
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}

	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		return const_cast<TArray*>(this)->FindByKey(Key);
	}

	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred)
	{
		const SizeType Index = IndexOfByPredicate(Pred);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}

	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Pred) const
	{
		return const_cast<TArray*>(this)->FindByPredicate(Pred);
	}

	template <typename Predicate>
	TArray FilterByPredicate(Predicate Pred) const
	{
		TArray Result;
		for (const ElementType& Element : *this)
		{
			if (Pred(Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	template <typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}

	template <typename Predicate>
	bool ContainsByPredicate(Predicate Pred) const
	{
		return IndexOfByPredicate(Pred) != INDEX_NONE;
	}

	bool operator==(const TArray& Other) const
	{
		if (ArrayNum != Other.ArrayNum)
		{
			return false;
		}
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (!(GetData()[Index] == Other.GetData()[Index]))
			{
				return false;
			}
		}
		return true;
	}

	bool operator!=(const TArray& Other) const
	{
		return !(*this == Other);
	}

	// Adding

	SizeType AddUninitialized(SizeType Count = 1)
	{
		check(Count >= 0);
		const SizeType OldNum = ArrayNum;
		if (ArrayNum + Count > ArrayMax)
		{
			ResizeTo(UE::Core::Private::CalculateSlackGrow(ArrayNum + Count, ArrayMax));
		}
		ArrayNum += Count;
		return OldNum;
	}

	SizeType AddDefaulted(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		for (SizeType Offset = 0; Offset < Count; ++Offset)
		{
			new (GetData() + Index + Offset) ElementType();
		}
		return Index;
	}

	// The _GetRef forms take the index first: adding may move the elements.
	ElementType& AddDefaulted_GetRef()
	{
		const SizeType Index = AddDefaulted();
		return GetData()[Index];
	}

	SizeType AddZeroed(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		FMemory::Memzero(GetData() + Index, SIZE_T(Count) * sizeof(ElementType));
		return Index;
	}

	ElementType& AddZeroed_GetRef()
	{
		const SizeType Index = AddZeroed();
		return GetData()[Index];
	}

	// Arguments may refer into this array: the new element is built before the old storage goes away.
	template <typename... ArgsType>
	SizeType Emplace(ArgsType&&... Args)
	{
		if (ArrayNum == ArrayMax)
		{
			const SizeType NewMax = UE::Core::Private::CalculateSlackGrow(ArrayNum + 1, ArrayMax);
			ElementType* NewData = Allocate(NewMax);
			new (NewData + ArrayNum) ElementType(Forward<ArgsType>(Args)...);
			UE::Core::Private::RelocateItems(NewData, GetData(), ArrayNum);
			FMemory::Free(AllocatorData);
			AllocatorData = NewData;
			ArrayMax = NewMax;
		}
		else
		{
			new (GetData() + ArrayNum) ElementType(Forward<ArgsType>(Args)...);
		}
		return ArrayNum++;
	}

	template <typename... ArgsType>
	ElementType& Emplace_GetRef(ArgsType&&... Args)
	{
		const SizeType Index = Emplace(Forward<ArgsType>(Args)...);
		return GetData()[Index];
	}

	FORCEINLINE SizeType Add(const ElementType& Item)
	{
		return Emplace(Item);
	}

	FORCEINLINE SizeType Add(ElementType&& Item)
	{
		return Emplace(MoveTempIfPossible(Item));
	}

	ElementType& Add_GetRef(const ElementType& Item)
	{
		const SizeType Index = Emplace(Item);
		return GetData()[Index];
	}

	ElementType& Add_GetRef(ElementType&& Item)
	{
		const SizeType Index = Emplace(MoveTempIfPossible(Item));
		return GetData()[Index];
	}

	SizeType AddUnique(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}

	SizeType AddUnique(ElementType&& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(MoveTempIfPossible(Item));
	}

	void Push(const ElementType& Item)
	{
		Add(Item);
	}

	void Push(ElementType&& Item)
	{
		Add(MoveTempIfPossible(Item));
	}

	template <typename OtherElementType, typename OtherAllocatorType>
	void Append(const TArray<OtherElementType, OtherAllocatorType>& Source)
	{
		check((const void*)this != (const void*)&Source);
		Append(Source.GetData(), Source.Num());
	}

	template <typename OtherAllocatorType>
	void Append(TArray<ElementType, OtherAllocatorType>&& Source)
	{
		check((const void*)this != (const void*)&Source);
		const SizeType Count = Source.Num();
		Reserve(ArrayNum + Count);
		UE::Core::Private::RelocateItems(GetData() + ArrayNum, Source.GetData(), Count);
		ArrayNum += Count;
		Source.ArrayNum = 0;
	}

	template <typename OtherElementType>
	void Append(const OtherElementType* Ptr, SizeType Count)
	{
		check(Ptr != nullptr || Count == 0);
		CheckAddress(Ptr);
		Reserve(ArrayNum + Count);
		for (SizeType Index = 0; Index < Count; ++Index)
		{
			new (GetData() + ArrayNum + Index) ElementType(Ptr[Index]);
		}
		ArrayNum += Count;
	}

	void Append(std::initializer_list<ElementType> InitList)
	{
		Append(InitList.begin(), static_cast<SizeType>(InitList.size()));
	}

	template <typename OtherAllocatorType>
	TArray& operator+=(const TArray<ElementType, OtherAllocatorType>& Other)
	{
		Append(Other);
		return *this;
	}

	TArray& operator+=(TArray&& Other)
	{
		Append(MoveTemp(Other));
		return *this;
	}

	TArray& operator+=(std::initializer_list<ElementType> InitList)
	{
		Append(InitList);
		return *this;
	}

	void Init(const ElementType& Element, SizeType Number)
	{
		Empty(Number);
		for (SizeType Index = 0; Index < Number; ++Index)
		{
			new (GetData() + Index) ElementType(Element);
		}
		ArrayNum = Number;
	}

	// Inserting

	SizeType InsertUninitialized(SizeType Index, SizeType Count = 1)
	{
		check(Index >= 0 && Index <= ArrayNum && Count >= 0);
		const SizeType OldNum = ArrayNum;
		AddUninitialized(Count);
		UE::Core::Private::RelocateItems(GetData() + Index + Count, GetData() + Index, OldNum - Index);
		return Index;
	}

	void InsertZeroed(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero(GetData() + Index, SIZE_T(Count) * sizeof(ElementType));
	}

	void InsertDefaulted(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		for (SizeType Offset = 0; Offset < Count; ++Offset)
		{
			new (GetData() + Index + Offset) ElementType();
		}
	}

	template <typename... ArgsType>
	void EmplaceAt(SizeType Index, ArgsType&&... Args)
	{
		InsertUninitialized(Index, 1);
		new (GetData() + Index) ElementType(Forward<ArgsType>(Args)...);
	}

	SizeType Insert(const ElementType& Item, SizeType Index)
	{
		CheckAddress(&Item);
		EmplaceAt(Index, Item);
		return Index;
	}

	SizeType Insert(ElementType&& Item, SizeType Index)
	{
		CheckAddress(&Item);
		EmplaceAt(Index, MoveTempIfPossible(Item));
		return Index;
	}

	SizeType Insert(const ElementType* Ptr, SizeType Count, SizeType Index)
	{
		check(Ptr != nullptr || Count == 0);
		CheckAddress(Ptr);
		InsertUninitialized(Index, Count);
		for (SizeType Offset = 0; Offset < Count; ++Offset)
		{
			new (GetData() + Index + Offset) ElementType(Ptr[Offset]);
		}
		return Index;
	}

	template <typename OtherAllocatorType>
	SizeType Insert(const TArray<ElementType, OtherAllocatorType>& Items, SizeType Index)
	{
		check((const void*)this != (const void*)&Items);
		return Insert(Items.GetData(), Items.Num(), Index);
	}

	template <typename OtherAllocatorType>
	SizeType Insert(TArray<ElementType, OtherAllocatorType>&& Items, SizeType Index)
	{
		check((const void*)this != (const void*)&Items);
		const SizeType Count = Items.Num();
		InsertUninitialized(Index, Count);
		UE::Core::Private::RelocateItems(GetData() + Index, Items.GetData(), Count);
		Items.ArrayNum = 0;
		return Index;
	}

	SizeType Insert(std::initializer_list<ElementType> InitList, SizeType Index)
	{
		return Insert(InitList.begin(), static_cast<SizeType>(InitList.size()), Index);
	}

	// Removing

	ElementType Pop(EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RangeCheck(0);
		ElementType Result = MoveTempIfPossible(GetData()[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, AllowShrinking);
		return Result;
	}

	void RemoveAt(SizeType Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RemoveAtImpl(Index, 1, AllowShrinking);
	}

	template <typename CountType>
	void RemoveAt(SizeType Index, CountType Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		static_assert(!std::is_same_v<CountType, bool>, "TArray::RemoveAt: unexpected bool passed as the Count argument");
		RemoveAtImpl(Index, static_cast<SizeType>(Count), AllowShrinking);
	}

	// Fills the gap with the last elements: cheaper, but does not keep the order.
	void RemoveAtSwap(SizeType Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RemoveAtSwapImpl(Index, 1, AllowShrinking);
	}

	template <typename CountType>
	void RemoveAtSwap(SizeType Index, CountType Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		static_assert(!std::is_same_v<CountType, bool>, "TArray::RemoveAtSwap: unexpected bool passed as the Count argument");
		RemoveAtSwapImpl(Index, static_cast<SizeType>(Count), AllowShrinking);
	}

	template <typename Predicate>
	SizeType RemoveAll(const Predicate& Pred)
	{
		const SizeType OriginalNum = ArrayNum;
		ElementType* Data = GetData();
		SizeType WriteIndex = 0;
		for (SizeType ReadIndex = 0; ReadIndex < OriginalNum; ++ReadIndex)
		{
			if (Pred(Data[ReadIndex]))
			{
				Data[ReadIndex].~ElementType();
			}
			else
			{
				UE::Core::Private::RelocateItems(Data + WriteIndex, Data + ReadIndex, 1);
				++WriteIndex;
			}
		}
		ArrayNum = WriteIndex;
		return OriginalNum - ArrayNum;
	}

	template <typename Predicate>
	SizeType RemoveAllSwap(const Predicate& Pred, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		SizeType RemovedCount = 0;
		for (SizeType Index = 0; Index < ArrayNum;)
		{
			if (Pred(GetData()[Index]))
			{
				RemoveAtSwap(Index, 1, EAllowShrinking::No);
				++RemovedCount;
			}
			else
			{
				++Index;
			}
		}
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			ShrinkIfWasteful();
		}
		return RemovedCount;
	}

	SizeType Remove(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAll([&Item](const ElementType& Element) { return Element == Item; });
	}

	SizeType RemoveSingle(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index, 1);
		return 1;
	}

	SizeType RemoveSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		CheckAddress(&Item);
		return RemoveAllSwap([&Item](const ElementType& Element) { return Element == Item; }, AllowShrinking);
	}

	SizeType RemoveSingleSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAtSwap(Index, 1, AllowShrinking);
		return 1;
	}

	// Sizing

	void Empty(SizeType Slack = 0)
	{
		check(Slack >= 0);
		UE::Core::Private::DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		if (ArrayMax != Slack)
		{
			ResizeTo(Slack);
		}
	}

	// Destroys the elements but keeps the allocation when it can hold NewSize.
	void Reset(SizeType NewSize = 0)
	{
		if (NewSize <= ArrayMax)
		{
			UE::Core::Private::DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
		}
		else
		{
			Empty(NewSize);
		}
	}

	void SetNum(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(NewNum >= 0);
		if (NewNum > ArrayNum)
		{
			AddDefaulted(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void SetNumZeroed(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(NewNum >= 0);
		if (NewNum > ArrayNum)
		{
			AddZeroed(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void SetNumUninitialized(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(NewNum >= 0);
		if (NewNum > ArrayNum)
		{
			AddUninitialized(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void Reserve(SizeType Number)
	{
		check(Number >= 0);
		if (Number > ArrayMax)
		{
			ResizeTo(Number);
		}
	}

	void Shrink()
	{
		if (ArrayMax != ArrayNum)
		{
			ResizeTo(ArrayNum);
		}
	}

	// Reordering

	void Swap(SizeType FirstIndexToSwap, SizeType SecondIndexToSwap)
	{
		RangeCheck(FirstIndexToSwap);
		RangeCheck(SecondIndexToSwap);
		if (FirstIndexToSwap != SecondIndexToSwap)
		{
			::Swap(GetData()[FirstIndexToSwap], GetData()[SecondIndexToSwap]);
		}
	}

	void Sort()
	{
		Sort(UE::Core::Private::FLess());
	}

	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		std::sort(GetData(), GetData() + ArrayNum, UE::Core::Private::TDereferenceWrapper<ElementType, PredicateType>{Predicate});
	}

	void StableSort()
	{
		StableSort(UE::Core::Private::FLess());
	}

	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		std::stable_sort(GetData(), GetData() + ArrayNum, UE::Core::Private::TDereferenceWrapper<ElementType, PredicateType>{Predicate});
	}

	// Iteration

	TIterator CreateIterator()
	{
		return TIterator(*this);
	}

	TConstIterator CreateConstIterator() const
	{
		return TConstIterator(*this);
	}

	FORCEINLINE RangedForIteratorType begin()
	{
		return RangedForIteratorType(ArrayNum, GetData());
	}

	FORCEINLINE RangedForConstIteratorType begin() const
	{
		return RangedForConstIteratorType(ArrayNum, GetData());
	}

	FORCEINLINE RangedForIteratorType end()
	{
		return RangedForIteratorType(ArrayNum, GetData() + ArrayNum);
	}

	FORCEINLINE RangedForConstIteratorType end() const
	{
		return RangedForConstIteratorType(ArrayNum, GetData() + ArrayNum);
	}

private:
	static ElementType* Allocate(SizeType Count)
	{
		return static_cast<ElementType*>(FMemory::Malloc(SIZE_T(Count) * sizeof(ElementType), alignof(ElementType)));
	}

	// Elements passed in by pointer must not live in this array's storage, which the call may move.
	FORCEINLINE void CheckAddress(const void* Addr) const
	{
		const ElementType* Data = GetData();
		checkf(Addr < static_cast<const void*>(Data) || Addr >= static_cast<const void*>(Data + ArrayMax),
			"Attempting to use a container element which already comes from the container being modified");
	}

	void ResizeTo(SizeType NewMax)
	{
		check(NewMax >= ArrayNum);
		if (NewMax == ArrayMax)
		{
			return;
		}
		if (NewMax == 0)
		{
			FMemory::Free(AllocatorData);
			AllocatorData = nullptr;
		}
		else if constexpr (UE::Core::Private::TCanMemcpy<ElementType>)
		{
			AllocatorData = FMemory::Realloc(AllocatorData, SIZE_T(NewMax) * sizeof(ElementType), alignof(ElementType));
		}
		else
		{
			ElementType* NewData = Allocate(NewMax);
			UE::Core::Private::RelocateItems(NewData, GetData(), ArrayNum);
			FMemory::Free(AllocatorData);
			AllocatorData = NewData;
		}
		ArrayMax = NewMax;
	}

	void ShrinkIfWasteful()
	{
		if (ArrayNum < ArrayMax)
		{
			const SizeType NewMax = UE::Core::Private::CalculateSlackShrink(ArrayNum, ArrayMax, sizeof(ElementType));
			if (NewMax != ArrayMax)
			{
				ResizeTo(NewMax);
			}
		}
	}

	template <typename OtherElementType>
	void CopyToEmpty(const OtherElementType* Source, SizeType Count, SizeType ExtraSlack)
	{
		check(ArrayNum == 0);
		if (Count + ExtraSlack > ArrayMax)
		{
			ResizeTo(Count + ExtraSlack);
		}
		if constexpr (std::is_same_v<OtherElementType, ElementType> && UE::Core::Private::TCanMemcpy<ElementType>)
		{
			FMemory::Memcpy(GetData(), Source, SIZE_T(Count) * sizeof(ElementType));
		}
		else
		{
			for (SizeType Index = 0; Index < Count; ++Index)
			{
				new (GetData() + Index) ElementType(Source[Index]);
			}
		}
		ArrayNum = Count;
	}

	void RemoveAtImpl(SizeType Index, SizeType Count, EAllowShrinking AllowShrinking)
	{
		if (Count <= 0)
		{
			return;
		}
		check(Index >= 0 && Index + Count <= ArrayNum);
		ElementType* Data = GetData();
		UE::Core::Private::DestructItems(Data + Index, Count);
		UE::Core::Private::RelocateItems(Data + Index, Data + Index + Count, ArrayNum - Index - Count);
		ArrayNum -= Count;
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			ShrinkIfWasteful();
		}
	}

	void RemoveAtSwapImpl(SizeType Index, SizeType Count, EAllowShrinking AllowShrinking)
	{
		if (Count <= 0)
		{
			return;
		}
		check(Index >= 0 && Index + Count <= ArrayNum);
		ElementType* Data = GetData();
		UE::Core::Private::DestructItems(Data + Index, Count);
		// Only as many elements as were removed come from the tail, and never from inside the hole.
		const SizeType NumElementsAfterHole = ArrayNum - (Index + Count);
		const SizeType NumElementsToMove = NumElementsAfterHole < Count ? NumElementsAfterHole : Count;
		UE::Core::Private::RelocateItems(Data + Index, Data + ArrayNum - NumElementsToMove, NumElementsToMove);
		ArrayNum -= Count;
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			ShrinkIfWasteful();
		}
	}

	void* AllocatorData = nullptr;
	SizeType ArrayNum = 0;
	SizeType ArrayMax = 0;
};

template <typename ElementType, typename AllocatorType>
uint32 GetTypeHash(const TArray<ElementType, AllocatorType>& Array)
{
	uint32 Hash = 0;
	for (const ElementType& Element : Array)
	{
		Hash = HashCombine(Hash, GetTypeHash(Element));
	}
	return Hash;
}
