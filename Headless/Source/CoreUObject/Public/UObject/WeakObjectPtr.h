// FWeakObjectPtr: names an object by slot and serial number, so it resolves to null once the object is gone.
#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"
#include "UObject/ObjectMacros.h"

class UObject;

struct COREUOBJECT_API FWeakObjectPtr
{
public:
	FWeakObjectPtr() = default;
	FWeakObjectPtr(std::nullptr_t)
	{
	}
	FWeakObjectPtr(const UObject* Object)
	{
		(*this) = Object;
	}

	void operator=(const UObject* Object);
	FWeakObjectPtr(const FWeakObjectPtr&) = default;
	FWeakObjectPtr& operator=(const FWeakObjectPtr&) = default;

	void Reset()
	{
		ObjectIndex = INDEX_NONE;
		ObjectSerialNumber = 0;
	}

	/** The object, or null once it has been destroyed (or, unless bEvenIfGarbage, marked as garbage). */
	UObject* Get(bool bEvenIfGarbage) const;
	UObject* Get() const;
	UObject* GetEvenIfUnreachable() const;

	bool IsValid(bool bEvenIfGarbage, bool bThreadsafeTest = false) const;
	bool IsValid() const;

	/** True when this once named an object that no longer exists. */
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const;

	bool IsExplicitlyNull() const
	{
		return ObjectIndex == INDEX_NONE && ObjectSerialNumber == 0;
	}

	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}

	bool operator==(const FWeakObjectPtr& Other) const;
	bool operator!=(const FWeakObjectPtr& Other) const
	{
		return !(*this == Other);
	}

	friend uint32 GetTypeHash(const FWeakObjectPtr& WeakObjectPtr)
	{
		return uint32(WeakObjectPtr.ObjectIndex) ^ uint32(WeakObjectPtr.ObjectSerialNumber);
	}

	int32 GetObjectIndex() const
	{
		return ObjectIndex;
	}
	int32 GetObjectSerialNumber() const
	{
		return ObjectSerialNumber;
	}

private:
	UObject* Internal_Get(bool bEvenIfGarbage) const;

	int32 ObjectIndex = INDEX_NONE;
	int32 ObjectSerialNumber = 0;
};
