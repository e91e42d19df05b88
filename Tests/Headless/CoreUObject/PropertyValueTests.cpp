#include "TestPropertyTypes.h"

#include "UObject/Package.h"
#include "Containers/StringConv.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	FProperty* Prop(const UStruct* Owner, const TCHAR* Name)
	{
		FProperty* Property = Owner->FindPropertyByName(FName(Name));
		check(Property);
		return Property;
	}

	// A struct's value in memory laid out and constructed by its reflected type only.
	struct FScriptValue
	{
		explicit FScriptValue(UScriptStruct* InStruct)
			: Struct(InStruct)
			, Memory((uint8*)FMemory::Malloc(SIZE_T(InStruct->GetStructureSize()), uint32(InStruct->GetMinAlignment())))
		{
			Struct->InitializeStruct(Memory);
		}
		~FScriptValue()
		{
			Struct->DestroyStruct(Memory);
			FMemory::Free(Memory);
		}
		UScriptStruct* Struct;
		uint8* Memory;
	};
}

TEST(PropertyValues, EachIntegerWidthHasItsOwnKindSizeAndAddress)
{
	UClass* Class = UTestValues::StaticClass();
	UTestValues* Values = NewObject<UTestValues>();
	struct FExpected
	{
		const TCHAR* Name;
		FFieldClass* Kind;
		int32 Size;
		const void* Address;
		const TCHAR* CppType;
	};
	const FExpected Cases[] = {
		{TEXT("Tiny"), FInt8Property::StaticClass(), 1, &Values->Tiny, TEXT("int8")},
		{TEXT("Small"), FInt16Property::StaticClass(), 2, &Values->Small, TEXT("int16")},
		{TEXT("SmallUnsigned"), FUInt16Property::StaticClass(), 2, &Values->SmallUnsigned, TEXT("uint16")},
		{TEXT("Unsigned"), FUInt32Property::StaticClass(), 4, &Values->Unsigned, TEXT("uint32")},
		{TEXT("Big"), FInt64Property::StaticClass(), 8, &Values->Big, TEXT("int64")},
		{TEXT("BigUnsigned"), FUInt64Property::StaticClass(), 8, &Values->BigUnsigned, TEXT("uint64")},
		{TEXT("Byte"), FByteProperty::StaticClass(), 1, &Values->Byte, TEXT("uint8")},
		{TEXT("Precise"), FDoubleProperty::StaticClass(), 8, &Values->Precise, TEXT("double")},
		{TEXT("bOn"), FBoolProperty::StaticClass(), 1, &Values->bOn, TEXT("bool")},
	};
	for (const FExpected& Case : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*FString(Case.Name)));
		const FProperty* Property = Prop(Class, Case.Name);
		EXPECT_EQ(Property->GetClass(), Case.Kind);
		EXPECT_EQ(Property->GetSize(), Case.Size);
		EXPECT_EQ(Property->ContainerPtrToValuePtr<void>(Values), Case.Address);
		EXPECT_EQ(Property->GetCPPType(), FString(Case.CppType));
		EXPECT_TRUE(Property->IsInContainer(Class->GetPropertiesSize()));
	}
}

TEST(PropertyValues, NumericAccessorsConvertThroughTheDeclaredWidth)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FNumericProperty* Tiny = CastField<FNumericProperty>(Prop(UTestValues::StaticClass(), TEXT("Tiny")));
	const FNumericProperty* BigUnsigned = CastField<FNumericProperty>(Prop(UTestValues::StaticClass(), TEXT("BigUnsigned")));
	const FNumericProperty* Precise = CastField<FNumericProperty>(Prop(UTestValues::StaticClass(), TEXT("Precise")));
	ASSERT_TRUE(Tiny && BigUnsigned && Precise);
	EXPECT_TRUE(Tiny->IsInteger());
	EXPECT_FALSE(Tiny->IsFloatingPoint());
	EXPECT_TRUE(Precise->IsFloatingPoint());
	EXPECT_FALSE(Tiny->IsEnum());

	EXPECT_EQ(Tiny->GetSignedIntPropertyValue(&Values->Tiny), -8);
	Tiny->SetIntPropertyValue(&Values->Tiny, int64(300));
	EXPECT_EQ(Values->Tiny, int8(44));
	EXPECT_EQ(Values->Small, -16);

	BigUnsigned->SetIntPropertyValue(&Values->BigUnsigned, uint64(0xFFFFFFFFFFFFFFFFull));
	EXPECT_EQ(BigUnsigned->GetUnsignedIntPropertyValue(&Values->BigUnsigned), 0xFFFFFFFFFFFFFFFFull);
	EXPECT_EQ(BigUnsigned->GetNumericPropertyValueToString(&Values->BigUnsigned), FString(TEXT("18446744073709551615")));

	Precise->SetFloatingPointPropertyValue(&Values->Precise, 0.1);
	EXPECT_EQ(Values->Precise, 0.1);
	EXPECT_EQ(Precise->GetNumericPropertyValueToString(&Values->Precise), FString(TEXT("0.100000")));
}

