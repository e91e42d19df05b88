// Reflected types: UField, UStruct, UScriptStruct, UClass, UFunction, UDelegateFunction, UEnum.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/Field.h"
#include "UObject/MetaData.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/Script.h"

#include <concepts>
#include <utility>
#include <vector>

class FProperty;
class FField;
struct FFrame;

/** Base of the reflected types that are objects: functions, structs, classes, enums. */
class COREUOBJECT_API UField : public UObject
{
	DECLARE_CLASS_INTRINSIC(UField, UObject, CLASS_Abstract, TEXT("/Script/CoreUObject"))

public:
	UField() = default;

	/** Next field of the same struct (functions of a class), in declared order. */
	UField* Next = nullptr;

	UClass* GetOwnerClass() const;
	UStruct* GetOwnerStruct() const;

	bool HasMetaData(const TCHAR* Key) const;
	bool HasMetaData(const FName& Key) const;
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const FString& InValue);
	void RemoveMetaData(const TCHAR* Key);
	bool GetBoolMetaData(const TCHAR* Key) const;
	const FMetaDataMap& GetMetaDataMap() const
	{
		return MetaData;
	}

	/** The display name: DisplayName metadata, else the name. */
	FText GetDisplayNameText() const;
	/** The tooltip: ToolTip metadata, else empty. */
	FText GetToolTipText(bool bShortTooltip = false) const;

private:
	FMetaDataMap MetaData;
};

/** A type with properties laid out in memory: the base of structs, classes and functions. */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_CLASS_INTRINSIC(UStruct, UField, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	UStruct() = default;
	virtual ~UStruct();

	UStruct* GetSuperStruct() const
	{
		return SuperStruct;
	}
	void SetSuperStruct(UStruct* NewSuperStruct);

	bool IsChildOf(const UStruct* SomeBase) const;

	template<class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}

	/** Appends a property after the ones already declared; the struct owns it. */
	void AddCppProperty(FProperty* Property);

	/** Computes the property links once every property and function is known. */
	virtual void Link();

	FProperty* FindPropertyByName(FName InName) const;

	int32 GetPropertiesSize() const
	{
		return PropertiesSize;
	}
	int32 GetStructureSize() const
	{
		return PropertiesSize;
	}
	int32 GetMinAlignment() const
	{
		return MinAlignment;
	}
	void SetPropertiesSize(int32 NewSize)
	{
		PropertiesSize = NewSize;
	}

	/** Constructs every property's value in Dest (memory of PropertiesSize bytes). */
	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	UStruct* SuperStruct = nullptr;
	/** Functions of a class, in declared order. */
	UField* Children = nullptr;
	/** This struct's own properties, in declared order. */
	FField* ChildProperties = nullptr;
	/** Every property including the super struct's: own first, then the super's. */
	FProperty* PropertyLink = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;
};

/** Type-erased value operations of a native struct. */
class COREUOBJECT_API ICppStructOps
{
public:
	ICppStructOps(int32 InSize, int32 InAlignment)
		: Size(InSize)
		, Alignment(InAlignment)
	{
	}
	virtual ~ICppStructOps() = default;

	virtual bool HasZeroConstructor() const = 0;
	virtual void Construct(void* Dest) const = 0;
	virtual void Destruct(void* Dest) const = 0;
	virtual bool Copy(void* Dest, const void* Src, int32 ArrayDim) const = 0;
	virtual bool HasIdentical() const = 0;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) const = 0;
	/** Text import and export of structs that define ImportTextItem/ExportTextItem themselves. */
	virtual bool HasImportTextItem() const
	{
		return false;
	}
	virtual bool ImportTextItem(const TCHAR*& Buffer, void* Data) const
	{
		return false;
	}
	virtual bool HasExportTextItem() const
	{
		return false;
	}
	virtual bool ExportTextItem(FString& ValueStr, const void* PropertyValue) const
	{
		return false;
	}
	virtual bool HasAddStructReferencedObjects() const
	{
		return false;
	}
	virtual void AddStructReferencedObjects(void* Data, FReferenceCollector& Collector) const
	{
	}

	int32 GetSize() const
	{
		return Size;
	}
	int32 GetAlignment() const
	{
		return Alignment;
	}

