// Screen positions to cells and stacks, on a panel laid out in a window as a frame would lay it out.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Templates/UniquePtr.h"

BEGIN_DEFINE_SPEC(FQuorvelStashPanelHitTestTests, "Quorvel.UI.HitTest", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
	TUniquePtr<UE::Quorvel::Tests::FPanelOnScreen> Screen;
	UQuorvelStashPanel* Panel = nullptr;
	/** The canvas's top-left corner on the desktop. */
	FVector2D Origin;
	const FIntPoint Miss = FIntPoint(-1, -1);

	/** Puts a panel on screen, shows Container on it and lays it out again. */
	void ShowOnScreen(const FQuorvelContainer& Container, TFunctionRef<void(UQuorvelStashPanel&)> Configure)
	{
		Panel = Panels.MakeUnbuilt(Configure);
		Screen = MakeUnique<UE::Quorvel::Tests::FPanelOnScreen>(Panel);
		Panel->ShowContainer(Container);
		Screen->Arrange();
		Origin = Screen->CanvasOrigin();
	}

	void ShowOnScreen(const FQuorvelContainer& Container)
	{
		ShowOnScreen(Container, [](UQuorvelStashPanel&) {});
	}

	/** Expects the cell under the point Local canvas units (scaled by Scale on screen) from the canvas origin. */
	void ExpectCell(double LocalX, double LocalY, const FIntPoint& Expected, double Scale = 1.0)
	{
		FIntPoint Cell(7, 7);
		const bool bFound = Panel->CellAtScreenPosition(Origin + FVector2D(LocalX, LocalY) * Scale, Cell.X, Cell.Y);
		const FString What = FString::Printf(TEXT("Cell at %g, %g (found %d, %d)"), LocalX, LocalY, Cell.X, Cell.Y);
		TestTrue(*What, Cell == Expected);
		TestEqual(*(What + TEXT(" reported as found")), bFound, Expected != Miss);
	}

	/** The instance id of the stack under the point Local canvas units from the canvas origin, or "none". */
	FString InstanceAt(double LocalX, double LocalY)
	{
		FQuorvelItemInstance Found;
		Found.InstanceId = TEXT("untouched");
		const bool bFound = Panel->InstanceAtScreenPosition(Origin + FVector2D(LocalX, LocalY), Found);
		return bFound ? Found.InstanceId : FString(TEXT("none, ")) + Found.InstanceId;
	}
END_DEFINE_SPEC(FQuorvelStashPanelHitTestTests)

void FQuorvelStashPanelHitTestTests::Define()
{
	using namespace UE::Quorvel::Tests;

	AfterEach([this]
	{
		Screen.Reset();
		Panels.Reset();
	});

	Describe("In a grid", [this]
	{
		It("gives each cell its whole pitch square, the gap between drawn cells included", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("grid")));
			ExpectCell(0.0, 0.0, FIntPoint(0, 0));
			ExpectCell(64.5, 1.0, FIntPoint(1, 0));
			ExpectCell(127.9, 0.0, FIntPoint(1, 0));
			ExpectCell(128.0, 0.0, FIntPoint(2, 0));
			ExpectCell(639.5, 511.5, FIntPoint(9, 7));
		});

		It("finds nothing left of, above, right of or below the grid", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("grid")));
			ExpectCell(-0.5, 10.0, Miss);
			ExpectCell(10.0, -0.5, Miss);
			ExpectCell(640.0, 0.0, Miss);
			ExpectCell(0.0, 512.0, Miss);
		});

		It("reads its bounds from the properties as they are now, after drawing", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("grid")));
			Panel->GridWidth = 2;
			ExpectCell(130.0, 0.0, Miss);
			ExpectCell(127.0, 0.0, FIntPoint(1, 0));
			Panel->GridHeight = 0;
			ExpectCell(0.0, 0.0, Miss);
		});

		It("finds a stack by its drawn footprint, the first in the reply where stacks overlap", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("grid"), {
				MakeStack(TEXT("hidden"), -1, 0, 5, 5),
				MakeStack(TEXT("wide"), 1, 1, 3, 0),
				MakeStack(TEXT("under"), 2, 1),
				MakeStack(TEXT("tall"), 6, 2, -4, 2) }));
			TestEqual(TEXT("Over the overlap"), InstanceAt(2 * 64 + 5, 64 + 5), TEXT("wide"));
			TestEqual(TEXT("In the lower cell of a footprint below one cell wide"), InstanceAt(6 * 64 + 5, 3 * 64 + 60), TEXT("tall"));
			TestEqual(TEXT("Past a footprint"), InstanceAt(4 * 64 + 5, 64 + 5), TEXT("none, untouched"));
			TestEqual(TEXT("Beside a footprint below one cell wide"), InstanceAt(7 * 64 + 5, 2 * 64 + 5), TEXT("none, untouched"));
			TestEqual(TEXT("Outside the grid"), InstanceAt(-5.0, -5.0), TEXT("none, untouched"));
			// A cell under no stack is a cell all the same; a stack without a cell is never found.
			ExpectCell(10.0, 10.0, FIntPoint(0, 0));
			TestEqual(TEXT("Under no stack"), InstanceAt(10.0, 10.0), TEXT("none, untouched"));
		});

		It("measures CellSize in the canvas's own units when a parent scales the panel", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("grid")), [](UQuorvelStashPanel& Configured)
			{
				Configured.SetRenderScale(FVector2D(0.5, 0.5));
			});
			// 16 screen units from the origin are 32 canvas units; 48 are 96.
			ExpectCell(16.0, 16.0, FIntPoint(0, 0));
			ExpectCell(48.0, 16.0, FIntPoint(1, 0));
		});

		It("finds nothing for a degenerate cell size or a far point", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("grid"), { MakeStack(TEXT("a"), 0, 0) }));
			for (const float CellSize : { 0.0f, -64.0f, FMath::Sqrt(-1.0f), TNumericLimits<float>::Min() })
			{
				Panel->CellSize = CellSize;
				ExpectCell(10.0, 10.0, Miss);
				TestEqual(*FString::Printf(TEXT("Stack at a cell size of %g"), CellSize), InstanceAt(10.0, 10.0), TEXT("none, untouched"));
			}
			Panel->CellSize = 64.0f;
			Panel->GridWidth = MAX_int32;
			Panel->GridHeight = MAX_int32;
			ExpectCell(1.0e30, 1.0e30, Miss);
			ExpectCell(TNumericLimits<double>::Max(), 0.0, Miss);
			ExpectCell(64.0 * 1000.0 + 1.0, 0.0, FIntPoint(1000, 0));
		});
	});

	Describe("In slots", [this]
	{
		It("refuses the undrawn end of a partial last row and columns past the drawing", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("slots")), [](UQuorvelStashPanel& Configured)
			{
				Configured.Layout = EQuorvelContainerLayout::Slots;
				Configured.SlotCount = 24;
				Configured.SlotColumns = 5;
			});
			ExpectCell(3 * 64 + 10, 4 * 64 + 10, FIntPoint(3, 4));
			ExpectCell(4 * 64 + 10, 4 * 64 + 10, Miss);
			ExpectCell(5 * 64 + 10, 0.0, Miss);
			// The slot count is read as it stands now.
			Panel->SlotCount = 0;
			ExpectCell(10.0, 10.0, FIntPoint(0, 0));
			ExpectCell(74.0, 10.0, Miss);
		});

		It("finds a stack at the cell its slot was drawn at, and one without a slot where the reply put it", [this]
		{
			ShowOnScreen(MakeContainer(TEXT("slots"), { MakeStack(TEXT("seventh"), 0, 0, 3, 3, 1, 7), MakeStack(TEXT("loose"), 4, 0, 1, 1, 1, -1) }),
				[](UQuorvelStashPanel& Configured)
				{
					Configured.Layout = EQuorvelContainerLayout::Slots;
				});
			TestEqual(TEXT("Slot 7"), InstanceAt(64 + 5, 64 + 5), TEXT("seventh"));
			TestEqual(TEXT("Past slot 7's one cell"), InstanceAt(2 * 64 + 5, 2 * 64 + 5), TEXT("none, untouched"));
			TestEqual(TEXT("Without a slot"), InstanceAt(4 * 64 + 5, 5.0), TEXT("loose"));
			FQuorvelItemInstance Found;
			Panel->InstanceAtScreenPosition(Origin + FVector2D(64 + 5, 64 + 5), Found);
			TestEqual(TEXT("The stack found is one cell wide, as drawn"), Found.GridW, 1);
		});
	});

	It("finds no cell on a panel that is not on screen", [this]
	{
		FIntPoint Cell(3, 3);
		UQuorvelStashPanel* Unbuilt = Panels.MakeUnbuilt([](UQuorvelStashPanel&) {});
		TestFalse(TEXT("Never built"), Unbuilt->CellAtScreenPosition(FVector2D(0.0, 0.0), Cell.X, Cell.Y));
		TestTrue(TEXT("Never built: no cell"), Cell == Miss);

		UQuorvelStashPanel* Released = Panels.Make();
		TestFalse(TEXT("Built, its widget released"), Released->CellAtScreenPosition(FVector2D(0.0, 0.0), Cell.X, Cell.Y));

		ShowOnScreen(MakeContainer(TEXT("grid")));
		ExpectCell(1.0, 1.0, FIntPoint(0, 0));
		Screen->TakeDown();
		ExpectCell(1.0, 1.0, Miss);
	});
}

#endif
