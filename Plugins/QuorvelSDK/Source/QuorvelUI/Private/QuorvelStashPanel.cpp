#include "QuorvelStashPanel.h"

UQuorvelStashPanel::UQuorvelStashPanel(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bLoadOnConstruct(true)
	, Provider(TEXT("anonymous"))
	, Ticket(TEXT("demo_account"))
	, ContainerKind(TEXT("stash"))
	, Layout(EQuorvelContainerLayout::Grid)
	, GridWidth(10)
	, GridHeight(8)
	, SlotCount(24)
	, SlotColumns(6)
	, CellSize(64.0f)
	, PanelColour(0.055f, 0.086f, 0.098f, 0.94f)
	, CellColour(1.0f, 1.0f, 1.0f, 0.04f)
	, AccentColour(0.94f, 0.64f, 0.19f, 1.0f)
	, Title(NSLOCTEXT("Tollmere", "StashTitle", "STASH"))
	, bLoading(false)
	, bDrawnAsSlots(false)
	, DrawnColumns(1)
{
	// The panel itself takes part in hit testing, not only its children.
	SetVisibility(ESlateVisibility::Visible);
}
