#include "UObject/UObjectBaseUtility.h"

#include "ObjectHash.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"

namespace UE::CoreUObject::Private
{
	// Initializers of the objects under construction, innermost last.
	std::vector<FObjectInitializer*>& GetInitializerStack()
	{
		static thread_local std::vector<FObjectInitializer*> Stack;
		return Stack;
	}
}

using UE::CoreUObject::Private::GetInitializerStack;

FObjectInitializer::FObjectInitializer() = default;

FObjectInitializer::FObjectInitializer(UObject* InObj, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags)
	: Obj(InObj)
	, Class(InClass)
	, Outer(InOuter)
	, Name(InName)
	, Flags(InFlags)
	, bPushed(true)
{
	GetInitializerStack().push_back(this);
}

FObjectInitializer::~FObjectInitializer()
{
	if (bPushed)
	{
		std::vector<FObjectInitializer*>& Stack = GetInitializerStack();
		check(!Stack.empty() && Stack.back() == this);
		Stack.pop_back();
	}
}

FObjectInitializer& FObjectInitializer::Get()
{
	std::vector<FObjectInitializer*>& Stack = GetInitializerStack();
	checkf(!Stack.empty(), "FObjectInitializer::Get() called outside of object construction");
	return *Stack.back();
}

UObjectBase::UObjectBase()
{
	std::vector<FObjectInitializer*>& Stack = GetInitializerStack();
	checkf(!Stack.empty() && (void*)Stack.back()->Obj == (void*)this, "Objects are made with NewObject, never directly");
	const FObjectInitializer& Initializer = *Stack.back();
	ObjectFlags = Initializer.Flags;
	ClassPrivate = Initializer.Class;
	NamePrivate = Initializer.Name;
	OuterPrivate = Initializer.Outer;
	GUObjectArray.AllocateUObjectIndex(this);
	FUObjectHashTables::Get().Add(this);
}

UObjectBase::~UObjectBase()
{
	if (InternalIndex != INDEX_NONE)
	{
		FUObjectHashTables::Get().Remove(this);
		GUObjectArray.FreeUObjectIndex(this);
	}
}

bool UObjectBase::IsValidLowLevel() const
{
	return GUObjectArray.IsValidIndex(this) && ClassPrivate != nullptr;
}

void UE_InternalSetObjectClass(UObjectBase* Object, UClass* Class)
{
	Object->ClassPrivate = Class;
}

void UE_InternalSetObjectOuter(UObjectBase* Object, UObject* Outer)
{
	Object->OuterPrivate = Outer;
}

EInternalObjectFlags UObjectBaseUtility::GetInternalFlags() const
{
	const FUObjectItem* Item = GUObjectArray.IndexToObject(GetUniqueID());
	return Item ? EInternalObjectFlags(Item->Flags) : EInternalObjectFlags::None;
}

bool UObjectBaseUtility::HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const
{
	return (int32(GetInternalFlags()) & int32(FlagsToCheck)) != 0;
}

void UObjectBaseUtility::SetInternalFlags(EInternalObjectFlags FlagsToSet) const
{
	GUObjectArray.IndexToObject(GetUniqueID())->SetFlags(FlagsToSet);
}

void UObjectBaseUtility::ClearInternalFlags(EInternalObjectFlags FlagsToClear) const
{
	GUObjectArray.IndexToObject(GetUniqueID())->ClearFlags(FlagsToClear);
}

void UObjectBaseUtility::AddToRoot()
{
	SetInternalFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::RemoveFromRoot()
{
	ClearInternalFlags(EInternalObjectFlags::RootSet);
}

bool UObjectBaseUtility::IsRooted() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::MarkAsGarbage()
{
	checkf(!IsRooted(), "Objects in the root set cannot be marked as garbage");
	SetInternalFlags(EInternalObjectFlags::Garbage);
}

void UObjectBaseUtility::ClearGarbage()
{
	ClearInternalFlags(EInternalObjectFlags::Garbage);
}

bool UObjectBaseUtility::IsUnreachable() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::Unreachable);
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObject* Test = (const UObject*)this; Test; Test = Test->GetOuter())
	{
		if (Test->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

FString UObjectBaseUtility::GetName() const
{
	return GetFName().ToString();
}

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	if (this == (const UObjectBaseUtility*)StopOuter)
	{
		return FString(TEXT("None"));
	}
	FString Result;
	const UObject* Outer = GetOuter();
	if (Outer && Outer != StopOuter)
	{
		Result = Outer->GetPathName(StopOuter);
		// Subobjects of an asset are separated by ':' as the engine writes them.
		const UObject* OuterOuter = Outer->GetOuter();
		const bool bSubobjectDelimiter = !Outer->IsA(UPackage::StaticClass()) && OuterOuter && OuterOuter->IsA(UPackage::StaticClass());
		Result += bSubobjectDelimiter ? TEXT(":") : TEXT(".");
	}
	Result += GetName();
	return Result;
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	FString Result = GetClass() ? GetClass()->GetName() : FString(TEXT("None"));
	Result += TEXT(" ");
	Result += GetPathName(StopOuter);
	return Result;
}

UPackage* UObjectBaseUtility::GetOutermost() const
{
	const UObject* Top = (const UObject*)this;
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return (UPackage*)Top;
}

UPackage* UObjectBaseUtility::GetPackage() const
{
	return GetOutermost();
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return false;
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	return SomeBase && GetClass() && GetClass()->IsChildOf(SomeBase);
}

UObject* UObjectBaseUtility::GetTypedOuter(UClass* Target) const
{
	for (UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}
