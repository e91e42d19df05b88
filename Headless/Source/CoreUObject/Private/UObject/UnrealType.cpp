#include "UObject/UnrealType.h"

#include "PropertyText.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

using namespace UE::CoreUObject::Private;

namespace
{
	FString CppClassName(const UClass* Class)
	{
		FString Result(TEXT("U"));
		Result += Class->GetName();
		return Result;
	}
}

IMPLEMENT_FIELD(FProperty)
IMPLEMENT_FIELD(FNumericProperty)
IMPLEMENT_FIELD(FInt8Property)
IMPLEMENT_FIELD(FInt16Property)
IMPLEMENT_FIELD(FIntProperty)
IMPLEMENT_FIELD(FInt64Property)
IMPLEMENT_FIELD(FUInt16Property)
IMPLEMENT_FIELD(FUInt32Property)
IMPLEMENT_FIELD(FUInt64Property)
IMPLEMENT_FIELD(FFloatProperty)
IMPLEMENT_FIELD(FDoubleProperty)
IMPLEMENT_FIELD(FByteProperty)
IMPLEMENT_FIELD(FBoolProperty)
IMPLEMENT_FIELD(FStrProperty)
IMPLEMENT_FIELD(FNameProperty)
IMPLEMENT_FIELD(FTextProperty)
IMPLEMENT_FIELD(FObjectPropertyBase)
IMPLEMENT_FIELD(FObjectProperty)
IMPLEMENT_FIELD(FClassProperty)
IMPLEMENT_FIELD(FWeakObjectProperty)
IMPLEMENT_FIELD(FSoftObjectProperty)
IMPLEMENT_FIELD(FLazyObjectProperty)
IMPLEMENT_FIELD(FStructProperty)
IMPLEMENT_FIELD(FEnumProperty)
IMPLEMENT_FIELD(FArrayProperty)
IMPLEMENT_FIELD(FDelegateProperty)
IMPLEMENT_FIELD(FMulticastDelegateProperty)
IMPLEMENT_FIELD(FMulticastInlineDelegateProperty)

// FProperty

FProperty::FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags)
	: FField(InOwner, InName, InObjectFlags)
	, PropertyFlags(InFlags)
	, Offset_Internal(InOffset)
{
}

void FProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, SIZE_T(GetSize()));
}

void FProperty::InitializeValue(void* Dest) const
{
	InitializeValueInternal(Dest);
}

void FProperty::DestroyValue(void* Dest) const
{
	DestroyValueInternal(Dest);
}

void FProperty::CopySingleValue(void* Dest, const void* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, 1);
	}
}

void FProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, ArrayDim);
	}
}

void FProperty::ClearValue(void* Data) const
{
	DestroyValue(Data);
	InitializeValue(Data);
}

bool FProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return IdenticalInternal(A, B, PortFlags);
}

void FProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportTextItem(ValueStr, PropertyValue, Parent, PortFlags);
}

const TCHAR* FProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	if (Buffer == nullptr)
	{
		return nullptr;
	}
	return ImportTextInternal(SkipWhitespace(Buffer), PropertyPtr, OwnerObject, PortFlags);
}

// FByteProperty

FString FByteProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (Enum)
	{
		FString Result(TEXT("TEnumAsByte<"));
		Result += Enum->GetName();
		Result += TEXT(">");
		return Result;
	}
	return FString(TEXT("uint8"));
}

void FByteProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	const uint8 Value = *(const uint8*)PropertyValue;
	if (Enum)
	{
		ValueStr += Enum->GetNameStringByValue(Value);
		return;
	}
	ValueStr += NumericValueToText(int64(Value));
}

