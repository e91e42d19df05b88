#include "Components/CanvasPanelSlot.h"

#include "Components/Widget.h"

UCanvasPanelSlot::UCanvasPanelSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bAutoSize(false)
	, ZOrder(0)
{
}

SConstraintCanvas::FSlot* UCanvasPanelSlot::GetLiveSlot() const
{
	return Canvas.IsValid() ? Slot : nullptr;
}

void UCanvasPanelSlot::SetLayout(const FAnchorData& InLayoutData)
{
	LayoutData = InLayoutData;
	SynchronizeProperties();
}

FAnchorData UCanvasPanelSlot::GetLayout() const
{
	return LayoutData;
}

void UCanvasPanelSlot::SetPosition(FVector2D InPosition)
{
	LayoutData.Offsets.Left = float(InPosition.X);
	LayoutData.Offsets.Top = float(InPosition.Y);
	SynchronizeProperties();
}

FVector2D UCanvasPanelSlot::GetPosition() const
{
	return FVector2D(LayoutData.Offsets.Left, LayoutData.Offsets.Top);
}

void UCanvasPanelSlot::SetSize(FVector2D InSize)
{
	LayoutData.Offsets.Right = float(InSize.X);
	LayoutData.Offsets.Bottom = float(InSize.Y);
	SynchronizeProperties();
}

FVector2D UCanvasPanelSlot::GetSize() const
{
	return FVector2D(LayoutData.Offsets.Right, LayoutData.Offsets.Bottom);
}

void UCanvasPanelSlot::SetOffsets(FMargin InOffset)
{
	LayoutData.Offsets = InOffset;
	SynchronizeProperties();
}

FMargin UCanvasPanelSlot::GetOffsets() const
{
	return LayoutData.Offsets;
}

void UCanvasPanelSlot::SetAnchors(FAnchors InAnchors)
{
	LayoutData.Anchors = InAnchors;
	SynchronizeProperties();
}

FAnchors UCanvasPanelSlot::GetAnchors() const
{
	return LayoutData.Anchors;
}

void UCanvasPanelSlot::SetAlignment(FVector2D InAlignment)
{
	LayoutData.Alignment = InAlignment;
	SynchronizeProperties();
}

FVector2D UCanvasPanelSlot::GetAlignment() const
{
	return LayoutData.Alignment;
}

void UCanvasPanelSlot::SetAutoSize(bool InbAutoSize)
{
	bAutoSize = InbAutoSize;
	SynchronizeProperties();
}

bool UCanvasPanelSlot::GetAutoSize() const
{
	return bAutoSize;
}

void UCanvasPanelSlot::SetZOrder(int32 InZOrder)
{
	ZOrder = InZOrder;
	SynchronizeProperties();
}

int32 UCanvasPanelSlot::GetZOrder() const
{
	return ZOrder;
}

void UCanvasPanelSlot::SynchronizeProperties()
{
	if (SConstraintCanvas::FSlot* LiveSlot = GetLiveSlot())
	{
		LiveSlot->SetOffset(LayoutData.Offsets);
		LiveSlot->SetAnchors(LayoutData.Anchors);
		LiveSlot->SetAlignment(LayoutData.Alignment);
		LiveSlot->SetAutoSize(bAutoSize);
		LiveSlot->SetZOrder(float(ZOrder));
	}
}

void UCanvasPanelSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Slot = nullptr;
	Canvas.Reset();
}

void UCanvasPanelSlot::BuildSlot(TSharedRef<SConstraintCanvas> InCanvas)
{
	Canvas = InCanvas;
	InCanvas->AddSlot().Expose(Slot)[Content ? Content->TakeWidget() : SNullWidget::NullWidget];
	SynchronizeProperties();
}
