// TWeakObjectPtr<T>: the typed FWeakObjectPtr.
#pragma once

#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

template<class T = UObject, class TWeakObjectPtrBase = FWeakObjectPtr>
struct TWeakObjectPtr
{
public:
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(std::nullptr_t)
	{
	}

	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TWeakObjectPtr(U* Object)
		: WeakPtr((const UObject*)static_cast<T*>(Object))
	{
	}

	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TWeakObjectPtr(const TObjectPtr<U>& Object)
		: WeakPtr((const UObject*)static_cast<T*>(Object.Get()))
	{
	}

	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TWeakObjectPtr(const TWeakObjectPtr<U>& Other)
		: WeakPtr(Other.GetWeakPtr())
	{
	}

	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TWeakObjectPtr& operator=(U* Object)
	{
		WeakPtr = (const UObject*)static_cast<T*>(Object);
		return *this;
	}

	void Reset()
	{
		WeakPtr.Reset();
	}

	T* Get(bool bEvenIfGarbage) const
	{
		return (T*)WeakPtr.Get(bEvenIfGarbage);
	}
	T* Get() const
	{
		return (T*)WeakPtr.Get();
	}
	T* Pin() const
	{
		return Get();
	}
	T* GetEvenIfUnreachable() const
	{
		return (T*)WeakPtr.GetEvenIfUnreachable();
	}

	T& operator*() const
	{
		return *Get();
	}
	T* operator->() const
	{
		return Get();
	}

	bool IsValid(bool bEvenIfGarbage, bool bThreadsafeTest = false) const
	{
		return WeakPtr.IsValid(bEvenIfGarbage, bThreadsafeTest);
	}
	bool IsValid() const
	{
		return WeakPtr.IsValid();
	}
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const
	{
		return WeakPtr.IsStale(bIncludingGarbage, bThreadsafeTest);
	}
	bool IsExplicitlyNull() const
	{
		return WeakPtr.IsExplicitlyNull();
	}

	explicit operator bool() const
	{
		return WeakPtr.IsValid();
	}

	const FWeakObjectPtr& GetWeakPtr() const
	{
		return WeakPtr;
	}

	template<class U>
	bool operator==(const TWeakObjectPtr<U>& Other) const
	{
		return WeakPtr == Other.GetWeakPtr();
	}
	template<class U>
	bool operator==(const U* Other) const
	{
		return Get() == Other;
	}
	bool operator==(std::nullptr_t) const
	{
		return !IsValid();
	}

	friend uint32 GetTypeHash(const TWeakObjectPtr& Ptr)
	{
		return GetTypeHash(Ptr.WeakPtr);
	}

private:
	FWeakObjectPtr WeakPtr;
};

template<class T>
TWeakObjectPtr<T> MakeWeakObjectPtr(T* Object)
{
	return TWeakObjectPtr<T>(Object);
}