private:
	int32 Size;
	int32 Alignment;
};

/** Detects the optional struct hooks the engine recognises by signature. */
template<class CPPSTRUCT>
concept CHasImportTextItem = requires(CPPSTRUCT& Value, const TCHAR*& Buffer) {
	{ Value.ImportTextItem(Buffer) } -> std::convertible_to<bool>;
};
template<class CPPSTRUCT>
concept CHasExportTextItem = requires(const CPPSTRUCT& Value, FString& Out) {
	{ Value.ExportTextItem(Out) } -> std::convertible_to<bool>;
};
template<class CPPSTRUCT>
concept CHasAddStructReferencedObjects = requires(CPPSTRUCT& Value, FReferenceCollector& Collector) {
	Value.AddStructReferencedObjects(Collector);
};

class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_CLASS_INTRINSIC(UScriptStruct, UStruct, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	template<class CPPSTRUCT>
	struct TCppStructOps : public ICppStructOps
	{
		TCppStructOps()
			: ICppStructOps(sizeof(CPPSTRUCT), alignof(CPPSTRUCT))
		{
		}
		virtual bool HasZeroConstructor() const override
		{
			return false;
		}
		virtual void Construct(void* Dest) const override
		{
			::new (Dest) CPPSTRUCT();
		}
		virtual void Destruct(void* Dest) const override
		{
			static_cast<CPPSTRUCT*>(Dest)->~CPPSTRUCT();
		}
		virtual bool Copy(void* Dest, const void* Src, int32 ArrayDim) const override
		{
			if constexpr (std::is_copy_assignable_v<CPPSTRUCT>)
			{
				for (int32 Index = 0; Index < ArrayDim; ++Index)
				{
					static_cast<CPPSTRUCT*>(Dest)[Index] = static_cast<const CPPSTRUCT*>(Src)[Index];
				}
				return true;
			}
			return false;
		}
		virtual bool HasIdentical() const override
		{
			return requires(const CPPSTRUCT& A) { { A == A } -> std::convertible_to<bool>; };
		}
		virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) const override
		{
			if constexpr (requires(const CPPSTRUCT& X) { { X == X } -> std::convertible_to<bool>; })
			{
				bOutResult = *static_cast<const CPPSTRUCT*>(A) == *static_cast<const CPPSTRUCT*>(B);
				return true;
			}
			return false;
		}
		virtual bool HasImportTextItem() const override
		{
			return CHasImportTextItem<CPPSTRUCT>;
		}
		virtual bool ImportTextItem(const TCHAR*& Buffer, void* Data) const override
		{
			if constexpr (CHasImportTextItem<CPPSTRUCT>)
			{
				return static_cast<CPPSTRUCT*>(Data)->ImportTextItem(Buffer);
			}
			return false;
		}
		virtual bool HasExportTextItem() const override
		{
			return CHasExportTextItem<CPPSTRUCT>;
		}
		virtual bool ExportTextItem(FString& ValueStr, const void* PropertyValue) const override
		{
			if constexpr (CHasExportTextItem<CPPSTRUCT>)
			{
				return static_cast<const CPPSTRUCT*>(PropertyValue)->ExportTextItem(ValueStr);
			}
			return false;
		}
		virtual bool HasAddStructReferencedObjects() const override
		{
			return CHasAddStructReferencedObjects<CPPSTRUCT>;
		}
		virtual void AddStructReferencedObjects(void* Data, FReferenceCollector& Collector) const override
		{
			if constexpr (CHasAddStructReferencedObjects<CPPSTRUCT>)
			{
				static_cast<CPPSTRUCT*>(Data)->AddStructReferencedObjects(Collector);
			}
		}
	};

	UScriptStruct() = default;
	virtual ~UScriptStruct();

	void SetCppStructOps(ICppStructOps* InCppStructOps);
	ICppStructOps* GetCppStructOps() const
	{
		return CppStructOps;
	}

	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	void CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim = 1) const;
	void ClearScriptStruct(void* Dest, int32 ArrayDim = 1) const;
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;

	/** The C++ spelling of the type: "F" + name. */
	FString GetStructCPPName() const;

	EStructFlags StructFlags = STRUCT_NoFlags;

