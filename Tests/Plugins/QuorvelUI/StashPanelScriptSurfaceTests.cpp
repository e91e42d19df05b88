// The callable functions as a script sees them: flags, parameters, defaults, tooltips, and calls by name.
#include "Headless/ScriptCall.h"
#include "StashPanelHarness.h"

using namespace StashPanelTest;

namespace
{
	struct FParam
	{
		const char* Name;
		const char* Type;
		bool bOut;
	};

	struct FExpectedFunction
	{
		const char* Name;
		TArray<FParam> Params;
		bool bPure;
		const char* ToolTipStart;
	};

	UFunction* FunctionOf(const TCHAR* Name)
	{
		return UQuorvelStashPanel::StaticClass()->FindFunctionByName(FName(Name));
	}

	class FStashPanelScriptSurface : public FStashPanelTest
	{
	};

	TEST_F(FStashPanelScriptSurface, EightNativeFinalFunctionsWithTheirParametersFlagsAndToolTips)
	{
		const FExpectedFunction Expected[] = {
			{ "LoadStash", {}, false, "Signs the player in, ensures their stash exists, and draws it." },
			{ "ShowContainer", { { "Container", "StructProperty", false } }, false, "Draws a stash already in hand, for a caller doing its own auth." },
			{ "DepositItem", { { "ItemId", "NameProperty", false }, { "Quantity", "IntProperty", false }, { "X", "IntProperty", false }, { "Y", "IntProperty", false }, { "SourceSlot", "IntProperty", false } }, false, "Puts an item into the stash, then asks the game to remove its own copy." },
			{ "WithdrawInstance", { { "Instance", "StructProperty", false } }, false, "Takes an item out of the stash, then asks the game to add it." },
			{ "TransferFrom", { { "Source", "ObjectProperty", false }, { "Instance", "StructProperty", false }, { "X", "IntProperty", false }, { "Y", "IntProperty", false } }, false, "Moves a stack out of another panel and into this one." },
			{ "CellAtScreenPosition", { { "ScreenPosition", "StructProperty", false }, { "OutX", "IntProperty", true }, { "OutY", "IntProperty", true }, { "ReturnValue", "BoolProperty", true } }, true, "The grid cell under a screen position, for an interface placing something where the player let go." },
			{ "InstanceAtScreenPosition", { { "ScreenPosition", "StructProperty", false }, { "OutInstance", "StructProperty", true }, { "ReturnValue", "BoolProperty", true } }, true, "The stack under a screen position, for a UI picking one up." },
			{ "IsReady", { { "ReturnValue", "BoolProperty", true } }, true, "True once a player is signed in and their stash has been read." },
		};
		for (const FExpectedFunction& Entry : Expected)
		{
			UFunction* Function = FunctionOf(*FString(Entry.Name));
			ASSERT_NE(Function, nullptr) << Entry.Name;
			EXPECT_EQ(Function->GetOuter(), UQuorvelStashPanel::StaticClass()) << Entry.Name;
			EXPECT_TRUE(Function->HasAllFunctionFlags(FUNC_Native | FUNC_Final | FUNC_Public | FUNC_BlueprintCallable)) << Entry.Name;
			EXPECT_EQ(Function->HasAnyFunctionFlags(FUNC_BlueprintPure), Entry.bPure) << Entry.Name;
			EXPECT_EQ(Function->HasAnyFunctionFlags(FUNC_Const), Entry.bPure) << Entry.Name;
			EXPECT_FALSE(Function->HasAnyFunctionFlags(FUNC_BlueprintEvent)) << Entry.Name;
			EXPECT_EQ(Utf8(Function->GetMetaData(TEXT("Category"))), "Tollmere") << Entry.Name;
			EXPECT_EQ(Utf8(Function->GetMetaData(TEXT("ToolTip"))).rfind(Entry.ToolTipStart, 0), 0u) << Entry.Name;

			int32 Index = 0;
			for (TFieldIterator<FProperty> It(Function); It && It->HasAnyPropertyFlags(CPF_Parm); ++It, ++Index)
			{
				ASSERT_LT(Index, Entry.Params.Num()) << Entry.Name;
				const FParam& Param = Entry.Params[Index];
				EXPECT_EQ(Utf8(It->GetName()), Param.Name) << Entry.Name;
				EXPECT_EQ(Utf8(It->GetClass()->GetName()), Param.Type) << Entry.Name << "." << Param.Name;
				// A const reference is passed as an out parameter that scripts cannot write, as the engine marks it.
				EXPECT_EQ(It->HasAnyPropertyFlags(CPF_OutParm) && !It->HasAnyPropertyFlags(CPF_ConstParm), Param.bOut) << Entry.Name << "." << Param.Name;
			}
			EXPECT_EQ(Index, Entry.Params.Num()) << Entry.Name;
		}

		UFunction* Deposit = FunctionOf(TEXT("DepositItem"));
		EXPECT_EQ(Utf8(Deposit->GetMetaData(TEXT("CPP_Default_Quantity"))), "1");
		EXPECT_EQ(Utf8(Deposit->GetMetaData(TEXT("CPP_Default_X"))), "-1");
		EXPECT_EQ(Utf8(Deposit->GetMetaData(TEXT("CPP_Default_Y"))), "-1");
		EXPECT_EQ(Utf8(Deposit->GetMetaData(TEXT("CPP_Default_SourceSlot"))), "-1");
		EXPECT_FALSE(Deposit->HasMetaData(TEXT("CPP_Default_ItemId")));
		UFunction* Transfer = FunctionOf(TEXT("TransferFrom"));
		EXPECT_EQ(Utf8(Transfer->GetMetaData(TEXT("CPP_Default_X"))), "-1");
		EXPECT_EQ(Utf8(Transfer->GetMetaData(TEXT("CPP_Default_Y"))), "-1");
		const FProperty* Instance = Transfer->FindPropertyByName(FName(TEXT("Instance")));
		EXPECT_TRUE(Instance->HasAllPropertyFlags(CPF_ConstParm | CPF_ReferenceParm));
	}

