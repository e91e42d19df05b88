#include "TestReflectedTypes.h"

#include "Headless/ScriptClass.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	struct FArrivedParms
	{
		FName ItemId;
		int32 Quantity;
		int32 SourceSlot;
	};
}

TEST(Events, AreFoundByNameAndDoNothingWhenNotImplemented)
{
	UTestWidget* Widget = NewObject<UTestWidget>();
	UFunction* Event = Widget->FindFunctionChecked(FName(TEXT("OnArrived")));
	EXPECT_TRUE(Event->HasAllFunctionFlags(FUNC_Event | FUNC_BlueprintEvent));
	EXPECT_FALSE(Event->HasAnyFunctionFlags(FUNC_Native));
	EXPECT_EQ(Event->GetMetaData(TEXT("ToolTip")), FString(TEXT("Raised when something arrived.")));

	Widget->OnArrived(FName(TEXT("Bandage")), 2, 4);
	Widget->OnRecord(FTestRecord());

	EXPECT_EQ(Widget->LastQuantity, 0);
}

TEST(Events, AScriptSubclassImplementsAnEventTheNativeClassRaises)
{
	UClass* ScriptClass = UE::Headless::CreateScriptClass(UTestWidget::StaticClass(), TEXT("TestWidget_Script"));
	UE::Headless::ImplementScriptEvent<FArrivedParms>(ScriptClass, FName(TEXT("OnArrived")), [](UObject* Self, FArrivedParms& Parms)
	{
		UTestWidget* Widget = CastChecked<UTestWidget>(Self);
		Widget->LastItemId = Parms.ItemId;
		Widget->LastQuantity = Parms.Quantity;
		Widget->LastX = Parms.SourceSlot;
	});
	UTestWidget* Widget = NewObject<UTestWidget>(GetTransientPackage(), ScriptClass);
	ASSERT_EQ(Widget->GetClass(), ScriptClass);
	EXPECT_TRUE(Widget->IsA<UTestWidget>());

	Widget->OnArrived(FName(TEXT("Bandage")), 2, 4);
	Widget->OnRecord(FTestRecord());

	EXPECT_EQ(Widget->LastItemId, FName(TEXT("Bandage")));
	EXPECT_EQ(Widget->LastQuantity, 2);
	EXPECT_EQ(Widget->LastX, 4);
	EXPECT_EQ(Widget->Columns, 10);
	EXPECT_NE(Widget->FindFunction(FName(TEXT("OnArrived"))), UTestWidget::StaticClass()->FindFunctionByName(FName(TEXT("OnArrived"))));
}

TEST(Events, ProcessEventWritesOutParametersAndTheReturnValue)
{
	UTestWidget* Widget = NewObject<UTestWidget>();
	UFunction* Split = Widget->FindFunctionChecked(FName(TEXT("Split")));
	struct
	{
		FVector2D Position;
		int32 OutX;
		int32 OutY;
		bool ReturnValue;
	} Parms{FVector2D(35.0, 72.0), 0, 0, false};
	ASSERT_EQ(Split->ParmsSize, sizeof(Parms));
	ASSERT_EQ(Split->ReturnValueOffset, offsetof(decltype(Parms), ReturnValue));

	Widget->ProcessEvent(Split, &Parms);

	EXPECT_EQ(Parms.OutX, 3);
	EXPECT_EQ(Parms.OutY, 7);
	EXPECT_TRUE(Parms.ReturnValue);
	EXPECT_TRUE(Split->HasAllFunctionFlags(FUNC_Native | FUNC_Final | FUNC_BlueprintCallable | FUNC_BlueprintPure | FUNC_Const | FUNC_HasOutParms | FUNC_Public));
}

TEST(Events, AStructOutParameterIsWrittenThroughTheParameterBlock)
{
	UTestWidget* Widget = NewObject<UTestWidget>();
	FTestRecord Stored;
	Stored.Id = FName(TEXT("Medkit"));
	Stored.Count = 5;
	Widget->Records.Add(Stored);
	struct
	{
		FTestRecord Key;
		FTestRecord OutRecord;
		bool ReturnValue;
	} Parms;
	Parms.Key.Id = FName(TEXT("medkit"));
	Parms.ReturnValue = false;

	Widget->ProcessEvent(Widget->FindFunctionChecked(FName(TEXT("Find"))), &Parms);

	EXPECT_TRUE(Parms.ReturnValue);
	EXPECT_EQ(Parms.OutRecord.Count, 5);
}
