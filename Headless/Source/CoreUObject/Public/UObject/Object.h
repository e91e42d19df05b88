// UObject: the base of every reflected class.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectBaseUtility.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "UObject/ScriptDelegates.h"
#include "UObject/ScriptDelegateMacros.h"

class UWorld;

class COREUOBJECT_API UObject : public UObjectBaseUtility
{
	DECLARE_CLASS(UObject, UObject, CLASS_Intrinsic | CLASS_MatchedSerializers, CASTCLASS_None, TEXT("/Script/CoreUObject"), COREUOBJECT_API)
	typedef UObject WithinClass;
	static void StaticRegisterNativesUObject()
	{
	}

public:
	UObject();
	UObject(const FObjectInitializer& ObjectInitializer);
	virtual ~UObject();

	/** Called after the C++ constructor, once the object's properties hold their initial values. */
	virtual void PostInitProperties();
	virtual void PostLoad();

	/** First step of destruction; the object must release what it holds on others. */
	virtual void BeginDestroy();
	virtual bool IsReadyForFinishDestroy();
	/** Last step before the destructor. */
	virtual void FinishDestroy();

	bool ConditionalBeginDestroy();
	bool ConditionalFinishDestroy();

	/** Runs a reflected function on this object with a parameter block laid out as the function's parameters. */
	virtual void ProcessEvent(UFunction* Function, void* Parms);

	UFunction* FindFunction(FName InName) const;
	UFunction* FindFunctionChecked(FName InName) const;

	/** Reports references the reflected properties do not describe. Overrides call Super's. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	virtual UWorld* GetWorld() const;

	/** Script functions that have no native body run through this thunk. */
	DECLARE_FUNCTION(ProcessInternal);
};

COREUOBJECT_API UClass* Z_Construct_UClass_UObject_NoRegister();

/** True when the pointer is set and the object is neither garbage nor unreachable. */
COREUOBJECT_API bool IsValid(const UObject* Test);
COREUOBJECT_API bool IsValidChecked(const UObject* Test);

// Class.h includes this header first and UClass-dependent helpers after its own definitions, so
// both orders of inclusion work.
#include "UObject/Class.h"