const TCHAR* FByteProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	if (Enum && !(*Buffer >= u'0' && *Buffer <= u'9'))
	{
		FString Token;
		const TCHAR* End = ReadToken(Buffer, Token);
		const int64 Value = End ? Enum->GetValueByNameString(Token) : INDEX_NONE;
		if (Value == INDEX_NONE)
		{
			return nullptr;
		}
		*(uint8*)Data = uint8(Value);
		return End;
	}
	return TProperty_Numeric<uint8>::ImportTextInternal(Buffer, Data, OwnerObject, PortFlags);
}

// FBoolProperty

void FBoolProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	ValueStr += *(const bool*)PropertyValue ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token);
	if (End == nullptr)
	{
		return nullptr;
	}
	if (Token.Equals(FString(TEXT("true")), ESearchCase::IgnoreCase) || Token.Equals(FString(TEXT("yes")), ESearchCase::IgnoreCase) || Token.Equals(FString(TEXT("1"))))
	{
		*(bool*)Data = true;
		return End;
	}
	if (Token.Equals(FString(TEXT("false")), ESearchCase::IgnoreCase) || Token.Equals(FString(TEXT("no")), ESearchCase::IgnoreCase) || Token.Equals(FString(TEXT("0"))))
	{
		*(bool*)Data = false;
		return End;
	}
	return nullptr;
}

// FStrProperty, FNameProperty, FTextProperty

void FStrProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	const FString& Value = *(const FString*)PropertyValue;
	ValueStr += (PortFlags & PPF_Delimited) ? QuoteString(Value) : Value;
}

const TCHAR* FStrProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	if (End)
	{
		*(FString*)Data = Token;
	}
	return End;
}

void FNameProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	// Inside a struct or array the name is quoted, so a ',' or ')' in it cannot end the value.
	const FString Value = ((const FName*)PropertyValue)->ToString();
	ValueStr += (PortFlags & PPF_Delimited) ? QuoteString(Value) : Value;
}

const TCHAR* FNameProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	if (End)
	{
		*(FName*)Data = FName(*Token);
	}
	return End;
}

bool FTextProperty::IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const
{
	return ((const FText*)A)->ToString().Equals(((const FText*)B)->ToString());
}

void FTextProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	const FString Value = ((const FText*)PropertyValue)->ToString();
	ValueStr += (PortFlags & PPF_Delimited) ? QuoteString(Value) : Value;
}

const TCHAR* FTextProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	if (End)
	{
		*(FText*)Data = FText::FromString(Token);
	}
	return End;
}

// Object references

FObjectPropertyBase::FObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags)
	, PropertyClass(InClass)
{
}

void FObjectPropertyBase::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	UObject* Object = GetObjectPropertyValue(PropertyValue);
	if (Object == nullptr)
	{
		ValueStr += TEXT("None");
		return;
	}
	ValueStr += Object->GetClass()->GetName();
	ValueStr += TEXT("'");
	ValueStr += Object->GetPathName();
	ValueStr += TEXT("'");
}

const TCHAR* FObjectPropertyBase::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token);
	if (End == nullptr)
	{
		return nullptr;
	}
	if (Token.IsEmpty() || Token.Equals(FString(TEXT("None")), ESearchCase::IgnoreCase))
	{
		SetObjectPropertyValue(Data, nullptr);
		return End;
	}
	// Class'/Path/To.Object' or a bare path.
	const TCHAR* Path = *Token;
	FString Inner;
	for (int32 Index = 0; Index < Token.Len(); ++Index)
	{
		if (Path[Index] == u'\'')
		{
			int32 Close = Token.Len() - 1;
			if (Close > Index && Path[Close] == u'\'')
			{
				Inner = FString(Close - Index - 1, Path + Index + 1);
				Path = *Inner;
			}
			break;
		}
	}
	UObject* Object = StaticFindObject(PropertyClass, nullptr, Path, false);
	if (Object == nullptr)
	{
		return nullptr;
	}
	SetObjectPropertyValue(Data, Object);
	return End;
}

FObjectProperty::FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass)
	: TProperty<TObjectPtr<UObject>, FObjectPropertyBase>(InOwner, InName, InObjectFlags, InOffset, InFlags, InClass)
{
}

