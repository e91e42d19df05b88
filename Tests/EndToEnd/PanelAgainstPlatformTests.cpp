// The panel's promises as a game sees them, against the platform emulator over loopback HTTP:
// what it draws, what it sends, what the platform then holds, and what the game is told.
#include "EndToEndFixture.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "UObject/UObjectGlobals.h"

using namespace EndToEnd;

namespace
{
	using quorvel::emulator::Json;

	const Json* FindStack(const std::vector<Json>& Stacks, const std::string& ItemId, int X, int Y)
	{
		for (const Json& Stack : Stacks)
		{
			if (Stack.at("item_id") == ItemId && Stack.at("x") == X && Stack.at("y") == Y)
			{
				return &Stack;
			}
		}
		return nullptr;
	}

	const FQuorvelItemInstance* FindInstance(const TArray<FQuorvelItemInstance>& Contents, const TCHAR* ItemId)
	{
		return Contents.FindByPredicate([ItemId](const FQuorvelItemInstance& Instance) { return Instance.ItemId == FName(ItemId); });
	}

	using FPanelAgainstPlatform = FPlatformTest;

	TEST_F(FPanelAgainstPlatform, AGridStashAndASlotLoadoutLoadAsTheyAreShownOnScreen)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);
		FPanel& Loadout = AddLoadedPanel(TEXT("loadout"), EQuorvelContainerLayout::Slots, FVector2D(760.0, 0.0));

		EXPECT_TRUE(Stash.Widget->IsReady());
		EXPECT_EQ(Utf8(Stash.Listener->Heard[0]), "loaded 8");
		EXPECT_EQ(StatusOf(Stash), "8 stack(s) \u00B7 10x8");
		EXPECT_EQ(ContentsOf(Stash).Num(), 8);
		// The rifle covers cells (0, 0) to (3, 1); the hit test finds it anywhere on them.
		EXPECT_EQ(StackAt(Stash, 3, 1).ItemId, FName(TEXT("rifle")));
		EXPECT_EQ(StackAt(Stash, 6, 0).Quantity, 60);

		EXPECT_TRUE(Loadout.Widget->IsReady());
		EXPECT_EQ(Utf8(Loadout.Listener->Heard[0]), "loaded 0");
		int32 X = -1;
		int32 Y = -1;
		EXPECT_TRUE(Loadout.Widget->CellAtScreenPosition(CellCentre(Loadout, 5, 1), X, Y));
		EXPECT_EQ(FIntPoint(X, Y), FIntPoint(5, 1));
		EXPECT_FALSE(Loadout.Widget->CellAtScreenPosition(CellCentre(Loadout, 0, 2), X, Y));
		EXPECT_EQ(PlatformStacks("loadout").size(), 0u);
	}

	TEST_F(FPanelAgainstPlatform, AContainerKeepsTheLayoutItWasMadeWithAndThePanelSaysSo)
	{
		AddLoadedPanel(TEXT("pouch"), EQuorvelContainerLayout::Slots);
		FLogLines Log;
		FPanel& AsGrid = AddLoadedPanel(TEXT("pouch"), EQuorvelContainerLayout::Grid, FVector2D(0.0, 400.0));

		EXPECT_EQ(Log.CountContaining(TEXT("LogQuorvel: Warning: Stash panel asked for a grid container but 'pouch' already exists as slots.")), 1);
		// Drawn as the slots the platform keeps: twelve of them, six to a row.
		int32 X = -1;
		int32 Y = -1;
		EXPECT_TRUE(AsGrid.Widget->CellAtScreenPosition(CellCentre(AsGrid, 5, 1), X, Y));
		EXPECT_FALSE(AsGrid.Widget->CellAtScreenPosition(CellCentre(AsGrid, 6, 0), X, Y));
	}

	TEST_F(FPanelAgainstPlatform, ADepositLandsAtTheNamedCellOrWhereThePlatformPlacesItAndOnlyThenTellsTheGame)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);

		Stash.Widget->DepositItem(FName(TEXT("medkit")), 2, 6, 5, 7);
		EXPECT_EQ(Stash.Listener->Accepted, 0);
		ASSERT_TRUE(TickUntil([&]() { return Stash.Listener->Loads == 2; }));
		EXPECT_EQ(Utf8(Stash.Listener->Heard[1]), "deposit medkit 2 7");
		EXPECT_EQ(Utf8(Stash.Listener->Heard[2]), "loaded 9");
		ASSERT_NE(FindStack(PlatformStacks("stash"), "medkit", 6, 5), nullptr);
		EXPECT_EQ(FindStack(PlatformStacks("stash"), "medkit", 6, 5)->at("quantity"), 2);
		Engine->Tick(0.0f);
		EXPECT_EQ(StackAt(Stash, 7, 6).ItemId, FName(TEXT("medkit")));

		// No cell: the platform takes the first space that fits, row by row, and the reload shows it there.
		Stash.Widget->DepositItem(FName(TEXT("bandage")));
		ASSERT_TRUE(TickUntil([&]() { return Stash.Listener->Loads == 3; }));
		EXPECT_NE(FindStack(PlatformStacks("stash"), "bandage", 9, 0), nullptr);
		Engine->Tick(0.0f);
		EXPECT_EQ(StackAt(Stash, 9, 0).ItemId, FName(TEXT("bandage")));
		EXPECT_EQ(Stash.Listener->HeldChange[FName(TEXT("medkit"))], -2);
		EXPECT_EQ(Stash.Listener->HeldChange[FName(TEXT("bandage"))], -1);
	}

	TEST_F(FPanelAgainstPlatform, AnOccupiedCellIsRefusedOnTheStatusLineAndTheGameKeepsItsItem)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);

		Stash.Widget->DepositItem(FName(TEXT("ration")), 1, 1, 1, 3);
		ASSERT_TRUE(WaitForOutcome(Stash, Outcomes(Stash)));

		EXPECT_EQ(Stash.Listener->Accepted, 0);
		EXPECT_EQ(Utf8(Stash.Listener->Heard.Last()), "failed 409 cell_occupied");
		EXPECT_EQ(StatusOf(Stash), "cell 1, 1 is occupied");
		EXPECT_EQ(StatusColourOf(Stash), FLinearColor(0.94f, 0.42f, 0.35f, 1.0f));
		EXPECT_EQ(PlatformStacks("stash").size(), 8u);
		EXPECT_TRUE(Stash.Listener->HeldChange.IsEmpty());
		// The drawing is left as it was: still the rifle there, still ready.
		EXPECT_EQ(StackAt(Stash, 1, 1).ItemId, FName(TEXT("rifle")));
		EXPECT_TRUE(Stash.Widget->IsReady());
	}

	TEST_F(FPanelAgainstPlatform, AWithdrawTakesTheStackOffThePlatformAndHandsItToTheGame)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);
		const FQuorvelItemInstance Ammo = StackAt(Stash, 6, 0);

		Stash.Widget->WithdrawInstance(Ammo);
		ASSERT_TRUE(TickUntil([&]() { return Stash.Listener->Loads == 2; }));

		EXPECT_EQ(Utf8(Stash.Listener->Heard[1]), "withdraw ammo_556 60");
		EXPECT_EQ(Stash.Listener->HeldChange[FName(TEXT("ammo_556"))], 60);
		EXPECT_EQ(FindStack(PlatformStacks("stash"), "ammo_556", 6, 0), nullptr);
		EXPECT_EQ(FindInstance(ContentsOf(Stash), TEXT("ammo_556")), nullptr);
	}

	TEST_F(FPanelAgainstPlatform, ATransferMovesAStackBetweenTwoPanelsInOneRequestAndBothRedraw)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);
		FPanel& Loadout = AddLoadedPanel(TEXT("loadout"), EQuorvelContainerLayout::Slots, FVector2D(760.0, 0.0));
		const FQuorvelItemInstance Water = StackAt(Stash, 8, 1);
		ASSERT_EQ(Water.ItemId, FName(TEXT("water")));

		// Dropped on the fourth slot of the loadout's second row: slot 9.
		int32 X = -1;
		int32 Y = -1;
		ASSERT_TRUE(Loadout.Widget->CellAtScreenPosition(CellCentre(Loadout, 3, 1), X, Y));
		Loadout.Widget->TransferFrom(Stash.Widget, Water, X, Y);
		ASSERT_TRUE(TickUntil([&]() { return Stash.Listener->Loads == 2 && Loadout.Listener->Loads == 2; }));
		Engine->Tick(0.0f);

		EXPECT_EQ(Utf8(Loadout.Listener->Heard[1]), "transfer water 3");
		EXPECT_EQ(Stash.Listener->Accepted, 0);
		EXPECT_TRUE(Loadout.Listener->HeldChange.IsEmpty());
		const std::vector<Json> InLoadout = PlatformStacks("loadout");
		ASSERT_EQ(InLoadout.size(), 1u);
		EXPECT_EQ(InLoadout[0].at("slot_index"), 9);
		EXPECT_EQ(InLoadout[0].at("id"), Utf8(Water.InstanceId));
		EXPECT_EQ(StackAt(Loadout, 3, 1).InstanceId, Water.InstanceId);
		EXPECT_EQ(FindInstance(ContentsOf(Stash), TEXT("water")), nullptr);
	}

	TEST_F(FPanelAgainstPlatform, AReplyForAPanelThatIsGoneChangesNothingInTheGame)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);
		Stash.Widget->DepositItem(FName(TEXT("bandage")), 1, 9, 7);
		Stash.Widget->RemoveFromParent();
		Stash.Widget->RemoveFromRoot();
		Engine->CollectGarbageNow();
		ASSERT_FALSE(Stash.Alive.IsValid());

		// Every request in flight runs to its completion, which finds no panel.
		FHttpModule::Get().GetHttpManager().Flush(EHttpFlushReason::FullFlush);
		Engine->Tick(0.0f);

		EXPECT_EQ(Stash.Listener->Heard.Num(), 1);
		EXPECT_TRUE(Stash.Listener->HeldChange.IsEmpty());
		// The platform did take it: the duplicate the design accepts, which the next load shows.
		EXPECT_NE(FindStack(PlatformStacks("stash"), "bandage", 9, 7), nullptr);
	}
}
