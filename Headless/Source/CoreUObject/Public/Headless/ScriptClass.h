// Headless stand-in for Blueprint classes: a class made at run time that derives from a native
// class and implements some of its events with C++ callables. Objects of it are made with
// NewObject; FindFunction finds the script implementation before the native declaration, and
// events it leaves alone still do nothing.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

namespace UE::Headless
{
	/** The body of a script event: the object and the event's parameter block. */
	using FScriptEventBody = TFunction<void(UObject* Self, void* Parms)>;

	/** A new class named Name deriving from NativeParent, kept alive for the rest of the process. */
	COREUOBJECT_API UClass* CreateScriptClass(UClass* NativeParent, const TCHAR* Name);

	/** Implements the event EventName (declared by a native super class) in ScriptClass. */
	COREUOBJECT_API UFunction* ImplementScriptEvent(UClass* ScriptClass, FName EventName, FScriptEventBody Body);

	/** Same, with the parameter block typed as the event's generated Parms layout (or a struct matching it). */
	template<typename TParms>
	UFunction* ImplementScriptEvent(UClass* ScriptClass, FName EventName, TFunction<void(UObject* Self, TParms& Parms)> Body)
	{
		return ImplementScriptEvent(ScriptClass, EventName, FScriptEventBody([Body = MoveTemp(Body)](UObject* Self, void* Parms)
		{
			Body(Self, *(TParms*)Parms);
		}));
	}
}