FString FObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString ClassName = PropertyClass ? CppClassName(PropertyClass) : FString(TEXT("UObject"));
	if (HasAnyPropertyFlags(CPF_TObjectPtr))
	{
		FString Result(TEXT("TObjectPtr<"));
		Result += ClassName;
		Result += TEXT(">");
		return Result;
	}
	ClassName += TEXT("*");
	return ClassName;
}

UObject* FObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return *(UObject* const*)PropertyValueAddress;
}

void FObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*(UObject**)PropertyValueAddress = Value;
}

void FObjectProperty::AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	Collector.HandleObjectReference(*(UObject**)Value, ReferencingObject, this);
}

FClassProperty::FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InMetaClass)
	: FObjectProperty(InOwner, InName, InObjectFlags, InOffset, InFlags, UClass::StaticClass())
	, MetaClass(InMetaClass)
{
}

FString FClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("TSubclassOf<"));
	Result += MetaClass ? CppClassName(MetaClass) : FString(TEXT("UObject"));
	Result += TEXT(">");
	return Result;
}

FWeakObjectProperty::FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass)
	: TProperty<FWeakObjectPtr, FObjectPropertyBase>(InOwner, InName, InObjectFlags, InOffset, InFlags, InClass)
{
}

FString FWeakObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("TWeakObjectPtr<"));
	Result += PropertyClass ? CppClassName(PropertyClass) : FString(TEXT("UObject"));
	Result += TEXT(">");
	return Result;
}

UObject* FWeakObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return ((const FWeakObjectPtr*)PropertyValueAddress)->Get();
}

void FWeakObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*(FWeakObjectPtr*)PropertyValueAddress = Value;
}

FSoftObjectProperty::FSoftObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass)
	: TProperty<FSoftObjectPtr, FObjectPropertyBase>(InOwner, InName, InObjectFlags, InOffset, InFlags, InClass)
{
}

FString FSoftObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("TSoftObjectPtr<"));
	Result += PropertyClass ? CppClassName(PropertyClass) : FString(TEXT("UObject"));
	Result += TEXT(">");
	return Result;
}

UObject* FSoftObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return ((const FSoftObjectPtr*)PropertyValueAddress)->Get();
}

void FSoftObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*(FSoftObjectPtr*)PropertyValueAddress = FSoftObjectPtr(Value);
}

void FSoftObjectProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	const FSoftObjectPtr& Value = *(const FSoftObjectPtr*)PropertyValue;
	ValueStr += Value.IsNull() ? FString(TEXT("None")) : Value.ToString();
}

const TCHAR* FSoftObjectProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FSoftObjectPath Path;
	if (!Path.ImportTextItem(Buffer))
	{
		return nullptr;
	}
	*(FSoftObjectPtr*)Data = FSoftObjectPtr(Path);
	return Buffer;
}

FLazyObjectProperty::FLazyObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UClass* InClass)
	: TProperty<FLazyObjectPtr, FObjectPropertyBase>(InOwner, InName, InObjectFlags, InOffset, InFlags, InClass)
{
}

FString FLazyObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("TLazyObjectPtr<"));
	Result += PropertyClass ? CppClassName(PropertyClass) : FString(TEXT("UObject"));
	Result += TEXT(">");
	return Result;
}

UObject* FLazyObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return ((const FLazyObjectPtr*)PropertyValueAddress)->Get();
}

void FLazyObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*(FLazyObjectPtr*)PropertyValueAddress = FLazyObjectPtr(Value);
}

// FStructProperty

FStructProperty::FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UScriptStruct* InStruct)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags)
	, Struct(InStruct)
{
	check(Struct);
	ElementSize = Struct->GetStructureSize();
}

FString FStructProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Struct->GetStructCPPName();
}

int32 FStructProperty::GetMinAlignment() const
{
	return Struct->GetMinAlignment();
}

