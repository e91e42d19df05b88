#include "TestPropertyTypes.h"
#include "TestDelegates.h"

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
}

TEST(Specifiers, EditAndVisibilitySpecifiersBecomeTheEngineFlags)
{
	UClass* Class = UTestSpecifiers::StaticClass();
	const FProperty* Shown = Prop(Class, TEXT("Shown"));
	EXPECT_TRUE(Shown->HasAllPropertyFlags(CPF_Edit | CPF_EditConst | CPF_BlueprintVisible | CPF_BlueprintReadOnly));
	const FProperty* DefaultsOnly = Prop(Class, TEXT("DefaultsOnly"));
	EXPECT_TRUE(DefaultsOnly->HasAllPropertyFlags(CPF_Edit | CPF_DisableEditOnInstance));
	EXPECT_FALSE(DefaultsOnly->HasAnyPropertyFlags(CPF_EditConst | CPF_DisableEditOnTemplate | CPF_BlueprintVisible));
	const FProperty* InstanceOnly = Prop(Class, TEXT("InstanceOnly"));
	EXPECT_TRUE(InstanceOnly->HasAllPropertyFlags(CPF_Edit | CPF_DisableEditOnTemplate));
	EXPECT_FALSE(InstanceOnly->HasAnyPropertyFlags(CPF_DisableEditOnInstance));
	const FProperty* Plain = Prop(Class, TEXT("Plain"));
	EXPECT_FALSE(Plain->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_Transient | CPF_Config));
}

TEST(Specifiers, StorageSpecifiersAndAccessBecomeFlags)
{
	UClass* Class = UTestSpecifiers::StaticClass();
	EXPECT_TRUE(Prop(Class, TEXT("Configured"))->HasAnyPropertyFlags(CPF_Config));
	EXPECT_FALSE(Prop(Class, TEXT("Configured"))->HasAnyPropertyFlags(CPF_Transient));
	EXPECT_TRUE(Prop(Class, TEXT("Scratch"))->HasAnyPropertyFlags(CPF_Transient));
	EXPECT_TRUE(Prop(Class, TEXT("Plain"))->HasAnyPropertyFlags(CPF_NativeAccessSpecifierPublic));
	EXPECT_TRUE(Prop(Class, TEXT("Guarded"))->HasAnyPropertyFlags(CPF_NativeAccessSpecifierProtected));
	EXPECT_FALSE(Prop(Class, TEXT("Guarded"))->HasAnyPropertyFlags(CPF_NativeAccessSpecifierPublic));
	EXPECT_TRUE(Prop(Class, TEXT("Hidden"))->HasAnyPropertyFlags(CPF_NativeAccessSpecifierPrivate));
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_Config));
	EXPECT_EQ(Class->GetConfigName(), FName(TEXT("Game")));
}

TEST(Specifiers, AnInstancedArrayMarksItselfAndItsElements)
{
	const FArrayProperty* Parts = CastField<FArrayProperty>(Prop(UTestSpecifiers::StaticClass(), TEXT("Parts")));
	ASSERT_NE(Parts, nullptr);
	EXPECT_TRUE(Parts->HasAnyPropertyFlags(CPF_ContainsInstancedReference));
	EXPECT_TRUE(Parts->Inner->HasAllPropertyFlags(CPF_InstancedReference | CPF_ExportObject | CPF_PersistentInstance));
	EXPECT_EQ(CastField<FObjectProperty>(Parts->Inner)->PropertyClass, UTestBase::StaticClass());
}

TEST(Specifiers, AssignableDelegatesAreFlaggedAndOrdinaryMembersAreNot)
{
	const FProperty* Counted = UTestBroadcaster::StaticClass()->FindPropertyByName(FName(TEXT("OnCountChanged")));
	ASSERT_NE(Counted, nullptr);
	EXPECT_TRUE(Counted->HasAnyPropertyFlags(CPF_BlueprintAssignable));
	EXPECT_FALSE(Prop(UTestSpecifiers::StaticClass(), TEXT("Shown"))->HasAnyPropertyFlags(CPF_BlueprintAssignable));
}

