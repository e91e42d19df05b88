// A script calling the panel by name with only the required arguments: what reaches the platform.
#include "Headless/ScriptCall.h"
#include "StashPanelHarness.h"

using namespace StashPanelTest;

namespace
{
	class FStashPanelScriptSurface : public FStashPanelTest
	{
	};

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
}
