// Flag, root-set, garbage and naming helpers shared by every object.
#pragma once

#include "Containers/UnrealString.h"
#include "UObject/UObjectBase.h"

class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
public:
	void SetFlags(EObjectFlags NewFlags)
	{
		SetFlagsTo(EObjectFlags(GetFlags() | NewFlags));
	}

	void ClearFlags(EObjectFlags FlagsToClear)
	{
		SetFlagsTo(EObjectFlags(GetFlags() & ~FlagsToClear));
	}

	bool HasAnyFlags(EObjectFlags FlagsToCheck) const
	{
		return (GetFlags() & FlagsToCheck) != 0;
	}

	bool HasAllFlags(EObjectFlags FlagsToCheck) const
	{
		return (GetFlags() & FlagsToCheck) == FlagsToCheck;
	}

	EInternalObjectFlags GetInternalFlags() const;
	bool HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const;
	void SetInternalFlags(EInternalObjectFlags FlagsToSet) const;
	void ClearInternalFlags(EInternalObjectFlags FlagsToClear) const;

	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;

	// Garbage objects are destroyed by the next collection even when still referenced; strong
	// references to them are cleared.
	void MarkAsGarbage();
	void ClearGarbage();
	bool IsUnreachable() const;

	bool IsTemplate(EObjectFlags TemplateTypes = EObjectFlags(RF_ArchetypeObject | RF_ClassDefaultObject)) const;

	FString GetName() const;
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	FString GetFullName(const UObject* StopOuter = nullptr) const;
	UPackage* GetOutermost() const;
	UPackage* GetPackage() const;
	bool IsIn(const UObject* SomeOuter) const;

	bool IsA(const UClass* SomeBase) const;

	template<class T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	UObject* GetTypedOuter(UClass* Target) const;

	template<typename T>
	T* GetTypedOuter() const
	{
		return (T*)GetTypedOuter(T::StaticClass());
	}
};
