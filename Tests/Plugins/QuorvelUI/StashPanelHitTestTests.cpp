// Screen positions to cells and stacks, on a panel arranged in a headless viewport.
#include "Components/CanvasPanel.h"
#include "StashPanelHarness.h"

#include <cmath>
#include <limits>

using namespace StashPanelTest;

namespace
{
	class FStashPanelHitTest : public FStashPanelTest
	{
	protected:
		/** A panel on screen showing Container, with the canvas's top-left corner in screen space in Origin. */
		UQuorvelStashPanel* ShowOnScreen(const FQuorvelContainer& Container, TFunction<void(UQuorvelStashPanel*)> Configure = nullptr)
		{
			UQuorvelStashPanel* Panel = MakePanel(false);
			if (Configure)
			{
				Configure(Panel);
			}
			PutOnScreen(Panel);
			Panel->ShowContainer(Container);
			ArrangeViewport();
			Origin = CanvasOrigin(Panel);
			return Panel;
		}

		/** The cell under the point Local canvas units (at scale 1) from the canvas origin. */
		FIntPoint CellAt(const UQuorvelStashPanel* Panel, double LocalX, double LocalY, double Scale = 1.0) const
		{
			FIntPoint Cell(7, 7);
			const bool bFound = Panel->CellAtScreenPosition(Origin + FVector2D(LocalX, LocalY) * Scale, Cell.X, Cell.Y);
			EXPECT_EQ(bFound, Cell != FIntPoint(-1, -1));
			return Cell;
		}

		static FQuorvelItemInstance Stack(const TCHAR* Id, int32 X, int32 Y, int32 W = 1, int32 H = 1, int32 SlotIndex = -1)
		{
			FQuorvelItemInstance Instance;
			Instance.InstanceId = Id;
			Instance.X = X;
			Instance.Y = Y;
			Instance.GridW = W;
			Instance.GridH = H;
			Instance.SlotIndex = SlotIndex;
			return Instance;
		}

		static FQuorvelContainer Container(const TCHAR* Layout, TArray<FQuorvelItemInstance> Items = {})
		{
			FQuorvelContainer Result;
			Result.Layout = Layout;
			Result.Items = MoveTemp(Items);
			return Result;
		}

		FVector2D Origin;
	};

	const FIntPoint Miss(-1, -1);

