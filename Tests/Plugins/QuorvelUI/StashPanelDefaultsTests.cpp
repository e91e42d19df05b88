#include "QuorvelStashPanel.h"
#include "StashPanelTestSupport.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

using namespace StashPanelTest;

namespace
{
	class StashPanelDefaults : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
		}

		UQuorvelStashPanel* Panel = nullptr;
	};
}

TEST_F(StashPanelDefaults, EveryConfigurationPropertyStartsAtItsDefaultAsAScriptReadsIt)
{
	EXPECT_TRUE(ValueOf<bool>(Panel, TEXT("bLoadOnConstruct")));
	EXPECT_EQ(Utf8(ValueOf<FString>(Panel, TEXT("Provider"))), "anonymous");
	EXPECT_EQ(Utf8(ValueOf<FString>(Panel, TEXT("Ticket"))), "demo_account");
	EXPECT_EQ(Utf8(ValueOf<FString>(Panel, TEXT("ContainerKind"))), "stash");
	EXPECT_EQ(ValueOf<EQuorvelContainerLayout>(Panel, TEXT("Layout")), EQuorvelContainerLayout::Grid);
	EXPECT_EQ(ValueOf<int32>(Panel, TEXT("GridWidth")), 10);
	EXPECT_EQ(ValueOf<int32>(Panel, TEXT("GridHeight")), 8);
	EXPECT_EQ(ValueOf<int32>(Panel, TEXT("SlotCount")), 24);
	EXPECT_EQ(ValueOf<int32>(Panel, TEXT("SlotColumns")), 6);
	EXPECT_EQ(ValueOf<float>(Panel, TEXT("CellSize")), 64.0f);
}

TEST_F(StashPanelDefaults, ColoursAreTheNearestFloatsToTheirDecimalDefaults)
{
	EXPECT_EQ(ValueOf<FLinearColor>(Panel, TEXT("PanelColour")), FLinearColor(0.055f, 0.086f, 0.098f, 0.94f));
	EXPECT_EQ(ValueOf<FLinearColor>(Panel, TEXT("CellColour")), FLinearColor(1.0f, 1.0f, 1.0f, 0.04f));
	EXPECT_EQ(ValueOf<FLinearColor>(Panel, TEXT("AccentColour")), FLinearColor(0.94f, 0.64f, 0.19f, 1.0f));
	EXPECT_EQ(ValueOf<FLinearColor>(Panel, TEXT("PanelColour")).G, 0.086f);
}

TEST_F(StashPanelDefaults, TitleIsTheLocalisableStashTextOfTheTollmereNamespace)
{
	const FText& Title = ValueOf<FText>(Panel, TEXT("Title"));
	EXPECT_EQ(Utf8(FTextInspector::GetNamespace(Title).Get(FString())), "Tollmere");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Title).Get(FString())), "StashTitle");
	ASSERT_NE(FTextInspector::GetSourceString(Title), nullptr);
	EXPECT_EQ(Utf8(*FTextInspector::GetSourceString(Title)), "STASH");
	EXPECT_EQ(Utf8(Title.ToString()), "STASH");
	EXPECT_FALSE(Title.IsCultureInvariant());
}

TEST_F(StashPanelDefaults, ThePanelItselfTakesPartInHitTesting)
{
	// A user widget is only self-hit-test-invisible by default; the panel must override that.
	EXPECT_EQ(Panel->GetVisibility(), ESlateVisibility::Visible);
}

TEST_F(StashPanelDefaults, WidgetReferencesItemTableAndContentsStartEmpty)
{
	for (const TCHAR* Name : { TEXT("Root"), TEXT("GridSizer"), TEXT("GridCanvas"), TEXT("GridFrame"), TEXT("TitleText"), TEXT("StatusText"), TEXT("ItemTable") })
	{
		const FObjectPropertyBase* Property = CastField<FObjectPropertyBase>(FindPropertyChecked(Panel->GetClass(), Name));
		ASSERT_NE(Property, nullptr) << Utf8(Name);
		EXPECT_EQ(Property->GetObjectPropertyValue_InContainer(Panel), nullptr) << Utf8(Name);
	}
	EXPECT_EQ(ValueOf<TArray<TObjectPtr<UWidget>>>(Panel, TEXT("ItemWidgets")).Num(), 0);
	EXPECT_EQ(ValueOf<TArray<FQuorvelItemInstance>>(Panel, TEXT("Contents")).Num(), 0);
}