TEST(Specifiers, MetadataCarriesTheDocCommentAndTheMetaSpecifiers)
{
	const FProperty* Depth = Prop(UTestSpecifiers::StaticClass(), TEXT("Depth"));
	EXPECT_EQ(Depth->GetMetaData(TEXT("EditCondition")), FString(TEXT("bAdvanced")));
	EXPECT_EQ(Depth->GetMetaData(TEXT("ClampMin")), FString(TEXT("0")));
	EXPECT_EQ(Depth->GetMetaData(TEXT("ClampMax")), FString(TEXT("8")));
	EXPECT_EQ(Depth->GetMetaData(TEXT("Category")), FString(TEXT("Edit")));
	EXPECT_EQ(Depth->GetMetaData(TEXT("ToolTip")), FString(TEXT("How deep to look.\nOnly while advanced.")));
	EXPECT_FALSE(Depth->HasMetaData(TEXT("UIMax")));
	EXPECT_EQ(Depth->FindMetaData(TEXT("UIMax")), nullptr);

	const FProperty* Plain = Prop(UTestSpecifiers::StaticClass(), TEXT("Plain"));
	EXPECT_EQ(Plain->GetMetaData(TEXT("ToolTip")), FString(TEXT("A line comment describes a member too.")));
	EXPECT_FALSE(Plain->HasMetaData(TEXT("Category")));

	EXPECT_EQ(FTestCell::StaticStruct()->GetMetaData(TEXT("ToolTip")), FString(TEXT("A cell of a grid.")));
	EXPECT_EQ(UTestWidget::StaticClass()->GetToolTipText().ToString(), FString(TEXT("A panel-like class with every kind of member the plugin uses.")));
	EXPECT_EQ(UTestWidget::StaticClass()->GetDisplayNameText().ToString(), FString(TEXT("Test Widget")));
}

