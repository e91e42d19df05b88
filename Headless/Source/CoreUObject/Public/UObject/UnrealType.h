// FProperty and its kinds: what a reflected member or parameter is, where it lives, and how its
// value is made, copied, compared, destroyed, written as text and scanned for object references.
#pragma once

#include "CoreMinimal.h"
#include "Containers/ScriptArray.h"
#include "UObject/Class.h"
#include "UObject/Field.h"
#include "UObject/FieldIterator.h"
#include "UObject/ScriptDelegates.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/LazyObjectPtr.h"

class FOutputDevice;

enum EPropertyPortFlags : uint32
{
	PPF_None = 0x00000000,
	PPF_Localized = 0x00000001,
	PPF_Delimited = 0x00000002,
	PPF_Copy = 0x00000040,
};

class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField, 0)

public:
	FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags);

	int32 ArrayDim = 1;
	int32 ElementSize = 0;
	EPropertyFlags PropertyFlags = CPF_None;
	int32 Offset_Internal = 0;
	/** Next property of the struct's PropertyLink: own properties first, then the super struct's. */
	FProperty* PropertyLinkNext = nullptr;

	int32 GetOffset_ForInternal() const
	{
		return Offset_Internal;
	}
	int32 GetOffset_ForUFunction() const
	{
		return Offset_Internal;
	}
	int32 GetOffset_ForGC() const
	{
		return Offset_Internal;
	}
	int32 GetSize() const
	{
		return ArrayDim * ElementSize;
	}
	int32 GetElementSize() const
	{
		return ElementSize;
	}
	void SetElementSize(int32 NewSize)
	{
		ElementSize = NewSize;
	}
	virtual int32 GetMinAlignment() const
	{
		return 1;
	}

	EPropertyFlags GetPropertyFlags() const
	{
		return PropertyFlags;
	}
	bool HasAnyPropertyFlags(EPropertyFlags FlagsToCheck) const
	{
		return (PropertyFlags & FlagsToCheck) != 0;
	}
	bool HasAllPropertyFlags(EPropertyFlags FlagsToCheck) const
	{
		return (PropertyFlags & FlagsToCheck) == FlagsToCheck;
	}
	void SetPropertyFlags(EPropertyFlags NewFlags)
	{
		PropertyFlags |= NewFlags;
	}
	void ClearPropertyFlags(EPropertyFlags FlagsToClear)
	{
		PropertyFlags &= ~FlagsToClear;
	}

	template<typename ValueType>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		check(ArrayIndex >= 0 && ArrayIndex < ArrayDim);
		return (ValueType*)((uint8*)ContainerPtr + Offset_Internal + ElementSize * ArrayIndex);
	}

	template<typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		check(ArrayIndex >= 0 && ArrayIndex < ArrayDim);
		return (const ValueType*)((const uint8*)ContainerPtr + Offset_Internal + ElementSize * ArrayIndex);
	}

	template<typename ValueType>
	ValueType* ContainerPtrToValuePtrForDefaults(UStruct*, void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<ValueType>(ContainerPtr, ArrayIndex);
	}

	/** The whole value (all ArrayDim elements) at Dest. */
	void InitializeValue(void* Dest) const;
	void InitializeValue_InContainer(void* Container) const
	{
		InitializeValue(ContainerPtrToValuePtr<void>(Container));
	}
	void DestroyValue(void* Dest) const;
	void DestroyValue_InContainer(void* Container) const
	{
		DestroyValue(ContainerPtrToValuePtr<void>(Container));
	}
	void CopySingleValue(void* Dest, const void* Src) const;
	void CopyCompleteValue(void* Dest, const void* Src) const;
	void CopyCompleteValue_InContainer(void* Dest, const void* Src) const
	{
		CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
	}
	void ClearValue(void* Data) const;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const;
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const
	{
		return Identical(ContainerPtrToValuePtr<void>(A, ArrayIndex), ContainerPtrToValuePtr<void>(B, ArrayIndex), PortFlags);
	}

	/** The C++ type as declared, without const or reference: "int32", "TArray<FFoo>", "TObjectPtr<UBar>". */
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const = 0;

	/** One element as text, the way the engine's property text export writes it. */
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	void ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const
	{
		ExportTextItem_Direct(ValueStr, Data, Delta, Parent, PortFlags, ExportRootScope);
	}
	void ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const
	{
		ExportTextItem_Direct(ValueStr, ContainerPtrToValuePtr<void>(Container), DefaultValue, Parent, PortFlags, ExportRootScope);
	}

	/** Reads one element from text; returns the rest of Buffer, or null when the text is not a value of this type. */
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const;
	const TCHAR* ImportText_InContainer(const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const
	{
		return ImportText_Direct(Buffer, ContainerPtrToValuePtr<void>(Container), OwnerObject, PortFlags, ErrorText);
	}

	/** True when values of this property can hold strong object references the collector must follow. */
	virtual bool ContainsObjectReference() const
	{
		return false;
	}

	/** Reports the strong references in one element at Value. */
	virtual void AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
	{
	}

	bool IsInContainer(int32 ContainerSize) const
	{
		return Offset_Internal + GetSize() <= ContainerSize;
	}

protected:
	virtual void InitializeValueInternal(void* Dest) const;
	virtual void DestroyValueInternal(void* Dest) const
	{
	}
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const = 0;
	virtual bool IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const = 0;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const = 0;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const = 0;
};

