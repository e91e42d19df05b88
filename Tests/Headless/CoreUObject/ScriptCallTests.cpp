#include "TestReflectedTypes.h"

#include "Headless/ScriptCall.h"
#include "UObject/Package.h"

#include <gtest/gtest.h>

TEST(ScriptCall, MissingArgumentsTakeTheScriptDefaults)
{
	UTestWidget* Widget = NewObject<UTestWidget>();
	TMap<FName, FString> Arguments;
	Arguments.Add(FName(TEXT("ItemId")), FString(TEXT("Bandage")));

	ASSERT_TRUE(UE::Headless::CallFunctionByName(Widget, FName(TEXT("Deposit")), Arguments));

	EXPECT_EQ(Widget->LastItemId, FName(TEXT("Bandage")));
	EXPECT_EQ(Widget->LastQuantity, 1);
	EXPECT_EQ(Widget->LastX, -1);
	EXPECT_EQ(Widget->LastY, -1);
	UFunction* Deposit = Widget->FindFunctionChecked(FName(TEXT("Deposit")));
	EXPECT_EQ(Deposit->GetMetaData(TEXT("CPP_Default_Quantity")), FString(TEXT("1")));
	EXPECT_TRUE(Deposit->HasAnyFunctionFlags(FUNC_HasDefaults));
}

TEST(ScriptCall, GivenArgumentsOverrideDefaultsAndResultsReadBackAsText)
{
	UTestWidget* Widget = NewObject<UTestWidget>();
	UE::Headless::FScriptCall Call(Widget, FName(TEXT("AddTo")));
	ASSERT_TRUE(Call.IsValid());
	EXPECT_TRUE(Call.SetArgument(FName(TEXT("Amount")), FString(TEXT("5"))));
	EXPECT_FALSE(Call.SetArgument(FName(TEXT("Amount")), FString(TEXT("five"))));
	EXPECT_FALSE(Call.SetArgument(FName(TEXT("NoSuchParam")), FString(TEXT("1"))));

	ASSERT_TRUE(Call.Invoke());

	EXPECT_EQ(Call.GetValue<int32>(FName(TEXT("ReturnValue"))), 15);
	EXPECT_EQ(Call.GetValueAsText(FName(TEXT("ReturnValue"))), FString(TEXT("15")));
	EXPECT_EQ(Widget->LastQuantity, -1);
}

TEST(ScriptCall, ImportsObjectPathsEnumsAndStructs)
{
	UTestWidget* Widget = NewObject<UTestWidget>(GetTransientPackage(), FName(TEXT("CallTarget")));
	UTestWidget* Source = NewObject<UTestWidget>(GetTransientPackage(), FName(TEXT("CallSource")));
	TMap<FName, FString> Arguments;
	Arguments.Add(FName(TEXT("Source")), Source->GetPathName());
	Arguments.Add(FName(TEXT("InLayout")), FString(TEXT("Grid")));
	ASSERT_TRUE(UE::Headless::CallFunctionByName(Widget, FName(TEXT("Take")), Arguments));
	EXPECT_EQ(Widget->LastSource, Source);
	EXPECT_EQ(Widget->Layout, ETestLayout::Grid);

	UE::Headless::FScriptCall Split(Widget, FName(TEXT("Split")));
	ASSERT_TRUE(Split.SetArgument(FName(TEXT("Position")), FString(TEXT("(X=25.0,Y=-3.0)"))));
	ASSERT_TRUE(Split.Invoke());
	EXPECT_EQ(Split.GetValueAsText(FName(TEXT("OutX"))), FString(TEXT("2")));
	EXPECT_EQ(Split.GetValueAsText(FName(TEXT("ReturnValue"))), FString(TEXT("False")));
}