TEST(PropertyValues, NumericTextSetsTheFullRangeOfUnsignedAndSignedWidths)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FNumericProperty* BigUnsigned = CastField<FNumericProperty>(Prop(UTestValues::StaticClass(), TEXT("BigUnsigned")));
	const FNumericProperty* Big = CastField<FNumericProperty>(Prop(UTestValues::StaticClass(), TEXT("Big")));
	const FNumericProperty* Precise = CastField<FNumericProperty>(Prop(UTestValues::StaticClass(), TEXT("Precise")));

	BigUnsigned->SetNumericPropertyValueFromString(&Values->BigUnsigned, TEXT("18446744073709551615"));
	Big->SetNumericPropertyValueFromString(&Values->Big, TEXT("-9223372036854775808"));
	Precise->SetNumericPropertyValueFromString(&Values->Precise, TEXT("2.25"));

	EXPECT_EQ(Values->BigUnsigned, 0xFFFFFFFFFFFFFFFFull);
	EXPECT_EQ(Values->Big, std::numeric_limits<int64>::min());
	EXPECT_EQ(Values->Precise, 2.25);
}

TEST(PropertyValues, AFixedArrayIsOnePropertyWhoseElementsAreAddressedByIndex)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FIntProperty* Counts = CastField<FIntProperty>(Prop(UTestValues::StaticClass(), TEXT("Counts")));
	ASSERT_NE(Counts, nullptr);
	EXPECT_EQ(Counts->ArrayDim, 3);
	EXPECT_EQ(Counts->GetElementSize(), 4);
	EXPECT_EQ(Counts->GetSize(), 12);
	EXPECT_EQ(Counts->ContainerPtrToValuePtr<int32>(Values, 2), &Values->Counts[2]);

	Counts->SetPropertyValue_InContainer(Values, 7, 1);
	EXPECT_EQ(Values->Counts[1], 7);
	EXPECT_EQ(Counts->GetPropertyValue_InContainer(Values, 1), 7);

	UTestValues* Other = NewObject<UTestValues>();
	Values->Counts[0] = 1;
	Values->Counts[2] = 3;
	Counts->CopyCompleteValue_InContainer(Other, Values);
	EXPECT_EQ(Other->Counts[0], 1);
	EXPECT_EQ(Other->Counts[1], 7);
	EXPECT_EQ(Other->Counts[2], 3);

	Other->Counts[2] = 4;
	EXPECT_TRUE(Counts->Identical_InContainer(Values, Other, 1));
	EXPECT_FALSE(Counts->Identical_InContainer(Values, Other, 2));
}

