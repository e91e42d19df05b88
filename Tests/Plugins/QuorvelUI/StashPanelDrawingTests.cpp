// The widget tree and everything drawn on the grid canvas, read back from the widgets themselves.
#include "Blueprint/WidgetTree.h"
#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Components/SizeBox.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "StashPanelHarness.h"
#include "StashPanelListener.h"
#include "UObject/UObjectArray.h"
#include "UObject/WeakObjectPtrTemplates.h"

using namespace StashPanelTest;

namespace
{
	/** One child of the grid canvas as a test reads it: what it is and where its slot put it. */
	struct FDrawn
	{
		UWidget* Widget = nullptr;
		FVector2D Position;
		FVector2D Size;
		int32 ZOrder = 0;
		bool bAutoSize = false;
	};

	class FStashPanelDrawing : public FStashPanelTest
	{
	protected:
		static UCanvasPanel* CanvasOf(const UQuorvelStashPanel* Panel)
		{
			return ValueOf<TObjectPtr<UCanvasPanel>>(Panel, TEXT("GridCanvas")).Get();
		}

		static TArray<FDrawn> Drawn(const UQuorvelStashPanel* Panel)
		{
			TArray<FDrawn> Result;
			UCanvasPanel* Canvas = CanvasOf(Panel);
			for (int32 Index = 0; Index < Canvas->GetChildrenCount(); ++Index)
			{
				FDrawn Entry;
				Entry.Widget = Canvas->GetChildAt(Index);
				const UCanvasPanelSlot* Slot = CastChecked<UCanvasPanelSlot>(Entry.Widget->Slot);
				Entry.Position = Slot->GetPosition();
				Entry.Size = Slot->GetSize();
				Entry.ZOrder = Slot->GetZOrder();
				Entry.bAutoSize = Slot->GetAutoSize();
				Result.Add(Entry);
			}
			return Result;
		}

		/** Only what is drawn for stacks: borders (z 10) and quantity labels (z 11). */
		static TArray<FDrawn> Stacks(const UQuorvelStashPanel* Panel)
		{
			return Drawn(Panel).FilterByPredicate([](const FDrawn& Entry) { return Entry.ZOrder > 0; });
		}

		static int32 CellCount(const UQuorvelStashPanel* Panel)
		{
			return Drawn(Panel).FilterByPredicate([](const FDrawn& Entry) { return Entry.ZOrder == 0; }).Num();
		}

		static FVector2D SizerOf(const UQuorvelStashPanel* Panel)
		{
			const USizeBox* Sizer = ValueOf<TObjectPtr<USizeBox>>(Panel, TEXT("GridSizer")).Get();
			return FVector2D(Sizer->WidthOverride, Sizer->HeightOverride);
		}

		static FQuorvelItemInstance Stack(const TCHAR* ItemId, int32 X, int32 Y, int32 W = 1, int32 H = 1, int32 Quantity = 1, int32 SlotIndex = -1)
		{
			FQuorvelItemInstance Instance;
			Instance.ItemId = FName(ItemId);
			Instance.InstanceId = FString(ItemId).ToLower();
			Instance.X = X;
			Instance.Y = Y;
			Instance.GridW = W;
			Instance.GridH = H;
			Instance.Quantity = Quantity;
			Instance.SlotIndex = SlotIndex;
			return Instance;
		}

		static FQuorvelContainer Container(const TCHAR* Layout, TArray<FQuorvelItemInstance> Items)
		{
			FQuorvelContainer Result;
			Result.Layout = Layout;
			Result.Items = MoveTemp(Items);
			return Result;
		}
	};

	TEST_F(FStashPanelDrawing, BuildsTheTreeOnceWithEveryNameParentAndStyle)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		UWidgetTree* Tree = Panel->WidgetTree;
		UBorder* Root = ValueOf<TObjectPtr<UBorder>>(Panel, TEXT("Root")).Get();
		ASSERT_NE(Root, nullptr);
		EXPECT_EQ(Tree->RootWidget, Root);
		EXPECT_EQ(Utf8(Root->GetName()), "StashPanel");
		EXPECT_EQ(Root->GetOuter(), Tree);
		EXPECT_EQ(Root->GetBrushColor(), FLinearColor(0.055f, 0.086f, 0.098f, 0.94f));
		EXPECT_EQ(Root->Padding, FMargin(16.0f));
		EXPECT_EQ(Root->HorizontalAlignment, HAlign_Center);
		EXPECT_EQ(Root->VerticalAlignment, VAlign_Center);