/** A property whose value is a C++ type the compiler can construct, copy and compare directly. */
template<typename InTCppType, class TInPropertyBaseClass>
class TProperty : public TInPropertyBaseClass
{
public:
	typedef InTCppType TCppType;
	typedef TInPropertyBaseClass Super;

	template<typename... TArgs>
	TProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, TArgs... Args)
		: Super(InOwner, InName, InObjectFlags, InOffset, InFlags, Args...)
	{
		this->ElementSize = sizeof(TCppType);
	}

	static TCppType GetDefaultPropertyValue()
	{
		return TCppType();
	}
	static const TCppType& GetPropertyValue(const void* A)
	{
		return *(const TCppType*)A;
	}
	static TCppType* GetPropertyValuePtr(void* A)
	{
		return (TCppType*)A;
	}
	static void SetPropertyValue(void* A, const TCppType& Value)
	{
		*(TCppType*)A = Value;
	}
	TCppType GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(this->template ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	TCppType* GetPropertyValuePtr_InContainer(void* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValuePtr(this->template ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* A, const TCppType& Value, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(this->template ContainerPtrToValuePtr<void>(A, ArrayIndex), Value);
	}
	virtual int32 GetMinAlignment() const override
	{
		return alignof(TCppType);
	}

protected:
	virtual void InitializeValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			::new ((uint8*)Dest + Index * this->ElementSize) TCppType();
		}
	}
	virtual void DestroyValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			((TCppType*)((uint8*)Dest + Index * this->ElementSize))->~TCppType();
		}
	}
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			((TCppType*)Dest)[Index] = ((const TCppType*)Src)[Index];
		}
	}
	virtual bool IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const override
	{
		if constexpr (requires(const TCppType& X) { X == X; })
		{
			return GetPropertyValue(A) == GetPropertyValue(B);
		}
		return false;
	}
};

class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty, 0)

public:
	using FProperty::FProperty;

	virtual bool IsFloatingPoint() const = 0;
	virtual bool IsInteger() const = 0;
	virtual UEnum* GetIntPropertyEnum() const
	{
		return nullptr;
	}
	bool IsEnum() const
	{
		return GetIntPropertyEnum() != nullptr;
	}
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetIntPropertyValue(void* Data, uint64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;
	virtual FString GetNumericPropertyValueToString(const void* Data) const = 0;
	virtual void SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const;
};

COREUOBJECT_API FString NumericValueToText(int64 Value);
COREUOBJECT_API FString NumericValueToText(uint64 Value);
COREUOBJECT_API FString NumericValueToText(double Value, bool bDouble);
COREUOBJECT_API const TCHAR* ParseNumericText(const TCHAR* Buffer, bool bFloatingPoint, bool bSigned, int64& OutSigned, uint64& OutUnsigned, double& OutDouble);

template<typename InTCppType>
class TProperty_Numeric : public TProperty<InTCppType, FNumericProperty>
{
public:
	typedef TProperty<InTCppType, FNumericProperty> Super;
	typedef InTCppType TCppType;
	using Super::Super;

	virtual bool IsFloatingPoint() const override
	{
		return std::is_floating_point_v<TCppType>;
	}
	virtual bool IsInteger() const override
	{
		return std::is_integral_v<TCppType>;
	}
	virtual void SetIntPropertyValue(void* Data, int64 Value) const override
	{
		*(TCppType*)Data = (TCppType)Value;
	}
	virtual void SetIntPropertyValue(void* Data, uint64 Value) const override
	{
		*(TCppType*)Data = (TCppType)Value;
	}
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const override
	{
		*(TCppType*)Data = (TCppType)Value;
	}
	virtual int64 GetSignedIntPropertyValue(const void* Data) const override
	{
		return (int64) * (const TCppType*)Data;
	}
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const override
	{
		return (uint64) * (const TCppType*)Data;
	}
	virtual double GetFloatingPointPropertyValue(const void* Data) const override
	{
		return (double)*(const TCppType*)Data;
	}
	virtual FString GetNumericPropertyValueToString(const void* Data) const override
	{
		const TCppType Value = *(const TCppType*)Data;
		if constexpr (std::is_floating_point_v<TCppType>)
		{
			return NumericValueToText(double(Value), sizeof(TCppType) == 8);
		}
		else if constexpr (std::is_signed_v<TCppType>)
		{
			return NumericValueToText(int64(Value));
		}
		else
		{
			return NumericValueToText(uint64(Value));
		}
	}

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override
	{
		ValueStr += GetNumericPropertyValueToString(PropertyValue);
	}
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override
	{
		int64 Signed = 0;
		uint64 Unsigned = 0;
		double Floating = 0.0;
		const TCHAR* End = ParseNumericText(Buffer, std::is_floating_point_v<TCppType>, std::is_signed_v<TCppType>, Signed, Unsigned, Floating);
		if (End)
		{
			if constexpr (std::is_floating_point_v<TCppType>)
			{
				*(TCppType*)Data = (TCppType)Floating;
			}
			else if constexpr (std::is_signed_v<TCppType>)
			{
				*(TCppType*)Data = (TCppType)Signed;
			}
			else
			{
				*(TCppType*)Data = (TCppType)Unsigned;
			}
		}
		return End;
	}
};

