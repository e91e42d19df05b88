// Deposit, withdraw and transfer as the platform receives them, and what the game hears back.
#include "Headless/ScriptClass.h"
#include "StashPanelHarness.h"
#include "StashPanelListener.h"
#include "UObject/WeakObjectPtrTemplates.h"

using namespace StashPanelTest;

namespace
{
	const FString GrantPath = TEXT("/v1/game/inventory/grant");
	const FString ConsumePath = TEXT("/v1/game/inventory/consume");
	const FString MovePath = TEXT("/v1/game/inventory/move");

	const FString GridReply = TEXT("{\"id\":\"c-grid\",\"layout\":\"grid\"}");
	const FString SlotsReply = TEXT("{\"id\":\"c-slots\",\"layout\":\"slots\"}");

	/** Everything a script subclass's events and the bound handlers heard, in the order they heard it. */
	TArray<FString>* GHeard = nullptr;
	/** Lets an event say how many requests had left when it ran, which pins it between the reloads. */
	const FHttpTestTransport* GTransport = nullptr;

	class FStashPanelOperations : public FStashPanelTest
	{
	protected:
		virtual void SetUp() override
		{
			GHeard = &Heard;
			GTransport = &Transport;
			Listener = NewObject<UStashPanelListener>(GetTransientPackage());
			Listener->AddToRoot();
		}

		virtual void TearDown() override
		{
			Listener->RemoveFromRoot();
			GHeard = nullptr;
			GTransport = nullptr;
			FStashPanelTest::TearDown();
		}

		/** A ready panel of a script class that implements all three events; its delegates report to Listener. */
		UQuorvelStashPanel* MakeReadyPanel(const FString& Reply = GridReply)
		{
			static UClass* ScriptClass = nullptr;
			if (!ScriptClass)
			{
				ScriptClass = UE::Headless::CreateScriptClass(UQuorvelStashPanel::StaticClass(), TEXT("BP_OperationsPanel"));
				UE::Headless::ImplementScriptEvent(ScriptClass, FName(TEXT("OnDeposited")), UE::Headless::FScriptEventBody([](UObject*, void* Parms)
				{
					struct FParms
					{
						FName ItemId;
						int32 Quantity;
						int32 SourceSlot;
					};
					const FParms& Deposit = *static_cast<const FParms*>(Parms);
					GHeard->Add(FString::Printf(TEXT("event deposited %s %d %d sent %d"), *Deposit.ItemId.ToString(), Deposit.Quantity, Deposit.SourceSlot, GTransport->Num()));
				}));
				for (const TCHAR* Event : { TEXT("OnWithdrawn"), TEXT("OnTransferred") })
				{
					const FString EventName(Event);
					UE::Headless::ImplementScriptEvent(ScriptClass, FName(Event), UE::Headless::FScriptEventBody([EventName](UObject*, void* Parms)
					{
						const FQuorvelItemInstance& Instance = *static_cast<const FQuorvelItemInstance*>(Parms);
						GHeard->Add(FString::Printf(TEXT("event %s %s %d %d sent %d"), *EventName, *Instance.InstanceId, Instance.Quantity, Instance.X, GTransport->Num()));
					}));
				}
			}

			UQuorvelStashPanel* Panel = CreateWidget<UQuorvelStashPanel>(GetTransientPackage(), ScriptClass);
			Panel->AddToRoot();
			Panel->bLoadOnConstruct = false;
			Panels.Add(Panel);
			Panel->TakeWidget();
			Panel->OnDepositAccepted.AddDynamic(Listener, &UStashPanelListener::HandleDeposit);
			Panel->OnWithdrawAccepted.AddDynamic(Listener, &UStashPanelListener::HandleInstance);
			Panel->OnTransferAccepted.AddDynamic(Listener, &UStashPanelListener::HandleInstance);
			Panel->OnStashFailed.AddDynamic(Listener, &UStashPanelListener::HandleFailed);
			Load(Panel, Reply);
			return Panel;
		}

		/** What the game heard, delegates and events merged in order. */
		TArray<std::string> Notifications() const
		{
			TArray<std::string> Result;
			for (const FString& Line : Listener->Heard)
			{
				Result.Add(Utf8(Line));
			}
			return Result;
		}

		static FQuorvelItemInstance Instance(const TCHAR* Id, int32 Quantity = 1)
		{
			FQuorvelItemInstance Result;
			Result.InstanceId = Id;
			Result.ItemId = FName(TEXT("Rope"));
			Result.Quantity = Quantity;
			Result.X = 4;
			return Result;
		}

		TArray<FString> Heard;
		UStashPanelListener* Listener = nullptr;
	};

