// FLazyObjectPtr and TLazyObjectPtr<T>: a reference the collector does not follow. The engine keys
// it on a persistent guid; the headless build has no persistence, so a weak pointer stands in.
#pragma once

#include "UObject/WeakObjectPtr.h"

#include <type_traits>

struct COREUOBJECT_API FLazyObjectPtr
{
public:
	FLazyObjectPtr() = default;
	FLazyObjectPtr(const UObject* Object)
		: WeakPtr(Object)
	{
	}

	UObject* Get() const
	{
		return WeakPtr.Get();
	}
	bool IsValid() const
	{
		return WeakPtr.IsValid();
	}
	bool IsNull() const
	{
		return WeakPtr.IsExplicitlyNull();
	}
	bool IsPending() const
	{
		return !IsNull() && !IsValid();
	}
	void Reset()
	{
		WeakPtr.Reset();
	}

	bool operator==(const FLazyObjectPtr& Other) const
	{
		return WeakPtr == Other.WeakPtr;
	}

private:
	FWeakObjectPtr WeakPtr;
};

template<class T = UObject>
struct TLazyObjectPtr
{
public:
	TLazyObjectPtr() = default;
	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TLazyObjectPtr(U* Object)
		: LazyPtr((const UObject*)static_cast<T*>(Object))
	{
	}

	T* Get() const
	{
		return (T*)LazyPtr.Get();
	}
	T* operator->() const
	{
		return Get();
	}
	bool IsValid() const
	{
		return LazyPtr.IsValid();
	}
	bool IsNull() const
	{
		return LazyPtr.IsNull();
	}
	bool IsPending() const
	{
		return LazyPtr.IsPending();
	}
	void Reset()
	{
		LazyPtr.Reset();
	}

private:
	FLazyObjectPtr LazyPtr;
};