bool FStructProperty::ContainsObjectReference() const
{
	if (Struct->GetCppStructOps() && Struct->GetCppStructOps()->HasAddStructReferencedObjects())
	{
		return true;
	}
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		if (It->ContainsObjectReference())
		{
			return true;
		}
	}
	return false;
}

void FStructProperty::AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		if (It->ContainsObjectReference())
		{
			for (int32 Index = 0; Index < It->ArrayDim; ++Index)
			{
				It->AddReferencedObjectsInValue(It->ContainerPtrToValuePtr<void>(Value, Index), Collector, ReferencingObject);
			}
		}
	}
	if (Struct->GetCppStructOps() && Struct->GetCppStructOps()->HasAddStructReferencedObjects())
	{
		Struct->GetCppStructOps()->AddStructReferencedObjects(Value, Collector);
	}
}

void FStructProperty::InitializeValueInternal(void* Dest) const
{
	Struct->InitializeStruct(Dest, ArrayDim);
}

void FStructProperty::DestroyValueInternal(void* Dest) const
{
	Struct->DestroyStruct(Dest, ArrayDim);
}

void FStructProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	Struct->CopyScriptStruct(Dest, Src, Count);
}

bool FStructProperty::IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const
{
	return Struct->CompareScriptStruct(A, B, PortFlags);
}

void FStructProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	ICppStructOps* Ops = Struct->GetCppStructOps();
	if (Ops && Ops->HasExportTextItem() && Ops->ExportTextItem(ValueStr, PropertyValue))
	{
		return;
	}
	// (Name=Value,...) in declared order, as the engine writes a struct.
	ValueStr += TEXT("(");
	bool bFirst = true;
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			if (!bFirst)
			{
				ValueStr += TEXT(",");
			}
			bFirst = false;
			ValueStr += It->GetName();
			if (It->ArrayDim > 1)
			{
				// Elements of a fixed array are written one by one: Name[Index]=Value.
				ValueStr += TEXT("[");
				ValueStr += NumericValueToText(int64(Index));
				ValueStr += TEXT("]");
			}
			ValueStr += TEXT("=");
			It->ExportTextItem_Direct(ValueStr, It->ContainerPtrToValuePtr<void>(PropertyValue, Index), nullptr, Parent, PortFlags | PPF_Delimited);
		}
	}
	ValueStr += TEXT(")");
}

const TCHAR* FStructProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	ICppStructOps* Ops = Struct->GetCppStructOps();
	if (Ops && Ops->HasImportTextItem())
	{
		const TCHAR* Cursor = Buffer;
		if (Ops->ImportTextItem(Cursor, Data))
		{
			return Cursor;
		}
	}
	if (*Buffer != u'(')
	{
		return nullptr;
	}
	const TCHAR* Cursor = SkipWhitespace(Buffer + 1);
	while (*Cursor && *Cursor != u')')
	{
		const TCHAR* NameStart = Cursor;
		while (*Cursor && *Cursor != u'=' && *Cursor != u',' && *Cursor != u')' && *Cursor != u'[' && *Cursor != u'(')
		{
			++Cursor;
		}
		FString FieldName(int32(Cursor - NameStart), NameStart);
		FieldName.TrimStartAndEndInline();
		// One element of a fixed array: Name[Index]= or Name(Index)=.
		int32 ArrayIndex = 0;
		if (*Cursor == u'[' || *Cursor == u'(')
		{
			const TCHAR Close = *Cursor == u'[' ? u']' : u')';
			const TCHAR* Digits = ++Cursor;
			while (*Cursor >= u'0' && *Cursor <= u'9' && Cursor - Digits < 6)
			{
				ArrayIndex = ArrayIndex * 10 + int32(*Cursor - u'0');
				++Cursor;
			}
			if (Cursor == Digits || *Cursor != Close)
			{
				return nullptr;
			}
			Cursor = SkipWhitespace(Cursor + 1);
		}
		if (*Cursor != u'=')
		{
			return nullptr;
		}
		FProperty* Field = Struct->FindPropertyByName(FName(*FieldName));
		if (Field == nullptr || ArrayIndex >= Field->ArrayDim)
		{
			return nullptr;
		}
		Cursor = Field->ImportText_Direct(Cursor + 1, Field->ContainerPtrToValuePtr<void>(Data, ArrayIndex), OwnerObject, PortFlags | PPF_Delimited);
		if (Cursor == nullptr)
		{
			return nullptr;
		}
		Cursor = SkipWhitespace(Cursor);
		if (*Cursor == u',')
		{
			Cursor = SkipWhitespace(Cursor + 1);
		}
	}
	return *Cursor == u')' ? Cursor + 1 : nullptr;
}