	TEST_F(FStashPanelHitTest, AGridCellOwnsItsWholePitchSquareGapsIncluded)
	{
		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("grid")));
		EXPECT_EQ(CellAt(Panel, 0.0, 0.0), FIntPoint(0, 0));
		EXPECT_EQ(CellAt(Panel, -0.5, 10.0), Miss);
		EXPECT_EQ(CellAt(Panel, 10.0, -0.5), Miss);
		EXPECT_EQ(CellAt(Panel, 128.0, 0.0), FIntPoint(2, 0));
		EXPECT_EQ(CellAt(Panel, 127.9, 0.0), FIntPoint(1, 0));
		EXPECT_EQ(CellAt(Panel, 64.5, 1.0), FIntPoint(1, 0));
		EXPECT_EQ(CellAt(Panel, 639.5, 511.5), FIntPoint(9, 7));
		EXPECT_EQ(CellAt(Panel, 640.0, 0.0), Miss);
		EXPECT_EQ(CellAt(Panel, 0.0, 512.0), Miss);
	}

	TEST_F(FStashPanelHitTest, SlotBoundsRefuseTheUndrawnEndOfAPartialLastRow)
	{
		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("slots")), [](UQuorvelStashPanel* Panel)
		{
			Panel->SlotCount = 24;
			Panel->SlotColumns = 5;
		});
		EXPECT_EQ(CellAt(Panel, 3 * 64 + 10, 4 * 64 + 10), FIntPoint(3, 4));
		EXPECT_EQ(CellAt(Panel, 4 * 64 + 10, 4 * 64 + 10), Miss);
		EXPECT_EQ(CellAt(Panel, 5 * 64 + 10, 0.0), Miss);

		// The bounds are read as the properties stand now.
		Panel->SlotCount = 0;
		EXPECT_EQ(CellAt(Panel, 10.0, 10.0), FIntPoint(0, 0));
		EXPECT_EQ(CellAt(Panel, 74.0, 10.0), Miss);
	}

	TEST_F(FStashPanelHitTest, GridBoundsFollowThePropertiesChangedAfterDrawing)
	{
		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("grid")));
		Panel->GridWidth = 2;
		EXPECT_EQ(CellAt(Panel, 130.0, 0.0), Miss);
		EXPECT_EQ(CellAt(Panel, 127.0, 0.0), FIntPoint(1, 0));
		Panel->GridHeight = 0;
		EXPECT_EQ(CellAt(Panel, 0.0, 0.0), Miss);
	}

	TEST_F(FStashPanelHitTest, StacksAreFoundByTheirDrawnFootprintAndTheFirstInTheReplyWins)
	{
		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("grid"), {
			Stack(TEXT("hidden"), -1, 0, 5, 5),
			Stack(TEXT("wide"), 1, 1, 3, 0),
			Stack(TEXT("under"), 2, 1, 1, 1),
			Stack(TEXT("tall"), 6, 2, -4, 2) }));
		FQuorvelItemInstance Found = Stack(TEXT("untouched"), 9, 9);

		ASSERT_TRUE(Panel->InstanceAtScreenPosition(Origin + FVector2D(2 * 64 + 5, 64 + 5), Found));
		EXPECT_EQ(Utf8(Found.InstanceId), "wide");
		ASSERT_TRUE(Panel->InstanceAtScreenPosition(Origin + FVector2D(6 * 64 + 5, 3 * 64 + 60), Found));
		EXPECT_EQ(Utf8(Found.InstanceId), "tall");

		// Inside the bounds but under no stack: a cell, no stack, the output left alone.
		Found = Stack(TEXT("untouched"), 9, 9);
		EXPECT_EQ(CellAt(Panel, 10.0, 10.0), FIntPoint(0, 0));
		EXPECT_FALSE(Panel->InstanceAtScreenPosition(Origin + FVector2D(10.0, 10.0), Found));
		EXPECT_FALSE(Panel->InstanceAtScreenPosition(Origin + FVector2D(4 * 64 + 5, 64 + 5), Found));
		EXPECT_FALSE(Panel->InstanceAtScreenPosition(Origin + FVector2D(7 * 64 + 5, 2 * 64 + 5), Found));
		EXPECT_FALSE(Panel->InstanceAtScreenPosition(Origin - FVector2D(5.0, 5.0), Found));
		EXPECT_EQ(Utf8(Found.InstanceId), "untouched");
		EXPECT_EQ(Found.X, 9);
	}

	TEST_F(FStashPanelHitTest, SlotStacksAreSearchedAtTheCellsTheirSlotsWereDrawnAt)
	{
		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("slots"), { Stack(TEXT("seventh"), 0, 0, 3, 3, 7), Stack(TEXT("loose"), 4, 0, 1, 1, -1) }));
		FQuorvelItemInstance Found;
		ASSERT_TRUE(Panel->InstanceAtScreenPosition(Origin + FVector2D(64 + 5, 64 + 5), Found));
		EXPECT_EQ(Utf8(Found.InstanceId), "seventh");
		EXPECT_EQ(Found.GridW, 1);
		EXPECT_FALSE(Panel->InstanceAtScreenPosition(Origin + FVector2D(2 * 64 + 5, 2 * 64 + 5), Found));
		ASSERT_TRUE(Panel->InstanceAtScreenPosition(Origin + FVector2D(4 * 64 + 5, 5), Found));
		EXPECT_EQ(Utf8(Found.InstanceId), "loose");
	}

	TEST_F(FStashPanelHitTest, ACanvasThatIsNotOnScreenHasNoCells)
	{
		UQuorvelStashPanel* Unbuilt = MakePanel(false);
		FIntPoint Cell(3, 3);
		EXPECT_FALSE(Unbuilt->CellAtScreenPosition(FVector2D(0.0, 0.0), Cell.X, Cell.Y));
		EXPECT_EQ(Cell, Miss);

		UQuorvelStashPanel* Built = MakePanel();
		EXPECT_FALSE(Built->CellAtScreenPosition(FVector2D(0.0, 0.0), Cell.X, Cell.Y));

		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("grid")));
		EXPECT_EQ(CellAt(Panel, 1.0, 1.0), FIntPoint(0, 0));
		Panel->RemoveFromParent();
		ArrangeViewport();
		EXPECT_FALSE(Panel->CellAtScreenPosition(Origin + FVector2D(1.0, 1.0), Cell.X, Cell.Y));
	}

	TEST_F(FStashPanelHitTest, CellSizeIsInTheCanvasUnitsUnderAParentScaleAndTheViewportDpi)
	{
		UQuorvelStashPanel* Half = ShowOnScreen(Container(TEXT("grid")), [](UQuorvelStashPanel* Panel)
		{
			Panel->SetRenderScale(FVector2D(0.5, 0.5));
		});
		EXPECT_EQ(CellAt(Half, 16.0, 16.0, 1.0), FIntPoint(0, 0));
		EXPECT_EQ(CellAt(Half, 48.0, 16.0, 1.0), FIntPoint(1, 0));
		Half->RemoveFromParent();

		SetViewportDpiScale(2.0f);
		UQuorvelStashPanel* Crisp = ShowOnScreen(Container(TEXT("grid")));
		EXPECT_EQ(CellAt(Crisp, 96.0, 0.0, 1.0), FIntPoint(0, 0));
		EXPECT_EQ(CellAt(Crisp, 130.0, 0.0, 1.0), FIntPoint(1, 0));
		EXPECT_EQ(CellAt(Crisp, 64.0, 64.0, 2.0), FIntPoint(1, 1));
	}

	TEST_F(FStashPanelHitTest, DegenerateCellSizesAndFarPointsFindNothingAndNeverMisbehave)
	{
		UQuorvelStashPanel* Panel = ShowOnScreen(Container(TEXT("grid"), { Stack(TEXT("a"), 0, 0) }));
		FQuorvelItemInstance Found;
		for (const float CellSize : { 0.0f, -64.0f, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::denorm_min() })
		{
			Panel->CellSize = CellSize;
			EXPECT_EQ(CellAt(Panel, 10.0, 10.0), Miss) << CellSize;
			EXPECT_FALSE(Panel->InstanceAtScreenPosition(Origin + FVector2D(10.0, 10.0), Found)) << CellSize;
		}
		Panel->CellSize = 64.0f;
		Panel->GridWidth = MAX_int32;
		Panel->GridHeight = MAX_int32;
		EXPECT_EQ(CellAt(Panel, 1.0e30, 1.0e30), Miss);
		EXPECT_EQ(CellAt(Panel, std::numeric_limits<double>::infinity(), 0.0), Miss);
		EXPECT_EQ(CellAt(Panel, 64.0 * 1000.0 + 1.0, 0.0), FIntPoint(1000, 0));
	}
}
