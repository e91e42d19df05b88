// The panel against the platform at the project's BaseUrl: load, deposit at a cell, an occupied cell,
// withdraw, and a transfer between two panels. Each test signs in as a player of its own, so runs never
// touch a real stash and can repeat. When no platform answers, each test says so and passes.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Containers/Ticker.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "Interfaces/IHttpRequest.h"
#include "Misc/Guid.h"
#include "QuorvelSettings.h"
#include "QuorvelStashPanelTestListener.h"

BEGIN_DEFINE_SPEC(FQuorvelPlatformTests, "Quorvel.Platform", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
	TArray<UQuorvelStashPanelTestListener*> Listeners;
	TArray<FTSTicker::FDelegateHandle> Waits;
	/** The identity every panel of the running test signs in with. */
	FString Ticket;
	UQuorvelStashPanel* Stash = nullptr;
	UQuorvelStashPanelTestListener* StashHeard = nullptr;
	bool bNoPlatform = false;
	/** Paths of the requests started since the test began watching, in order. */
	TArray<FString> Started;

	// The HTTP module warns about connections it could not make, a missing platform among them; these
	// tests judge the panel by what it does and what it reports, not by the transport's log.
	virtual bool SuppressLogWarnings() override
	{
		return true;
	}

	/** A panel of the test's player, kept alive with its listener while its requests are in flight; it starts loading. */
	UQuorvelStashPanel* MakeLoadingPanel(TFunctionRef<void(UQuorvelStashPanel&)> Configure, UQuorvelStashPanelTestListener*& OutListener)
	{
		UQuorvelStashPanel* Panel = Panels.Make([this, &Configure](UQuorvelStashPanel& Configured)
		{
			Configured.Provider = TEXT("anonymous");
			Configured.Ticket = Ticket;
			Configure(Configured);
		});
		OutListener = NewObject<UQuorvelStashPanelTestListener>(GetTransientPackage());
		OutListener->AddToRoot();
		Listeners.Add(OutListener);
		OutListener->Listen(Panel);
		Panel->LoadStash();
		return Panel;
	}

	/** Checks Condition once a frame; runs Then, once, on the first frame it holds. */
	void WaitUntil(TFunction<bool()> Condition, TFunction<void()> Then)
	{
		Waits.Add(FTSTicker::GetCoreTicker().AddTicker(TEXT("QuorvelPlatformTests"), 0.0f,
			[Condition = MoveTemp(Condition), Then = MoveTemp(Then)](float)
			{
				if (!Condition())
				{
					return true;
				}
				Then();
				return false;
			}));
	}

	/** Runs Then once Listener has heard another load, or a failure. */
	void AfterNextLoad(UQuorvelStashPanelTestListener* Listener, TFunction<void()> Then)
	{
		const int32 Loads = Listener->Count(TEXT("loaded"));
		const int32 Failures = Listener->Count(TEXT("failed"));
		WaitUntil([Listener, Loads, Failures]
		{
			return Listener->Count(TEXT("loaded")) > Loads || Listener->Count(TEXT("failed")) > Failures;
		}, MoveTemp(Then));
	}

	void WatchRequests()
	{
		Started.Reset();
		FHttpModule::Get().GetHttpManager().SetRequestAddedDelegate(FHttpManagerRequestAddedDelegate::CreateLambda([this](const FHttpRequestRef& Request)
		{
			Started.Add(Request->GetURL().RightChop(UQuorvelSettings::Get().BaseUrl.Len()));
		}));
	}

	FString Heard(const UQuorvelStashPanelTestListener* Listener)
	{
		return FString::Join(Listener->Heard, TEXT("; "));
	}
END_DEFINE_SPEC(FQuorvelPlatformTests)

void FQuorvelPlatformTests::Define()
{
	using namespace UE::Quorvel::Tests;

	LatentBeforeEach(FTimespan::FromSeconds(60.0), [this](const FDoneDelegate& Done)
	{
		bNoPlatform = false;
		Ticket = FString(TEXT("automation-")) + FGuid::NewGuid().ToString(EGuidFormats::DigitsWithHyphensLower);
		Stash = MakeLoadingPanel([](UQuorvelStashPanel&) {}, StashHeard);
		AfterNextLoad(StashHeard, [this, Done]
		{
			const FQuorvelError* Error = StashHeard->Errors.Num() > 0 ? &StashHeard->Errors[0] : nullptr;
			if (Error && Error->Code == TEXT("connection_failed"))
			{
				bNoPlatform = true;
				AddInfo(FString::Printf(TEXT("No platform answers at %s: %s These tests need one: start the Quorvel platform emulator ")
					TEXT("(./quorvel emulator in the SDK), or set BaseUrl in [/Script/QuorvelCore.QuorvelSettings] of DefaultGame.ini. Nothing was tested."),
					*UQuorvelSettings::Get().BaseUrl, *Error->Message));
			}
			else
			{
				TestEqual(TEXT("The new player's stash loads"), Heard(StashHeard), TEXT("loaded 0"));
			}
			Done.Execute();
		});
	});

	AfterEach([this]
	{
		for (const FTSTicker::FDelegateHandle& Wait : Waits)
		{
			FTSTicker::RemoveTicker(Wait);
		}
		Waits.Reset();
		FHttpModule::Get().GetHttpManager().SetRequestAddedDelegate(FHttpManagerRequestAddedDelegate());
		for (UQuorvelStashPanelTestListener* Listener : Listeners)
		{
			Listener->RemoveFromRoot();
		}
		Listeners.Reset();
		Panels.Reset();
	});

	It("loads a new player's stash as an empty grid and is ready", [this]
	{
		if (bNoPlatform)
		{
			return;
		}
		TestTrue(TEXT("Ready"), Stash->IsReady());
		TestEqual(TEXT("Status"), StatusTextOf(Stash), TEXT("0 stack(s) \u00B7 10x8"));
		TestTrue(TEXT("Status colour"), StatusColourOf(Stash) == StatusColour);
		TestEqual(TEXT("Contents"), ContentsOf(Stash).Num(), 0);
	});

	LatentIt("deposits at a named cell, tells the game, and shows the stack there after reloading", FTimespan::FromSeconds(30.0), [this](const FDoneDelegate& Done)
	{
		if (bNoPlatform)
		{
			Done.Execute();
			return;
		}
		Stash->DepositItem(FName(TEXT("bandage")), 3, 2, 1, 7);
		AfterNextLoad(StashHeard, [this, Done]
		{
			TestEqual(TEXT("Heard"), Heard(StashHeard), TEXT("loaded 0; deposit bandage 3 7; loaded 1"));
			TestEqual(TEXT("Status"), StatusTextOf(Stash), TEXT("1 stack(s) \u00B7 10x8"));
			const TArray<FQuorvelItemInstance>& Contents = ContentsOf(Stash);
			if (TestEqual(TEXT("Stacks"), Contents.Num(), 1))
			{
				TestEqual(TEXT("Item"), Contents[0].ItemId, FName(TEXT("bandage")));
				TestEqual(TEXT("Quantity"), Contents[0].Quantity, 3);
				TestEqual(TEXT("Cell"), FVector2D(Contents[0].X, Contents[0].Y), FVector2D(2.0, 1.0));
				TestFalse(TEXT("Instance id"), Contents[0].InstanceId.IsEmpty());

				// Where a player sees it, the panel finds it.
				FPanelOnScreen Screen(Stash);
				FQuorvelItemInstance Found;
				const bool bFound = Stash->InstanceAtScreenPosition(Screen.CanvasOrigin() + FVector2D(2 * 64 + 10, 64 + 10), Found);
				TestTrue(TEXT("The stack is under its cell"), bFound && Found.InstanceId == Contents[0].InstanceId);
			}
			Done.Execute();
		});
	});

	LatentIt("refuses a deposit onto an occupied cell with the platform's message on the status line", FTimespan::FromSeconds(30.0), [this](const FDoneDelegate& Done)
	{
		if (bNoPlatform)
		{
			Done.Execute();
			return;
		}
		Stash->DepositItem(FName(TEXT("bandage")), 1, 0, 0);
		AfterNextLoad(StashHeard, [this, Done]
		{
			Stash->DepositItem(FName(TEXT("ration")), 1, 0, 0);
			AfterNextLoad(StashHeard, [this, Done]
			{
				const FQuorvelError* Error = StashHeard->Errors.Num() == 1 ? &StashHeard->Errors[0] : nullptr;
				if (TestNotNull(TEXT("The refusal"), Error))
				{
					TestEqual(TEXT("Code"), Error->Code, TEXT("cell_occupied"));
					TestFalse(TEXT("Message"), Error->Message.IsEmpty());
					TestEqual(TEXT("Status"), StatusTextOf(Stash), Error->Message);
				}
				TestTrue(TEXT("Status colour"), StatusColourOf(Stash) == ErrorColour);
				TestEqual(TEXT("Deposits accepted"), StashHeard->Count(TEXT("deposit")), 1);
				TestEqual(TEXT("Loads"), StashHeard->Count(TEXT("loaded")), 2);
				const TArray<FQuorvelItemInstance>& Contents = ContentsOf(Stash);
				TestTrue(TEXT("The first stack stays, alone"), Contents.Num() == 1 && Contents[0].ItemId == FName(TEXT("bandage")));
				TestTrue(TEXT("Still ready"), Stash->IsReady());
				Done.Execute();
			});
		});
	});

	LatentIt("withdraws a stack and hands the game the record it asked for", FTimespan::FromSeconds(30.0), [this](const FDoneDelegate& Done)
	{
		if (bNoPlatform)
		{
			Done.Execute();
			return;
		}
		Stash->DepositItem(FName(TEXT("water")), 2, 4, 2);
		AfterNextLoad(StashHeard, [this, Done]
		{
			if (!TestEqual(TEXT("Stacks after the deposit"), ContentsOf(Stash).Num(), 1))
			{
				Done.Execute();
				return;
			}
			const FQuorvelItemInstance Water = ContentsOf(Stash)[0];
			Stash->WithdrawInstance(Water);
			AfterNextLoad(StashHeard, [this, Done, Water]
			{
				TestEqual(TEXT("Heard"), Heard(StashHeard),
					FString::Printf(TEXT("loaded 0; deposit water 2 -1; loaded 1; withdraw %s water 2; loaded 0"), *Water.InstanceId));
				const FQuorvelItemInstance* Handed = StashHeard->Instances.Num() == 1 ? &StashHeard->Instances[0] : nullptr;
				TestTrue(TEXT("The record as passed"), Handed && Handed->X == 4 && Handed->Y == 2 && Handed->InstanceId == Water.InstanceId);
				TestEqual(TEXT("Stacks"), ContentsOf(Stash).Num(), 0);
				TestEqual(TEXT("Status"), StatusTextOf(Stash), TEXT("0 stack(s) \u00B7 10x8"));
				Done.Execute();
			});
		});
	});

	LatentIt("moves a stack into another panel of the player in one request, and both panels reload", FTimespan::FromSeconds(30.0), [this](const FDoneDelegate& Done)
	{
		if (bNoPlatform)
		{
			Done.Execute();
			return;
		}
		UQuorvelStashPanelTestListener* LoadoutHeard = nullptr;
		UQuorvelStashPanel* Loadout = MakeLoadingPanel([](UQuorvelStashPanel& Configured)
		{
			Configured.ContainerKind = TEXT("loadout");
			Configured.Layout = EQuorvelContainerLayout::Slots;
			Configured.SlotCount = 12;
			Configured.SlotColumns = 6;
		}, LoadoutHeard);
		Stash->DepositItem(FName(TEXT("bandage")), 4, 3, 3);
		WaitUntil([this, LoadoutHeard] { return LoadoutHeard->Heard.Num() > 0 && StashHeard->Count(TEXT("loaded")) + StashHeard->Count(TEXT("failed")) > 1; },
			[this, Done, Loadout, LoadoutHeard]
		{
			TestEqual(TEXT("Loadout heard before the move"), Heard(LoadoutHeard), TEXT("loaded 0"));
			if (!TestEqual(TEXT("Stash stacks before the move"), ContentsOf(Stash).Num(), 1))
			{
				Done.Execute();
				return;
			}
			const FQuorvelItemInstance Bandage = ContentsOf(Stash)[0];
			WatchRequests();
			Loadout->TransferFrom(Stash, Bandage, 1, 1);
			const int32 StashLoads = StashHeard->Count(TEXT("loaded"));
			WaitUntil([this, LoadoutHeard, StashLoads]
			{
				return LoadoutHeard->Count(TEXT("failed")) > 0 || (LoadoutHeard->Count(TEXT("loaded")) > 1 && StashHeard->Count(TEXT("loaded")) > StashLoads);
			}, [this, Done, Loadout, LoadoutHeard, Bandage]
			{
				TestEqual(TEXT("Loadout heard"), Heard(LoadoutHeard), FString::Printf(TEXT("loaded 0; transfer %s bandage 4; loaded 1"), *Bandage.InstanceId));
				TestEqual(TEXT("Moves sent"), Started.FilterByPredicate([](const FString& Path) { return Path == TEXT("/v1/game/inventory/move"); }).Num(), 1);
				TestFalse(TEXT("Nothing withdrawn or deposited"), Started.ContainsByPredicate([](const FString& Path)
				{
					return Path == TEXT("/v1/game/inventory/consume") || Path == TEXT("/v1/game/inventory/grant");
				}));
				const TArray<FQuorvelItemInstance>& Moved = ContentsOf(Loadout);
				if (TestEqual(TEXT("Loadout stacks"), Moved.Num(), 1))
				{
					TestEqual(TEXT("Same stack"), Moved[0].InstanceId, Bandage.InstanceId);
					TestEqual(TEXT("Slot of cell 1, 1 in six columns"), Moved[0].SlotIndex, 7);
				}
				TestEqual(TEXT("Stash stacks"), ContentsOf(Stash).Num(), 0);
				TestEqual(TEXT("Loadout status"), StatusTextOf(Loadout), TEXT("1 of 12 slots"));
				TestEqual(TEXT("Stash hears no transfer"), StashHeard->Count(TEXT("transfer")), 0);
				Done.Execute();
			});
		});
	});

	It("once loaded, still refuses a stack without an instance id, no source panel and itself as the source", [this]
	{
		if (bNoPlatform)
		{
			return;
		}
		WatchRequests();
		AddExpectedMessage(TEXT("Withdraw refused: no stash, or the stack has no instance id."), ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Exact, 1);
		AddExpectedMessage(TEXT("Transfer refused: destination not loaded, no source panel, or the stack has no instance id."),
			ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Exact, 2);
		AddExpectedMessage(TEXT("Transfer refused: source and destination are the same panel."), ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Exact, 1);
		const FQuorvelItemInstance Rope = MakeStack(TEXT("Rope"), 0, 0);
		Stash->WithdrawInstance(FQuorvelItemInstance());
		Stash->TransferFrom(nullptr, Rope);
		Stash->TransferFrom(Stash, FQuorvelItemInstance());
		Stash->TransferFrom(Stash, Rope);
		TestEqual(TEXT("Requests started"), Started.Num(), 0);
		TestEqual(TEXT("Heard"), Heard(StashHeard), TEXT("loaded 0"));
		TestEqual(TEXT("Status"), StatusTextOf(Stash), TEXT("0 stack(s) \u00B7 10x8"));
	});
}

#endif