TEST(PropertyValues, CopyAndIdenticalWorkForEveryValueKind)
{
	UTestBase* Target = NewObject<UTestBase>();
	UTestValues* A = NewObject<UTestValues>();
	UTestValues* B = NewObject<UTestValues>();
	A->Tiny = 1;
	A->Small = 2;
	A->SmallUnsigned = 3;
	A->Unsigned = 4;
	A->Big = 5;
	A->BigUnsigned = 6;
	A->Byte = 7;
	A->Precise = 8.5;
	A->bOn = true;
	A->Caption = FText::FromString(TEXT("Stash"));
	A->Signed = ETestSigned::Below;
	A->Counts[0] = 5;
	A->Placement.Cell.X = 9;
	A->Placement.Corners[1].Y = 10;
	A->Placement.Path.Add(FTestCell{11, 12});
	A->Placement.Tag = FName(TEXT("Tagged"));
	A->Placement.Note = TEXT("note");
	A->Placement.Layout = ETestLayout::Slots;
	A->Path = FSoftObjectPath(TEXT("/Game/Items/Table.Table"));
	A->Kind = UTestWidget::StaticClass();
	A->Strong = Target;
	A->Weak = Target;
	A->Soft = Target;
	A->Numbers = {1, 2, 3};
	A->Switches = {true, false};
	A->Doubles = {0.25};
	A->Strings = {TEXT("a"), TEXT("b")};
	A->Names = {FName(TEXT("n"))};
	A->Texts = {FText::FromString(TEXT("t"))};
	A->Layouts = {ETestLayout::Slots, ETestLayout::Grid};
	A->RawRefs = {Target, nullptr};
	A->Weaks = {Target};
	A->Softs = {TSoftObjectPtr<UTestBase>(Target)};

	int32 Checked = 0;
	for (TFieldIterator<FProperty> It(UTestValues::StaticClass(), EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*FString(It->GetName())));
		EXPECT_TRUE(It->Identical_InContainer(A, A)) << "a value equals itself";
		EXPECT_FALSE(It->Identical_InContainer(A, B)) << "a changed value differs from the default";
		It->CopyCompleteValue_InContainer(B, A);
		EXPECT_TRUE(It->Identical_InContainer(A, B)) << "a copy equals its source";
		++Checked;
	}
	EXPECT_EQ(Checked, 28);
	EXPECT_EQ(B->Placement.Path.Num(), 1);
	EXPECT_EQ(B->Placement.Corners[1].Y, 10);
	EXPECT_EQ(B->Weak.Get(), Target);
	EXPECT_EQ(B->Softs[0].Get(), Target);
	EXPECT_EQ(B->Caption.ToString(), FString(TEXT("Stash")));
}

TEST(PropertyValues, CopyingAnArrayOfStructsReplacesTheDestinationContents)
{
	UTestValues* A = NewObject<UTestValues>();
	UTestValues* B = NewObject<UTestValues>();
	A->Placement.Path = {FTestCell{1, 1}};
	B->Placement.Path = {FTestCell{2, 2}, FTestCell{3, 3}, FTestCell{4, 4}};
	const FStructProperty* Placement = CastField<FStructProperty>(Prop(UTestValues::StaticClass(), TEXT("Placement")));

	Placement->CopyCompleteValue_InContainer(B, A);

	ASSERT_EQ(B->Placement.Path.Num(), 1);
	EXPECT_EQ(B->Placement.Path[0].X, 1);
	const FArrayProperty* Path = CastField<FArrayProperty>(Prop(FTestPlacement::StaticStruct(), TEXT("Path")));
	ASSERT_NE(Path, nullptr);
	B->Placement.Path.Add(FTestCell{1, 2});
	EXPECT_FALSE(Path->Identical_InContainer(&A->Placement, &B->Placement));
}

TEST(PropertyValues, AStructMadeFromItsReflectedTypeIsConstructedCopiedClearedAndDestroyed)
{
	UScriptStruct* Struct = FTestPlacement::StaticStruct();
	EXPECT_EQ(Struct->GetStructureSize(), int32(sizeof(FTestPlacement)));
	EXPECT_EQ(Struct->GetMinAlignment(), int32(alignof(FTestPlacement)));
	FScriptValue Value(Struct);
	FTestPlacement& Placement = *(FTestPlacement*)Value.Memory;
	EXPECT_EQ(Placement.Layout, ETestLayout::Grid);
	EXPECT_EQ(Placement.Path.Num(), 0);

	FTestPlacement Source;
	Source.Path = {FTestCell{5, 6}, FTestCell{7, 8}};
	Source.Note = TEXT("long enough to live on the heap, not inline in the string");
	Source.Corners[0].X = 4;
	Struct->CopyScriptStruct(Value.Memory, &Source);
	EXPECT_TRUE(Struct->CompareScriptStruct(Value.Memory, &Source, 0));
	EXPECT_EQ(Placement.Path[1].Y, 8);
	EXPECT_EQ(Placement.Corners[0].X, 4);

	Struct->ClearScriptStruct(Value.Memory);
	EXPECT_EQ(Placement.Path.Num(), 0);
	EXPECT_TRUE(Placement.Note.IsEmpty());
	EXPECT_EQ(Placement.Corners[0].X, 0);
}

