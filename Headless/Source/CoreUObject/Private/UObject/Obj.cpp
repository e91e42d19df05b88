#include "UObject/Object.h"

#include "UObject/Class.h"
#include "UObject/Stack.h"
#include "UObject/UnrealType.h"

UObject::UObject() = default;

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
}

UObject::~UObject() = default;

void UObject::PostInitProperties()
{
}

void UObject::PostLoad()
{
}

void UObject::BeginDestroy()
{
}

bool UObject::IsReadyForFinishDestroy()
{
	return true;
}

void UObject::FinishDestroy()
{
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	SetFlags(RF_BeginDestroyed);
	BeginDestroy();
	return true;
}

bool UObject::ConditionalFinishDestroy()
{
	if (HasAnyFlags(RF_FinishDestroyed))
	{
		return false;
	}
	SetFlags(RF_FinishDestroyed);
	FinishDestroy();
	return true;
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	check(Function != nullptr);
	// An event nothing implements has neither a native nor a script body: nothing to run.
	if (Function->Func == nullptr)
	{
		return;
	}
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return;
	}
	FFrame Frame(this, Function, Parms, nullptr, Function->ChildProperties);
	uint8* ReturnValueAddress = Function->ReturnValueOffset != 0xffff ? (uint8*)Parms + Function->ReturnValueOffset : nullptr;
	Function->Invoke(this, Frame, ReturnValueAddress);
}

DEFINE_FUNCTION(UObject::ProcessInternal)
{
	// The function's script body is installed as its native pointer by whoever created it; a
	// function reaching here has none.
}

UFunction* UObject::FindFunction(FName InName) const
{
	return GetClass() ? GetClass()->FindFunctionByName(InName) : nullptr;
}

UFunction* UObject::FindFunctionChecked(FName InName) const
{
	UFunction* Result = FindFunction(InName);
	checkf(Result != nullptr, "Failed to find function in object");
	return Result;
}

void UObject::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
}

UWorld* UObject::GetWorld() const
{
	return nullptr;
}

bool IsValidChecked(const UObject* Test)
{
	check(Test);
	return !Test->HasAnyInternalFlags(EInternalObjectFlags::Garbage | EInternalObjectFlags::Unreachable);
}

bool IsValid(const UObject* Test)
{
	return Test != nullptr && IsValidChecked(Test);
}