	TEST_F(FStashPanelScriptSurface, ACallWithOnlyTheRequiredArgumentsTakesTheScriptDefaults)
	{
		UQuorvelStashPanel* Source = MakePanel();
		UQuorvelStashPanel* Panel = MakePanel();
		Load(Source, TEXT("{\"id\":\"c-1\",\"layout\":\"grid\"}"));
		Load(Panel, TEXT("{\"id\":\"c-2\",\"layout\":\"grid\"}"));

		FString Ready;
		ASSERT_TRUE(UE::Headless::CallFunctionByName(Panel, FName(TEXT("IsReady")), {}, &Ready));
		EXPECT_EQ(Utf8(Ready), "True");

		ASSERT_TRUE(UE::Headless::CallFunctionByName(Panel, FName(TEXT("DepositItem")), { { FName(TEXT("ItemId")), TEXT("Medkit") } }));
		EXPECT_EQ(Utf8(Request(4).Body), "{\r\n\t\"container_id\": \"c-2\",\r\n\t\"item_id\": \"Medkit\",\r\n\t\"quantity\": 1\r\n}");

		ASSERT_TRUE(UE::Headless::CallFunctionByName(Panel, FName(TEXT("TransferFrom")), {
			{ FName(TEXT("Source")), Source->GetPathName() },
			{ FName(TEXT("Instance")), TEXT("(InstanceId=\"i-7\")") } }));
		EXPECT_EQ(Utf8(Request(5).Body), "{\r\n\t\"instance_id\": \"i-7\",\r\n\t\"to_container_id\": \"c-2\"\r\n}");

		UE::Headless::FScriptCall Cell(Panel, FName(TEXT("CellAtScreenPosition")));
		ASSERT_TRUE(Cell.SetArgument(FName(TEXT("ScreenPosition")), TEXT("(X=-5,Y=-5)")));
		ASSERT_TRUE(Cell.Invoke());
		EXPECT_FALSE(Cell.GetValue<bool>(FName(TEXT("ReturnValue"))));
		EXPECT_EQ(Cell.GetValue<int32>(FName(TEXT("OutX"))), -1);
		EXPECT_EQ(Cell.GetValue<int32>(FName(TEXT("OutY"))), -1);
	}

	TEST_F(FStashPanelScriptSurface, ShowContainerFromAScriptDrawsWithoutMakingThePanelReady)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		ASSERT_TRUE(UE::Headless::CallFunctionByName(Panel, FName(TEXT("ShowContainer")), {
			{ FName(TEXT("Container")), TEXT("(ContainerId=\"c-9\",Layout=\"grid\",Items=((InstanceId=\"a\",ItemId=\"Rope\",Quantity=1,X=0,Y=0)))") } }));
		EXPECT_EQ(StatusTextOf(Panel), "1 stack(s) \u00B7 10x8");
		EXPECT_FALSE(Panel->IsReady());
	}
}
