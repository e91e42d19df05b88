#include "QuorvelStashPanel.h"
#include "StashPanelTestSupport.h"
#include "Blueprint/UserWidget.h"
#include "UObject/Package.h"

#include <gtest/gtest.h>

using namespace StashPanelTest;

namespace
{
	UClass* PanelClass()
	{
		return UQuorvelStashPanel::StaticClass();
	}

	std::string Meta(const FProperty* Property, const TCHAR* Key)
	{
		const FString* Value = Property->FindMetaData(Key);
		return Value ? Utf8(*Value) : std::string("<none>");
	}

	std::string Meta(const TCHAR* PropertyName, const TCHAR* Key)
	{
		return Meta(FindPropertyChecked(PanelClass(), PropertyName), Key);
	}

	const TCHAR* const Delegates[] = { TEXT("OnStashLoaded"), TEXT("OnStashFailed"), TEXT("OnDepositAccepted"), TEXT("OnWithdrawAccepted"), TEXT("OnTransferAccepted") };
	const TCHAR* const Configuration[] = { TEXT("bLoadOnConstruct"), TEXT("Provider"), TEXT("Ticket"), TEXT("ContainerKind"), TEXT("Layout"),
		TEXT("GridWidth"), TEXT("GridHeight"), TEXT("SlotCount"), TEXT("SlotColumns"), TEXT("CellSize"), TEXT("PanelColour"), TEXT("CellColour"),
		TEXT("AccentColour"), TEXT("Title") };
	const TCHAR* const WidgetReferences[] = { TEXT("Root"), TEXT("GridSizer"), TEXT("GridCanvas"), TEXT("GridFrame"), TEXT("TitleText"), TEXT("StatusText"), TEXT("ItemWidgets") };
}

TEST(StashPanelReflection, RegistersTwentyEightPropertiesInDeclarationOrder)
{
	const TArray<FString> Names = OwnPropertyNames(PanelClass());
	const std::vector<std::string> Expected = { "OnStashLoaded", "OnStashFailed", "OnDepositAccepted", "OnWithdrawAccepted", "OnTransferAccepted",
		"bLoadOnConstruct", "Provider", "Ticket", "ContainerKind", "Layout", "GridWidth", "GridHeight", "SlotCount", "SlotColumns", "CellSize",
		"PanelColour", "CellColour", "AccentColour", "Title", "Root", "GridSizer", "GridCanvas", "GridFrame", "TitleText", "StatusText",
		"ItemWidgets", "ItemTable", "Contents" };
	std::vector<std::string> Actual;
	for (const FString& Name : Names)
	{
		Actual.push_back(Utf8(Name));
	}
	EXPECT_EQ(Actual, Expected);
}

TEST(StashPanelReflection, ClassIsTheTollmereStashPanelUserWidgetOfTheQuorvelUIPackage)
{
	EXPECT_EQ(PanelClass()->GetSuperClass(), UUserWidget::StaticClass());
	EXPECT_EQ(Utf8(PanelClass()->GetName()), "QuorvelStashPanel");
	EXPECT_EQ(Utf8(PanelClass()->GetPathName()), "/Script/QuorvelUI.QuorvelStashPanel");
	EXPECT_EQ(Utf8(UQuorvelStashPanel::StaticPackage()), "/Script/QuorvelUI");
	EXPECT_EQ(Utf8(PanelClass()->GetMetaData(TEXT("DisplayName"))), "Tollmere Stash Panel");
	const std::string ToolTip = Utf8(PanelClass()->GetMetaData(TEXT("ToolTip")));
	EXPECT_EQ(ToolTip.rfind("Shows a player's out-of-raid stash at the grid coordinates the platform stores.", 0), 0u);
	EXPECT_NE(ToolTip.find("never from the platform"), std::string::npos);
}

TEST(StashPanelReflection, DelegatesAreAssignableFromScriptsButNotEditableAsValues)
{
	for (const TCHAR* Name : Delegates)
	{
		const FProperty* Property = FindPropertyChecked(PanelClass(), Name);
		EXPECT_NE(CastField<FMulticastInlineDelegateProperty>(Property), nullptr) << Utf8(Name);
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_BlueprintAssignable)) << Utf8(Name);
		EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_Edit)) << Utf8(Name);
		EXPECT_EQ(Meta(Property, TEXT("Category")), "Tollmere") << Utf8(Name);
	}
	EXPECT_EQ(Meta(TEXT("OnStashLoaded"), TEXT("ToolTip")), "<none>");
	EXPECT_EQ(Meta(TEXT("OnStashFailed"), TEXT("ToolTip")), "<none>");
	EXPECT_EQ(Meta(TEXT("OnWithdrawAccepted"), TEXT("ToolTip")), "The platform released an item. Put it into the character's inventory now.");
	EXPECT_EQ(Meta(TEXT("OnTransferAccepted"), TEXT("ToolTip")), "A stack moved into this panel from another one.");
	EXPECT_NE(Meta(TEXT("OnDepositAccepted"), TEXT("ToolTip")).find("resync"), std::string::npos);
}