#define DECLARE_NUMERIC_PROPERTY(TClass, TCpp, TTypeName) \
	class COREUOBJECT_API TClass : public TProperty_Numeric<TCpp> \
	{ \
		DECLARE_FIELD(TClass, TProperty_Numeric<TCpp>, 0) \
	public: \
		using TProperty_Numeric<TCpp>::TProperty_Numeric; \
		virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override \
		{ \
			return FString(TEXT(TTypeName)); \
		} \
	};

DECLARE_NUMERIC_PROPERTY(FInt8Property, int8, "int8")
DECLARE_NUMERIC_PROPERTY(FInt16Property, int16, "int16")
DECLARE_NUMERIC_PROPERTY(FIntProperty, int32, "int32")
DECLARE_NUMERIC_PROPERTY(FInt64Property, int64, "int64")
DECLARE_NUMERIC_PROPERTY(FUInt16Property, uint16, "uint16")
DECLARE_NUMERIC_PROPERTY(FUInt32Property, uint32, "uint32")
DECLARE_NUMERIC_PROPERTY(FUInt64Property, uint64, "uint64")
DECLARE_NUMERIC_PROPERTY(FFloatProperty, float, "float")
DECLARE_NUMERIC_PROPERTY(FDoubleProperty, double, "double")

/** uint8, or an enum held as a byte (TEnumAsByte), when Enum is set. */
class COREUOBJECT_API FByteProperty : public TProperty_Numeric<uint8>
{
	DECLARE_FIELD(FByteProperty, TProperty_Numeric<uint8>, 0)

public:
	using TProperty_Numeric<uint8>::TProperty_Numeric;

	UEnum* Enum = nullptr;

	virtual UEnum* GetIntPropertyEnum() const override
	{
		return Enum;
	}
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A native bool member (not a bitfield). */
class COREUOBJECT_API FBoolProperty : public TProperty<bool, FProperty>
{
	DECLARE_FIELD(FBoolProperty, FProperty, 0)

public:
	using TProperty<bool, FProperty>::TProperty;

	bool IsNativeBool() const
	{
		return true;
	}
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override
	{
		return FString(TEXT("bool"));
	}

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FStrProperty : public TProperty<FString, FProperty>
{
	DECLARE_FIELD(FStrProperty, FProperty, 0)

public:
	using TProperty<FString, FProperty>::TProperty;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override
	{
		return FString(TEXT("FString"));
	}

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FNameProperty : public TProperty<FName, FProperty>
{
	DECLARE_FIELD(FNameProperty, FProperty, 0)

public:
	using TProperty<FName, FProperty>::TProperty;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override
	{
		return FString(TEXT("FName"));
	}

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FTextProperty : public TProperty<FText, FProperty>
{
	DECLARE_FIELD(FTextProperty, FProperty, 0)

public:
	using TProperty<FText, FProperty>::TProperty;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override
	{
		return FString(TEXT("FText"));
	}

protected:
	virtual bool IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

/** Base of the properties that name an object: strong, weak, soft and lazy. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty, 0)

public:
	FObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass);

	UClass* PropertyClass = nullptr;

	void SetPropertyClass(UClass* NewPropertyClass)
	{
		PropertyClass = NewPropertyClass;
	}

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* ContainerAddress, UObject* Value, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex), Value);
	}

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A strong reference: a raw UObject pointer or a TObjectPtr (same layout; CPF_TObjectPtr tells them apart). */
class COREUOBJECT_API FObjectProperty : public TProperty<TObjectPtr<UObject>, FObjectPropertyBase>
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase, 0)

public:
	FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass);

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	virtual bool ContainsObjectReference() const override
	{
		return true;
	}
	virtual void AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;
};

class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty, 0)

public:
	FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InMetaClass);

	UClass* MetaClass = nullptr;

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
};