TEST(PropertyValues, NestedStructMembersAreReachedThroughTheirOwnStructsProperties)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FStructProperty* Placement = CastField<FStructProperty>(Prop(UTestValues::StaticClass(), TEXT("Placement")));
	ASSERT_NE(Placement, nullptr);
	EXPECT_EQ(Placement->Struct, FTestPlacement::StaticStruct());
	const FStructProperty* Corners = CastField<FStructProperty>(Prop(Placement->Struct, TEXT("Corners")));
	ASSERT_NE(Corners, nullptr);
	EXPECT_EQ(Corners->ArrayDim, 2);
	EXPECT_EQ(Corners->Struct, FTestCell::StaticStruct());
	const FIntProperty* Y = CastField<FIntProperty>(Prop(Corners->Struct, TEXT("Y")));

	void* PlacementValue = Placement->ContainerPtrToValuePtr<void>(Values);
	void* SecondCorner = Corners->ContainerPtrToValuePtr<void>(PlacementValue, 1);
	Y->SetPropertyValue_InContainer(SecondCorner, 42);

	EXPECT_EQ(Values->Placement.Corners[1].Y, 42);
	EXPECT_EQ(Values->Placement.Corners[0].Y, 0);
	EXPECT_EQ(Corners->GetCPPType(), FString(TEXT("FTestCell")));
}

TEST(PropertyValues, ArraysAreEditedThroughTheScriptArrayHelper)
{
	UTestValues* Values = NewObject<UTestValues>();
	Values->Strings = {TEXT("first")};
	const FArrayProperty* Strings = CastField<FArrayProperty>(Prop(UTestValues::StaticClass(), TEXT("Strings")));
	ASSERT_NE(Strings, nullptr);
	EXPECT_TRUE(Strings->Inner->IsA<FStrProperty>());
	EXPECT_EQ(Strings->GetCPPType(), FString(TEXT("TArray<FString>")));
	FScriptArrayHelper Helper(Strings, Strings->ContainerPtrToValuePtr<void>(Values));

	const int32 Added = Helper.AddValues(2);
	EXPECT_EQ(Added, 1);
	ASSERT_EQ(Values->Strings.Num(), 3);
	EXPECT_TRUE(Values->Strings[2].IsEmpty());
	*(FString*)Helper.GetRawPtr(2) = TEXT("third");
	Helper.RemoveValues(0);
	ASSERT_EQ(Values->Strings.Num(), 2);
	EXPECT_EQ(Values->Strings[1], FString(TEXT("third")));
	Helper.Resize(5);
	EXPECT_EQ(Values->Strings.Num(), 5);
	EXPECT_EQ(Values->Strings[1], FString(TEXT("third")));
	Helper.EmptyValues();
	EXPECT_EQ(Helper.Num(), 0);
	EXPECT_FALSE(Helper.IsValidIndex(0));
}

