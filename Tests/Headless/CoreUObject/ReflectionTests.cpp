#include "TestReflectedTypes.h"

#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

TEST(Reflection, ClassReadsBackItsNameSuperAndMetadata)
{
	UClass* Class = UTestWidget::StaticClass();
	EXPECT_EQ(Class->GetName(), FString(TEXT("TestWidget")));
	EXPECT_EQ(Class->GetSuperClass(), UTestBase::StaticClass());
	EXPECT_EQ(Class->GetOuter()->GetName(), FString(TEXT("/Script/CoreUObjectTests")));
	EXPECT_EQ(Class->GetMetaData(TEXT("DisplayName")), FString(TEXT("Test Widget")));
	EXPECT_EQ(Class->GetPathName(), FString(TEXT("/Script/CoreUObjectTests.TestWidget")));
}

TEST(Reflection, PropertiesIterateInDeclaredOrderThenTheSuperClasses)
{
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(UTestWidget::StaticClass()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	ASSERT_GE(Names.Num(), 4);
	EXPECT_EQ(Names[0], FString(TEXT("bLoadOnConstruct")));
	EXPECT_EQ(Names[1], FString(TEXT("Provider")));
	EXPECT_EQ(Names[Names.Num() - 2], FString(TEXT("BaseValue")));
	EXPECT_EQ(Names[Names.Num() - 1], FString(TEXT("BaseRef")));

	int32 OwnOnly = 0;
	for (TFieldIterator<FProperty> It(UTestWidget::StaticClass(), EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		++OwnOnly;
	}
	EXPECT_EQ(OwnOnly, Names.Num() - 2);
}

TEST(Reflection, PropertyKindsFlagsAndMetadataFollowTheDeclaration)
{
	UClass* Class = UTestWidget::StaticClass();
	const FBoolProperty* Load = CastField<FBoolProperty>(Class->FindPropertyByName(FName(TEXT("bLoadOnConstruct"))));
	ASSERT_NE(Load, nullptr);
	EXPECT_TRUE(Load->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_NativeAccessSpecifierPublic));
	EXPECT_FALSE(Load->HasAnyPropertyFlags(CPF_BlueprintReadOnly));
	EXPECT_EQ(Load->GetMetaData(TEXT("Category")), FString(TEXT("Test|Identity")));
	EXPECT_EQ(Load->GetMetaData(TEXT("ToolTip")), FString(TEXT("Whether it loads itself.")));

	const FEnumProperty* Layout = CastField<FEnumProperty>(Class->FindPropertyByName(FName(TEXT("Layout"))));
	ASSERT_NE(Layout, nullptr);
	EXPECT_EQ(Layout->GetEnum(), StaticEnum<ETestLayout>());
	EXPECT_TRUE(Layout->GetUnderlyingProperty()->IsA<FByteProperty>());

	EXPECT_EQ(Class->FindPropertyByName(FName(TEXT("Columns")))->GetMetaData(TEXT("ClampMin")), FString(TEXT("1")));
	EXPECT_TRUE(Class->FindPropertyByName(FName(TEXT("CellSize")))->IsA<FFloatProperty>());
	EXPECT_TRUE(Class->FindPropertyByName(FName(TEXT("Title")))->IsA<FTextProperty>());
	EXPECT_EQ(CastField<FStructProperty>(Class->FindPropertyByName(FName(TEXT("Tint"))))->Struct, TBaseStructure<FLinearColor>::Get());

	const FObjectProperty* Child = CastField<FObjectProperty>(Class->FindPropertyByName(FName(TEXT("Child"))));
	ASSERT_NE(Child, nullptr);
	EXPECT_EQ(Child->PropertyClass, UTestBase::StaticClass());
	EXPECT_TRUE(Child->HasAllPropertyFlags(CPF_InstancedReference | CPF_ExportObject | CPF_PersistentInstance | CPF_TObjectPtr));
	EXPECT_EQ(Child->GetCPPType(), FString(TEXT("TObjectPtr<UTestBase>")));

	const FArrayProperty* Records = CastField<FArrayProperty>(Class->FindPropertyByName(FName(TEXT("Records"))));
	ASSERT_NE(Records, nullptr);
	EXPECT_TRUE(Records->HasAnyPropertyFlags(CPF_Transient));
	EXPECT_EQ(CastField<FStructProperty>(Records->Inner)->Struct, FTestRecord::StaticStruct());
	EXPECT_EQ(Class->FindPropertyByName(FName(TEXT("Fixed")))->ArrayDim, 2);
	EXPECT_TRUE(Class->FindPropertyByName(FName(TEXT("Weak")))->IsA<FWeakObjectProperty>());
	EXPECT_TRUE(Class->FindPropertyByName(FName(TEXT("Soft")))->IsA<FSoftObjectProperty>());
}

TEST(Reflection, DefaultsReadBackThroughPropertiesOfTheClassDefaultObject)
{
	const UTestWidget* Defaults = GetDefault<UTestWidget>();
	ASSERT_TRUE(Defaults->HasAnyFlags(RF_ClassDefaultObject));
	UClass* Class = UTestWidget::StaticClass();
	EXPECT_EQ(CastField<FIntProperty>(Class->FindPropertyByName(FName(TEXT("Columns"))))->GetPropertyValue_InContainer(Defaults), 10);
	EXPECT_EQ(CastField<FIntProperty>(Class->FindPropertyByName(FName(TEXT("BaseValue"))))->GetPropertyValue_InContainer(Defaults), 7);
	EXPECT_EQ(CastField<FStrProperty>(Class->FindPropertyByName(FName(TEXT("Provider"))))->GetPropertyValue_InContainer(Defaults), FString(TEXT("steam")));
	FString Tint;
	Class->FindPropertyByName(FName(TEXT("Tint")))->ExportTextItem_InContainer(Tint, Defaults, nullptr, nullptr, PPF_None);
	EXPECT_EQ(Tint, FString(TEXT("(R=0.250000,G=0.500000,B=0.750000,A=1.000000)")));
}

TEST(Reflection, StructsAndEnumsAreRegisteredWithTheirModulePackage)
{
	UScriptStruct* Record = FTestRecord::StaticStruct();
	EXPECT_EQ(Record->GetName(), FString(TEXT("TestRecord")));
	EXPECT_EQ(Record->GetStructureSize(), int32(sizeof(FTestRecord)));
	FTestRecord A;
	A.Label = TEXT("x");
	A.Count = 3;
	FTestRecord B;
	Record->CopyScriptStruct(&B, &A);
	EXPECT_EQ(B.Count, 3);
	EXPECT_TRUE(Record->CompareScriptStruct(&A, &B, 0));

	UEnum* Enum = StaticEnum<ETestLayout>();
	EXPECT_EQ(Enum->GetNameStringByValue(int64(ETestLayout::Slots)), FString(TEXT("Slots")));
	EXPECT_EQ(Enum->GetNameByValue(0), FName(TEXT("ETestLayout::Grid")));
	EXPECT_EQ(Enum->GetDisplayNameTextByValue(0).ToString(), FString(TEXT("Grid of cells")));
	EXPECT_EQ(Enum->GetValueByNameString(FString(TEXT("Slots"))), 1);
	EXPECT_EQ(Enum->NumEnums(), 3);
	EXPECT_EQ(FindObject<UEnum>(nullptr, TEXT("/Script/CoreUObjectTests.ETestLayout")), Enum);
}

TEST(Reflection, FunctionsLayTheirParametersOutInTheGeneratedParameterBlock)
{
	UFunction* Deposit = UTestWidget::StaticClass()->FindFunctionByName(FName(TEXT("Deposit")));
	ASSERT_NE(Deposit, nullptr);
	EXPECT_EQ(Deposit->NumParms, 4);
	EXPECT_EQ(Deposit->ReturnValueOffset, 0xffff);
	EXPECT_TRUE(Deposit->HasAllFunctionFlags(FUNC_Native | FUNC_Final | FUNC_Public | FUNC_BlueprintCallable | FUNC_HasDefaults));
	UFunction* Find = UTestWidget::StaticClass()->FindFunctionByName(FName(TEXT("Find")));
	const FProperty* Key = Find->FindPropertyByName(FName(TEXT("Key")));
	const FProperty* Out = Find->FindPropertyByName(FName(TEXT("OutRecord")));
	EXPECT_TRUE(Key->HasAllPropertyFlags(CPF_Parm | CPF_ConstParm | CPF_ReferenceParm | CPF_OutParm));
	EXPECT_TRUE(Out->HasAllPropertyFlags(CPF_Parm | CPF_OutParm));
	EXPECT_FALSE(Out->HasAnyPropertyFlags(CPF_ConstParm));
	EXPECT_TRUE(Find->GetReturnProperty()->HasAllPropertyFlags(CPF_Parm | CPF_OutParm | CPF_ReturnParm));
	EXPECT_EQ(UTestWidget::StaticClass()->FindFunctionByName(FName(TEXT("AddTo")))->GetMetaData(TEXT("ToolTip")), FString(TEXT("Adds Amount and reports the sum.")));
}
