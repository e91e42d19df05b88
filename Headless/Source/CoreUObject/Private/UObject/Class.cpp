#include "UObject/Class.h"

#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

// UField

UClass* UField::GetOwnerClass() const
{
	for (const UObject* Obj = this; Obj; Obj = Obj->GetOuter())
	{
		if (Obj->IsA(UClass::StaticClass()))
		{
			return (UClass*)Obj;
		}
	}
	return nullptr;
}

UStruct* UField::GetOwnerStruct() const
{
	for (const UObject* Obj = this; Obj; Obj = Obj->GetOuter())
	{
		if (Obj->IsA(UStruct::StaticClass()))
		{
			return (UStruct*)Obj;
		}
	}
	return nullptr;
}

bool UField::HasMetaData(const TCHAR* Key) const
{
	return MetaData.Find(FName(Key)) != nullptr;
}

bool UField::HasMetaData(const FName& Key) const
{
	return MetaData.Find(Key) != nullptr;
}

const FString& UField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key));
}

const FString& UField::GetMetaData(const FName& Key) const
{
	const FString* Found = MetaData.Find(Key);
	return Found ? *Found : FMetaDataMap::Empty();
}

const FString* UField::FindMetaData(const TCHAR* Key) const
{
	return MetaData.Find(FName(Key));
}

const FString* UField::FindMetaData(const FName& Key) const
{
	return MetaData.Find(Key);
}

void UField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	MetaData.Set(FName(Key), FString(InValue));
}

void UField::SetMetaData(const FName& Key, const FString& InValue)
{
	MetaData.Set(Key, InValue);
}

void UField::RemoveMetaData(const TCHAR* Key)
{
	MetaData.Remove(FName(Key));
}

bool UField::GetBoolMetaData(const TCHAR* Key) const
{
	return GetMetaData(Key).Equals(FString(TEXT("true")), ESearchCase::IgnoreCase);
}

FText UField::GetDisplayNameText() const
{
	const FString* DisplayName = FindMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName ? *DisplayName : GetName());
}

FText UField::GetToolTipText(bool bShortTooltip) const
{
	const FString* Found = bShortTooltip ? FindMetaData(TEXT("ShortTooltip")) : nullptr;
	if (Found == nullptr)
	{
		Found = FindMetaData(TEXT("ToolTip"));
	}
	return FText::FromString(Found ? *Found : FString());
}

// UStruct

UStruct::~UStruct()
{
	for (FField* Field = ChildProperties; Field;)
	{
		FField* Next = Field->Next;
		delete Field;
		Field = Next;
	}
	ChildProperties = nullptr;
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	if (SomeBase == nullptr)
	{
		return false;
	}
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		if (Struct == SomeBase)
		{
			return true;
		}
	}
	return false;
}

void UStruct::AddCppProperty(FProperty* Property)
{
	check(Property && Property->Next == nullptr);
	FField** Tail = &ChildProperties;
	while (*Tail)
	{
		Tail = &(*Tail)->Next;
	}
	*Tail = Property;
}

void UStruct::Link()
{
	FProperty* Previous = nullptr;
	PropertyLink = nullptr;
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* Property = CastField<FProperty>(Field);
		if (Property == nullptr)
		{
			continue;
		}
		if (Previous)
		{
			Previous->PropertyLinkNext = Property;
		}
		else
		{
			PropertyLink = Property;
		}
		Previous = Property;
		MinAlignment = std::max(MinAlignment, Property->GetMinAlignment());
	}
	FProperty* SuperLink = SuperStruct ? SuperStruct->PropertyLink : nullptr;
	if (Previous)
	{
		Previous->PropertyLinkNext = SuperLink;
	}
	else
	{
		PropertyLink = SuperLink;
	}
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (It->GetFName() == InName)
		{
			return *It;
		}
	}
	return nullptr;
}

void UStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	uint8* Data = (uint8*)Dest;
	FMemory::Memzero(Data, SIZE_T(PropertiesSize) * ArrayDim);
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (TFieldIterator<FProperty> It(this); It; ++It)
		{
			It->InitializeValue_InContainer(Data + Index * PropertiesSize);
		}
	}
}

void UStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	uint8* Data = (uint8*)Dest;
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (TFieldIterator<FProperty> It(this); It; ++It)
		{
			It->DestroyValue_InContainer(Data + Index * PropertiesSize);
		}
	}
}

void UStruct::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UStruct* This = (UStruct*)InThis;
	Collector.AddReferencedObject(This->SuperStruct, This);
	for (UField* Child = This->Children; Child; Child = Child->Next)
	{
		UObject* ChildObject = Child;
		Collector.AddReferencedObject(ChildObject, This);
	}
	UObject::AddReferencedObjects(InThis, Collector);
}

// UScriptStruct

UScriptStruct::~UScriptStruct()
{
	delete CppStructOps;
}