TEST(PropertyValues, ObjectPropertiesOfEveryStrengthReadAndWriteTheSameObject)
{
	UTestValues* Values = NewObject<UTestValues>();
	UTestBase* Target = NewObject<UTestBase>();
	for (const TCHAR* Name : {TEXT("Strong"), TEXT("Weak"), TEXT("Soft")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*FString(Name)));
		const FObjectPropertyBase* Property = CastField<FObjectPropertyBase>(Prop(UTestValues::StaticClass(), Name));
		ASSERT_NE(Property, nullptr);
		EXPECT_EQ(Property->PropertyClass, UTestBase::StaticClass());
		EXPECT_EQ(Property->GetObjectPropertyValue_InContainer(Values), nullptr);
		Property->SetObjectPropertyValue_InContainer(Values, Target);
		EXPECT_EQ(Property->GetObjectPropertyValue_InContainer(Values), Target);
	}
	EXPECT_EQ(Values->Strong, Target);
	EXPECT_EQ(Values->Weak.Get(), Target);
	EXPECT_EQ(Values->Soft.Get(), Target);
	EXPECT_EQ(Values->Soft.ToSoftObjectPath().ToString(), Target->GetPathName());

	EXPECT_EQ(Prop(UTestValues::StaticClass(), TEXT("Strong"))->GetCPPType(), FString(TEXT("TObjectPtr<UTestBase>")));
	EXPECT_EQ(Prop(UTestValues::StaticClass(), TEXT("Weak"))->GetCPPType(), FString(TEXT("TWeakObjectPtr<UTestBase>")));
	EXPECT_EQ(Prop(UTestValues::StaticClass(), TEXT("Soft"))->GetCPPType(), FString(TEXT("TSoftObjectPtr<UTestBase>")));
	EXPECT_EQ(Prop(UTestValues::StaticClass(), TEXT("Kind"))->GetCPPType(), FString(TEXT("TSubclassOf<UTestBase>")));
	const FClassProperty* Kind = CastField<FClassProperty>(Prop(UTestValues::StaticClass(), TEXT("Kind")));
	ASSERT_NE(Kind, nullptr);
	EXPECT_EQ(Kind->MetaClass, UTestBase::StaticClass());
	EXPECT_TRUE(Prop(UTestValues::StaticClass(), TEXT("Path"))->IsA<FStructProperty>());
	EXPECT_EQ(CastField<FStructProperty>(Prop(UTestValues::StaticClass(), TEXT("Path")))->Struct, TBaseStructure<FSoftObjectPath>::Get());
}

TEST(PropertyValues, OnlyStrongReferencesAreReportedAsObjectReferences)
{
	UClass* Class = UTestValues::StaticClass();
	EXPECT_TRUE(Prop(Class, TEXT("Strong"))->ContainsObjectReference());
	EXPECT_TRUE(Prop(Class, TEXT("RawRefs"))->ContainsObjectReference());
	EXPECT_FALSE(Prop(Class, TEXT("Weak"))->ContainsObjectReference());
	EXPECT_FALSE(Prop(Class, TEXT("Soft"))->ContainsObjectReference());
	EXPECT_FALSE(Prop(Class, TEXT("Weaks"))->ContainsObjectReference());
	EXPECT_FALSE(Prop(Class, TEXT("Numbers"))->ContainsObjectReference());
	EXPECT_FALSE(Prop(Class, TEXT("Placement"))->ContainsObjectReference());
	EXPECT_TRUE(Prop(FTestRecord::StaticStruct(), TEXT("Held"))->ContainsObjectReference());
	EXPECT_TRUE(Prop(UTestWidget::StaticClass(), TEXT("Records"))->ContainsObjectReference());
}

TEST(PropertyValues, EnumClassWithAWiderSignedTypeKeepsItsNegativeValues)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FEnumProperty* Signed = CastField<FEnumProperty>(Prop(UTestValues::StaticClass(), TEXT("Signed")));
	ASSERT_NE(Signed, nullptr);
	EXPECT_TRUE(Signed->GetUnderlyingProperty()->IsA<FIntProperty>());
	EXPECT_EQ(Signed->GetSize(), 4);
	EXPECT_EQ(Signed->GetCPPType(), FString(TEXT("ETestSigned")));

	Signed->GetUnderlyingProperty()->SetIntPropertyValue(Signed->ContainerPtrToValuePtr<void>(Values), int64(-5));

	EXPECT_EQ(Values->Signed, ETestSigned::Below);
	UEnum* Enum = Signed->GetEnum();
	EXPECT_EQ(Enum->GetValueByIndex(0), -5);
	EXPECT_EQ(Enum->GetNameStringByValue(1000), FString(TEXT("Above")));
	EXPECT_EQ(Enum->GetMaxEnumValue(), 1001);
	EXPECT_TRUE(Enum->IsValidEnumValue(-5));
	EXPECT_FALSE(Enum->IsValidEnumValue(0));
}