// FEnumProperty

FEnumProperty::FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UEnum* InEnum)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags)
	, Enum(InEnum)
{
}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

void FEnumProperty::AddCppProperty(FProperty* Inner)
{
	check(UnderlyingProp == nullptr);
	UnderlyingProp = CastFieldChecked<FNumericProperty>(Inner);
	ElementSize = UnderlyingProp->ElementSize;
}

FString FEnumProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Enum ? Enum->GetName() : UnderlyingProp->GetCPPType();
}

int32 FEnumProperty::GetMinAlignment() const
{
	return UnderlyingProp->GetMinAlignment();
}

void FEnumProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	FMemory::Memcpy(Dest, Src, SIZE_T(Count) * ElementSize);
}

bool FEnumProperty::IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const
{
	return UnderlyingProp->GetSignedIntPropertyValue(A) == UnderlyingProp->GetSignedIntPropertyValue(B);
}

void FEnumProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	const int64 Value = UnderlyingProp->GetSignedIntPropertyValue(PropertyValue);
	if (Enum && Enum->IsValidEnumValue(Value))
	{
		ValueStr += Enum->GetNameStringByValue(Value);
		return;
	}
	ValueStr += NumericValueToText(Value);
}

const TCHAR* FEnumProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token);
	if (End == nullptr || Token.IsEmpty())
	{
		return nullptr;
	}
	int64 Value = INDEX_NONE;
	if (Enum)
	{
		Value = Enum->GetValueByNameString(Token);
	}
	if (Value == INDEX_NONE && ((*Token)[0] == u'-' || ((*Token)[0] >= u'0' && (*Token)[0] <= u'9')))
	{
		int64 Signed = 0;
		uint64 Unsigned = 0;
		double Floating = 0;
		if (ParseNumericText(*Token, false, true, Signed, Unsigned, Floating))
		{
			Value = Signed;
		}
	}
	if (Value == INDEX_NONE)
	{
		return nullptr;
	}
	UnderlyingProp->SetIntPropertyValue(Data, Value);
	return End;
}

// FArrayProperty

FArrayProperty::FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags)
{
	ElementSize = sizeof(FScriptArray);
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

void FArrayProperty::AddCppProperty(FProperty* Property)
{
	check(Inner == nullptr);
	Inner = Property;
}

FString FArrayProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("TArray<"));
	Result += Inner->GetCPPType();
	Result += TEXT(">");
	return Result;
}

int32 FArrayProperty::GetMinAlignment() const
{
	return alignof(FScriptArray);
}

bool FArrayProperty::ContainsObjectReference() const
{
	return Inner->ContainsObjectReference();
}

void FArrayProperty::AddReferencedObjectsInValue(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	FScriptArrayHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Inner->AddReferencedObjectsInValue(Helper.GetRawPtr(Index), Collector, ReferencingObject);
	}
}

void FArrayProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		::new ((uint8*)Dest + Index * ElementSize) FScriptArray();
	}
}

void FArrayProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		void* Value = (uint8*)Dest + Index * ElementSize;
		FScriptArrayHelper(this, Value).EmptyValues();
		((FScriptArray*)Value)->~FScriptArray();
	}
}

void FArrayProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		void* DestValue = (uint8*)Dest + Index * ElementSize;
		const void* SrcValue = (const uint8*)Src + Index * ElementSize;
		FScriptArrayHelper DestHelper(this, DestValue);
		FScriptArrayHelper SrcHelper(this, SrcValue);
		DestHelper.Resize(SrcHelper.Num());
		for (int32 Element = 0; Element < SrcHelper.Num(); ++Element)
		{
			Inner->CopySingleValue(DestHelper.GetRawPtr(Element), SrcHelper.GetRawPtr(Element));
		}
	}
}

bool FArrayProperty::IdenticalInternal(const void* A, const void* B, uint32 PortFlags) const
{
	FScriptArrayHelper HelperA(this, A);
	FScriptArrayHelper HelperB(this, B);
	if (HelperA.Num() != HelperB.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < HelperA.Num(); ++Index)
	{
		if (!Inner->Identical(HelperA.GetRawPtr(Index), HelperB.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	FScriptArrayHelper Helper(this, PropertyValue);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		if (Index > 0)
		{
			ValueStr += TEXT(",");
		}
		Inner->ExportTextItem_Direct(ValueStr, Helper.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FArrayProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	if (*Buffer != u'(')
	{
		return nullptr;
	}
	FScriptArrayHelper Helper(this, Data);
	Helper.EmptyValues();
	const TCHAR* Cursor = SkipWhitespace(Buffer + 1);
	while (*Cursor && *Cursor != u')')
	{
		const int32 Index = Helper.AddValue();
		Cursor = Inner->ImportText_Direct(Cursor, Helper.GetRawPtr(Index), OwnerObject, PortFlags | PPF_Delimited);
		if (Cursor == nullptr)
		{
			return nullptr;
		}
		Cursor = SkipWhitespace(Cursor);
		if (*Cursor == u',')
		{
			Cursor = SkipWhitespace(Cursor + 1);
		}
	}
	return *Cursor == u')' ? Cursor + 1 : nullptr;
}

FScriptArrayHelper::FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
	: Inner(InProperty->Inner)
	, Array((FScriptArray*)InArray)
	, ElementSize(InProperty->Inner->ElementSize)
{
}

FScriptArrayHelper::FScriptArrayHelper(FProperty* InInner, const void* InArray, int32 InElementSize)
	: Inner(InInner)
	, Array((FScriptArray*)InArray)
	, ElementSize(InElementSize)
{
}

FScriptArrayHelper FScriptArrayHelper::CreateHelperFormInnerProperty(FProperty* InInnerProperty, const void* InArray)
{
	return FScriptArrayHelper(InInnerProperty, InArray, InInnerProperty->ElementSize);
}

int32 FScriptArrayHelper::Num() const
{
	return Array->Num();
}

uint8* FScriptArrayHelper::GetRawPtr(int32 Index)
{
	return (uint8*)Array->GetData() + SIZE_T(Index) * ElementSize;
}

int32 FScriptArrayHelper::AddValues(int32 Count)
{
	const int32 First = Array->Add(Count, ElementSize, uint32(Inner->GetMinAlignment()));
	for (int32 Index = First; Index < First + Count; ++Index)
	{
		uint8* Element = GetRawPtr(Index);
		FMemory::Memzero(Element, SIZE_T(ElementSize));
		Inner->InitializeValue(Element);
	}
	return First;
}

void FScriptArrayHelper::RemoveValues(int32 Index, int32 Count)
{
	for (int32 Element = Index; Element < Index + Count; ++Element)
	{
		Inner->DestroyValue(GetRawPtr(Element));
	}
	Array->Remove(Index, Count, ElementSize, uint32(Inner->GetMinAlignment()));
}

void FScriptArrayHelper::EmptyValues()
{
	RemoveValues(0, Num());
}

void FScriptArrayHelper::Resize(int32 NewNum)
{
	if (NewNum > Num())
	{
		AddValues(NewNum - Num());
	}
	else if (NewNum < Num())
	{
		RemoveValues(NewNum, Num() - NewNum);
	}
}

// Delegates

FDelegateProperty::FDelegateProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UFunction* InSignatureFunction)
	: TProperty<FScriptDelegate, FProperty>(InOwner, InName, InObjectFlags, InOffset, InFlags)
	, SignatureFunction(InSignatureFunction)
{
}

FString FDelegateProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("F"));
	FString Name = SignatureFunction ? SignatureFunction->GetName() : FString();
	const int32 Suffix = Name.Find(TEXT("__DelegateSignature"));
	Result += Suffix >= 0 ? Name.Left(Suffix) : Name;
	return Result;
}

void FDelegateProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	const FScriptDelegate& Delegate = *(const FScriptDelegate*)PropertyValue;
	const UObject* Object = Delegate.GetUObject();
	if (Object == nullptr)
	{
		ValueStr += TEXT("None");
		return;
	}
	ValueStr += Object->GetName();
	ValueStr += TEXT(".");
	ValueStr += Delegate.GetFunctionName().ToString();
}