	TEST_F(FStashPanelOperations, ADepositSendsItsBodyForEveryPlacementWithAFreshKeyEachTime)
	{
		UQuorvelStashPanel* Grid = MakeReadyPanel();
		Grid->DepositItem(FName(TEXT("Medkit")));
		Grid->DepositItem(FName(TEXT("Medkit")), 0, 3, -1, 9);
		Grid->DepositItem(FName(TEXT("Medkit")), 4, 3, 2);
		Grid->DepositItem(NAME_None, -5);

		ASSERT_EQ(Transport.Num(), 6);
		EXPECT_TRUE(Request(2).URL.EndsWith(GrantPath));
		EXPECT_EQ(Utf8(Request(2).GetHeader(TEXT("Authorization"))), "Bearer tok-1");
		EXPECT_EQ(Utf8(Request(2).Body), "{\r\n\t\"container_id\": \"c-grid\",\r\n\t\"item_id\": \"Medkit\",\r\n\t\"quantity\": 1\r\n}");
		EXPECT_EQ(Utf8(Request(3).Body), "{\r\n\t\"container_id\": \"c-grid\",\r\n\t\"item_id\": \"Medkit\",\r\n\t\"quantity\": 1\r\n}");
		EXPECT_EQ(Utf8(Request(4).Body),
			"{\r\n\t\"container_id\": \"c-grid\",\r\n\t\"item_id\": \"Medkit\",\r\n\t\"quantity\": 4,\r\n\t\"to\":\r\n\t{\r\n\t\t\"x\": 3,\r\n\t\t\"y\": 2\r\n\t}\r\n}");
		EXPECT_EQ(Utf8(Request(5).Body), "{\r\n\t\"container_id\": \"c-grid\",\r\n\t\"item_id\": \"None\",\r\n\t\"quantity\": 1\r\n}");

		TArray<FString> Keys;
		for (int32 Index = 2; Index < 6; ++Index)
		{
			const FString Key = Request(Index).GetHeader(TEXT("Idempotency-Key"));
			EXPECT_FALSE(Key.IsEmpty());
			EXPECT_FALSE(Keys.Contains(Key));
			Keys.Add(Key);
		}

		UQuorvelStashPanel* Slots = MakeReadyPanel(SlotsReply);
		Slots->DepositItem(FName(TEXT("Medkit")), 1, 2, 1);
		Slots->DepositItem(FName(TEXT("Medkit")), 1, 7, 0);
		EXPECT_EQ(Utf8(Request(8).Body),
			"{\r\n\t\"container_id\": \"c-slots\",\r\n\t\"item_id\": \"Medkit\",\r\n\t\"quantity\": 1,\r\n\t\"to\":\r\n\t{\r\n\t\t\"slot_index\": 8\r\n\t}\r\n}");
		EXPECT_TRUE(Utf8(Request(9).Body).find("\"slot_index\": 7") != std::string::npos);
	}

	TEST_F(FStashPanelOperations, AnAcceptedDepositTellsTheDelegateThenTheEventThenReloads)
	{
		UQuorvelStashPanel* Panel = MakeReadyPanel();
		Listener->Heard.Reset();
		// The event runs before the reload: no new sign-in had been sent when it ran.
		Panel->DepositItem(FName(TEXT("Medkit")), 0, -1, -1, 12);
		Answer(2, 201, TEXT("{\"id\":\"i-9\"}"));

		ASSERT_EQ(Listener->Heard.Num(), 1);
		EXPECT_EQ(Utf8(Listener->Heard[0]), "deposit Medkit 1 12");
		ASSERT_EQ(Heard.Num(), 1);
		EXPECT_EQ(Utf8(Heard[0]), "event deposited Medkit 1 12 sent 3");
		ASSERT_EQ(Transport.Num(), 4);
		EXPECT_TRUE(Request(3).URL.EndsWith(SignInPath));
		EXPECT_EQ(StatusTextOf(Panel), "Signing in\u2026");
	}

	TEST_F(FStashPanelOperations, AWithdrawSendsTheWholeStackAndHandsTheRecordBackAsPassed)
	{
		UQuorvelStashPanel* Panel = MakeReadyPanel();
		Listener->Heard.Reset();
		Panel->WithdrawInstance(Instance(TEXT("i-5"), 5));
		Panel->WithdrawInstance(Instance(TEXT("i-0"), 0));
		EXPECT_TRUE(Request(2).URL.EndsWith(ConsumePath));
		EXPECT_EQ(Utf8(Request(2).Body), "{\r\n\t\"instance_id\": \"i-5\",\r\n\t\"quantity\": 5\r\n}");
		EXPECT_EQ(Utf8(Request(3).Body), "{\r\n\t\"instance_id\": \"i-0\",\r\n\t\"quantity\": 1\r\n}");
		EXPECT_NE(Request(2).GetHeader(TEXT("Idempotency-Key")), Request(3).GetHeader(TEXT("Idempotency-Key")));

		Answer(3, 200, TEXT("{}"));
		ASSERT_EQ(Listener->Heard.Num(), 1);
		EXPECT_EQ(Utf8(Listener->Heard[0]), "instance i-0 Rope 0");
		ASSERT_EQ(Heard.Num(), 1);
		EXPECT_EQ(Utf8(Heard[0]), "event OnWithdrawn i-0 0 4 sent 4");
		EXPECT_TRUE(Request(4).URL.EndsWith(SignInPath));

		// A consume accepted without a body has released the stack all the same: the game is told.
		Answer(2, 204, TEXT(""));
		ASSERT_EQ(Listener->Heard.Num(), 2);
		EXPECT_EQ(Utf8(Listener->Heard[1]), "instance i-5 Rope 5");
	}

