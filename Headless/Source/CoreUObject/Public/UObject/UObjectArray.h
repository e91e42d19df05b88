// Every live object has a slot here; weak pointers name an object by slot index and serial number.
#pragma once

#include "CoreTypes.h"
#include "UObject/ObjectMacros.h"

#include <vector>

class UObjectBase;

struct FUObjectItem
{
	UObjectBase* Object = nullptr;
	int32 Flags = 0;
	int32 SerialNumber = 0;

	bool HasAnyFlags(EInternalObjectFlags InFlags) const
	{
		return (Flags & int32(InFlags)) != 0;
	}

	void SetFlags(EInternalObjectFlags InFlags)
	{
		Flags |= int32(InFlags);
	}

	void ClearFlags(EInternalObjectFlags InFlags)
	{
		Flags &= ~int32(InFlags);
	}

	bool IsGarbage() const
	{
		return HasAnyFlags(EInternalObjectFlags::Garbage);
	}

	bool IsUnreachable() const
	{
		return HasAnyFlags(EInternalObjectFlags::Unreachable);
	}

	bool IsRootSet() const
	{
		return HasAnyFlags(EInternalObjectFlags::RootSet);
	}

	int32 GetSerialNumber() const
	{
		return SerialNumber;
	}
};

class COREUOBJECT_API FUObjectArray
{
public:
	FUObjectArray() = default;
	~FUObjectArray();

	int32 ObjectToIndex(const UObjectBase* Object) const;

	FUObjectItem* IndexToObject(int32 Index);
	const FUObjectItem* IndexToObject(int32 Index) const;
	FUObjectItem* ObjectToObjectItem(const UObjectBase* Object);

	bool IsValidIndex(const UObjectBase* Object) const;

	/** Slots ever used, live or free. */
	int32 GetObjectArrayNum() const
	{
		return int32(Objects.size());
	}

	/** Objects alive now. */
	int32 GetObjectArrayNumMinusAvailable() const
	{
		return int32(Objects.size() - FreeIndices.size());
	}

	// Serial numbers are never reused, so a weak pointer to a freed slot can't see its next occupant.
	int32 AllocateSerialNumber(int32 Index);
	int32 GetSerialNumber(int32 Index) const;

	void AllocateUObjectIndex(UObjectBase* Object);
	void FreeUObjectIndex(UObjectBase* Object);

private:
	std::vector<FUObjectItem> Objects;
	std::vector<int32> FreeIndices;
	int32 NextSerialNumber = 1;
};

extern COREUOBJECT_API FUObjectArray GUObjectArray;
