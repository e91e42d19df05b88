// The panel's delegates and script events as a game binds to them and a script calls the panel.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "QuorvelStashPanelTestListener.h"

BEGIN_DEFINE_SPEC(FQuorvelStashPanelNotificationTests, "Quorvel.UI.Notifications", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
	UQuorvelStashPanel* Panel = nullptr;
	UQuorvelStashPanelTestListener* Listener = nullptr;

	FQuorvelItemInstance Sword()
	{
		FQuorvelItemInstance Instance = UE::Quorvel::Tests::MakeStack(TEXT("sword"), 2, 1, 2, 3, 3, 4);
		Instance.InstanceId = TEXT("inst-1");
		Instance.SlotKey = TEXT("slot-4");
		Instance.bRotated = true;
		return Instance;
	}
END_DEFINE_SPEC(FQuorvelStashPanelNotificationTests)

void FQuorvelStashPanelNotificationTests::Define()
{
	using namespace UE::Quorvel::Tests;

	BeforeEach([this]
	{
		Panel = Panels.Make();
		Listener = NewObject<UQuorvelStashPanelTestListener>(GetTransientPackage());
	});

	AfterEach([this]
	{
		Panels.Reset();
	});

	It("hands every field of its records to the handlers", [this]
	{
		Listener->Listen(Panel);
		FQuorvelError Error;
		Error.HttpStatus = 409;
		Error.Code = TEXT("cell_occupied");
		Error.Message = TEXT("That cell is taken");
		Error.RequestId = TEXT("req-9");
		Error.bRetryable = true;
		Panel->OnStashLoaded.Broadcast(0);
		Panel->OnStashFailed.Broadcast(Error);
		Panel->OnDepositAccepted.Broadcast(FName(TEXT("Medkit")), 2, -1);
		Panel->OnWithdrawAccepted.Broadcast(Sword());

		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")),
			TEXT("loaded 0; failed 409 cell_occupied That cell is taken req-9; deposit Medkit 2 -1; withdraw inst-1 sword 3"));
		TestTrue(TEXT("Retryable error"), Listener->Errors.Num() == 1 && Listener->Errors[0].bRetryable);
		const FQuorvelItemInstance* Withdrawn = Listener->Instances.Num() == 1 ? &Listener->Instances[0] : nullptr;
		if (TestNotNull(TEXT("Withdrawn stack"), Withdrawn))
		{
			TestEqual(TEXT("Slot key"), Withdrawn->SlotKey, TEXT("slot-4"));
			TestEqual(TEXT("Slot index"), Withdrawn->SlotIndex, 4);
			TestEqual(TEXT("Footprint"), FVector2D(Withdrawn->GridW, Withdrawn->GridH), FVector2D(2.0, 3.0));
			TestTrue(TEXT("Rotated"), Withdrawn->bRotated);
		}
	});

	It("lets a handler written for withdrawals listen to transfers unchanged", [this]
	{
		Panel->OnWithdrawAccepted.AddDynamic(Listener, &UQuorvelStashPanelTestListener::HandleWithdraw);
		Panel->OnTransferAccepted.AddDynamic(Listener, &UQuorvelStashPanelTestListener::HandleWithdraw);
		FQuorvelItemInstance Moved = Sword();
		Moved.InstanceId = TEXT("inst-2");
		Panel->OnWithdrawAccepted.Broadcast(Sword());
		Panel->OnTransferAccepted.Broadcast(Moved);
		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT("withdraw inst-1 sword 3; withdraw inst-2 sword 3"));
	});

	It("does nothing for a script event that no subclass implements", [this]
	{
		Listener->Listen(Panel);
		Panel->OnDeposited(FName(TEXT("sword")), 2, 7);
		Panel->OnWithdrawn(Sword());
		Panel->OnTransferred(Sword());
		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT(""));
		TestEqual(TEXT("Status"), StatusTextOf(Panel), TEXT("Not loaded"));
	});

	It("draws a container a script passes to ShowContainer, and stays unready", [this]
	{
		Listener->Listen(Panel);
		struct FShowContainerParms
		{
			FQuorvelContainer Container;
		};
		FShowContainerParms Parms;
		Parms.Container = MakeContainer(TEXT("grid"), { MakeStack(TEXT("Rope"), 0, 0) });
		Parms.Container.ContainerId = TEXT("c-9");
		Panel->ProcessEvent(Panel->FindFunctionChecked(FName(TEXT("ShowContainer"))), &Parms);

		TestEqual(TEXT("Status"), StatusTextOf(Panel), TEXT("1 stack(s) \u00B7 10x8"));
		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT("loaded 1"));
		TestEqual(TEXT("Stacks drawn"), ItemWidgetsOf(Panel).Num(), 1);
		TestFalse(TEXT("Ready"), Panel->IsReady());
	});
}

#endif
