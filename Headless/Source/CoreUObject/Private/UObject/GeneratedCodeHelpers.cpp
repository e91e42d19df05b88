#include "UObject/GeneratedCodeHelpers.h"

namespace
{
	// Reflected types live as long as the process, like the modules that declare them.
	template<typename T>
	T* MakeNativeType(UObject* Outer, const TCHAR* Name)
	{
		T* Object = (T*)StaticConstructObject_Internal(T::StaticClass(), Outer, FName(Name), EObjectFlags(RF_Public | RF_Transient | RF_MarkAsNative));
		Object->AddToRoot();
		Object->SetInternalFlags(EInternalObjectFlags::Native);
		return Object;
	}
}

namespace UECodeGen_Private
{
	UPackage* ConstructUPackage(const TCHAR* Name)
	{
		UPackage* Package = CreatePackage(Name);
		Package->SetPackageFlags(EPackageFlags(PKG_CompiledIn | PKG_ContainsScript));
		Package->AddToRoot();
		return Package;
	}

	UScriptStruct* ConstructUScriptStruct(UObject* Outer, const TCHAR* Name, UScriptStruct* Super, ICppStructOps* StructOps, EStructFlags Flags)
	{
		UScriptStruct* Struct = MakeNativeType<UScriptStruct>(Outer, Name);
		Struct->SetSuperStruct(Super);
		Struct->StructFlags = Flags;
		Struct->SetCppStructOps(StructOps);
		return Struct;
	}

	UFunction* ConstructUFunction(UObject* Outer, const TCHAR* Name, UFunction* Super, EFunctionFlags Flags, int32 ParmsSize, bool bDelegateSignature)
	{
		UFunction* Function = bDelegateSignature ? MakeNativeType<UDelegateFunction>(Outer, Name) : MakeNativeType<UFunction>(Outer, Name);
		Function->SetSuperStruct(Super);
		Function->FunctionFlags = Flags;
		Function->PropertiesSize = ParmsSize;
		return Function;
	}

	UEnum* ConstructUEnum(UObject* Outer, const TCHAR* Name, const TCHAR* CppType, ECppForm::Type CppForm, std::initializer_list<std::pair<const TCHAR*, int64>> Entries)
	{
		UEnum* Enum = MakeNativeType<UEnum>(Outer, Name);
		Enum->CppType = FString(CppType);
		TArray<TPair<FName, int64>> Names;
		for (const std::pair<const TCHAR*, int64>& Entry : Entries)
		{
			Names.Add(TPair<FName, int64>(FName(Entry.first), Entry.second));
		}
		Enum->SetEnums(Names, CppForm);
		return Enum;
	}

	void FinishClass(UClass* Class)
	{
		Class->Link();
		Class->ClassFlags = EClassFlags(Class->ClassFlags | CLASS_Constructed);
	}

	void AddFunction(UClass* Class, UFunction* Function)
	{
		Class->AddFunctionToFunctionMap(Function, Function->GetFName());
	}
}
