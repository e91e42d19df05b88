// TObjectPtr: a strong, reflected object reference with the size of a raw pointer.
#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

#include <cstddef>
#include <type_traits>

template<typename T>
class TObjectPtr
{
public:
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(std::nullptr_t)
	{
	}
	TObjectPtr(const TObjectPtr&) = default;
	TObjectPtr& operator=(const TObjectPtr&) = default;

	template<typename U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TObjectPtr(U* InObject)
		: Object(InObject)
	{
	}

	template<typename U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TObjectPtr(const TObjectPtr<U>& Other)
		: Object(Other.Get())
	{
	}

	TObjectPtr& operator=(std::nullptr_t)
	{
		Object = nullptr;
		return *this;
	}

	template<typename U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TObjectPtr& operator=(U* InObject)
	{
		Object = InObject;
		return *this;
	}

	T* Get() const
	{
		return Object;
	}

	operator T*() const
	{
		return Object;
	}

	template<typename U, std::enable_if_t<!std::is_same_v<U, T> && std::is_convertible_v<T*, U*>, int> = 0>
	explicit operator U*() const
	{
		return Object;
	}

	T* operator->() const
	{
		return Object;
	}

	T& operator*() const
	{
		return *Object;
	}

	explicit operator bool() const
	{
		return Object != nullptr;
	}

	bool operator!() const
	{
		return Object == nullptr;
	}

	template<typename U>
	bool operator==(const TObjectPtr<U>& Other) const
	{
		return (const void*)Object == (const void*)Other.Get();
	}

	template<typename U>
	bool operator==(U* Other) const
	{
		return (const void*)Object == (const void*)Other;
	}

	bool operator==(std::nullptr_t) const
	{
		return Object == nullptr;
	}

	friend uint32 GetTypeHash(const TObjectPtr& Ptr)
	{
		return GetTypeHash((const void*)Ptr.Object);
	}

private:
	T* Object = nullptr;
};

static_assert(sizeof(TObjectPtr<int>) == sizeof(int*), "TObjectPtr must stay the size of a raw pointer");

template<typename T>
struct TIsTObjectPtr
{
	static constexpr bool Value = false;
};

template<typename T>
struct TIsTObjectPtr<TObjectPtr<T>>
{
	static constexpr bool Value = true;
};

template<typename T>
T* ToRawPtr(const TObjectPtr<T>& Ptr)
{
	return Ptr.Get();
}

template<typename T>
T* ToRawPtr(T* Ptr)
{
	return Ptr;
}
