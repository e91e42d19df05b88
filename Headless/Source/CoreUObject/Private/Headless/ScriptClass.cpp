#include "Headless/ScriptClass.h"

#include "UObject/Package.h"
#include "UObject/Stack.h"
#include "UObject/UObjectGlobals.h"

#include <unordered_map>

namespace
{
	std::unordered_map<const UFunction*, UE::Headless::FScriptEventBody>& ScriptBodies()
	{
		static std::unordered_map<const UFunction*, UE::Headless::FScriptEventBody> Bodies;
		return Bodies;
	}

	// The "bytecode interpreter" of a script event: runs the body installed for the frame's function.
	void ExecScriptBody(UObject* Context, FFrame& Stack, RESULT_DECL)
	{
		auto Found = ScriptBodies().find(Stack.Node);
		if (Found != ScriptBodies().end() && Found->second)
		{
			Found->second(Context, Stack.Locals);
		}
	}
}

namespace UE::Headless
{
	UClass* CreateScriptClass(UClass* NativeParent, const TCHAR* Name)
	{
		check(NativeParent != nullptr);
		UClass* Class = NewObject<UClass>(GetTransientPackage(), UClass::StaticClass(), FName(Name), EObjectFlags(RF_Public | RF_Transient));
		Class->AddToRoot();
		Class->SetSuperStruct(NativeParent);
		Class->PropertiesSize = NativeParent->PropertiesSize;
		Class->MinAlignment = NativeParent->MinAlignment;
		Class->ClassFlags = EClassFlags((NativeParent->ClassFlags & ~(CLASS_Native | CLASS_Abstract | CLASS_Intrinsic)) | CLASS_CompiledFromBlueprint | CLASS_Constructed);
		Class->ClassCastFlags = NativeParent->ClassCastFlags;
		Class->ClassWithin = NativeParent->ClassWithin;
		Class->ClassConfigName = NativeParent->ClassConfigName;
		Class->ClassConstructor = NativeParent->ClassConstructor;
		Class->ClassAddReferencedObjects = NativeParent->ClassAddReferencedObjects;
		Class->Link();
		return Class;
	}

	UFunction* ImplementScriptEvent(UClass* ScriptClass, FName EventName, FScriptEventBody Body)
	{
		check(ScriptClass != nullptr && ScriptClass->GetSuperClass() != nullptr);
		UFunction* Declared = ScriptClass->GetSuperClass()->FindFunctionByName(EventName);
		checkf(Declared != nullptr && Declared->HasAnyFunctionFlags(FUNC_Event), "Only events a native class declares can be implemented");
		UFunction* Function = ScriptClass->FindFunctionByName(EventName, EIncludeSuperFlag::ExcludeSuper);
		if (Function == nullptr)
		{
			Function = NewObject<UFunction>(ScriptClass, UFunction::StaticClass(), EventName, EObjectFlags(RF_Public | RF_Transient));
			// The parameters are the declaration's: the implementation reads them through its super function.
			Function->SetSuperStruct(Declared);
			Function->FunctionFlags = EFunctionFlags(Declared->FunctionFlags & ~FUNC_Native);
			Function->NumParms = Declared->NumParms;
			Function->ParmsSize = Declared->ParmsSize;
			Function->PropertiesSize = Declared->PropertiesSize;
			Function->ReturnValueOffset = Declared->ReturnValueOffset;
			Function->SetNativeFunc(&ExecScriptBody);
			ScriptClass->AddFunctionToFunctionMap(Function, EventName);
		}
		ScriptBodies()[Function] = MoveTemp(Body);
		return Function;
	}
}