private:
	ICppStructOps* CppStructOps = nullptr;
};

namespace EIncludeSuperFlag
{
	enum Type
	{
		ExcludeSuper,
		IncludeSuper
	};
}

class COREUOBJECT_API UFunction : public UStruct
{
	DECLARE_CLASS_INTRINSIC(UFunction, UStruct, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	UFunction() = default;

	EFunctionFlags FunctionFlags = FUNC_None;
	uint8 NumParms = 0;
	uint16 ParmsSize = 0;
	uint16 ReturnValueOffset = 0xffff;
	/** Native thunk, or ProcessInternal for a function with a script body; null when nothing implements it. */
	FNativeFuncPtr Func = nullptr;

	void SetNativeFunc(FNativeFuncPtr InFunc)
	{
		Func = InFunc;
	}
	FNativeFuncPtr GetNativeFunc() const
	{
		return Func;
	}

	void Invoke(UObject* Obj, FFrame& Stack, RESULT_DECL);

	bool HasAnyFunctionFlags(EFunctionFlags FlagsToCheck) const
	{
		return (FunctionFlags & FlagsToCheck) != 0;
	}
	bool HasAllFunctionFlags(EFunctionFlags FlagsToCheck) const
	{
		return (FunctionFlags & FlagsToCheck) == FlagsToCheck;
	}

	FProperty* GetReturnProperty() const;
	UFunction* GetSuperFunction() const
	{
		return (UFunction*)GetSuperStruct();
	}
	UClass* GetOuterUClass() const;

	/** Counts parameters and finds the return value after the parameter properties are added. */
	virtual void Link() override;
};

class COREUOBJECT_API UDelegateFunction : public UFunction
{
	DECLARE_CLASS_INTRINSIC(UDelegateFunction, UFunction, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	UDelegateFunction() = default;
};

class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_CLASS_INTRINSIC(UClass, UStruct, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	UClass() = default;

	EClassFlags ClassFlags = CLASS_None;
	EClassCastFlags ClassCastFlags = CASTCLASS_None;
	UClass* ClassWithin = nullptr;
	FName ClassConfigName;
	FClassConstructorType ClassConstructor = nullptr;
	FClassAddReferencedObjectsType ClassAddReferencedObjects = nullptr;
	UObject* ClassDefaultObject = nullptr;

	UClass* GetSuperClass() const
	{
		return (UClass*)GetSuperStruct();
	}

	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const
	{
		return (ClassFlags & FlagsToCheck) != 0;
	}
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const
	{
		return (ClassFlags & FlagsToCheck) == FlagsToCheck;
	}

	FName GetConfigName() const
	{
		return ClassConfigName;
	}

	/** The class default object, made on first request with the class's own constructor. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;

	template<class T>
	T* GetDefaultObject() const
	{
		return (T*)GetDefaultObject();
	}

	UFunction* FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper = EIncludeSuperFlag::IncludeSuper) const;

	/** Adds a function after the ones already declared. */
	void AddFunctionToFunctionMap(UFunction* Function, FName FuncName);

	void CallAddReferencedObjects(UObject* Obj, FReferenceCollector& Collector) const
	{
		ClassAddReferencedObjects(Obj, Collector);
	}

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/** Exec thunks the class registered at load, bound to its UFunctions by name as they are added. */
	std::vector<std::pair<FName, FNativeFuncPtr>> NativeFunctionLookupTable;

private:
	mutable bool bMakingDefaultObject = false;
};

struct FNameNativePtrPair
{
	const char* NameUTF8;
	FNativeFuncPtr Pointer;
};

struct COREUOBJECT_API FNativeFunctionRegistrar
{
	static void RegisterFunction(UClass* Class, const char* InName, FNativeFuncPtr InPointer);
	static void RegisterFunctions(UClass* Class, const FNameNativePtrPair* InArray, int32 NumFunctions);
};

namespace ECppForm
{
	enum Type
	{
		Regular,
		Namespaced,
		EnumClass
	};
}

class COREUOBJECT_API UEnum : public UField
{
	DECLARE_CLASS_INTRINSIC(UEnum, UField, CLASS_None, TEXT("/Script/CoreUObject"))

public:
	UEnum() = default;