void UScriptStruct::SetCppStructOps(ICppStructOps* InCppStructOps)
{
	delete CppStructOps;
	CppStructOps = InCppStructOps;
	if (CppStructOps)
	{
		StructFlags = EStructFlags(StructFlags | STRUCT_Native);
		PropertiesSize = CppStructOps->GetSize();
		MinAlignment = CppStructOps->GetAlignment();
	}
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	if (CppStructOps == nullptr)
	{
		UStruct::InitializeStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Construct((uint8*)Dest + Index * PropertiesSize);
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	if (CppStructOps == nullptr)
	{
		UStruct::DestroyStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Destruct((uint8*)Dest + Index * PropertiesSize);
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim) const
{
	if (CppStructOps && CppStructOps->Copy(Dest, Src, ArrayDim))
	{
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (TFieldIterator<FProperty> It(this); It; ++It)
		{
			It->CopyCompleteValue_InContainer((uint8*)Dest + Index * PropertiesSize, (const uint8*)Src + Index * PropertiesSize);
		}
	}
}

void UScriptStruct::ClearScriptStruct(void* Dest, int32 ArrayDim) const
{
	DestroyStruct(Dest, ArrayDim);
	InitializeStruct(Dest, ArrayDim);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	bool bResult = false;
	if (CppStructOps && CppStructOps->HasIdentical() && CppStructOps->Identical(A, B, PortFlags, bResult))
	{
		return bResult;
	}
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			if (!It->Identical_InContainer(A, B, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

FString UScriptStruct::GetStructCPPName() const
{
	FString Result(TEXT("F"));
	Result += GetName();
	return Result;
}

// UFunction

void UFunction::Invoke(UObject* Obj, FFrame& Stack, RESULT_DECL)
{
	check(Func != nullptr);
	(*Func)(Obj, Stack, RESULT_PARAM);
}

FProperty* UFunction::GetReturnProperty() const
{
	for (TFieldIterator<FProperty> It(this, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return *It;
		}
	}
	return nullptr;
}

UClass* UFunction::GetOuterUClass() const
{
	return Cast<UClass>(GetOuter());
}

void UFunction::Link()
{
	UStruct::Link();
	NumParms = 0;
	ReturnValueOffset = 0xffff;
	int32 End = 0;
	for (TFieldIterator<FProperty> It(this, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Parm))
		{
			++NumParms;
		}
		if (It->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			ReturnValueOffset = uint16(It->GetOffset_ForUFunction());
		}
		End = std::max(End, It->GetOffset_ForUFunction() + It->GetSize());
	}
	if (PropertiesSize < End)
	{
		PropertiesSize = End;
	}
	ParmsSize = uint16(PropertiesSize);
}

// UClass

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (ClassDefaultObject == nullptr && bCreateIfNeeded && !bMakingDefaultObject)
	{
		if (UClass* SuperClass = GetSuperClass())
		{
			SuperClass->GetDefaultObject();
		}
		bMakingDefaultObject = true;
		FString DefaultName(TEXT("Default__"));
		DefaultName += GetName();
		UClass* MutableThis = const_cast<UClass*>(this);
		MutableThis->ClassDefaultObject = StaticConstructObject_Internal(MutableThis, GetOuter(), FName(*DefaultName), EObjectFlags(RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject));
		bMakingDefaultObject = false;
	}
	return ClassDefaultObject;
}

UFunction* UClass::FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper) const
{
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		for (UField* Child = Class->Children; Child; Child = Child->Next)
		{
			if (Child->GetFName() == InName && Child->IsA(UFunction::StaticClass()))
			{
				return (UFunction*)Child;
			}
		}
		if (IncludeSuper == EIncludeSuperFlag::ExcludeSuper)
		{
			break;
		}
	}
	return nullptr;
}

void UClass::AddFunctionToFunctionMap(UFunction* Function, FName FuncName)
{
	check(Function && Function->Next == nullptr);
	UField** Tail = &Children;
	while (*Tail)
	{
		Tail = &(*Tail)->Next;
	}
	*Tail = Function;
	if (Function->HasAnyFunctionFlags(FUNC_Native) && Function->Func == nullptr)
	{
		for (const std::pair<FName, FNativeFuncPtr>& Entry : NativeFunctionLookupTable)
		{
			if (Entry.first == FuncName)
			{
				Function->Func = Entry.second;
				break;
			}
		}
	}
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UClass* This = (UClass*)InThis;
	Collector.AddReferencedObject(This->ClassDefaultObject, This);
	Collector.AddReferencedObject(This->ClassWithin, This);
	UStruct::AddReferencedObjects(InThis, Collector);
}

// FNativeFunctionRegistrar

void FNativeFunctionRegistrar::RegisterFunction(UClass* Class, const char* InName, FNativeFuncPtr InPointer)
{
	Class->NativeFunctionLookupTable.emplace_back(FName(InName), InPointer);
}

void FNativeFunctionRegistrar::RegisterFunctions(UClass* Class, const FNameNativePtrPair* InArray, int32 NumFunctions)
{
	for (int32 Index = 0; Index < NumFunctions; ++Index)
	{
		RegisterFunction(Class, InArray[Index].NameUTF8, InArray[Index].Pointer);
	}
}

// Class shells

void GetPrivateStaticClassBody(
	const TCHAR* PackageName,
	const TCHAR* Name,
	UClass*& ReturnClass,
	void (*RegisterNativeFunc)(),
	uint32 InSize,
	uint32 InAlignment,
	EClassFlags InClassFlags,
	EClassCastFlags InClassCastFlags,
	const TCHAR* InConfigName,
	FClassConstructorType InClassConstructor,
	FClassAddReferencedObjectsType InClassAddReferencedObjects,
	FStaticClassFn InSuperClassFn,
	FStaticClassFn InWithinClassFn)
{
	// The shell exists, sized and constructible, before anything it refers to: supers, the class
	// UClass and the package all reach back here while they are being made.
	void* Memory = FMemory::Malloc(sizeof(UClass), alignof(UClass));
	FMemory::Memzero(Memory, sizeof(UClass));
	{
		FObjectInitializer Initializer((UObject*)Memory, nullptr, nullptr, FName(Name), EObjectFlags(RF_Public | RF_Standalone | RF_Transient | RF_MarkAsNative | RF_MarkAsRootSet));
		::new ((EInternal*)Memory) UClass();
	}
	UClass* Class = (UClass*)Memory;
	ReturnClass = Class;
	Class->AddToRoot();
	Class->SetInternalFlags(EInternalObjectFlags::Native);
	Class->PropertiesSize = int32(InSize);
	Class->MinAlignment = int32(InAlignment);
	Class->ClassFlags = EClassFlags(InClassFlags | CLASS_Native);
	Class->ClassCastFlags = InClassCastFlags;
	Class->ClassConstructor = InClassConstructor;
	Class->ClassAddReferencedObjects = InClassAddReferencedObjects;

	UClass* SuperClass = InSuperClassFn ? InSuperClassFn() : nullptr;
	if (SuperClass != Class)
	{
		Class->SetSuperStruct(SuperClass);
		if (SuperClass)
		{
			constexpr uint32 InheritedFlags = CLASS_Transient | CLASS_Optional | CLASS_DefaultConfig | CLASS_Config | CLASS_PerObjectConfig
				| CLASS_ConfigDoNotCheckDefaults | CLASS_NotPlaceable | CLASS_Const | CLASS_HasInstancedReference | CLASS_Deprecated
				| CLASS_DefaultToInstanced | CLASS_GlobalUserConfig | CLASS_ProjectUserConfig;
			Class->ClassFlags = EClassFlags(Class->ClassFlags | (SuperClass->ClassFlags & InheritedFlags));
		}
	}
	Class->ClassWithin = InWithinClassFn ? InWithinClassFn() : nullptr;
	if (InConfigName && *InConfigName)
	{
		Class->ClassConfigName = FName(InConfigName);
	}
	else if (Class->GetSuperClass())
	{
		Class->ClassConfigName = Class->GetSuperClass()->ClassConfigName;
	}
	else
	{
		Class->ClassConfigName = FName(TEXT("Engine"));
	}
	UE_InternalSetObjectClass(Class, UClass::StaticClass());

	UPackage* Package = CreatePackage(PackageName);
	Package->SetPackageFlags(PKG_CompiledIn);
	Package->AddToRoot();
	UE_InternalSetObjectOuter(Class, Package);
	if (RegisterNativeFunc)
	{
		RegisterNativeFunc();
	}
}

#define IMPLEMENT_INTRINSIC_CLASS(TClass, TSuperClassFn) \
	UClass* TClass::GetPrivateStaticClass() \
	{ \
		static UClass* Singleton = nullptr; \
		if (Singleton == nullptr) \
		{ \
			GetPrivateStaticClassBody(TClass::StaticPackage(), TEXT(#TClass) + 1, Singleton, &TClass::StaticRegisterNatives##TClass, \
				sizeof(TClass), alignof(TClass), TClass::StaticClassFlags, TClass::StaticClassCastFlags(), nullptr, \
				&InternalConstructor<TClass>, &TClass::AddReferencedObjects, TSuperClassFn, &UObject::StaticClass); \
		} \
		return Singleton; \
	} \
	UClass* Z_Construct_UClass_##TClass##_NoRegister() \
	{ \
		return TClass::StaticClass(); \
	}

IMPLEMENT_INTRINSIC_CLASS(UObject, nullptr)
IMPLEMENT_INTRINSIC_CLASS(UField, &UObject::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UStruct, &UField::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UScriptStruct, &UStruct::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UFunction, &UStruct::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UDelegateFunction, &UFunction::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UClass, &UStruct::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UEnum, &UField::StaticClass)
IMPLEMENT_INTRINSIC_CLASS(UPackage, &UObject::StaticClass)
