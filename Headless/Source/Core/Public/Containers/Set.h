// Hashed set over sparse storage, as the engine's: elements stay where they were added, so iteration
// follows insertion order until something is removed; a later addition then takes the slot freed
// most recently.
#pragma once

#include "Containers/Array.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ContainersFwd.h"
#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <initializer_list>
#include <new>

// Identifies an element of a set or map until that element is removed.
class FSetElementId
{
public:
	FSetElementId() = default;

	FORCEINLINE bool IsValidId() const
	{
		return Index != INDEX_NONE;
	}

	FORCEINLINE int32 AsInteger() const
	{
		return Index;
	}

	FORCEINLINE static FSetElementId FromInteger(int32 Integer)
	{
		FSetElementId Id;
		Id.Index = Integer;
		return Id;
	}

	FORCEINLINE friend bool operator==(const FSetElementId& A, const FSetElementId& B)
	{
		return A.Index == B.Index;
	}

	FORCEINLINE friend bool operator!=(const FSetElementId& A, const FSetElementId& B)
	{
		return A.Index != B.Index;
	}

	FORCEINLINE friend uint32 GetTypeHash(const FSetElementId& Id)
	{
		return uint32(Id.Index);
	}

private:
	int32 Index = INDEX_NONE;
};

// How a set finds the key of an element, compares keys and hashes them.
template <typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs
{
	using KeyInitType = const ElementType&;
	using ElementInitType = const ElementType&;

	static constexpr bool bAllowDuplicateKeys = bInAllowDuplicateKeys;

	static FORCEINLINE KeyInitType GetSetKey(ElementInitType Element)
	{
		return Element;
	}

	static FORCEINLINE bool Matches(KeyInitType A, KeyInitType B)
	{
		return A == B;
	}

	/** Lets FindByHash search with another type that compares equal to a key, such as a view of a string key. */
	template <typename ComparableKey>
	static FORCEINLINE bool Matches(KeyInitType A, const ComparableKey& B)
	{
		return A == B;
	}

	static FORCEINLINE uint32 GetKeyHash(KeyInitType Key)
	{
		return GetTypeHash(Key);
	}
};

namespace UE::Core::Private
{
	// One slot of the sparse storage: an element, or a link in the free list. As in the engine's
	// sparse array, the link shares the element's storage; a free slot is in no hash chain, so its
	// chain link marks it free. An element plus eight bytes keeps small maps' storage compact.
	template <typename ElementType>
	struct TSetSlot
	{
		static constexpr int32 FreeMarker = -2;

		TSetSlot()
			: NextFreeIndex(INDEX_NONE)
		{
		}

		TSetSlot(const TSetSlot& Other)
			: KeyHash(Other.KeyHash)
			, HashNextId(Other.HashNextId)
		{
			if (IsAllocated())
			{
				new (&Element) ElementType(Other.Element);
			}
			else
			{
				NextFreeIndex = Other.NextFreeIndex;
			}
		}

		TSetSlot(TSetSlot&& Other)
			: KeyHash(Other.KeyHash)
			, HashNextId(Other.HashNextId)
		{
			if (IsAllocated())
			{
				new (&Element) ElementType(MoveTemp(Other.Element));
			}
			else
			{
				NextFreeIndex = Other.NextFreeIndex;
			}
		}

		TSetSlot& operator=(const TSetSlot&) = delete;

		~TSetSlot()
		{
			if (IsAllocated())
			{
				Element.~ElementType();
			}
		}

		FORCEINLINE bool IsAllocated() const
		{
			return HashNextId != FreeMarker;
		}

		union
		{
			ElementType Element;
			int32 NextFreeIndex;
		};
		uint32 KeyHash = 0;
		/** The next slot in this slot's hash chain, or FreeMarker while the slot holds no element. */
		int32 HashNextId = FreeMarker;
	};
}

