// TFieldIterator: a struct's properties (or a class's functions) in declared order, then its super's.
#pragma once

#include "UObject/Class.h"
#include "UObject/Field.h"

#include <type_traits>

namespace EFieldIteratorFlags
{
	enum SuperClassFlags
	{
		ExcludeSuper = 0,
		IncludeSuper
	};
	enum DeprecatedPropertyFlags
	{
		ExcludeDeprecated = 0,
		IncludeDeprecated
	};
	enum InterfaceClassFlags
	{
		ExcludeInterfaces = 0,
		IncludeInterfaces
	};
}

template<class T>
class TFieldIterator
{
	static constexpr bool bIsProperty = std::is_base_of_v<FField, T>;
	using FLinkType = std::conditional_t<bIsProperty, FField, UField>;

public:
	TFieldIterator(const UStruct* InStruct,
		EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper,
		EFieldIteratorFlags::DeprecatedPropertyFlags InDeprecatedFieldFlags = EFieldIteratorFlags::IncludeDeprecated,
		EFieldIteratorFlags::InterfaceClassFlags InInterfaceFieldFlags = EFieldIteratorFlags::ExcludeInterfaces)
		: Struct(InStruct)
		, Field(InStruct ? First(InStruct) : nullptr)
		, bIncludeSuper(InSuperClassFlags == EFieldIteratorFlags::IncludeSuper)
		, bIncludeDeprecated(InDeprecatedFieldFlags == EFieldIteratorFlags::IncludeDeprecated)
	{
		IterateToNext();
	}

	explicit operator bool() const
	{
		return Field != nullptr;
	}
	bool operator!() const
	{
		return Field == nullptr;
	}

	TFieldIterator& operator++()
	{
		check(Field);
		Field = Field->Next;
		IterateToNext();
		return *this;
	}

	T* operator*() const
	{
		return (T*)Field;
	}
	T* operator->() const
	{
		return (T*)Field;
	}

	const UStruct* GetStruct() const
	{
		return Struct;
	}

	friend bool operator==(const TFieldIterator& Lhs, const TFieldIterator& Rhs)
	{
		return Lhs.Field == Rhs.Field;
	}
	friend bool operator!=(const TFieldIterator& Lhs, const TFieldIterator& Rhs)
	{
		return Lhs.Field != Rhs.Field;
	}

private:
	static FLinkType* First(const UStruct* InStruct)
	{
		if constexpr (bIsProperty)
		{
			return InStruct->ChildProperties;
		}
		else
		{
			return InStruct->Children;
		}
	}

	bool Matches(FLinkType* InField) const
	{
		if constexpr (bIsProperty)
		{
			if (!InField->IsA(T::StaticClass()))
			{
				return false;
			}
			// Named through T so FProperty need only be complete where the iterator is used.
			using FPropertyType = std::conditional_t<bIsProperty, FProperty, FField>;
			return bIncludeDeprecated || !InField->IsA(FPropertyType::StaticClass()) || !(((const FPropertyType*)InField)->PropertyFlags & CPF_Deprecated);
		}
		else
		{
			return InField->IsA(T::StaticClass());
		}
	}

	void IterateToNext()
	{
		while (Struct)
		{
			for (; Field; Field = Field->Next)
			{
				if (Matches(Field))
				{
					return;
				}
			}
			if (!bIncludeSuper)
			{
				Struct = nullptr;
				break;
			}
			Struct = Struct->GetSuperStruct();
			Field = Struct ? First(Struct) : nullptr;
		}
	}

	const UStruct* Struct;
	FLinkType* Field;
	bool bIncludeSuper;
	bool bIncludeDeprecated;
};

template<class T>
struct TFieldRange
{
	TFieldRange(const UStruct* InStruct,
		EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper,
		EFieldIteratorFlags::DeprecatedPropertyFlags InDeprecatedFieldFlags = EFieldIteratorFlags::IncludeDeprecated,
		EFieldIteratorFlags::InterfaceClassFlags InInterfaceFieldFlags = EFieldIteratorFlags::ExcludeInterfaces)
		: Begin(InStruct, InSuperClassFlags, InDeprecatedFieldFlags, InInterfaceFieldFlags)
	{
	}

	friend TFieldIterator<T> begin(const TFieldRange& Range)
	{
		return Range.Begin;
	}
	friend TFieldIterator<T> end(const TFieldRange& Range)
	{
		return TFieldIterator<T>(nullptr);
	}

	TFieldIterator<T> Begin;
};
