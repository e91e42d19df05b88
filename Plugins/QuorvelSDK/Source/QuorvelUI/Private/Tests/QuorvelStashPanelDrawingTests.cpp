// A container handed to ShowContainer, drawn on the grid canvas: cells, stacks, labels, the status
// line's summary and OnStashLoaded, read back from the widgets themselves.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Components/Border.h"
#include "Components/SizeBox.h"
#include "QuorvelStashPanelTestListener.h"

BEGIN_DEFINE_SPEC(FQuorvelStashPanelDrawingTests, "Quorvel.UI.Drawing", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
	UQuorvelStashPanel* Panel = nullptr;
	UQuorvelStashPanelTestListener* Listener = nullptr;

	FVector2D SizerOf(UQuorvelStashPanel* Target)
	{
		const USizeBox* Sizer = UE::Quorvel::Tests::PropertyValue<TObjectPtr<USizeBox>>(Target, TEXT("GridSizer")).Get();
		return FVector2D(Sizer->GetWidthOverride(), Sizer->GetHeightOverride());
	}

	/** What a slots panel logs when it is shown a container made as a grid. */
	const FString SlotsPanelGridContainerWarning = TEXT("Stash panel asked for a slots container but 'stash' already exists as grid. A container's layout is fixed when it is created; use a different kind, or a different player, to see the other one.");

	/** The label a stack's border holds when no icon was found, or null. */
	UTextBlock* LabelOf(const UE::Quorvel::Tests::FDrawnChild& Stack)
	{
		const UBorder* Border = Cast<UBorder>(Stack.Widget);
		return Border ? Cast<UTextBlock>(Border->GetContent()) : nullptr;
	}
END_DEFINE_SPEC(FQuorvelStashPanelDrawingTests)

void FQuorvelStashPanelDrawingTests::Define()
{
	using namespace UE::Quorvel::Tests;

	BeforeEach([this]
	{
		Panel = Panels.Make();
		Listener = NewObject<UQuorvelStashPanelTestListener>(GetTransientPackage());
		Listener->Listen(Panel);
	});

	AfterEach([this]
	{
		Panels.Reset();
	});

	Describe("A grid container", [this]
	{
		BeforeEach([this]
		{
			Panel->ShowContainer(MakeContainer(TEXT("grid"), {
				MakeStack(TEXT("Rifle"), 2, 1, 2, 3, 5),
				MakeStack(TEXT("Coin"), 0, 0, 0, -2, 1200),
				MakeStack(TEXT("Ghost"), -1, 0, 1, 1, 3),
				MakeStack(TEXT("Rifle"), 2, 1, 1, 1, 0),
				MakeStack(TEXT("Far"), 40, 0, 1, 1, 1) }));
		});

		It("draws each stack one unit inside its footprint, above the cells, with its quantity in the corner", [this]
		{
			const TArray<FDrawnChild> Stacks = StacksOn(Panel);
			if (!TestEqual(TEXT("Stack widgets"), Stacks.Num(), 6))
			{
				return;
			}
			const UBorder* Rifle = Cast<UBorder>(Stacks[0].Widget);
			TestNotNull(TEXT("Stack border"), Rifle);
			TestEqual(TEXT("Stack position"), Stacks[0].Position, FVector2D(129.0, 65.0));
			TestEqual(TEXT("Stack size"), Stacks[0].Size, FVector2D(126.0, 190.0));
			TestEqual(TEXT("Stack z-order"), Stacks[0].ZOrder, 10);
			TestTrue(TEXT("Stack colour"), Rifle && Rifle->GetBrushColor() == FLinearColor(1.0f, 1.0f, 1.0f, 0.06f));
			TestTrue(TEXT("Stack padding"), Rifle && Rifle->GetPadding() == FMargin(2.0f));
			TestEqual(TEXT("Stack tooltip"), Stacks[0].Widget->GetToolTipText().ToString(), TEXT("Rifle x5"));

			const UTextBlock* Quantity = Cast<UTextBlock>(Stacks[1].Widget);
			TestEqual(TEXT("Label position"), Stacks[1].Position, FVector2D(240.0, 240.0));
			TestEqual(TEXT("Label z-order"), Stacks[1].ZOrder, 11);
			TestTrue(TEXT("Label sizes itself"), Stacks[1].bAutoSize);
			TestEqual(TEXT("Label text"), Quantity ? Quantity->GetText().ToString() : FString(), TEXT("5"));
			TestTrue(TEXT("Label colour"), Quantity && Quantity->GetColorAndOpacity().GetSpecifiedColor() == FLinearColor(0.94f, 0.64f, 0.19f, 1.0f));
			TestEqual(TEXT("Label size"), Quantity ? Quantity->GetFont().Size : 0.0f, 10.0f, 0.0f);
		});

		It("draws a footprint below one cell as one cell, and groups a large quantity in the label but not the tooltip", [this]
		{
			const TArray<FDrawnChild> Stacks = StacksOn(Panel);
			if (!TestEqual(TEXT("Stack widgets"), Stacks.Num(), 6))
			{
				return;
			}
			TestEqual(TEXT("Coin size"), Stacks[2].Size, FVector2D(62.0, 62.0));
			TestEqual(TEXT("Coin tooltip"), Stacks[2].Widget->GetToolTipText().ToString(), TEXT("Coin x1200"));
			const UTextBlock* Quantity = Cast<UTextBlock>(Stacks[3].Widget);
			TestEqual(TEXT("Coin label"), Quantity ? Quantity->GetText().ToString() : FString(), TEXT("1,200"));
			TestEqual(TEXT("Coin label position"), Stacks[3].Position, FVector2D(48.0, 48.0));
		});

		It("skips a stack without a cell and draws overlapping and out-of-grid stacks all the same", [this]
		{
			const TArray<FDrawnChild> Stacks = StacksOn(Panel);
			if (!TestEqual(TEXT("Stack widgets"), Stacks.Num(), 6))
			{
				return;
			}
			TestEqual(TEXT("Second rifle position"), Stacks[4].Position, FVector2D(129.0, 65.0));
			TestEqual(TEXT("Second rifle tooltip, quantity 0 and no label"), Stacks[4].Widget->GetToolTipText().ToString(), TEXT("Rifle"));
			TestEqual(TEXT("Far position"), Stacks[5].Position, FVector2D(2561.0, 1.0));
			const TArray<TObjectPtr<UWidget>>& ItemWidgets = ItemWidgetsOf(Panel);
			TestEqual(TEXT("ItemWidgets"), ItemWidgets.Num(), 6);
			TestTrue(TEXT("ItemWidgets keeps a stack's label after its border"), ItemWidgets.Num() == 6 && ItemWidgets[1].Get() == Stacks[1].Widget);
			TestEqual(TEXT("Cells"), CellCountOf(Panel), 80);
		});

		It("sums up the stacks drawn and the grid's size on the status line and tells OnStashLoaded", [this]
		{
			TestEqual(TEXT("Status"), StatusTextOf(Panel), TEXT("4 stack(s) \u00B7 10x8"));
			TestTrue(TEXT("Status colour"), StatusColourOf(Panel) == StatusColour);
			TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT("loaded 4"));
			TestEqual(TEXT("Contents"), ContentsOf(Panel).Num(), 5);
			TestFalse(TEXT("Ready"), Panel->IsReady());
		});
	});

	It("draws slot stacks at their slots, keeps a stack without a slot where the reply put it, and counts against the slot count", [this]
	{
		Panel->Layout = EQuorvelContainerLayout::Slots;
		const FQuorvelContainer Original = MakeContainer(TEXT("SLOTS"), {
			MakeStack(TEXT("Ammo"), 9, 9, 3, 3, 1, 0),
			MakeStack(TEXT("Rope"), -1, -1, 2, 2, 1, 5),
			MakeStack(TEXT("Torch"), 0, 0, 1, 1, 1, 6),
			MakeStack(TEXT("Map"), 2, 0, 2, 1, 1, -1) });
		Panel->ShowContainer(Original);

		TestEqual(TEXT("Cells"), CellCountOf(Panel), 24);
		const TArray<FDrawnChild> Stacks = StacksOn(Panel);
		if (!TestEqual(TEXT("Stack widgets"), Stacks.Num(), 4))
		{
			return;
		}
		TestEqual(TEXT("Slot 0"), Stacks[0].Position, FVector2D(1.0, 1.0));
		TestEqual(TEXT("Slot 0 size"), Stacks[0].Size, FVector2D(62.0, 62.0));
		TestEqual(TEXT("Slot 5"), Stacks[1].Position, FVector2D(321.0, 1.0));
		TestEqual(TEXT("Slot 6"), Stacks[2].Position, FVector2D(1.0, 65.0));
		TestEqual(TEXT("No slot: position"), Stacks[3].Position, FVector2D(129.0, 1.0));
		TestEqual(TEXT("No slot: footprint"), Stacks[3].Size, FVector2D(126.0, 62.0));
		TestEqual(TEXT("Status"), StatusTextOf(Panel), TEXT("4 of 24 slots"));
		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT("loaded 4"));

		// The caller's record is left alone; Contents holds the stacks at the cells they were drawn at.
		TestEqual(TEXT("Caller's X"), Original.Items[0].X, 9);
		TestEqual(TEXT("Caller's width"), Original.Items[0].GridW, 3);
		const TArray<FQuorvelItemInstance>& Contents = ContentsOf(Panel);
		if (TestEqual(TEXT("Contents"), Contents.Num(), 4))
		{
			TestEqual(TEXT("Slot 5 column"), Contents[1].X, 5);
			TestEqual(TEXT("Slot 6 row"), Contents[2].Y, 1);
			TestEqual(TEXT("Slot 0 width"), Contents[0].GridW, 1);
			TestEqual(TEXT("No slot keeps its width"), Contents[3].GridW, 2);
		}
	});

	It("shows an item without an icon as its id in a centred, wrapped label, and the empty name as None", [this]
	{
		Panel->ShowContainer(MakeContainer(TEXT("grid"), { MakeStack(TEXT("Medkit"), 1, 0), MakeStack(TEXT(""), 0, 0) }));
		const TArray<FDrawnChild> Stacks = StacksOn(Panel);
		if (!TestEqual(TEXT("Stack widgets"), Stacks.Num(), 2))
		{
			return;
		}
		const UTextBlock* Label = LabelOf(Stacks[0]);
		if (!TestNotNull(TEXT("Label"), Label))
		{
			return;
		}
		TestEqual(TEXT("Label text"), Label->GetText().ToString(), TEXT("Medkit"));
		TestTrue(TEXT("Label colour"), Label->GetColorAndOpacity().GetSpecifiedColor() == FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
		TestEqual(TEXT("Label size"), Label->GetFont().Size, 8.0f, 0.0f);
		TestTrue(TEXT("Label centred"), Label->GetJustification() == ETextJustify::Center);
		TestTrue(TEXT("Label wraps"), Label->GetAutoWrapText());
		const UTextBlock* Nameless = LabelOf(Stacks[1]);
		TestEqual(TEXT("Empty name label"), Nameless ? Nameless->GetText().ToString() : FString(), TEXT("None"));
		TestEqual(TEXT("Empty name tooltip"), Stacks[1].Widget->GetToolTipText().ToString(), TEXT("None"));
	});

	Describe("A container's own layout", [this]
	{
		struct FCase
		{
			const TCHAR* Description;
			EQuorvelContainerLayout PanelLayout;
			const TCHAR* ContainerLayout;
			int32 Cells;
			const TCHAR* Status;
			const TCHAR* Warning;
		};
		static const FCase Cases[] = {
			{ TEXT("draws slots for a slots panel"), EQuorvelContainerLayout::Slots, TEXT("slots"), 24, TEXT("0 of 24 slots"), nullptr },
			{ TEXT("draws a grid for a slots panel and warns that the container was made as a grid"), EQuorvelContainerLayout::Slots, TEXT("grid"), 80,
				TEXT("0 stack(s) \u00B7 10x8 grid (this container was not created as slots)"),
				TEXT("Stash panel asked for a slots container but 'stash' already exists as grid. A container's layout is fixed when it is created; use a different kind, or a different player, to see the other one.") },
			{ TEXT("draws a grid without warning when the container names no layout"), EQuorvelContainerLayout::Slots, TEXT(""), 80,
				TEXT("0 stack(s) \u00B7 10x8 grid (this container was not created as slots)"), nullptr },
			{ TEXT("draws slots for a grid panel, whatever their letter case, and warns"), EQuorvelContainerLayout::Grid, TEXT("Slots"), 24, TEXT("0 of 24 slots"),
				TEXT("Stash panel asked for a grid container but 'stash' already exists as Slots. A container's layout is fixed when it is created; use a different kind, or a different player, to see the other one.") },
			{ TEXT("draws an unknown layout as a grid without warning"), EQuorvelContainerLayout::Grid, TEXT("hexagonal"), 80, TEXT("0 stack(s) \u00B7 10x8"), nullptr },
		};
		for (const FCase& Case : Cases)
		{
			It(Case.Description, [this, &Case]
			{
				if (Case.Warning)
				{
					AddExpectedMessage(Case.Warning, ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Exact, 1);
				}
				Panel->Layout = Case.PanelLayout;
				Panel->ShowContainer(MakeContainer(Case.ContainerLayout));
				TestEqual(TEXT("Cells"), CellCountOf(Panel), Case.Cells);
				TestEqual(TEXT("Status"), StatusTextOf(Panel), Case.Status);
				TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT("loaded 0"));
			});
		}
	});

	It("clamps sizes for drawing but sums up the grid size as configured", [this]
	{
		AddExpectedMessage(SlotsPanelGridContainerWarning, ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Exact, 1);
		Panel->Layout = EQuorvelContainerLayout::Slots;
		Panel->GridWidth = 0;
		Panel->GridHeight = 0;
		Panel->ShowContainer(MakeContainer(TEXT("grid")));
		TestEqual(TEXT("Cells of a 0 by 0 grid"), CellCountOf(Panel), 1);
		TestEqual(TEXT("Sizer of a 0 by 0 grid"), SizerOf(Panel), FVector2D(64.0, 64.0));
		TestEqual(TEXT("Status of a 0 by 0 grid"), StatusTextOf(Panel), TEXT("0 stack(s) \u00B7 0x0 grid (this container was not created as slots)"));

		Panel->SlotCount = 0;
		Panel->SlotColumns = -2;
		Panel->CellSize = 16.0f;
		Panel->ShowContainer(MakeContainer(TEXT("slots"), { MakeStack(TEXT("Key"), 0, 0, 1, 1, 1, 3) }));
		TestEqual(TEXT("Cells of no slots"), CellCountOf(Panel), 1);
		const TArray<FDrawnChild> Stacks = StacksOn(Panel);
		TestEqual(TEXT("Slot 3 in one column"), Stacks.Num() > 0 ? Stacks[0].Position : FVector2D::ZeroVector, FVector2D(1.0, 49.0));
		TestEqual(TEXT("Slot size at a pitch of 16"), Stacks.Num() > 0 ? Stacks[0].Size : FVector2D::ZeroVector, FVector2D(14.0, 14.0));
		TestEqual(TEXT("Status of no slots"), StatusTextOf(Panel), TEXT("1 of 1 slots"));
	});

	It("replaces the last drawing on every redraw", [this]
	{
		const FQuorvelContainer Three = MakeContainer(TEXT("grid"), { MakeStack(TEXT("A"), 0, 0, 1, 1, 2), MakeStack(TEXT("B"), 1, 0), MakeStack(TEXT("C"), 2, 0) });
		Panel->ShowContainer(Three);
		UWidget* FirstStack = StacksOn(Panel)[0].Widget;
		Panel->ShowContainer(Three);
		TestEqual(TEXT("Canvas children"), DrawnOn(Panel).Num(), 80 + 4);
		TestEqual(TEXT("ItemWidgets"), ItemWidgetsOf(Panel).Num(), 4);
		TestTrue(TEXT("Fresh widgets"), StacksOn(Panel)[0].Widget != FirstStack);
		TestTrue(TEXT("The old stack left the canvas"), FirstStack->GetParent() == nullptr);
		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT("loaded 3; loaded 3"));
	});
}

#endif