template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet
{
	using FSlot = UE::Core::Private::TSetSlot<InElementType>;

public:
	using ElementType = InElementType;
	using KeyFuncsType = KeyFuncs;
	using KeyInitType = typename KeyFuncs::KeyInitType;
	using ElementInitType = typename KeyFuncs::ElementInitType;

	TSet() = default;
	TSet(const TSet&) = default;
	TSet& operator=(const TSet&) = default;

	TSet(TSet&& Other)
		: Slots(MoveTemp(Other.Slots))
		, Hash(MoveTemp(Other.Hash))
		, NumElements(Other.NumElements)
		, FirstFreeIndex(Other.FirstFreeIndex)
	{
		Other.NumElements = 0;
		Other.FirstFreeIndex = INDEX_NONE;
	}

	TSet& operator=(TSet&& Other)
	{
		if (this != &Other)
		{
			Slots = MoveTemp(Other.Slots);
			Hash = MoveTemp(Other.Hash);
			NumElements = Other.NumElements;
			FirstFreeIndex = Other.FirstFreeIndex;
			Other.NumElements = 0;
			Other.FirstFreeIndex = INDEX_NONE;
		}
		return *this;
	}

	TSet(std::initializer_list<ElementType> InitList)
	{
		Append(InitList);
	}

	explicit TSet(const TArray<ElementType>& InArray)
	{
		Append(InArray);
	}

	// Size

	FORCEINLINE int32 Num() const
	{
		return NumElements;
	}

	FORCEINLINE bool IsEmpty() const
	{
		return NumElements == 0;
	}

	FORCEINLINE int32 GetMaxIndex() const
	{
		return Slots.Num();
	}

	FORCEINLINE bool IsValidId(FSetElementId Id) const
	{
		const int32 Index = Id.AsInteger();
		return Index >= 0 && Index < Slots.Num() && Slots[Index].IsAllocated();
	}

	void Empty(int32 ExpectedNumElements = 0)
	{
		Slots.Empty(ExpectedNumElements);
		Hash.Empty();
		NumElements = 0;
		FirstFreeIndex = INDEX_NONE;
	}

	// Removes every element but keeps the memory.
	void Reset()
	{
		Slots.Reset();
		for (int32& Bucket : Hash)
		{
			Bucket = INDEX_NONE;
		}
		NumElements = 0;
		FirstFreeIndex = INDEX_NONE;
	}

	void Reserve(int32 Number)
	{
		Slots.Reserve(Number);
	}

	void Shrink()
	{
		// Trailing free slots can go; the ones inside must stay so ids remain valid.
		while (Slots.Num() > 0 && !Slots.Last().IsAllocated())
		{
			Slots.Pop(EAllowShrinking::No);
		}
		RebuildFreeList();
		Slots.Shrink();
	}

	// Closes the holes left by removals, keeping the order of the elements.
	void CompactStable()
	{
		if (Slots.Num() == NumElements)
		{
			return;
		}
		TArray<FSlot> Packed;
		Packed.Reserve(NumElements);
		for (FSlot& Slot : Slots)
		{
			if (Slot.IsAllocated())
			{
				Packed.Add(MoveTemp(Slot));
			}
		}
		Slots = MoveTemp(Packed);
		FirstFreeIndex = INDEX_NONE;
		Rehash();
	}

	void Compact()
	{
		CompactStable();
	}

	// Adding

	FORCEINLINE FSetElementId Add(const ElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return Emplace(InElement, bIsAlreadyInSetPtr);
	}

	FORCEINLINE FSetElementId Add(ElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return Emplace(MoveTempIfPossible(InElement), bIsAlreadyInSetPtr);
	}

	// An element whose key is already present replaces the old element where it stands.
	template <typename ArgType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSetPtr = nullptr)
	{
		ElementType NewElement(Forward<ArgType>(Arg));
		const uint32 KeyHash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(NewElement));
		if constexpr (!KeyFuncs::bAllowDuplicateKeys)
		{
			const FSetElementId ExistingId = FindIdByHash(KeyHash, KeyFuncs::GetSetKey(NewElement));
			if (ExistingId.IsValidId())
			{
				ElementType& Existing = Slots[ExistingId.AsInteger()].Element;
				Existing.~ElementType();
				new (&Existing) ElementType(MoveTemp(NewElement));
				if (bIsAlreadyInSetPtr)
				{
					*bIsAlreadyInSetPtr = true;
				}
				return ExistingId;
			}
		}
		if (bIsAlreadyInSetPtr)
		{
			*bIsAlreadyInSetPtr = false;
		}
		return AddNew(MoveTemp(NewElement), KeyHash);
	}

	template <typename ArrayAllocator>
	void Append(const TArray<ElementType, ArrayAllocator>& InElements)
	{
		for (const ElementType& Element : InElements)
		{
			Add(Element);
		}
	}

	void Append(std::initializer_list<ElementType> InitList)
	{
		for (const ElementType& Element : InitList)
		{
			Add(Element);
		}
	}

	void Append(const TSet& OtherSet)
	{
		for (const ElementType& Element : OtherSet)
		{
			Add(Element);
		}
	}

	// Lookup

	FSetElementId FindId(KeyInitType Key) const
	{
		return FindIdByHash(KeyFuncs::GetKeyHash(Key), Key);
	}

	template <typename ComparableKey>
	FSetElementId FindIdByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		if (Hash.Num() == 0)
		{
			return FSetElementId();
		}
		for (int32 Index = Hash[KeyHash & (Hash.Num() - 1)]; Index != INDEX_NONE; Index = Slots[Index].HashNextId)
		{
			const FSlot& Slot = Slots[Index];
			if (Slot.KeyHash == KeyHash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Slot.Element), Key))
			{
				return FSetElementId::FromInteger(Index);
			}
		}
		return FSetElementId();
	}

	ElementType* Find(KeyInitType Key)
	{
		const FSetElementId Id = FindId(Key);
		return Id.IsValidId() ? &Slots[Id.AsInteger()].Element : nullptr;
	}

	const ElementType* Find(KeyInitType Key) const
	{
		return const_cast<TSet*>(this)->Find(Key);
	}

	template <typename ComparableKey>
	ElementType* FindByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		const FSetElementId Id = FindIdByHash(KeyHash, Key);
		return Id.IsValidId() ? &Slots[Id.AsInteger()].Element : nullptr;
	}

	FORCEINLINE bool Contains(KeyInitType Key) const
	{
		return FindId(Key).IsValidId();
	}

	ElementType& operator[](FSetElementId Id)
	{
		checkf(IsValidId(Id), "Invalid set element id");
		return Slots[Id.AsInteger()].Element;
	}

	const ElementType& operator[](FSetElementId Id) const
	{
		checkf(IsValidId(Id), "Invalid set element id");
		return Slots[Id.AsInteger()].Element;
	}

	ElementType& Get(FSetElementId Id)
	{
		return (*this)[Id];
	}

	const ElementType& Get(FSetElementId Id) const
	{
		return (*this)[Id];
	}

	// Removing

	void Remove(FSetElementId Id)
	{
		checkf(IsValidId(Id), "Invalid set element id");
		const int32 Index = Id.AsInteger();
		FSlot& Slot = Slots[Index];
		int32* Link = &Hash[Slot.KeyHash & (Hash.Num() - 1)];
		while (*Link != Index)
		{
			check(*Link != INDEX_NONE);
			Link = &Slots[*Link].HashNextId;
		}
		*Link = Slot.HashNextId;

		Slot.Element.~ElementType();
		Slot.HashNextId = FSlot::FreeMarker;
		Slot.NextFreeIndex = FirstFreeIndex;
		FirstFreeIndex = Index;
		--NumElements;
	}

	int32 Remove(KeyInitType Key)
	{
		int32 NumRemoved = 0;
		const uint32 KeyHash = KeyFuncs::GetKeyHash(Key);
		for (FSetElementId Id = FindIdByHash(KeyHash, Key); Id.IsValidId(); Id = FindIdByHash(KeyHash, Key))
		{
			Remove(Id);
			++NumRemoved;
			if constexpr (!KeyFuncs::bAllowDuplicateKeys)
			{
				break;
			}
		}
		return NumRemoved;
	}

	// Whole-set operations

	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(NumElements);
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	TSet Union(const TSet& OtherSet) const
	{
		TSet Result(*this);
		Result.Append(OtherSet);
		return Result;
	}

	TSet Intersect(const TSet& OtherSet) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (OtherSet.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	TSet Difference(const TSet& OtherSet) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (!OtherSet.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	bool Includes(const TSet& OtherSet) const
	{
		for (const ElementType& Element : OtherSet)
		{
			if (!Contains(KeyFuncs::GetSetKey(Element)))
			{
				return false;
			}
		}
		return true;
	}

	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		SortWith([&Predicate](TArray<ElementType>& Elements) { Elements.Sort(Predicate); });
	}

	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		SortWith([&Predicate](TArray<ElementType>& Elements) { Elements.StableSort(Predicate); });
	}

	// Iteration

	template <bool bConst>
	class TBaseIterator
	{
		using SetType = std::conditional_t<bConst, const TSet, TSet>;
		using ItElementType = std::conditional_t<bConst, const ElementType, ElementType>;

	public:
		TBaseIterator(SetType& InSet, int32 StartIndex = 0)
			: Set(&InSet)
			, Index(StartIndex)
		{
			SkipFreeSlots();
		}

		TBaseIterator& operator++()
		{
			++Index;
			SkipFreeSlots();
			return *this;
		}

		FORCEINLINE explicit operator bool() const
		{
			return Index < Set->Slots.Num();
		}

		FORCEINLINE ItElementType& operator*() const
		{
			return Set->Slots[Index].Element;
		}

		FORCEINLINE ItElementType* operator->() const
		{
			return &Set->Slots[Index].Element;
		}

		FORCEINLINE FSetElementId GetId() const
		{
			return FSetElementId::FromInteger(Index);
		}

		FORCEINLINE friend bool operator==(const TBaseIterator& Lhs, const TBaseIterator& Rhs)
		{
			return Lhs.Set == Rhs.Set && Lhs.Index == Rhs.Index;
		}

		FORCEINLINE friend bool operator!=(const TBaseIterator& Lhs, const TBaseIterator& Rhs)
		{
			return !(Lhs == Rhs);
		}

	protected:
		void SkipFreeSlots()
		{
			while (Index < Set->Slots.Num() && !Set->Slots[Index].IsAllocated())
			{
				++Index;
			}
		}

		SetType* Set;
		int32 Index;
	};

	class TIterator : public TBaseIterator<false>
	{
	public:
		using TBaseIterator<false>::TBaseIterator;

		// Removal leaves the other slots in place, so iteration carries on with the next element.
		void RemoveCurrent()
		{
			this->Set->Remove(this->GetId());
		}
	};

	using TConstIterator = TBaseIterator<true>;

	TIterator CreateIterator()
	{
		return TIterator(*this);
	}

	TConstIterator CreateConstIterator() const
	{
		return TConstIterator(*this);
	}

	TIterator begin()
	{
		return TIterator(*this);
	}

	TConstIterator begin() const
	{
		return TConstIterator(*this);
	}

	TIterator end()
	{
		return TIterator(*this, Slots.Num());
	}

	TConstIterator end() const
	{
		return TConstIterator(*this, Slots.Num());
	}

