#include "QuorvelStashPanel.h"
#include "StashPanelListener.h"
#include "StashPanelTestSupport.h"
#include "Engine/DataTable.h"
#include "Headless/ScriptClass.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"

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

TEST(StashPanelEvents, AnEventNoSubclassImplementsDoesNothing)
{
	UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	Panel->OnDeposited(FName(TEXT("sword")), 2, 7);
	Panel->OnWithdrawn(MakeSword());
	Panel->OnTransferred(MakeSword());
	EXPECT_EQ(Panel->GetClass(), UQuorvelStashPanel::StaticClass());
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

TEST(StashPanelEvents, AWithdrawHandlerFitsTheTransferDelegateUnchanged)
{
	UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	UStashPanelListener* Listener = NewObject<UStashPanelListener>(GetTransientPackage());
	Panel->OnWithdrawAccepted.AddDynamic(Listener, &UStashPanelListener::HandleInstance);
	Panel->OnTransferAccepted.AddDynamic(Listener, &UStashPanelListener::HandleInstance);

	Panel->OnWithdrawAccepted.Broadcast(MakeSword());
	FQuorvelItemInstance Moved = MakeSword();
	Moved.InstanceId = TEXT("inst-2");
	Panel->OnTransferAccepted.Broadcast(Moved);

	ASSERT_EQ(Listener->Heard.Num(), 2);
	EXPECT_EQ(Utf8(Listener->Heard[0]), "instance inst-1 sword 3");
	EXPECT_EQ(Utf8(Listener->Heard[1]), "instance inst-2 sword 3");
}

TEST(StashPanelEvents, DelegatesCarryEveryFieldOfTheirRecords)
{
	UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	UStashPanelListener* Listener = NewObject<UStashPanelListener>(GetTransientPackage());
	Panel->OnStashLoaded.AddDynamic(Listener, &UStashPanelListener::HandleLoaded);
	Panel->OnStashFailed.AddDynamic(Listener, &UStashPanelListener::HandleFailed);
	Panel->OnDepositAccepted.AddDynamic(Listener, &UStashPanelListener::HandleDeposit);

	FQuorvelError Error;
	Error.HttpStatus = 409;
	Error.Code = TEXT("cell_occupied");
	Error.Message = TEXT("That cell is taken");
	Error.RequestId = TEXT("req-9");
	Panel->OnStashLoaded.Broadcast(0);
	Panel->OnStashFailed.Broadcast(Error);
	Panel->OnDepositAccepted.Broadcast(FName(TEXT("Medkit")), 2, -1);

	ASSERT_EQ(Listener->Heard.Num(), 3);
	EXPECT_EQ(Utf8(Listener->Heard[0]), "loaded 0");
	EXPECT_EQ(Utf8(Listener->Heard[1]), "failed 409 cell_occupied That cell is taken req-9");
	EXPECT_EQ(Utf8(Listener->Heard[2]), "deposit Medkit 2 -1");
}

TEST(StashPanelLifetime, AnUnreferencedPanelIsCollectedAndItsWeakPointerGoesNull)
{
	CollectGarbage();
	const int32 Baseline = GUObjectArray.GetObjectArrayNumMinusAvailable();

	TWeakObjectPtr<UQuorvelStashPanel> Weak = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	ASSERT_TRUE(Weak.IsValid());
	CollectGarbage();

	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_EQ(GUObjectArray.GetObjectArrayNumMinusAvailable(), Baseline);
}

TEST(StashPanelLifetime, ARootedPanelKeepsItsItemTableAliveUntilItIsReleased)
{
	UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	Panel->AddToRoot();
	UDataTable* Table = NewObject<UDataTable>(GetTransientPackage());
	*FindPropertyChecked(Panel->GetClass(), TEXT("ItemTable"))->ContainerPtrToValuePtr<TObjectPtr<UDataTable>>(Panel) = Table;
	TWeakObjectPtr<UDataTable> WeakTable = Table;
	TWeakObjectPtr<UQuorvelStashPanel> WeakPanel = Panel;

	CollectGarbage();
	EXPECT_TRUE(WeakTable.IsValid());
	EXPECT_TRUE(WeakPanel.IsValid());

	Panel->RemoveFromRoot();
	CollectGarbage();
	EXPECT_FALSE(WeakPanel.IsValid());
	EXPECT_FALSE(WeakTable.IsValid());
}
