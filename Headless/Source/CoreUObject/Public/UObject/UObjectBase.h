// The low-level part of every object: its class, name, outer, flags and slot in the object array.
#pragma once

#include "CoreTypes.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class COREUOBJECT_API UObjectBase
{
	friend class UObjectBaseUtility;
	friend class FUObjectArray;
	friend struct FUObjectAllocator;
	friend COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge);

protected:
	// Takes class, name, outer and flags from the initializer NewObject pushed for this allocation.
	UObjectBase();

public:
	virtual ~UObjectBase();

	UClass* GetClass() const
	{
		return ClassPrivate;
	}

	UObject* GetOuter() const
	{
		return OuterPrivate;
	}

	FName GetFName() const
	{
		return NamePrivate;
	}

	int32 GetUniqueID() const
	{
		return InternalIndex;
	}

	EObjectFlags GetFlags() const
	{
		return ObjectFlags;
	}

	void SetFlagsTo(EObjectFlags NewFlags)
	{
		ObjectFlags = NewFlags;
	}

	bool IsValidLowLevel() const;

private:
	EObjectFlags ObjectFlags = RF_NoFlags;
	int32 InternalIndex = INDEX_NONE;
	UClass* ClassPrivate = nullptr;
	FName NamePrivate;
	UObject* OuterPrivate = nullptr;

	// Class objects of the intrinsic types exist before their own class does.
	friend COREUOBJECT_API void UE_InternalSetObjectClass(UObjectBase* Object, UClass* Class);
	friend COREUOBJECT_API void UE_InternalSetObjectOuter(UObjectBase* Object, UObject* Outer);
};

COREUOBJECT_API void UE_InternalSetObjectClass(UObjectBase* Object, UClass* Class);
COREUOBJECT_API void UE_InternalSetObjectOuter(UObjectBase* Object, UObject* Outer);
