// Thousands of random deposits, withdraws and transfers between a stash and a loadout while the
// platform refuses a tenth of all requests with 503 and drops a tenth of its replies after it has
// committed. The client retries with the same key; the game changes its own inventory only when
// a panel says the platform accepted. At the end the platform and the game together hold every
// item they held at the start: a deposit can at worst be duplicated when the client gave up after
// its last retry, and nothing is ever lost.
#include "EndToEndFixture.h"
#include "QuorvelLog.h"

#include <cstdio>
#include <cstdlib>
#include <random>

using namespace EndToEnd;

namespace
{
	struct FSoakCounts
	{
		int32 Operations = 0;
		int32 Accepted = 0;
		int32 Refused = 0;
		/** Failures the client reported after its last retry, by operation. */
		int32 GaveUpDeposits = 0;
		int32 GaveUpOthers = 0;
		int32 Resyncs = 0;
	};

	/** A few thousand by default; QUORVEL_SOAK_OPERATIONS sets another count for a longer run. */
	int32 OperationCount()
	{
		const char* Text = std::getenv("QUORVEL_SOAK_OPERATIONS");
		const int32 Count = Text ? std::atoi(Text) : 0;
		return Count > 0 ? Count : 2000;
	}

	class FSoak : public FPlatformTest
	{
	protected:
		/** The character's own inventory: what it started with plus what the panels' notifications changed. */
		int32 Held(const FName ItemId) const
		{
			int32 Count = StartingHeld.FindRef(ItemId);
			for (const FPanel& Panel : Panels)
			{
				Count += Panel.Listener->HeldChange.FindRef(ItemId);
			}
			return Count;
		}

		/** Waits until the panel has drawn a fresh container, loading it again while loads fail. */
		void Resync(FPanel& Panel)
		{
			for (int32 Attempt = 0; Attempt < 20; ++Attempt)
			{
				const int32 Loads = Panel.Listener->Loads;
				const int32 Failures = Panel.Listener->Failures;
				Panel.Widget->LoadStash();
				ASSERT_TRUE(TickUntil([&]() { return Panel.Listener->Loads > Loads || Panel.Listener->Failures > Failures; }));
				if (Panel.Listener->Loads > Loads)
				{
					Engine->Tick(0.0f);
					return;
				}
			}
			FAIL() << "a panel could not load twenty times in a row";
		}

		/**
		 * Waits for the outcome of the operation just sent through Destination (the accepted
		 * notification, or a failure), then for the reloads an acceptance starts on every panel
		 * in Reloaded. A reload that fails is loaded again, so the next operation sees the platform.
		 */
		void Settle(FPanel& Destination, const TArray<FPanel*>& Reloaded, bool bDeposit)
		{
			const int32 Accepted = Destination.Listener->Accepted;
			const int32 Failures = Destination.Listener->Failures;
			TArray<int32> Loads;
			TArray<int32> Outcomes;
			for (const FPanel* Panel : Reloaded)
			{
				Loads.Add(Panel->Listener->Loads);
				Outcomes.Add(Panel->Listener->Loads + Panel->Listener->Failures);
			}
			ASSERT_TRUE(TickUntil([&]() { return Destination.Listener->Accepted > Accepted || Destination.Listener->Failures > Failures; }));
			++Counts.Operations;
			if (Destination.Listener->Accepted == Accepted)
			{
				const bool bGaveUp = Destination.Listener->LastError.bRetryable;
				int32& Count = !bGaveUp ? Counts.Refused : bDeposit ? Counts.GaveUpDeposits : Counts.GaveUpOthers;
				++Count;
				return;
			}
			++Counts.Accepted;
			for (int32 Index = 0; Index < Reloaded.Num(); ++Index)
			{
				FPanel& Panel = *Reloaded[Index];
				ASSERT_TRUE(TickUntil([&]() { return Panel.Listener->Loads + Panel.Listener->Failures > Outcomes[Index]; }));
				if (Panel.Listener->Loads == Loads[Index])
				{
					++Counts.Resyncs;
					Resync(Panel);
				}
			}
			Engine->Tick(0.0f);
		}

		/** A random cell of the panel's container, or none (-1, -1) half of the time. */
		FIntPoint RandomCell(const FPanel& Panel)
		{
			if (Random() % 2 == 0)
			{
				return FIntPoint(-1, -1);
			}
			const bool bSlots = Panel.Widget->Layout == EQuorvelContainerLayout::Slots;
			const int32 Columns = bSlots ? Panel.Widget->SlotColumns : Panel.Widget->GridWidth;
			const int32 Rows = bSlots ? Panel.Widget->SlotCount / Panel.Widget->SlotColumns : Panel.Widget->GridHeight;
			return FIntPoint(int32(Random() % Columns), int32(Random() % Rows));
		}