	TEST_F(FStashPanelOperations, AFailedOperationReportsOnThePanelAndNeitherNotifiesNorReloads)
	{
		UQuorvelStashPanel* Panel = MakeReadyPanel();
		Listener->Heard.Reset();
		Panel->DepositItem(FName(TEXT("Medkit")), 1, 0, 0);
		Answer(2, 409, TEXT("{\"error\":{\"code\":\"cell_occupied\",\"message\":\"\"}}"));
		Panel->WithdrawInstance(Instance(TEXT("i-1")));
		Answer(3, 404, TEXT("{\"error\":{\"code\":\"not_found\",\"message\":\"No such stack\"}}"));

		EXPECT_EQ(Transport.Num(), 4);
		EXPECT_EQ(StatusTextOf(Panel), "No such stack");
		EXPECT_EQ(StatusColourOf(Panel), FLinearColor(0.94f, 0.42f, 0.35f, 1.0f));
		ASSERT_EQ(Listener->Heard.Num(), 2);
		EXPECT_EQ(Utf8(Listener->Heard[0]), "failed 409 cell_occupied  ");
		EXPECT_EQ(Heard.Num(), 0);
		EXPECT_TRUE(Panel->IsReady());
	}

	TEST_F(FStashPanelOperations, ATransferMovesInOneRequestReloadsTheSourceFirstAndTheDestinationLast)
	{
		UQuorvelStashPanel* Source = MakeReadyPanel();
		UQuorvelStashPanel* Destination = MakeReadyPanel(SlotsReply);
		Listener->Heard.Reset();
		// The destination's event runs after the source's reload was sent and before its own.
		Destination->TransferFrom(Source, Instance(TEXT("i-3"), 2), 1, 2);
		Destination->TransferFrom(Source, Instance(TEXT("i-4")));
		ASSERT_EQ(Transport.Num(), 6);
		EXPECT_TRUE(Request(4).URL.EndsWith(MovePath));
		EXPECT_EQ(Utf8(Request(4).Body),
			"{\r\n\t\"instance_id\": \"i-3\",\r\n\t\"to_container_id\": \"c-slots\",\r\n\t\"to\":\r\n\t{\r\n\t\t\"slot_index\": 13\r\n\t}\r\n}");
		EXPECT_EQ(Utf8(Request(5).Body), "{\r\n\t\"instance_id\": \"i-4\",\r\n\t\"to_container_id\": \"c-slots\"\r\n}");
		EXPECT_NE(Request(4).GetHeader(TEXT("Idempotency-Key")), Request(5).GetHeader(TEXT("Idempotency-Key")));

		Answer(4, 200, TEXT("{}"));
		ASSERT_EQ(Transport.Num(), 8);
		EXPECT_EQ(StatusTextOf(Source), "Signing in\u2026");
		EXPECT_EQ(StatusTextOf(Destination), "Signing in\u2026");
		ASSERT_EQ(Listener->Heard.Num(), 1);
		EXPECT_EQ(Utf8(Listener->Heard[0]), "instance i-3 Rope 2");
		ASSERT_EQ(Heard.Num(), 1);
		EXPECT_EQ(Utf8(Heard[0]), "event OnTransferred i-3 2 4 sent 7");

		// A failure lands on the destination only.
		Answer(5, 409, TEXT("{\"error\":{\"code\":\"cell_occupied\",\"message\":\"Taken\"}}"));
		EXPECT_EQ(StatusTextOf(Destination), "Taken");
		EXPECT_EQ(StatusTextOf(Source), "Signing in\u2026");
		EXPECT_EQ(Transport.Num(), 8);
	}

	TEST_F(FStashPanelOperations, ADestroyedPanelHearsNothingAndADestroyedSourceIsNotReloaded)
	{
		UQuorvelStashPanel* Source = MakeReadyPanel();
		UQuorvelStashPanel* Destination = MakeReadyPanel();
		Listener->Heard.Reset();
		Destination->TransferFrom(Source, Instance(TEXT("i-1")));
		Source->DepositItem(FName(TEXT("Medkit")));

		TWeakObjectPtr<UQuorvelStashPanel> WeakSource = Source;
		Source->RemoveFromRoot();
		Panels.Remove(Source);
		CollectGarbage();
		ASSERT_FALSE(WeakSource.IsValid());

		Answer(5, 200, TEXT("{}"));
		EXPECT_EQ(Transport.Num(), 6);
		Answer(4, 200, TEXT("{}"));
		ASSERT_EQ(Transport.Num(), 7);
		EXPECT_TRUE(Request(6).URL.EndsWith(SignInPath));
		EXPECT_EQ(Utf8(Request(6).Body), Utf8(Request(2).Body));
		EXPECT_EQ(Listener->Heard.Num(), 1);
	}
}