	/** Sets the entries, each named as C++ spells it ("EFoo::Bar" for scoped enums); adds the _MAX entry. */
	void SetEnums(const TArray<TPair<FName, int64>>& InNames, ECppForm::Type InCppForm, bool bAddMaxKeyIfMissing = true);

	int32 NumEnums() const
	{
		return Names.Num();
	}
	FName GetNameByIndex(int32 Index) const;
	int64 GetValueByIndex(int32 Index) const;
	FString GetNameStringByIndex(int32 Index) const;
	int32 GetIndexByValue(int64 InValue) const;
	int32 GetIndexByName(FName InName) const;

	/** The full name of a value ("EFoo::Bar"); NAME_None when no entry has it. */
	FName GetNameByValue(int64 InValue) const;
	/** The short name of a value ("Bar"). */
	FString GetNameStringByValue(int64 InValue) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	FText GetDisplayNameTextByIndex(int32 Index) const;
	/** Accepts the full or the short name; INDEX_NONE when no entry has it. */
	int64 GetValueByName(FName InName) const;
	int64 GetValueByNameString(const FString& InName) const;
	int64 GetMaxEnumValue() const;
	bool IsValidEnumValue(int64 InValue) const;

	/** Metadata of one entry, stored as "<ShortName>.<Key>". */
	FString GetMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE) const;
	bool HasMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex = INDEX_NONE);

	ECppForm::Type GetCppForm() const
	{
		return CppForm;
	}

	FString CppType;

private:
	TArray<TPair<FName, int64>> Names;
	ECppForm::Type CppForm = ECppForm::Regular;
};

/** The reflected struct of a C++ struct; core types not reflected by their own header specialise it. */
template<class T>
struct TBaseStructure
{
	static UScriptStruct* Get()
	{
		return T::StaticStruct();
	}
};

struct FLinearColor;
struct FColor;
struct FGuid;
struct FSoftObjectPath;

template<>
struct COREUOBJECT_API TBaseStructure<FLinearColor>
{
	static UScriptStruct* Get();
};

template<>
struct COREUOBJECT_API TBaseStructure<FColor>
{
	static UScriptStruct* Get();
};

template<>
struct COREUOBJECT_API TBaseStructure<FVector2D>
{
	static UScriptStruct* Get();
};

template<>
struct COREUOBJECT_API TBaseStructure<FGuid>
{
	static UScriptStruct* Get();
};

template<>
struct COREUOBJECT_API TBaseStructure<FSoftObjectPath>
{
	static UScriptStruct* Get();
};

/** The shell of a compiled-in class: name, super, size, constructor. Properties are added when the module registers it. */
COREUOBJECT_API void GetPrivateStaticClassBody(
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
	FStaticClassFn InWithinClassFn);

COREUOBJECT_API UClass* Z_Construct_UClass_UField_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UStruct_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UClass_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UScriptStruct_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UFunction_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UEnum_NoRegister();

// Helpers that need UClass complete.
#include "UObject/ObjectDefaults.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/LazyObjectPtr.h"