private:
	FSetElementId AddNew(ElementType&& NewElement, uint32 KeyHash)
	{
		int32 Index;
		if (FirstFreeIndex != INDEX_NONE)
		{
			Index = FirstFreeIndex;
			FirstFreeIndex = Slots[Index].NextFreeIndex;
		}
		else
		{
			Index = Slots.AddDefaulted();
		}
		FSlot& Slot = Slots[Index];
		new (&Slot.Element) ElementType(MoveTemp(NewElement));
		Slot.HashNextId = INDEX_NONE;
		Slot.KeyHash = KeyHash;
		++NumElements;

		if (Hash.Num() < DesiredHashSize(NumElements))
		{
			Rehash();
		}
		else
		{
			LinkIntoBucket(Index);
		}
		return FSetElementId::FromInteger(Index);
	}

	// Power of two that keeps about two elements per bucket; tiny sets use a single bucket.
	static int32 DesiredHashSize(int32 NumHashedElements)
	{
		if (NumHashedElements < 4)
		{
			return 1;
		}
		int32 Size = 1;
		while (Size < NumHashedElements / 2 + 8)
		{
			Size <<= 1;
		}
		return Size;
	}

	void LinkIntoBucket(int32 Index)
	{
		FSlot& Slot = Slots[Index];
		int32& Bucket = Hash[Slot.KeyHash & (Hash.Num() - 1)];
		Slot.HashNextId = Bucket;
		Bucket = Index;
	}

	void Rehash()
	{
		Hash.Init(INDEX_NONE, NumElements > 0 ? DesiredHashSize(NumElements) : 0);
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			if (Slots[Index].IsAllocated())
			{
				LinkIntoBucket(Index);
			}
		}
	}

	// Lowest free slot first, so additions after a shrink fill from the front.
	void RebuildFreeList()
	{
		FirstFreeIndex = INDEX_NONE;
		for (int32 Index = Slots.Num() - 1; Index >= 0; --Index)
		{
			if (!Slots[Index].IsAllocated())
			{
				Slots[Index].NextFreeIndex = FirstFreeIndex;
				FirstFreeIndex = Index;
			}
		}
	}

	template <typename SortFuncType>
	void SortWith(const SortFuncType& SortFunc)
	{
		TArray<ElementType> Elements;
		Elements.Reserve(NumElements);
		for (ElementType& Element : *this)
		{
			Elements.Add(MoveTemp(Element));
		}
		SortFunc(Elements);
		Empty(Elements.Num());
		for (ElementType& Element : Elements)
		{
			AddNew(MoveTemp(Element), KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Element)));
		}
	}

	TArray<FSlot> Slots;
	TArray<int32> Hash;
	int32 NumElements = 0;
	int32 FirstFreeIndex = INDEX_NONE;
};

template <typename ElementType, typename KeyFuncs, typename Allocator>
uint32 GetTypeHash(const TSet<ElementType, KeyFuncs, Allocator>& Set)
{
	// Order-independent: equal sets hash equal whatever order they were built in.
	uint32 Hash = 0;
	for (const ElementType& Element : Set)
	{
		Hash += GetTypeHash(Element);
	}
	return Hash;
}