TEST(StashPanelReflection, DelegateSignaturesBelongToThePackageAndTransfersShareTheWithdrawType)
{
	auto Signature = [](const TCHAR* Name)
	{
		return CastField<FMulticastInlineDelegateProperty>(FindPropertyChecked(PanelClass(), Name))->SignatureFunction;
	};
	EXPECT_EQ(Utf8(Signature(TEXT("OnStashLoaded"))->GetName()), "QuorvelStashLoaded__DelegateSignature");
	EXPECT_EQ(Utf8(Signature(TEXT("OnStashFailed"))->GetName()), "QuorvelStashFailed__DelegateSignature");
	EXPECT_EQ(Utf8(Signature(TEXT("OnDepositAccepted"))->GetName()), "QuorvelDepositAccepted__DelegateSignature");
	EXPECT_EQ(Utf8(Signature(TEXT("OnWithdrawAccepted"))->GetName()), "QuorvelWithdrawAccepted__DelegateSignature");
	EXPECT_EQ(Signature(TEXT("OnTransferAccepted")), Signature(TEXT("OnWithdrawAccepted")));
	EXPECT_EQ(Utf8(Signature(TEXT("OnStashLoaded"))->GetOuter()->GetPathName()), "/Script/QuorvelUI");

	std::vector<std::string> DepositParams;
	for (TFieldIterator<FProperty> It(Signature(TEXT("OnDepositAccepted"))); It; ++It)
	{
		DepositParams.push_back(Utf8(It->GetName()) + ":" + Utf8(It->GetCPPType()));
	}
	EXPECT_EQ(DepositParams, (std::vector<std::string>{ "ItemId:FName", "Quantity:int32", "SourceSlot:int32" }));
}

TEST(StashPanelReflection, ConfigurationIsEditableAnywhereAndReadWriteFromScriptsInItsCategory)
{
	for (const TCHAR* Name : Configuration)
	{
		const FProperty* Property = FindPropertyChecked(PanelClass(), Name);
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Edit)) << Utf8(Name);
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_BlueprintVisible)) << Utf8(Name);
		EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_BlueprintReadOnly | CPF_DisableEditOnInstance | CPF_DisableEditOnTemplate)) << Utf8(Name);
		EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_Transient | CPF_Config)) << Utf8(Name);
	}
	EXPECT_EQ(Meta(TEXT("bLoadOnConstruct"), TEXT("Category")), "Tollmere");
	EXPECT_EQ(Meta(TEXT("Provider"), TEXT("Category")), "Tollmere|Identity");
	EXPECT_EQ(Meta(TEXT("Ticket"), TEXT("Category")), "Tollmere|Identity");
	for (const TCHAR* Name : { TEXT("ContainerKind"), TEXT("Layout"), TEXT("GridWidth"), TEXT("GridHeight"), TEXT("SlotCount"), TEXT("SlotColumns") })
	{
		EXPECT_EQ(Meta(Name, TEXT("Category")), "Tollmere|Container") << Utf8(Name);
	}
	for (const TCHAR* Name : { TEXT("CellSize"), TEXT("PanelColour"), TEXT("CellColour"), TEXT("AccentColour"), TEXT("Title") })
	{
		EXPECT_EQ(Meta(Name, TEXT("Category")), "Tollmere|Appearance") << Utf8(Name);
	}
}