const TCHAR* FDelegateProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	return nullptr;
}

FMulticastDelegateProperty::FMulticastDelegateProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UFunction* InSignatureFunction)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags)
	, SignatureFunction(InSignatureFunction)
{
}

FMulticastInlineDelegateProperty::FMulticastInlineDelegateProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UFunction* InSignatureFunction)
	: TProperty<FMulticastScriptDelegate, FMulticastDelegateProperty>(InOwner, InName, InObjectFlags, InOffset, InFlags, InSignatureFunction)
{
}

FString FMulticastInlineDelegateProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	FString Result(TEXT("F"));
	FString Name = SignatureFunction ? SignatureFunction->GetName() : FString();
	const int32 Suffix = Name.Find(TEXT("__DelegateSignature"));
	Result += Suffix >= 0 ? Name.Left(Suffix) : Name;
	return Result;
}

const FMulticastScriptDelegate* FMulticastInlineDelegateProperty::GetMulticastDelegate(const void* PropertyValue) const
{
	return (const FMulticastScriptDelegate*)PropertyValue;
}

void FMulticastInlineDelegateProperty::SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const
{
	*(FMulticastScriptDelegate*)PropertyValue = ScriptDelegate;
}

void FMulticastInlineDelegateProperty::AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent, void* PropertyValue) const
{
	check(PropertyValue || Parent);
	FMulticastScriptDelegate* Delegate = PropertyValue ? (FMulticastScriptDelegate*)PropertyValue : ContainerPtrToValuePtr<FMulticastScriptDelegate>(Parent);
	Delegate->AddUnique(ScriptDelegate);
}

void FMulticastInlineDelegateProperty::RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent, void* PropertyValue) const
{
	check(PropertyValue || Parent);
	FMulticastScriptDelegate* Delegate = PropertyValue ? (FMulticastScriptDelegate*)PropertyValue : ContainerPtrToValuePtr<FMulticastScriptDelegate>(Parent);
	Delegate->Remove(ScriptDelegate);
}

void FMulticastInlineDelegateProperty::ClearDelegate(UObject* Parent, void* PropertyValue) const
{
	check(PropertyValue || Parent);
	FMulticastScriptDelegate* Delegate = PropertyValue ? (FMulticastScriptDelegate*)PropertyValue : ContainerPtrToValuePtr<FMulticastScriptDelegate>(Parent);
	Delegate->Clear();
}

void FMulticastInlineDelegateProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, UObject* Parent, int32 PortFlags) const
{
	ValueStr += TEXT("()");
}

const TCHAR* FMulticastInlineDelegateProperty::ImportTextInternal(const TCHAR* Buffer, void* Data, UObject* OwnerObject, int32 PortFlags) const
{
	return nullptr;
}