		TMap<FName, int32> StartingHeld;
		FSoakCounts Counts;
		std::mt19937 Random{ 20261125u };
	};

	TEST_F(FSoak, ThousandsOfOperationsUnderRefusalsAndDroppedRepliesLoseNoItem)
	{
		FPanel& Stash = AddLoadedPanel(TEXT("stash"), EQuorvelContainerLayout::Grid);
		FPanel& Loadout = AddLoadedPanel(TEXT("loadout"), EQuorvelContainerLayout::Slots, FVector2D(760.0, 0.0));
		const TArray<FName> Items = { TEXT("bandage"), TEXT("ration"), TEXT("ammo_556"), TEXT("water"), TEXT("medkit"), TEXT("pistol"), TEXT("rifle"), TEXT("backpack") };
		for (const FName& Item : Items)
		{
			StartingHeld.Add(Item, 30);
		}
		std::map<std::string, int> Before = PlatformTotals();
		for (const FName& Item : Items)
		{
			Before[Utf8(Item.ToString())] += StartingHeld[Item];
		}

		FLogLines Log;
		LogQuorvelClient.SetVerbosity(ELogVerbosity::Verbose);
		quorvel::emulator::FaultSettings Faults;
		Faults.failRate = 0.1;
		Faults.retryAfterSeconds = 0;
		Faults.dropRate = 0.1;
		Emulator.setFaultSettings(Faults);

		const int32 Target = OperationCount();
		// Bounded: an iteration that finds nothing to do sends nothing, and there are at most a few.
		for (int32 Iteration = 0; Iteration < 10 * Target && Counts.Operations < Target && !HasFatalFailure(); ++Iteration)
		{
			FPanel& Panel = Random() % 10 < 6 ? Stash : Loadout;
			FPanel& Other = &Panel == &Stash ? Loadout : Stash;
			const TArray<FQuorvelItemInstance>& Contents = ContentsOf(Panel);
			const uint32 Roll = Random() % 10;
			if (Roll < 4 || Contents.IsEmpty())
			{
				const FName Item = Items[Random() % Items.Num()];
				const int32 Quantity = FMath::Min(Held(Item), int32(1 + Random() % 3));
				if (Quantity < 1)
				{
					continue;
				}
				const FIntPoint Cell = RandomCell(Panel);
				Panel.Widget->DepositItem(Item, Quantity, Cell.X, Cell.Y);
				Settle(Panel, { &Panel }, true);
			}
			else if (Roll < 7)
			{
				Panel.Widget->WithdrawInstance(Contents[Random() % Contents.Num()]);
				Settle(Panel, { &Panel }, false);
			}
			else
			{
				const FIntPoint Cell = RandomCell(Other);
				Other.Widget->TransferFrom(Panel.Widget, Contents[Random() % Contents.Num()], Cell.X, Cell.Y);
				Settle(Other, { &Panel, &Other }, false);
			}
		}

		const quorvel::emulator::FaultCounts Injected = Emulator.faultCounts();
		Emulator.setFaultSettings(quorvel::emulator::FaultSettings());
		LogQuorvelClient.ResetToDefault();
		const int32 Retries = Log.CountContaining(TEXT("LogQuorvelClient: Verbose:"));

		std::map<std::string, int> After = PlatformTotals();
		for (const FName& Item : Items)
		{
			After[Utf8(Item.ToString())] += Held(Item);
		}
		int32 Lost = 0;
		int32 Duplicated = 0;
		for (const auto& [Item, Count] : Before)
		{
			const int Difference = After[Item] - Count;
			Lost += Difference < 0 ? -Difference : 0;
			Duplicated += Difference > 0 ? Difference : 0;
			EXPECT_GE(Difference, 0) << Item << " lost";
		}
		std::printf("soak: %d operations (%d accepted, %d refused by the platform), %llu refused with 503, %llu replies dropped after commit, "
			"%d retries, %d gave up after the last retry (%d deposits), %d reloads loaded again; items duplicated: %d, items lost: %d\n",
			Counts.Operations, Counts.Accepted, Counts.Refused, static_cast<unsigned long long>(Injected.failed),
			static_cast<unsigned long long>(Injected.dropped), Retries, Counts.GaveUpDeposits + Counts.GaveUpOthers, Counts.GaveUpDeposits,
			Counts.Resyncs, Duplicated, Lost);

		EXPECT_EQ(Counts.Operations, Target);
		EXPECT_EQ(Lost, 0);
		// A duplicate needs a deposit the platform took while the client ended up reporting a failure.
		EXPECT_LE(Duplicated, 3 * Counts.GaveUpDeposits);
		EXPECT_GT(Injected.failed, 0u);
		EXPECT_GT(Injected.dropped, 0u);
		EXPECT_GT(Counts.Accepted, Target / 4);
	}
}