TEST(StashPanelReflection, ConfigurationCarriesItsEditorLimitsConditionsAndToolTips)
{
	for (const TCHAR* Name : { TEXT("GridWidth"), TEXT("GridHeight") })
	{
		EXPECT_EQ(Meta(Name, TEXT("ClampMin")), "1");
		EXPECT_EQ(Meta(Name, TEXT("EditCondition")), "Layout == EQuorvelContainerLayout::Grid");
		EXPECT_EQ(Meta(Name, TEXT("EditConditionHides")), "");
	}
	for (const TCHAR* Name : { TEXT("SlotCount"), TEXT("SlotColumns") })
	{
		EXPECT_EQ(Meta(Name, TEXT("ClampMin")), "1");
		EXPECT_EQ(Meta(Name, TEXT("EditCondition")), "Layout == EQuorvelContainerLayout::Slots");
		EXPECT_EQ(Meta(Name, TEXT("EditConditionHides")), "");
	}
	EXPECT_EQ(Meta(TEXT("CellSize"), TEXT("ClampMin")), "16");
	EXPECT_EQ(Meta(TEXT("Layout"), TEXT("ClampMin")), "<none>");
	EXPECT_EQ(Meta(TEXT("Layout"), TEXT("EditCondition")), "<none>");

	EXPECT_EQ(Meta(TEXT("bLoadOnConstruct"), TEXT("ToolTip")), "Loads as soon as the widget is constructed. Turn off to drive it yourself.");
	EXPECT_EQ(Meta(TEXT("Ticket"), TEXT("ToolTip")), "For `anonymous`, simply the identifier to claim.");
	EXPECT_EQ(Meta(TEXT("SlotCount"), TEXT("ToolTip")), "Slots only: how many squares the container holds.");
	EXPECT_EQ(Meta(TEXT("CellSize"), TEXT("ToolTip")), "Pixels per grid cell before layout scaling.");

	const FProperty* Layout = FindPropertyChecked(PanelClass(), TEXT("Layout"));
	EXPECT_EQ(Layout->ElementSize, 1);
	EXPECT_EQ(FindPropertyChecked(PanelClass(), TEXT("CellSize"))->ElementSize, 4);
}

TEST(StashPanelReflection, PrivateReferencesAreFollowedByTheCollectorButHiddenFromEditorsAndScripts)
{
	for (const TCHAR* Name : { TEXT("Root"), TEXT("GridSizer"), TEXT("GridCanvas"), TEXT("GridFrame"), TEXT("TitleText"), TEXT("StatusText"),
		TEXT("ItemWidgets"), TEXT("ItemTable"), TEXT("Contents") })
	{
		const FProperty* Property = FindPropertyChecked(PanelClass(), Name);
		EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintAssignable)) << Utf8(Name);
		EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_Transient)) << Utf8(Name);
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_NativeAccessSpecifierPrivate)) << Utf8(Name);
	}
	for (const TCHAR* Name : WidgetReferences)
	{
		const FProperty* Property = FindPropertyChecked(PanelClass(), Name);
		const FArrayProperty* Array = CastField<FArrayProperty>(Property);
		const FProperty* Reference = Array ? Array->Inner : Property;
		EXPECT_TRUE(Reference->HasAnyPropertyFlags(CPF_InstancedReference)) << Utf8(Name);
	}
	EXPECT_FALSE(FindPropertyChecked(PanelClass(), TEXT("ItemTable"))->HasAnyPropertyFlags(CPF_InstancedReference));
	EXPECT_EQ(Meta(TEXT("ItemWidgets"), TEXT("ToolTip")), "Widgets drawn for the current contents, cleared before a redraw.");
	EXPECT_EQ(Meta(TEXT("Contents"), TEXT("ToolTip")), "The contents as last read, so a hit test does not have to re-parse widgets.");
	EXPECT_NE(Meta(TEXT("GridSizer"), TEXT("ToolTip")).find("canvas panel reports no desired size"), std::string::npos);
}

TEST(StashPanelReflection, ScriptEventsAreOverridableWithNoNativeBody)
{
	struct FExpectedEvent
	{
		const TCHAR* Name;
		std::vector<std::string> Params;
	};
	const FExpectedEvent Events[] = {
		{ TEXT("OnDeposited"), { "ItemId:FName", "Quantity:int32", "SourceSlot:int32" } },
		{ TEXT("OnWithdrawn"), { "Instance:FQuorvelItemInstance" } },
		{ TEXT("OnTransferred"), { "Instance:FQuorvelItemInstance" } },
	};
	for (const FExpectedEvent& Event : Events)
	{
		const UFunction* Function = PanelClass()->FindFunctionByName(FName(Event.Name));
		ASSERT_NE(Function, nullptr) << Utf8(Event.Name);
		EXPECT_TRUE(Function->HasAllFunctionFlags(FUNC_Event | FUNC_BlueprintEvent)) << Utf8(Event.Name);
		EXPECT_FALSE(Function->HasAnyFunctionFlags(FUNC_Native)) << Utf8(Event.Name);
		EXPECT_EQ(Utf8(Function->GetMetaData(TEXT("Category"))), "Tollmere|Interaction");
		std::vector<std::string> Params;
		for (TFieldIterator<FProperty> It(Function); It; ++It)
		{
			Params.push_back(Utf8(It->GetName()) + ":" + Utf8(It->GetCPPType()));
		}
		EXPECT_EQ(Params, Event.Params) << Utf8(Event.Name);
	}
	EXPECT_EQ(Utf8(PanelClass()->FindFunctionByName(TEXT("OnWithdrawn"))->GetMetaData(TEXT("ToolTip"))),
		"The platform released an item; the game must now take ownership of it.");
}
