// A value that is either held directly or fetched from a getter each time it is read, as Slate
// widgets take most of their properties.
#pragma once

#include "Delegates/Delegate.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TDelegate<ObjectType()>;

	TAttribute()
		: Value()
		, bIsSet(false)
	{
	}

	template <typename OtherType>
		requires std::is_constructible_v<ObjectType, const OtherType&> && (!std::is_same_v<std::decay_t<OtherType>, TAttribute>)
	TAttribute(const OtherType& InInitialValue)
		: Value(static_cast<ObjectType>(InInitialValue))
		, bIsSet(true)
	{
	}

	TAttribute(ObjectType&& InInitialValue)
		: Value(MoveTemp(InInitialValue))
		, bIsSet(true)
	{
	}

	TAttribute(const FGetter& InGetter)
		: Value()
		, bIsSet(true)
		, Getter(InGetter)
	{
	}

	[[nodiscard]] static TAttribute Create(const FGetter& InGetter)
	{
		return TAttribute(InGetter);
	}

	template <typename FunctorType>
	[[nodiscard]] static TAttribute CreateLambda(FunctorType&& InFunctor)
	{
		return TAttribute(FGetter::CreateLambda(Forward<FunctorType>(InFunctor)));
	}

	void Set(const ObjectType& InNewValue)
	{
		Getter.Unbind();
		Value = InNewValue;
		bIsSet = true;
	}

	bool IsSet() const
	{
		return bIsSet;
	}

	bool IsBound() const
	{
		return Getter.IsBound();
	}

	// A bound getter is asked every time, so the widget always shows the current value.
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

	const ObjectType& Get(const ObjectType& DefaultValue) const
	{
		return bIsSet ? Get() : DefaultValue;
	}

	void Bind(const FGetter& InGetter)
	{
		bIsSet = true;
		Getter = InGetter;
	}

	bool IdenticalTo(const TAttribute& InOther) const
	{
		return !IsBound() && !InOther.IsBound() && bIsSet == InOther.bIsSet && Value == InOther.Value;
	}

private:
	mutable ObjectType Value;
	bool bIsSet;
	FGetter Getter;
};
