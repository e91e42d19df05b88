// A value that may be absent.
#pragma once

#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <optional>
#include <type_traits>

struct FNullOpt
{
	explicit constexpr FNullOpt(int)
	{
	}
};

inline constexpr FNullOpt NullOpt{0};

template <typename OptionalType>
struct TOptional
{
	using ElementType = OptionalType;

	constexpr TOptional() = default;

	constexpr TOptional(FNullOpt)
	{
	}

	TOptional(const OptionalType& InValue)
		: Value(InValue)
	{
	}

	TOptional(OptionalType&& InValue)
		: Value(MoveTempIfPossible(InValue))
	{
	}

	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
		: Value(std::in_place, Forward<ArgTypes>(Args)...)
	{
	}

	TOptional(const TOptional&) = default;
	TOptional(TOptional&&) = default;
	TOptional& operator=(const TOptional&) = default;
	TOptional& operator=(TOptional&&) = default;

	TOptional& operator=(const OptionalType& InValue)
	{
		Value = InValue;
		return *this;
	}

	TOptional& operator=(OptionalType&& InValue)
	{
		Value = MoveTempIfPossible(InValue);
		return *this;
	}

	TOptional& operator=(FNullOpt)
	{
		Reset();
		return *this;
	}

	template <typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		return Value.emplace(Forward<ArgTypes>(Args)...);
	}

	void Reset()
	{
		Value.reset();
	}

	FORCEINLINE bool IsSet() const
	{
		return Value.has_value();
	}

	FORCEINLINE explicit operator bool() const
	{
		return Value.has_value();
	}

	OptionalType& GetValue()
	{
		checkf(IsSet(), "It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead.");
		return *Value;
	}

	const OptionalType& GetValue() const
	{
		checkf(IsSet(), "It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead.");
		return *Value;
	}

	OptionalType& operator*()
	{
		return GetValue();
	}

	const OptionalType& operator*() const
	{
		return GetValue();
	}

	OptionalType* operator->()
	{
		return &GetValue();
	}

	const OptionalType* operator->() const
	{
		return &GetValue();
	}

	// Returns a reference, so the default must outlive its use.
	const OptionalType& Get(const OptionalType& DefaultValue) const
	{
		return IsSet() ? *Value : DefaultValue;
	}

	OptionalType* GetPtrOrNull()
	{
		return IsSet() ? &*Value : nullptr;
	}

	const OptionalType* GetPtrOrNull() const
	{
		return IsSet() ? &*Value : nullptr;
	}

	friend bool operator==(const TOptional& Lhs, const TOptional& Rhs)
	{
		if (Lhs.IsSet() != Rhs.IsSet())
		{
			return false;
		}
		return !Lhs.IsSet() || *Lhs.Value == *Rhs.Value;
	}

	friend bool operator!=(const TOptional& Lhs, const TOptional& Rhs)
	{
		return !(Lhs == Rhs);
	}

	friend uint32 GetTypeHash(const TOptional& Optional)
	{
		return Optional.IsSet() ? GetTypeHash(*Optional.Value) : 0;
	}

private:
	std::optional<OptionalType> Value;
};
