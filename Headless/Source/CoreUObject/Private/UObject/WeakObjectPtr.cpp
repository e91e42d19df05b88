#include "UObject/WeakObjectPtr.h"

#include "UObject/Object.h"
#include "UObject/UObjectArray.h"

void FWeakObjectPtr::operator=(const UObject* Object)
{
	if (Object == nullptr)
	{
		Reset();
		return;
	}
	ObjectIndex = GUObjectArray.ObjectToIndex(Object);
	ObjectSerialNumber = GUObjectArray.AllocateSerialNumber(ObjectIndex);
}

UObject* FWeakObjectPtr::Internal_Get(bool bEvenIfGarbage) const
{
	if (ObjectSerialNumber == 0)
	{
		return nullptr;
	}
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	if (Item == nullptr || Item->Object == nullptr || Item->SerialNumber != ObjectSerialNumber)
	{
		return nullptr;
	}
	if (!bEvenIfGarbage && (Item->IsGarbage() || Item->IsUnreachable()))
	{
		return nullptr;
	}
	return (UObject*)Item->Object;
}

UObject* FWeakObjectPtr::Get(bool bEvenIfGarbage) const
{
	return Internal_Get(bEvenIfGarbage);
}

UObject* FWeakObjectPtr::Get() const
{
	return Internal_Get(false);
}

UObject* FWeakObjectPtr::GetEvenIfUnreachable() const
{
	return Internal_Get(true);
}

bool FWeakObjectPtr::IsValid(bool bEvenIfGarbage, bool bThreadsafeTest) const
{
	return Internal_Get(bEvenIfGarbage) != nullptr;
}

bool FWeakObjectPtr::IsValid() const
{
	return Internal_Get(false) != nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingGarbage, bool bThreadsafeTest) const
{
	if (ObjectSerialNumber == 0)
	{
		return false;
	}
	return Internal_Get(!bIncludingGarbage) == nullptr;
}

bool FWeakObjectPtr::operator==(const FWeakObjectPtr& Other) const
{
	// Two pointers to objects that are gone compare equal, as the engine's do.
	return HasSameIndexAndSerialNumber(Other) || (!IsValid(true) && !Other.IsValid(true));
}
