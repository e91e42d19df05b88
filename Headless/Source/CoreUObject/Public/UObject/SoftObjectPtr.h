// FSoftObjectPtr and TSoftObjectPtr<T>: a soft path plus a weak cache of the object once found.
#pragma once

#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/ObjectPtr.h"

#include <type_traits>

struct COREUOBJECT_API FSoftObjectPtr
{
public:
	FSoftObjectPtr() = default;
	FSoftObjectPtr(const FSoftObjectPath& InPath)
		: ObjectPath(InPath)
	{
	}
	FSoftObjectPtr(const UObject* Object);

	/** The object if it is in memory; never loads. */
	UObject* Get() const;
	/** Loads when needed. */
	UObject* LoadSynchronous() const;

	const FSoftObjectPath& ToSoftObjectPath() const
	{
		return ObjectPath;
	}
	const FSoftObjectPath& GetUniqueID() const
	{
		return ObjectPath;
	}
	FString ToString() const
	{
		return ObjectPath.ToString();
	}

	void Reset()
	{
		ObjectPath.Reset();
		Cached.Reset();
	}
	bool IsNull() const
	{
		return ObjectPath.IsNull();
	}
	bool IsValid() const
	{
		return Get() != nullptr;
	}
	/** A path is set but the object is not in memory. */
	bool IsPending() const
	{
		return !IsNull() && Get() == nullptr;
	}
	bool IsStale() const
	{
		return Cached.IsStale();
	}

	bool operator==(const FSoftObjectPtr& Other) const
	{
		return ObjectPath == Other.ObjectPath;
	}

	friend uint32 GetTypeHash(const FSoftObjectPtr& Ptr)
	{
		return GetTypeHash(Ptr.ObjectPath);
	}

private:
	FSoftObjectPath ObjectPath;
	mutable FWeakObjectPtr Cached;
};

template<class T = UObject>
struct TSoftObjectPtr
{
public:
	using ElementType = T;

	TSoftObjectPtr() = default;
	TSoftObjectPtr(std::nullptr_t)
	{
	}
	TSoftObjectPtr(const FSoftObjectPath& Path)
		: SoftObjectPtr(Path)
	{
	}
	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TSoftObjectPtr(U* Object)
		: SoftObjectPtr((const UObject*)static_cast<T*>(Object))
	{
	}
	template<class U, std::enable_if_t<std::is_convertible_v<U*, T*>, int> = 0>
	TSoftObjectPtr(const TObjectPtr<U>& Object)
		: SoftObjectPtr((const UObject*)static_cast<T*>(Object.Get()))
	{
	}

	/** Null as well when the object at the path is not a T. */
	T* Get() const
	{
		return AsT(SoftObjectPtr.Get());
	}
	T* LoadSynchronous() const
	{
		return AsT(SoftObjectPtr.LoadSynchronous());
	}
	T* operator->() const
	{
		return Get();
	}
	T& operator*() const
	{
		return *Get();
	}

	const FSoftObjectPath& ToSoftObjectPath() const
	{
		return SoftObjectPtr.ToSoftObjectPath();
	}
	const FSoftObjectPath& GetUniqueID() const
	{
		return SoftObjectPtr.GetUniqueID();
	}
	FString ToString() const
	{
		return SoftObjectPtr.ToString();
	}
	FString GetAssetName() const
	{
		return ToSoftObjectPath().GetAssetName();
	}
	FString GetLongPackageName() const
	{
		return ToSoftObjectPath().GetLongPackageName();
	}

	void Reset()
	{
		SoftObjectPtr.Reset();
	}
	bool IsNull() const
	{
		return SoftObjectPtr.IsNull();
	}
	bool IsValid() const
	{
		return SoftObjectPtr.IsValid();
	}
	bool IsPending() const
	{
		return SoftObjectPtr.IsPending();
	}
	explicit operator bool() const
	{
		return IsValid();
	}

	bool operator==(const TSoftObjectPtr& Other) const
	{
		return SoftObjectPtr == Other.SoftObjectPtr;
	}

	friend uint32 GetTypeHash(const TSoftObjectPtr& Ptr)
	{
		return GetTypeHash(Ptr.SoftObjectPtr);
	}

private:
	// A template so that UObject need not be complete where this header is included.
	template<class U>
	static T* AsT(U* Object)
	{
		return Object && Object->IsA(T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
	}

	FSoftObjectPtr SoftObjectPtr;
};

template<class T = UObject>
struct TSoftClassPtr
{
public:
	TSoftClassPtr() = default;
	TSoftClassPtr(const FSoftObjectPath& Path)
		: SoftObjectPtr(Path)
	{
	}

	UClass* Get() const
	{
		return (UClass*)SoftObjectPtr.Get();
	}
	UClass* LoadSynchronous() const
	{
		return (UClass*)SoftObjectPtr.LoadSynchronous();
	}
	const FSoftObjectPath& ToSoftObjectPath() const
	{
		return SoftObjectPtr.ToSoftObjectPath();
	}
	bool IsNull() const
	{
		return SoftObjectPtr.IsNull();
	}
	bool IsValid() const
	{
		return SoftObjectPtr.IsValid();
	}
	bool IsPending() const
	{
		return SoftObjectPtr.IsPending();
	}

private:
	FSoftObjectPtr SoftObjectPtr;
};