class COREUOBJECT_API FWeakObjectProperty : public TProperty<FWeakObjectPtr, FObjectPropertyBase>
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase, 0)

public:
	FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass);

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
};

class COREUOBJECT_API FSoftObjectProperty : public TProperty<FSoftObjectPtr, FObjectPropertyBase>
{
	DECLARE_FIELD(FSoftObjectProperty, FObjectPropertyBase, 0)

public:
	FSoftObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass);

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FLazyObjectProperty : public TProperty<FLazyObjectPtr, FObjectPropertyBase>
{
	DECLARE_FIELD(FLazyObjectProperty, FObjectPropertyBase, 0)

public:
	FLazyObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass);

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
};

class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty, 0)

public:
	FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UScriptStruct* InStruct);

	UScriptStruct* Struct = nullptr;

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual int32 GetMinAlignment() const override;
	virtual bool ContainsObjectReference() const override;
	virtual void AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;

protected:
	virtual void InitializeValueInternal(void* Dest) const override;
	virtual void DestroyValueInternal(void* Dest) const override;
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual bool IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

/** An enum class member: the value lives in the underlying numeric property. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty, 0)

public:
	FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UEnum* InEnum);
	virtual ~FEnumProperty();

	void AddCppProperty(FProperty* Inner);

	FNumericProperty* GetUnderlyingProperty() const
	{
		return UnderlyingProp;
	}
	UEnum* GetEnum() const
	{
		return Enum;
	}
	void SetEnum(UEnum* InEnum)
	{
		Enum = InEnum;
	}

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual int32 GetMinAlignment() const override;

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual bool IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;

private:
	FNumericProperty* UnderlyingProp = nullptr;
	UEnum* Enum = nullptr;
};

/** A TArray; Inner describes one element. */
class COREUOBJECT_API FArrayProperty : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty, 0)

public:
	FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags);
	virtual ~FArrayProperty();

	FProperty* Inner = nullptr;

	void AddCppProperty(FProperty* Property);

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual int32 GetMinAlignment() const override;
	virtual bool ContainsObjectReference() const override;
	virtual void AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;

protected:
	virtual void InitializeValueInternal(void* Dest) const override;
	virtual void DestroyValueInternal(void* Dest) const override;
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual bool IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

/** Type-erased access to the TArray an FArrayProperty describes. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray);

	int32 Num() const;
	bool IsValidIndex(int32 Index) const
	{
		return Index >= 0 && Index < Num();
	}
	uint8* GetRawPtr(int32 Index = 0);
	/** Adds Count default-constructed elements; returns the index of the first. */
	int32 AddValues(int32 Count);
	int32 AddValue()
	{
		return AddValues(1);
	}
	void RemoveValues(int32 Index, int32 Count = 1);
	void EmptyValues();
	void Resize(int32 NewNum);

	static FScriptArrayHelper CreateHelperFormInnerProperty(FProperty* InInnerProperty, const void* InArray);

private:
	FScriptArrayHelper(FProperty* InInner, const void* InArray, int32 InElementSize);

	FProperty* Inner;
	FScriptArray* Array;
	int32 ElementSize;
};

class COREUOBJECT_API FDelegateProperty : public TProperty<FScriptDelegate, FProperty>
{
	DECLARE_FIELD(FDelegateProperty, FProperty, 0)

public:
	FDelegateProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UFunction* InSignatureFunction);

	UFunction* SignatureFunction = nullptr;

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};

class COREUOBJECT_API FMulticastDelegateProperty : public FProperty
{
	DECLARE_FIELD(FMulticastDelegateProperty, FProperty, 0)

public:
	FMulticastDelegateProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UFunction* InSignatureFunction);

	UFunction* SignatureFunction = nullptr;

	virtual const FMulticastScriptDelegate* GetMulticastDelegate(const void* PropertyValue) const = 0;
	virtual void SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const = 0;
	virtual void AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const = 0;
	virtual void RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const = 0;
	virtual void ClearDelegate(UObject* Parent = nullptr, void* PropertyValue = nullptr) const = 0;
};

/** A DECLARE_DYNAMIC_MULTICAST_DELEGATE member: the invocation list lives in the object. */
class COREUOBJECT_API FMulticastInlineDelegateProperty : public TProperty<FMulticastScriptDelegate, FMulticastDelegateProperty>
{
	DECLARE_FIELD(FMulticastInlineDelegateProperty, FMulticastDelegateProperty, 0)

public:
	FMulticastInlineDelegateProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UFunction* InSignatureFunction);

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual const FMulticastScriptDelegate* GetMulticastDelegate(const void* PropertyValue) const override;
	virtual void SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const override;
	virtual void AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const override;
	virtual void RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const override;
	virtual void ClearDelegate(UObject* Parent = nullptr, void* PropertyValue = nullptr) const override;

protected:
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const override;
};