		UVerticalBox* Column = Cast<UVerticalBox>(Root->GetContent());
		ASSERT_NE(Column, nullptr);
		EXPECT_EQ(Utf8(Column->GetName()), "StashColumn");
		ASSERT_EQ(Column->GetChildrenCount(), 3);
		UTextBlock* Title = Cast<UTextBlock>(Column->GetChildAt(0));
		UTextBlock* Status = Cast<UTextBlock>(Column->GetChildAt(1));
		USizeBox* Sizer = Cast<USizeBox>(Column->GetChildAt(2));
		ASSERT_TRUE(Title && Status && Sizer);
		EXPECT_EQ(Utf8(Title->GetName()), "StashTitle");
		EXPECT_EQ(Utf8(Status->GetName()), "StashStatus");
		EXPECT_EQ(Utf8(Sizer->GetName()), "StashSizer");

		EXPECT_EQ(Utf8(Title->GetText().ToString()), "STASH");
		EXPECT_EQ(Title->GetColorAndOpacity().GetSpecifiedColor(), FLinearColor(0.94f, 0.64f, 0.19f, 1.0f));
		EXPECT_EQ(Title->GetFont().Size, 15);
		EXPECT_EQ(Title->GetFont().LetterSpacing, 220);
		EXPECT_EQ(Status->GetFont().Size, 10);
		EXPECT_EQ(Status->GetFont().LetterSpacing, UTextBlock::StaticClass()->GetDefaultObject<UTextBlock>()->GetFont().LetterSpacing);
		EXPECT_EQ(Status->GetFont().FontObject, Title->GetFont().FontObject);
		EXPECT_EQ(CastChecked<UVerticalBoxSlot>(Status->Slot)->GetPadding(), FMargin(0.0f, 2.0f, 0.0f, 8.0f));
		EXPECT_EQ(CastChecked<UVerticalBoxSlot>(Title->Slot)->GetPadding(), FMargin());

		ASSERT_EQ(Sizer->GetChildrenCount(), 1);
		UBorder* Frame = Cast<UBorder>(Sizer->GetChildAt(0));
		ASSERT_NE(Frame, nullptr);
		EXPECT_EQ(Utf8(Frame->GetName()), "StashGridFrame");
		EXPECT_EQ(Frame->GetBrushColor(), FLinearColor(0.0f, 0.0f, 0.0f, 0.25f));
		EXPECT_EQ(Frame->Padding, FMargin(0.0f));
		UCanvasPanel* Canvas = Cast<UCanvasPanel>(Frame->GetContent());
		ASSERT_NE(Canvas, nullptr);
		EXPECT_EQ(Utf8(Canvas->GetName()), "StashGrid");
		EXPECT_EQ(Canvas, CanvasOf(Panel));

		// The default grid: 10 x 8 cells, the first and last where the pitch puts them.
		const TArray<FDrawn> Cells = Drawn(Panel);
		ASSERT_EQ(Cells.Num(), 80);
		EXPECT_EQ(Cells[0].Position, FVector2D(1.0, 1.0));
		EXPECT_EQ(Cells[79].Position, FVector2D(577.0, 449.0));
		EXPECT_EQ(Cells[79].Size, FVector2D(62.0, 62.0));
		EXPECT_FALSE(Cells[79].bAutoSize);
		EXPECT_EQ(CastChecked<UImage>(Cells[0].Widget)->ColorAndOpacity, FLinearColor(1.0f, 1.0f, 1.0f, 0.04f));
		EXPECT_EQ(SizerOf(Panel), FVector2D(640.0, 512.0));

