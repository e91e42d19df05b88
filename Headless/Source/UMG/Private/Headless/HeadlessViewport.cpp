#include "Headless/HeadlessViewport.h"

#include "Blueprint/UserWidget.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/Layout/SConstraintCanvas.h"
#include "Widgets/SWindow.h"

namespace
{
	FHeadlessViewport* GCurrentViewport = nullptr;
}

FHeadlessViewport::FHeadlessViewport(FVector2D SizeInPixels, FVector2D ScreenPosition, float DPIScale)
	: Window(SNew(SWindow).ClientSize(SizeInPixels).ScreenPosition(ScreenPosition).DPIScale(DPIScale))
	, Layer(SNew(SConstraintCanvas))
{
	checkf(GCurrentViewport == nullptr, "Only one headless viewport can exist at a time");
	Window->SetContent(Layer);
	GCurrentViewport = this;
}

FHeadlessViewport::~FHeadlessViewport()
{
	while (Entries.Num() > 0)
	{
		RemoveWidget(Entries.Last().Widget);
	}
	GCurrentViewport = nullptr;
}

FHeadlessViewport* FHeadlessViewport::GetCurrent()
{
	return GCurrentViewport;
}

void FHeadlessViewport::AddWidget(UUserWidget* Widget, int32 ZOrder)
{
	if (Widget == nullptr || HasWidget(Widget))
	{
		return;
	}
	FEntry& Entry = Entries.AddDefaulted_GetRef();
	Entry.Widget = Widget;
	Entry.ZOrder = ZOrder;
	// The screen holds what it shows, as the engine's viewport does.
	if (!Widget->IsRooted())
	{
		Widget->AddToRoot();
		Entry.bRootedByViewport = true;
	}
	// Built and constructed at once, as the engine's viewport does; laid out at the next tick.
	BuildPendingWidgets();
}

void FHeadlessViewport::RemoveWidget(UUserWidget* Widget)
{
	for (int32 Index = 0; Index < Entries.Num(); ++Index)
	{
		if (Entries[Index].Widget == Widget)
		{
			FEntry Entry = Entries[Index];
			Entries.RemoveAt(Index);
			ReleaseEntry(Entry);
			return;
		}
	}
}

void FHeadlessViewport::ReleaseEntry(FEntry& Entry)
{
	if (Entry.SlateWidget)
	{
		Layer->RemoveSlot(Entry.SlateWidget.ToSharedRef());
		Entry.SlateWidget.Reset();
		Entry.Widget->ReleaseSlateResources(true);
	}
	if (Entry.bRootedByViewport)
	{
		Entry.Widget->RemoveFromRoot();
	}
}

bool FHeadlessViewport::HasWidget(const UUserWidget* Widget) const
{
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Widget == Widget)
		{
			return true;
		}
	}
	return false;
}

TArray<UUserWidget*> FHeadlessViewport::GetWidgets() const
{
	TArray<UUserWidget*> Widgets;
	for (const FEntry& Entry : Entries)
	{
		Widgets.Add(Entry.Widget);
	}
	return Widgets;
}

void FHeadlessViewport::BuildPendingWidgets()
{
	// By index: NativeConstruct may add or remove viewport widgets.
	for (int32 Index = 0; Index < Entries.Num(); ++Index)
	{
		if (Entries[Index].SlateWidget || Entries[Index].bBuilding)
		{
			continue;
		}
		UUserWidget* Widget = Entries[Index].Widget;
		const int32 ZOrder = Entries[Index].ZOrder;
		// NativeConstruct may add a widget to the screen, which builds what is pending: not this one again.
		Entries[Index].bBuilding = true;
		const TSharedRef<SWidget> SlateWidget = Widget->TakeWidget();
		const int32 EntryIndex = Entries.IndexOfByPredicate([Widget](const FEntry& Entry) { return Entry.Widget == Widget; });
		if (EntryIndex == INDEX_NONE)
		{
			// Removed from the screen during its own construction.
			Widget->ReleaseSlateResources(true);
			continue;
		}
		Entries[EntryIndex].bBuilding = false;
		Entries[EntryIndex].SlateWidget = SlateWidget;
		Layer->AddSlot().Anchors(FAnchors(0.0f, 0.0f, 1.0f, 1.0f)).Offset(FMargin(0.0f)).Alignment(FVector2D(0.0, 0.0)).ZOrder(float(ZOrder))[SlateWidget];
	}
}

void FHeadlessViewport::Tick(float DeltaSeconds)
{
	CurrentTime += DeltaSeconds;
	LastDeltaTime = DeltaSeconds;
	BuildPendingWidgets();
	FSlateWindowElementList Scratch(Window);
	Paint(Scratch);
}

void FHeadlessViewport::Paint(FSlateWindowElementList& OutDrawElements)
{
	OutDrawElements.ResetElementList();
	Window->PaintWindow(CurrentTime, LastDeltaTime, OutDrawElements, FWidgetStyle(), true);
}

FVector2D FHeadlessViewport::GetSizeInPixels() const
{
	return Window->GetClientSizeInScreen();
}

FVector2D FHeadlessViewport::GetScreenPosition() const
{
	return Window->GetPositionInScreen();
}

float FHeadlessViewport::GetDPIScale() const
{
	return Window->GetDPIScaleFactor();
}

void FHeadlessViewport::Resize(FVector2D SizeInPixels)
{
	Window->Resize(SizeInPixels);
}

void FHeadlessViewport::SetDPIScale(float DPIScale)
{
	Window->SetDPIScaleFactor(DPIScale);
}
