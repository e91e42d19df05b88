// Single-owner pointer with the engine's interface.
#pragma once

#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <cstddef>
#include <type_traits>

template <typename T>
struct TDefaultDelete
{
	TDefaultDelete() = default;

	template <typename U>
		requires std::is_convertible_v<U*, T*>
	TDefaultDelete(const TDefaultDelete<U>&)
	{
	}

	void operator()(T* Ptr) const
	{
		static_assert(sizeof(T) > 0, "Cannot delete an incomplete type");
		delete Ptr;
	}
};

template <typename T>
struct TDefaultDelete<T[]>
{
	void operator()(T* Ptr) const
	{
		delete[] Ptr;
	}
};

template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr : private Deleter
{
	template <typename OtherT, typename OtherDeleter>
	friend class TUniquePtr;

public:
	using ElementType = T;

	TUniquePtr() = default;

	TUniquePtr(std::nullptr_t)
	{
	}

	explicit TUniquePtr(T* InPtr)
		: Ptr(InPtr)
	{
	}

	TUniquePtr(T* InPtr, Deleter&& InDeleter)
		: Deleter(MoveTemp(InDeleter))
		, Ptr(InPtr)
	{
	}

	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;

	TUniquePtr(TUniquePtr&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{
	}

	template <typename OtherT, typename OtherDeleter>
		requires std::is_convertible_v<OtherT*, T*>
	TUniquePtr(TUniquePtr<OtherT, OtherDeleter>&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{
	}

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			GetDeleter() = MoveTemp(Other.GetDeleter());
		}
		return *this;
	}

	template <typename OtherT, typename OtherDeleter>
		requires std::is_convertible_v<OtherT*, T*>
	TUniquePtr& operator=(TUniquePtr<OtherT, OtherDeleter>&& Other)
	{
		Reset(Other.Release());
		GetDeleter() = MoveTemp(Other.GetDeleter());
		return *this;
	}

	TUniquePtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	~TUniquePtr()
	{
		Reset();
	}

	FORCEINLINE bool IsValid() const
	{
		return Ptr != nullptr;
	}

	FORCEINLINE explicit operator bool() const
	{
		return Ptr != nullptr;
	}

	FORCEINLINE T* operator->() const
	{
		check(Ptr != nullptr);
		return Ptr;
	}

	FORCEINLINE T& operator*() const
	{
		check(Ptr != nullptr);
		return *Ptr;
	}

	FORCEINLINE T* Get() const
	{
		return Ptr;
	}

	[[nodiscard]] FORCEINLINE T* Release()
	{
		T* Result = Ptr;
		Ptr = nullptr;
		return Result;
	}

	void Reset(T* InPtr = nullptr)
	{
		// Clear first so the deleted object cannot reach itself through this pointer.
		T* OldPtr = Ptr;
		Ptr = InPtr;
		if (OldPtr)
		{
			GetDeleter()(OldPtr);
		}
	}

	FORCEINLINE Deleter& GetDeleter()
	{
		return static_cast<Deleter&>(*this);
	}

	FORCEINLINE const Deleter& GetDeleter() const
	{
		return static_cast<const Deleter&>(*this);
	}

private:
	T* Ptr = nullptr;
};

template <typename T, typename Deleter>
class TUniquePtr<T[], Deleter> : private Deleter
{
public:
	using ElementType = T;

	TUniquePtr() = default;

	TUniquePtr(std::nullptr_t)
	{
	}

	explicit TUniquePtr(T* InPtr)
		: Ptr(InPtr)
	{
	}

	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;

	TUniquePtr(TUniquePtr&& Other)
		: Ptr(Other.Release())
	{
	}

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
		}
		return *this;
	}

	~TUniquePtr()
	{
		Reset();
	}

	FORCEINLINE bool IsValid() const
	{
		return Ptr != nullptr;
	}

	FORCEINLINE explicit operator bool() const
	{
		return Ptr != nullptr;
	}

	FORCEINLINE T& operator[](SIZE_T Index) const
	{
		return Ptr[Index];
	}

	FORCEINLINE T* Get() const
	{
		return Ptr;
	}

	[[nodiscard]] FORCEINLINE T* Release()
	{
		T* Result = Ptr;
		Ptr = nullptr;
		return Result;
	}

	void Reset(T* InPtr = nullptr)
	{
		T* OldPtr = Ptr;
		Ptr = InPtr;
		if (OldPtr)
		{
			static_cast<Deleter&>(*this)(OldPtr);
		}
	}

private:
	T* Ptr = nullptr;
};

template <typename LhsT, typename RhsT>
FORCEINLINE bool operator==(const TUniquePtr<LhsT>& Lhs, const TUniquePtr<RhsT>& Rhs)
{
	return Lhs.Get() == Rhs.Get();
}

template <typename T>
FORCEINLINE bool operator==(const TUniquePtr<T>& Lhs, std::nullptr_t)
{
	return !Lhs.IsValid();
}

template <typename T>
FORCEINLINE uint32 GetTypeHash(const TUniquePtr<T>& Ptr)
{
	return GetTypeHash(Ptr.Get());
}

template <typename T, typename... ArgTypes>
	requires (!std::is_array_v<T>)
[[nodiscard]] FORCEINLINE TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(Forward<ArgTypes>(Args)...));
}

// Array elements are value-initialised.
template <typename T>
	requires std::is_unbounded_array_v<T>
[[nodiscard]] FORCEINLINE TUniquePtr<T> MakeUnique(SIZE_T Size)
{
	using ElementType = std::remove_extent_t<T>;
	return TUniquePtr<T>(new ElementType[Size]());
}
