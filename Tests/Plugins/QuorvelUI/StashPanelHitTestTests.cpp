// Hit tests on a panel in the headless viewport at a DPI scale of its own: CellSize stays in canvas units.
#include "Components/CanvasPanel.h"
#include "StashPanelHarness.h"

using namespace StashPanelTest;

namespace
{
	class FStashPanelHitTest : public FStashPanelTest
	{
	protected:
		/** A grid panel on screen showing an empty container, with the canvas's top-left corner in screen space in Origin. */
		UQuorvelStashPanel* ShowOnScreen()
		{
			UQuorvelStashPanel* Panel = MakePanel(false);
			PutOnScreen(Panel);
			FQuorvelContainer Empty;
			Empty.Layout = TEXT("grid");
			Panel->ShowContainer(Empty);
			ArrangeViewport();
			Origin = CanvasOrigin(Panel);
			return Panel;
		}

		/** The cell under the point Local canvas units (times Scale on screen) from the canvas origin. */
		FIntPoint CellAt(const UQuorvelStashPanel* Panel, double LocalX, double LocalY, double Scale) const
		{
			FIntPoint Cell(7, 7);
			const bool bFound = Panel->CellAtScreenPosition(Origin + FVector2D(LocalX, LocalY) * Scale, Cell.X, Cell.Y);
			EXPECT_EQ(bFound, Cell != FIntPoint(-1, -1));
			return Cell;
		}

		FVector2D Origin;
	};

	TEST_F(FStashPanelHitTest, ACellIsMeasuredInCanvasUnitsOnAViewportAtTwiceTheDpi)
	{
		SetViewportDpiScale(2.0f);
		UQuorvelStashPanel* Crisp = ShowOnScreen();
		EXPECT_EQ(CellAt(Crisp, 96.0, 0.0, 1.0), FIntPoint(0, 0));
		EXPECT_EQ(CellAt(Crisp, 130.0, 0.0, 1.0), FIntPoint(1, 0));
		EXPECT_EQ(CellAt(Crisp, 64.0, 64.0, 2.0), FIntPoint(1, 1));
	}
}
