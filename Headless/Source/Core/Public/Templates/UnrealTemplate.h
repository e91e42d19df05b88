// Value-category helpers and small utilities engine code uses everywhere.
#pragma once

#include "HAL/Platform.h"

#include <type_traits>
#include <utility>

// Moving from a const object or an rvalue is almost always a mistake: it silently copies.
template <typename T>
FORCEINLINE std::remove_reference_t<T>&& MoveTemp(T&& Obj)
{
	using CastType = std::remove_reference_t<T>;
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp called on an rvalue");
	static_assert(!std::is_const_v<CastType>, "MoveTemp called on a const object");
	return static_cast<CastType&&>(Obj);
}

template <typename T>
FORCEINLINE std::remove_reference_t<T>&& MoveTempIfPossible(T&& Obj)
{
	return static_cast<std::remove_reference_t<T>&&>(Obj);
}

template <typename T>
FORCEINLINE T CopyTemp(T& Val)
{
	return const_cast<const T&>(Val);
}

template <typename T>
FORCEINLINE T CopyTemp(const T& Val)
{
	return Val;
}

template <typename T>
FORCEINLINE T&& CopyTemp(T&& Val)
{
	return MoveTemp(Val);
}

template <typename T>
FORCEINLINE constexpr T&& Forward(std::remove_reference_t<T>& Obj)
{
	return static_cast<T&&>(Obj);
}

template <typename T>
FORCEINLINE constexpr T&& Forward(std::remove_reference_t<T>&& Obj)
{
	return static_cast<T&&>(Obj);
}

template <typename T>
FORCEINLINE void Swap(T& A, T& B)
{
	T Temp = MoveTemp(A);
	A = MoveTemp(B);
	B = MoveTemp(Temp);
}

template <typename T>
FORCEINLINE const T& AsConst(T& Ref)
{
	return Ref;
}

enum EInPlace
{
	InPlace
};

enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

enum ENoInit
{
	NoInit
};

class FNoncopyable
{
protected:
	FNoncopyable() = default;
	~FNoncopyable() = default;

private:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

// Restores a variable's old value when the scope ends.
template <typename RefType, typename AssignedType = RefType>
struct TGuardValue : private FNoncopyable
{
	[[nodiscard]] TGuardValue(RefType& ReferenceValue, const AssignedType& NewValue)
		: RefValue(ReferenceValue)
		, OriginalValue(ReferenceValue)
	{
		RefValue = NewValue;
	}

	~TGuardValue()
	{
		RefValue = OriginalValue;
	}

	const AssignedType& GetOriginalValue() const
	{
		return OriginalValue;
	}

private:
	RefType& RefValue;
	AssignedType OriginalValue;
};
