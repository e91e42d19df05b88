// Key to value map: a TSet of TPair hashed and matched on the key, so it shares the set's ordering.
#pragma once

#include "Containers/Array.h"
#include "Containers/ContainersFwd.h"
#include "Containers/Set.h"
#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Tuple.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <initializer_list>

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapKeyFuncs
{
	using KeyInitType = const KeyType&;
	using ElementInitType = const TPair<KeyType, ValueType>&;

	static constexpr bool bAllowDuplicateKeys = bInAllowDuplicateKeys;

	static FORCEINLINE KeyInitType GetSetKey(ElementInitType Element)
	{
		return Element.Key;
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

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : TDefaultMapKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>
{
};

template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap
{
public:
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = TPair<KeyType, ValueType>;
	using KeyInitType = const KeyType&;
	using KeyConstPointerType = const KeyType&;
	using ValueInitType = const ValueType&;
	using ElementSetType = TSet<ElementType, KeyFuncs, SetAllocator>;

	TMap() = default;

	TMap(std::initializer_list<ElementType> InitList)
	{
		Reserve(static_cast<int32>(InitList.size()));
		for (const ElementType& Element : InitList)
		{
			Add(Element.Key, Element.Value);
		}
	}

	// Size

	FORCEINLINE int32 Num() const
	{
		return Pairs.Num();
	}

	FORCEINLINE bool IsEmpty() const
	{
		return Pairs.IsEmpty();
	}

	void Empty(int32 ExpectedNumElements = 0)
	{
		Pairs.Empty(ExpectedNumElements);
	}

	void Reset()
	{
		Pairs.Reset();
	}

	void Reserve(int32 Number)
	{
		Pairs.Reserve(Number);
	}

	void Shrink()
	{
		Pairs.Shrink();
	}

	void Compact()
	{
		Pairs.Compact();
	}

	void CompactStable()
	{
		Pairs.CompactStable();
	}

	// Adding. An existing key is replaced together with its value, in place.

	FORCEINLINE ValueType& Add(const KeyType& InKey, const ValueType& InValue)
	{
		return Emplace(InKey, InValue);
	}

	FORCEINLINE ValueType& Add(const KeyType& InKey, ValueType&& InValue)
	{
		return Emplace(InKey, MoveTempIfPossible(InValue));
	}

	FORCEINLINE ValueType& Add(KeyType&& InKey, const ValueType& InValue)
	{
		return Emplace(MoveTempIfPossible(InKey), InValue);
	}

	FORCEINLINE ValueType& Add(KeyType&& InKey, ValueType&& InValue)
	{
		return Emplace(MoveTempIfPossible(InKey), MoveTempIfPossible(InValue));
	}

	FORCEINLINE ValueType& Add(const KeyType& InKey)
	{
		return Emplace(InKey);
	}

	FORCEINLINE ValueType& Add(KeyType&& InKey)
	{
		return Emplace(MoveTempIfPossible(InKey));
	}

	FORCEINLINE ValueType& Add(const ElementType& InPair)
	{
		return Emplace(InPair.Key, InPair.Value);
	}

	FORCEINLINE ValueType& Add(ElementType&& InPair)
	{
		return Emplace(MoveTempIfPossible(InPair.Key), MoveTempIfPossible(InPair.Value));
	}

	template <typename InitKeyType, typename InitValueType>
	ValueType& Emplace(InitKeyType&& InKey, InitValueType&& InValue)
	{
		const FSetElementId Id = Pairs.Emplace(ElementType(Forward<InitKeyType>(InKey), Forward<InitValueType>(InValue)));
		return Pairs[Id].Value;
	}

	template <typename InitKeyType>
	ValueType& Emplace(InitKeyType&& InKey)
	{
		const FSetElementId Id = Pairs.Emplace(ElementType(Forward<InitKeyType>(InKey), ValueType()));
		return Pairs[Id].Value;
	}

	ValueType& FindOrAdd(const KeyType& Key)
	{
		if (ValueType* Existing = Find(Key))
		{
			return *Existing;
		}
		return Emplace(Key);
	}

	ValueType& FindOrAdd(KeyType&& Key)
	{
		if (ValueType* Existing = Find(Key))
		{
			return *Existing;
		}
		return Emplace(MoveTempIfPossible(Key));
	}

	template <typename InitKeyType, typename InitValueType>
	ValueType& FindOrAdd(InitKeyType&& Key, InitValueType&& Value)
	{
		if (ValueType* Existing = Find(Key))
		{
			return *Existing;
		}
		return Emplace(Forward<InitKeyType>(Key), Forward<InitValueType>(Value));
	}

	void Append(const TMap& OtherMap)
	{
		for (const ElementType& Pair : OtherMap)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	void Append(TMap&& OtherMap)
	{
		for (ElementType& Pair : OtherMap)
		{
			Add(MoveTemp(Pair.Key), MoveTemp(Pair.Value));
		}
		OtherMap.Reset();
	}

	// Lookup

	ValueType* Find(KeyConstPointerType Key)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}

	const ValueType* Find(KeyConstPointerType Key) const
	{
		return const_cast<TMap*>(this)->Find(Key);
	}

	/** Find with a precomputed hash and a key of another type that compares equal to the stored key. */
	template <typename ComparableKey>
	ValueType* FindByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		ElementType* Pair = Pairs.FindByHash(KeyHash, Key);
		return Pair ? &Pair->Value : nullptr;
	}

	template <typename ComparableKey>
	const ValueType* FindByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return const_cast<TMap*>(this)->FindByHash(KeyHash, Key);
	}

	ValueType FindRef(KeyConstPointerType Key) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : ValueType();
	}

	ValueType FindRef(KeyConstPointerType Key, ValueType DefaultValue) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : DefaultValue;
	}

	ValueType& FindChecked(KeyConstPointerType Key)
	{
		ValueType* Value = Find(Key);
		check(Value != nullptr);
		return *Value;
	}

	const ValueType& FindChecked(KeyConstPointerType Key) const
	{
		const ValueType* Value = Find(Key);
		check(Value != nullptr);
		return *Value;
	}

	FORCEINLINE ValueType& operator[](KeyConstPointerType Key)
	{
		return FindChecked(Key);
	}

	FORCEINLINE const ValueType& operator[](KeyConstPointerType Key) const
	{
		return FindChecked(Key);
	}

	// Linear: the first key, in iteration order, whose value equals Value.
	const KeyType* FindKey(ValueInitType Value) const
	{
		for (const ElementType& Pair : Pairs)
		{
			if (Pair.Value == Value)
			{
				return &Pair.Key;
			}
		}
		return nullptr;
	}

	FORCEINLINE bool Contains(KeyConstPointerType Key) const
	{
		return Pairs.Contains(Key);
	}

	// Removing

	FORCEINLINE int32 Remove(KeyConstPointerType Key)
	{
		return Pairs.Remove(Key);
	}

	bool RemoveAndCopyValue(KeyInitType Key, ValueType& OutRemovedValue)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		if (!Id.IsValidId())
		{
			return false;
		}
		OutRemovedValue = MoveTemp(Pairs[Id].Value);
		Pairs.Remove(Id);
		return true;
	}

	ValueType FindAndRemoveChecked(KeyConstPointerType Key)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		check(Id.IsValidId());
		ValueType Result = MoveTemp(Pairs[Id].Value);
		Pairs.Remove(Id);
		return Result;
	}

	// Whole-map operations

	template <typename Allocator>
	int32 GetKeys(TArray<KeyType, Allocator>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	int32 GetKeys(TSet<KeyType>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	template <typename Allocator>
	void GenerateKeyArray(TArray<KeyType, Allocator>& OutArray) const
	{
		OutArray.Empty(Pairs.Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Key);
		}
	}

	template <typename Allocator>
	void GenerateValueArray(TArray<ValueType, Allocator>& OutArray) const
	{
		OutArray.Empty(Pairs.Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Value);
		}
	}

	template <typename Predicate>
	TMap FilterByPredicate(Predicate Pred) const
	{
		TMap Result;
		for (const ElementType& Pair : Pairs)
		{
			if (Pred(Pair))
			{
				Result.Add(Pair);
			}
		}
		return Result;
	}

	bool OrderIndependentCompareEqual(const TMap& Other) const
	{
		if (Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : Pairs)
		{
			const ValueType* OtherValue = Other.Find(Pair.Key);
			if (!OtherValue || !(*OtherValue == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}

	template <typename PredicateType>
	void KeySort(const PredicateType& Predicate)
	{
		Pairs.Sort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Key, B.Key); });
	}

	template <typename PredicateType>
	void KeyStableSort(const PredicateType& Predicate)
	{
		Pairs.StableSort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Key, B.Key); });
	}

	template <typename PredicateType>
	void ValueSort(const PredicateType& Predicate)
	{
		Pairs.Sort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Value, B.Value); });
	}

	template <typename PredicateType>
	void ValueStableSort(const PredicateType& Predicate)
	{
		Pairs.StableSort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Value, B.Value); });
	}

	// Iteration

	template <bool bConst>
	class TBaseIterator
	{
		using SetIteratorType = std::conditional_t<bConst, typename ElementSetType::TConstIterator, typename ElementSetType::TIterator>;
		using ItKeyType = std::conditional_t<bConst, const KeyType, KeyType>;
		using ItValueType = std::conditional_t<bConst, const ValueType, ValueType>;
		using PairType = std::conditional_t<bConst, const ElementType, ElementType>;

	public:
		explicit TBaseIterator(const SetIteratorType& InElementIt)
			: ElementIt(InElementIt)
		{
		}

		TBaseIterator& operator++()
		{
			++ElementIt;
			return *this;
		}

		FORCEINLINE explicit operator bool() const
		{
			return !!ElementIt;
		}

		FORCEINLINE ItKeyType& Key() const
		{
			return ElementIt->Key;
		}

		FORCEINLINE ItValueType& Value() const
		{
			return ElementIt->Value;
		}

		FORCEINLINE FSetElementId GetId() const
		{
			return ElementIt.GetId();
		}

		FORCEINLINE PairType& operator*() const
		{
			return *ElementIt;
		}

		FORCEINLINE PairType* operator->() const
		{
			return &*ElementIt;
		}

		FORCEINLINE friend bool operator==(const TBaseIterator& Lhs, const TBaseIterator& Rhs)
		{
			return Lhs.ElementIt == Rhs.ElementIt;
		}

		FORCEINLINE friend bool operator!=(const TBaseIterator& Lhs, const TBaseIterator& Rhs)
		{
			return Lhs.ElementIt != Rhs.ElementIt;
		}

	protected:
		SetIteratorType ElementIt;
	};

	class TIterator : public TBaseIterator<false>
	{
	public:
		explicit TIterator(TMap& InMap)
			: TBaseIterator<false>(InMap.Pairs.CreateIterator())
		{
		}

		void RemoveCurrent()
		{
			this->ElementIt.RemoveCurrent();
		}
	};

	class TConstIterator : public TBaseIterator<true>
	{
	public:
		explicit TConstIterator(const TMap& InMap)
			: TBaseIterator<true>(InMap.Pairs.CreateConstIterator())
		{
		}
	};

	TIterator CreateIterator()
	{
		return TIterator(*this);
	}

	TConstIterator CreateConstIterator() const
	{
		return TConstIterator(*this);
	}

	FORCEINLINE typename ElementSetType::TIterator begin()
	{
		return Pairs.begin();
	}

	FORCEINLINE typename ElementSetType::TConstIterator begin() const
	{
		return Pairs.begin();
	}

	FORCEINLINE typename ElementSetType::TIterator end()
	{
		return Pairs.end();
	}

	FORCEINLINE typename ElementSetType::TConstIterator end() const
	{
		return Pairs.end();
	}

private:
	ElementSetType Pairs;
};