TEST(Specifiers, DeprecatedPropertiesAreFlaggedAndSkippedWhenAsked)
{
	const FProperty* Old = Prop(UTestSpecifiers::StaticClass(), TEXT("Old_DEPRECATED"));
	EXPECT_TRUE(Old->HasAnyPropertyFlags(CPF_Deprecated));
	EXPECT_FALSE(Prop(UTestSpecifiers::StaticClass(), TEXT("Plain"))->HasAnyPropertyFlags(CPF_Deprecated));

	bool bSeenWithDeprecated = false;
	for (TFieldIterator<FProperty> It(UTestSpecifiers::StaticClass()); It; ++It)
	{
		bSeenWithDeprecated |= *It == Old;
	}
	bool bSeenWithoutDeprecated = false;
	int32 Remaining = 0;
	for (TFieldIterator<FProperty> It(UTestSpecifiers::StaticClass(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::ExcludeDeprecated); It; ++It)
	{
		bSeenWithoutDeprecated |= *It == Old;
		++Remaining;
	}
	EXPECT_TRUE(bSeenWithDeprecated);
	EXPECT_FALSE(bSeenWithoutDeprecated);
	EXPECT_EQ(Remaining, 11);
}

TEST(Specifiers, FieldIteratorWalksOwnPropertiesInOrderThenEachSuperInTurn)
{
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(UTestWidget::StaticClass()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	const int32 Title = Names.IndexOfByKey(FString(TEXT("Title")));
	const int32 Child = Names.IndexOfByKey(FString(TEXT("Child")));
	const int32 Soft = Names.IndexOfByKey(FString(TEXT("Soft")));
	const int32 BaseValue = Names.IndexOfByKey(FString(TEXT("BaseValue")));
	EXPECT_LT(Title, Child);
	EXPECT_EQ(Soft, BaseValue - 1);

	TArray<FString> Functions;
	for (TFieldIterator<UFunction> It(UTestWidget::StaticClass(), EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		Functions.Add(It->GetName());
	}
	ASSERT_EQ(Functions.Num(), 7);
	EXPECT_EQ(Functions[0], FString(TEXT("AddTo")));
	EXPECT_EQ(Functions[6], FString(TEXT("OnRecord")));

	int32 InStruct = 0;
	for (FProperty* Property : TFieldRange<FProperty>(FTestPlacement::StaticStruct()))
	{
		EXPECT_EQ(Property->GetOwnerStruct(), FTestPlacement::StaticStruct());
		++InStruct;
	}
	EXPECT_EQ(InStruct, 6);
	int32 Structs = 0;
	for (TFieldIterator<FStructProperty> It(FTestPlacement::StaticStruct()); It; ++It)
	{
		++Structs;
	}
	EXPECT_EQ(Structs, 2);
}

TEST(Specifiers, StructAndClassAncestryIsAnsweredByIsChildOf)
{
	EXPECT_TRUE(UTestWidget::StaticClass()->IsChildOf(UTestBase::StaticClass()));
	EXPECT_TRUE(UTestWidget::StaticClass()->IsChildOf<UObject>());
	EXPECT_TRUE(UTestWidget::StaticClass()->IsChildOf(UTestWidget::StaticClass()));
	EXPECT_FALSE(UTestBase::StaticClass()->IsChildOf(UTestWidget::StaticClass()));
	EXPECT_FALSE(UTestWidget::StaticClass()->IsChildOf(nullptr));
	EXPECT_FALSE(UTestValues::StaticClass()->IsChildOf(UTestBase::StaticClass()));
	EXPECT_TRUE(FTestCell::StaticStruct()->IsChildOf(FTestCell::StaticStruct()));
	EXPECT_FALSE(FTestCell::StaticStruct()->IsChildOf(FTestPlacement::StaticStruct()));
	EXPECT_TRUE(UClass::StaticClass()->IsChildOf(UStruct::StaticClass()));
	EXPECT_TRUE(UScriptStruct::StaticClass()->IsChildOf(UField::StaticClass()));
	EXPECT_TRUE(FTestCell::StaticStruct()->IsA<UScriptStruct>());
	EXPECT_TRUE(UTestWidget::StaticClass()->IsA<UClass>());
	EXPECT_FALSE(FTestCell::StaticStruct()->IsA<UClass>());
}

TEST(Specifiers, EnumLookupsOfUnknownEntriesAnswerNone)
{
	UEnum* Enum = StaticEnum<ETestSigned>();
	EXPECT_EQ(Enum->GetCppForm(), ECppForm::EnumClass);
	ASSERT_EQ(Enum->NumEnums(), 3);
	EXPECT_EQ(Enum->GetNameByIndex(2), FName(TEXT("ETestSigned::ETestSigned_MAX")));
	EXPECT_EQ(Enum->GetNameByValue(1000), FName(TEXT("ETestSigned::Above")));
	EXPECT_EQ(Enum->GetNameByValue(3), NAME_None);
	EXPECT_TRUE(Enum->GetNameStringByValue(3).IsEmpty());
	EXPECT_EQ(Enum->GetIndexByValue(-5), 0);
	EXPECT_EQ(Enum->GetIndexByValue(3), INDEX_NONE);
	EXPECT_EQ(Enum->GetValueByName(FName(TEXT("ETestSigned::Below"))), -5);
	EXPECT_EQ(Enum->GetValueByName(FName(TEXT("Below"))), -5);
	EXPECT_EQ(Enum->GetValueByNameString(FString(TEXT("Sideways"))), INDEX_NONE);
	EXPECT_EQ(Enum->GetIndexByName(FName(TEXT("ETestSigned::Above"))), 1);
	EXPECT_EQ(Enum->GetDisplayNameTextByValue(1000).ToString(), FString(TEXT("Above")));
}
