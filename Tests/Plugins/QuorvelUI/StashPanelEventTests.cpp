// A script subclass of the panel, made at run time as only the headless engine can make one.
#include "QuorvelStashPanel.h"
#include "StashPanelTestSupport.h"
#include "Headless/ScriptClass.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

using namespace StashPanelTest;

namespace
{
	FQuorvelItemInstance MakeSword()
	{
		FQuorvelItemInstance Instance;
		Instance.InstanceId = TEXT("inst-1");
		Instance.ItemId = FName(TEXT("sword"));
		Instance.Quantity = 3;
		Instance.SlotIndex = 4;
		Instance.SlotKey = TEXT("slot-4");
		Instance.X = 2;
		Instance.Y = 1;
		Instance.bRotated = true;
		Instance.GridW = 2;
		Instance.GridH = 3;
		return Instance;
	}

	/** Plays a script subclass of the panel that implements OnWithdrawn and OnTransferred but not OnDeposited. */
	UClass* ScriptPanelClass(TArray<FString>& Heard)
	{
		static UClass* Class = nullptr;
		static TArray<FString>* Sink = nullptr;
		Sink = &Heard;
		if (Class == nullptr)
		{
			Class = UE::Headless::CreateScriptClass(UQuorvelStashPanel::StaticClass(), TEXT("BP_StashPanel"));
			for (const TCHAR* Event : { TEXT("OnWithdrawn"), TEXT("OnTransferred") })
			{
				const FString EventName(Event);
				UE::Headless::ImplementScriptEvent(Class, FName(Event), UE::Headless::FScriptEventBody([EventName](UObject* Self, void* Parms)
				{
					const FQuorvelItemInstance& Instance = *static_cast<const FQuorvelItemInstance*>(Parms);
					Sink->Add(FString::Printf(TEXT("%s %s %s %d %d %d %s"), *EventName, *Instance.InstanceId, *Instance.SlotKey,
						Instance.GridW, Instance.GridH, Instance.bRotated ? 1 : 0, *Self->GetClass()->GetName()));
				}));
			}
		}
		return Class;
	}
}

TEST(StashPanelEvents, AScriptSubclassReceivesTheEventsItImplementsWithTheWholeRecord)
{
	TArray<FString> Heard;
	UClass* ScriptClass = ScriptPanelClass(Heard);
	UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage(), ScriptClass);

	Panel->OnWithdrawn(MakeSword());
	Panel->OnDeposited(FName(TEXT("sword")), 2, 7);
	Panel->OnTransferred(MakeSword());

	ASSERT_EQ(Heard.Num(), 2);
	EXPECT_EQ(Utf8(Heard[0]), "OnWithdrawn inst-1 slot-4 2 3 1 BP_StashPanel");
	EXPECT_EQ(Utf8(Heard[1]), "OnTransferred inst-1 slot-4 2 3 1 BP_StashPanel");
	// The subclass is still constructed by the native constructor.
	EXPECT_EQ(Utf8(Panel->Provider), "anonymous");
	EXPECT_EQ(Panel->GetVisibility(), ESlateVisibility::Visible);
}
