#include "UObject/UObjectGlobals.h"

#include "ObjectHash.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"

#include <string>
#include <unordered_map>

namespace
{
	std::u16string ToLower(const TCHAR* Text)
	{
		std::u16string Result;
		for (; *Text; ++Text)
		{
			const TCHAR Char = *Text;
			Result.push_back(Char >= u'A' && Char <= u'Z' ? TCHAR(Char - u'A' + u'a') : Char);
		}
		return Result;
	}

	bool MatchesClass(const UObject* Object, const UClass* Class, bool bExactClass)
	{
		if (Class == nullptr)
		{
			return true;
		}
		return bExactClass ? Object->GetClass() == Class : Object->IsA(Class);
	}

	// The last name of a path: what follows the last '.' or ':'.
	const TCHAR* LastPathSegment(const TCHAR* Path)
	{
		const TCHAR* Result = Path;
		for (const TCHAR* Char = Path; *Char; ++Char)
		{
			if (*Char == u'.' || *Char == u':')
			{
				Result = Char + 1;
			}
		}
		return Result;
	}
}

UObject* StaticConstructObject_Internal(UClass* Class, UObject* InOuter, FName Name, EObjectFlags SetFlags)
{
	check(Class != nullptr);
	checkf(Class->ClassConstructor != nullptr, "Class has no constructor");
	checkf(!Class->HasAnyClassFlags(CLASS_Abstract) || (SetFlags & RF_ClassDefaultObject) != 0, "Cannot create an object of an abstract class");
	if (InOuter == nullptr && !Class->IsChildOf(UPackage::StaticClass()))
	{
		InOuter = (UObject*)GetTransientPackage();
	}
	if (Name.IsNone())
	{
		Name = MakeUniqueObjectName(InOuter, Class);
	}
	checkf(StaticFindObjectFast(nullptr, InOuter, Name, false) == nullptr, "An object with this name already exists in this outer");

	const int32 Size = Class->GetPropertiesSize();
	const int32 Alignment = Class->GetMinAlignment();
	void* Memory = FMemory::Malloc(SIZE_T(Size), uint32(Alignment));
	FMemory::Memzero(Memory, SIZE_T(Size));
	UObject* Object = (UObject*)Memory;
	{
		FObjectInitializer Initializer(Object, Class, InOuter, Name, SetFlags);
		Class->ClassConstructor(Initializer);
	}
	Object->PostInitProperties();
	return Object;
}

FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName InBaseName)
{
	const FString Base = InBaseName.IsNone() ? Class->GetName() : InBaseName.ToString();
	static std::unordered_map<std::u16string, int32> NextNumbers;
	int32& Next = NextNumbers[ToLower(*Base)];
	for (;;)
	{
		const FName Candidate(*Base, Next + 1);
		++Next;
		if (StaticFindObjectFast(nullptr, Parent, Candidate, false) == nullptr)
		{
			return Candidate;
		}
	}
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool bExactClass)
{
	const std::vector<UObjectBase*>* Bucket = FUObjectHashTables::Get().Find(InName);
	if (Bucket == nullptr)
	{
		return nullptr;
	}
	for (UObjectBase* Base : *Bucket)
	{
		UObject* Object = (UObject*)Base;
		if (Object->GetOuter() == InOuter && Object->GetFName() == InName && MatchesClass(Object, Class, bExactClass))
		{
			return Object;
		}
	}
	return nullptr;
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool bExactClass)
{
	check(Name != nullptr);
	if (InOuter != nullptr)
	{
		return StaticFindObjectFast(Class, InOuter, FName(Name), bExactClass);
	}
	const FString Path(Name);
	const FName LastName(LastPathSegment(Name));
	const std::vector<UObjectBase*>* Bucket = FUObjectHashTables::Get().Find(LastName);
	if (Bucket == nullptr)
	{
		return nullptr;
	}
	for (UObjectBase* Base : *Bucket)
	{
		UObject* Object = (UObject*)Base;
		if (!MatchesClass(Object, Class, bExactClass))
		{
			continue;
		}
		// A bare name finds a top-level object; a path must match the whole path.
		const FString ObjectPath = Object->GetPathName();
		if (ObjectPath.Equals(Path, ESearchCase::IgnoreCase))
		{
			return Object;
		}
		// Paths written with '.' where the engine writes ':' still resolve.
		FString Relaxed = ObjectPath;
		for (int32 Index = 0; Index < Relaxed.Len(); ++Index)
		{
			if (Relaxed[Index] == u':')
			{
				Relaxed[Index] = u'.';
			}
		}
		if (Relaxed.Equals(Path, ESearchCase::IgnoreCase))
		{
			return Object;
		}
	}
	return nullptr;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	if (UPackage* Existing = (UPackage*)StaticFindObjectFast(UPackage::StaticClass(), nullptr, FName(PackageName), false))
	{
		return Existing;
	}
	UPackage* Package = (UPackage*)StaticConstructObject_Internal(UPackage::StaticClass(), nullptr, FName(PackageName), RF_Public);
	return Package;
}

UPackage* GetTransientPackage()
{
	static UPackage* TransientPackage = nullptr;
	if (TransientPackage == nullptr)
	{
		TransientPackage = CreatePackage(TEXT("/Engine/Transient"));
		TransientPackage->SetFlags(RF_Transient);
		TransientPackage->AddToRoot();
	}
	return TransientPackage;
}