		// A second rebuild reuses the same widgets; a later title change is not picked up.
		Panel->Title = FText::FromString(TEXT("LOADOUT"));
		Panel->TakeWidget();
		EXPECT_EQ(ValueOf<TObjectPtr<UBorder>>(Panel, TEXT("Root")).Get(), Root);
		EXPECT_EQ(Utf8(Title->GetText().ToString()), "STASH");
	}

	TEST_F(FStashPanelDrawing, TheFirstSlotGridFollowsTheConfiguredCountAndColumns)
	{
		struct FCase
		{
			int32 SlotCount;
			int32 SlotColumns;
			int32 Cells;
			FVector2D Sizer;
		};
		const FCase Cases[] = {
			{ 24, 6, 24, FVector2D(384.0, 256.0) },
			{ 25, 6, 25, FVector2D(384.0, 320.0) },
			{ 0, 6, 6, FVector2D(384.0, 64.0) },
			{ 3, 0, 3, FVector2D(64.0, 192.0) },
		};
		for (const FCase& Case : Cases)
		{
			UQuorvelStashPanel* Panel = MakePanel(false);
			Panel->Layout = EQuorvelContainerLayout::Slots;
			Panel->SlotCount = Case.SlotCount;
			Panel->SlotColumns = Case.SlotColumns;
			Panel->TakeWidget();
			EXPECT_EQ(CellCount(Panel), Case.Cells) << Case.SlotCount << " slots in " << Case.SlotColumns;
			EXPECT_EQ(SizerOf(Panel), Case.Sizer) << Case.SlotCount << " slots in " << Case.SlotColumns;
		}

		UQuorvelStashPanel* Partial = Panels[1];
		EXPECT_EQ(Drawn(Partial).Last().Position, FVector2D(1.0, 257.0));
	}

	TEST_F(FStashPanelDrawing, DrawsSlotStacksAtTheirSlotsAndSummarisesAgainstTheSlotCount)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		UStashPanelListener* Listener = NewObject<UStashPanelListener>(GetTransientPackage());
		Panel->OnStashLoaded.AddDynamic(Listener, &UStashPanelListener::HandleLoaded);
		Panel->Layout = EQuorvelContainerLayout::Slots;
		const FQuorvelContainer Original = Container(TEXT("SLOTS"), {
			Stack(TEXT("Ammo"), 9, 9, 3, 3, 1, 0),
			Stack(TEXT("Rope"), -1, -1, 2, 2, 1, 5),
			Stack(TEXT("Torch"), 0, 0, 1, 1, 1, 6),
			Stack(TEXT("Map"), 2, 0, 2, 1, 1, -1) });
		FLogCapture Log(TEXT("LogQuorvel"));
		Panel->ShowContainer(Original);

		EXPECT_EQ(Log.Lines.Num(), 0);
		EXPECT_EQ(CellCount(Panel), 24);
		const TArray<FDrawn> Drawings = Stacks(Panel);
		ASSERT_EQ(Drawings.Num(), 4);
		EXPECT_EQ(Drawings[0].Position, FVector2D(1.0, 1.0));
		EXPECT_EQ(Drawings[0].Size, FVector2D(62.0, 62.0));
		EXPECT_EQ(Drawings[1].Position, FVector2D(321.0, 1.0));
		EXPECT_EQ(Drawings[2].Position, FVector2D(1.0, 65.0));
		// No slot: keeps the reply's position and footprint.
		EXPECT_EQ(Drawings[3].Position, FVector2D(129.0, 1.0));
		EXPECT_EQ(Drawings[3].Size, FVector2D(126.0, 62.0));
		EXPECT_EQ(StatusTextOf(Panel), "4 of 24 slots");

		// The caller's record is untouched; Contents holds the converted cells.
		EXPECT_EQ(Original.Items[0].X, 9);
		EXPECT_EQ(Original.Items[0].GridW, 3);
		const TArray<FQuorvelItemInstance>& Contents = ValueOf<TArray<FQuorvelItemInstance>>(Panel, TEXT("Contents"));
		ASSERT_EQ(Contents.Num(), 4);
		EXPECT_EQ(Contents[1].X, 5);
		EXPECT_EQ(Contents[2].Y, 1);
		EXPECT_EQ(Contents[0].GridW, 1);
		ASSERT_EQ(Listener->Heard.Num(), 1);
		EXPECT_EQ(Utf8(Listener->Heard[0]), "loaded 4");
	}

	TEST_F(FStashPanelDrawing, DrawsGridStacksWithFootprintsLabelsAndTooltipsAndSkipsNegativeCells)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->ShowContainer(Container(TEXT("grid"), {
			Stack(TEXT("Rifle"), 2, 1, 2, 3, 5),
			Stack(TEXT("Coin"), 0, 0, 0, -2, 1200),
			Stack(TEXT("Ghost"), -1, 0, 1, 1, 3),
			Stack(TEXT("Rifle"), 2, 1, 1, 1, 0),
			Stack(TEXT("Far"), 40, 0, 1, 1, 1) }));

		const TArray<FDrawn> Drawings = Stacks(Panel);
		ASSERT_EQ(Drawings.Num(), 6);
		UBorder* Rifle = CastChecked<UBorder>(Drawings[0].Widget);
		EXPECT_EQ(Drawings[0].Position, FVector2D(129.0, 65.0));
		EXPECT_EQ(Drawings[0].Size, FVector2D(126.0, 190.0));
		EXPECT_EQ(Drawings[0].ZOrder, 10);
		EXPECT_EQ(Rifle->GetBrushColor(), FLinearColor(1.0f, 1.0f, 1.0f, 0.06f));
		EXPECT_EQ(Rifle->Padding, FMargin(2.0f));
		EXPECT_EQ(Utf8(Rifle->ToolTipText.ToString()), "Rifle x5");

		UTextBlock* Quantity = CastChecked<UTextBlock>(Drawings[1].Widget);
		EXPECT_EQ(Drawings[1].Position, FVector2D(240.0, 240.0));
		EXPECT_EQ(Drawings[1].ZOrder, 11);
		EXPECT_TRUE(Drawings[1].bAutoSize);
		EXPECT_EQ(Utf8(Quantity->GetText().ToString()), "5");
		EXPECT_EQ(Quantity->GetColorAndOpacity().GetSpecifiedColor(), FLinearColor(0.94f, 0.64f, 0.19f, 1.0f));
		EXPECT_EQ(Quantity->GetFont().Size, 10);

		// A footprint below 1 is one cell; the quantity goes through the culture's grouping, the tooltip does not.
		EXPECT_EQ(Drawings[2].Size, FVector2D(62.0, 62.0));
		EXPECT_EQ(Utf8(Drawings[2].Widget->ToolTipText.ToString()), "Coin x1200");
		EXPECT_EQ(Utf8(CastChecked<UTextBlock>(Drawings[3].Widget)->GetText().ToString()), "1,200");
		EXPECT_EQ(Drawings[3].Position, FVector2D(48.0, 48.0));

		// Overlapping and out-of-grid stacks are drawn all the same; a quantity of 0 gets no label.
		EXPECT_EQ(Drawings[4].Position, FVector2D(129.0, 65.0));
		EXPECT_EQ(Utf8(Drawings[4].Widget->ToolTipText.ToString()), "Rifle");
		EXPECT_EQ(Drawings[5].Position, FVector2D(2561.0, 1.0));

		const TArray<TObjectPtr<UWidget>>& ItemWidgets = ValueOf<TArray<TObjectPtr<UWidget>>>(Panel, TEXT("ItemWidgets"));
		ASSERT_EQ(ItemWidgets.Num(), 6);
		EXPECT_EQ(ItemWidgets[1].Get(), Drawings[1].Widget);
		EXPECT_EQ(StatusTextOf(Panel), "4 stack(s) \u00B7 10x8");
	}

	TEST_F(FStashPanelDrawing, AnItemWithoutAnIconShowsItsIdAsACentredWrappedLabel)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		FQuorvelItemInstance Nameless = Stack(TEXT(""), 0, 0);
		Panel->ShowContainer(Container(TEXT("grid"), { Stack(TEXT("Medkit"), 1, 0), Nameless }));

		const TArray<FDrawn> Drawings = Stacks(Panel);
		ASSERT_EQ(Drawings.Num(), 2);
		UTextBlock* Label = Cast<UTextBlock>(CastChecked<UBorder>(Drawings[0].Widget)->GetContent());
		ASSERT_NE(Label, nullptr);
		EXPECT_EQ(Utf8(Label->GetText().ToString()), "Medkit");
		EXPECT_EQ(Label->GetColorAndOpacity().GetSpecifiedColor(), FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
		EXPECT_EQ(Label->GetFont().Size, 8);
		EXPECT_EQ(Label->GetJustification(), ETextJustify::Center);
		EXPECT_TRUE(Label->AutoWrapText);
		EXPECT_EQ(Utf8(CastChecked<UTextBlock>(CastChecked<UBorder>(Drawings[1].Widget)->GetContent())->GetText().ToString()), "None");
		EXPECT_EQ(Utf8(Drawings[1].Widget->ToolTipText.ToString()), "None");
	}

	TEST_F(FStashPanelDrawing, DrawsTheContainerAsItWasCreatedAndWarnsWhenThatDiffersFromThePanel)
	{
		struct FCase
		{
			EQuorvelContainerLayout PanelLayout;
			const TCHAR* ContainerLayout;
			int32 Cells;
			const char* Status;
			const char* Warning;
		};
		const FCase Cases[] = {
			{ EQuorvelContainerLayout::Slots, TEXT("slots"), 24, "0 of 24 slots", nullptr },
			{ EQuorvelContainerLayout::Slots, TEXT("grid"), 80, "0 stack(s) \u00B7 10x8 grid (this container was not created as slots)",
				"Warning: Stash panel asked for a slots container but 'stash' already exists as grid. A container's layout is fixed when it is created; use a different kind, or a different player, to see the other one." },
			{ EQuorvelContainerLayout::Slots, TEXT(""), 80, "0 stack(s) \u00B7 10x8 grid (this container was not created as slots)", nullptr },
			{ EQuorvelContainerLayout::Grid, TEXT("Slots"), 24, "0 of 24 slots",
				"Warning: Stash panel asked for a grid container but 'stash' already exists as Slots. A container's layout is fixed when it is created; use a different kind, or a different player, to see the other one." },
			{ EQuorvelContainerLayout::Grid, TEXT("hexagonal"), 80, "0 stack(s) \u00B7 10x8", nullptr },
			{ EQuorvelContainerLayout::Grid, TEXT(""), 80, "0 stack(s) \u00B7 10x8", nullptr },
		};
		for (const FCase& Case : Cases)
		{
			UQuorvelStashPanel* Panel = MakePanel();
			Panel->Layout = Case.PanelLayout;
			FLogCapture Log(TEXT("LogQuorvel"));
			Panel->ShowContainer(Container(Case.ContainerLayout, {}));
			const std::string Label = Utf8(Case.ContainerLayout);
			EXPECT_EQ(CellCount(Panel), Case.Cells) << Label;
			EXPECT_EQ(StatusTextOf(Panel), Case.Status) << Label;
			ASSERT_EQ(Log.Lines.Num(), Case.Warning ? 1 : 0) << Label;
			if (Case.Warning)
			{
				EXPECT_EQ(Utf8(Log.Lines[0]), Case.Warning);
			}
		}
	}

	TEST_F(FStashPanelDrawing, SizesComeFromThePanelClampedForDrawingButNotForTheSummary)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->Layout = EQuorvelContainerLayout::Slots;
		Panel->GridWidth = 0;
		Panel->GridHeight = 0;
		Panel->ShowContainer(Container(TEXT("grid"), {}));
		EXPECT_EQ(CellCount(Panel), 1);
		EXPECT_EQ(SizerOf(Panel), FVector2D(64.0, 64.0));
		EXPECT_EQ(StatusTextOf(Panel), "0 stack(s) \u00B7 0x0 grid (this container was not created as slots)");

		Panel->SlotCount = 0;
		Panel->SlotColumns = -2;
		Panel->CellSize = 16.0f;
		Panel->ShowContainer(Container(TEXT("slots"), { Stack(TEXT("Key"), 0, 0, 1, 1, 1, 3) }));
		EXPECT_EQ(CellCount(Panel), 1);
		EXPECT_EQ(Stacks(Panel)[0].Position, FVector2D(1.0, 49.0));
		EXPECT_EQ(Stacks(Panel)[0].Size, FVector2D(14.0, 14.0));
		EXPECT_EQ(StatusTextOf(Panel), "1 of 1 slots");
	}

	TEST_F(FStashPanelDrawing, EveryRedrawReplacesTheLastAndTheCollectorReclaimsWhatWasRemoved)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		const FQuorvelContainer Three = Container(TEXT("grid"), { Stack(TEXT("A"), 0, 0, 1, 1, 2), Stack(TEXT("B"), 1, 0), Stack(TEXT("C"), 2, 0) });
		Panel->ShowContainer(Three);
		TWeakObjectPtr<UWidget> FirstStack = Stacks(Panel)[0].Widget;
		CollectGarbage();
		const int32 Baseline = GUObjectArray.GetObjectArrayNumMinusAvailable();

		for (int32 Round = 0; Round < 20; ++Round)
		{
			Panel->ShowContainer(Three);
			CollectGarbage();
		}
		EXPECT_FALSE(FirstStack.IsValid());
		EXPECT_EQ(Drawn(Panel).Num(), 80 + 4);
		EXPECT_EQ(GUObjectArray.GetObjectArrayNumMinusAvailable(), Baseline);
	}
}
