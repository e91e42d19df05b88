#include "Widgets/Layout/SBox.h"

SBox::SBox()
	: WidthOverride(FOptionalSize())
	, HeightOverride(FOptionalSize())
	, MinDesiredWidth(FOptionalSize())
	, MinDesiredHeight(FOptionalSize())
	, MaxDesiredWidth(FOptionalSize())
	, MaxDesiredHeight(FOptionalSize())
{
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	MinDesiredHeight = InArgs._MinDesiredHeight;
	MaxDesiredWidth = InArgs._MaxDesiredWidth;
	MaxDesiredHeight = InArgs._MaxDesiredHeight;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBox::SetContent(const TSharedRef<SWidget>& InContent)
{
	ChildSlot[InContent];
}

void SBox::SetHAlign(EHorizontalAlignment HAlign)
{
	ChildSlot.SetHorizontalAlignment(HAlign);
}

void SBox::SetVAlign(EVerticalAlignment VAlign)
{
	ChildSlot.SetVerticalAlignment(VAlign);
}

void SBox::SetPadding(TAttribute<FMargin> InPadding)
{
	ChildSlot.SetPadding(MoveTemp(InPadding));
}

void SBox::SetWidthOverride(TAttribute<FOptionalSize> InWidthOverride)
{
	WidthOverride = MoveTemp(InWidthOverride);
}

void SBox::SetHeightOverride(TAttribute<FOptionalSize> InHeightOverride)
{
	HeightOverride = MoveTemp(InHeightOverride);
}

void SBox::SetMinDesiredWidth(TAttribute<FOptionalSize> InMinDesiredWidth)
{
	MinDesiredWidth = MoveTemp(InMinDesiredWidth);
}

void SBox::SetMinDesiredHeight(TAttribute<FOptionalSize> InMinDesiredHeight)
{
	MinDesiredHeight = MoveTemp(InMinDesiredHeight);
}

void SBox::SetMaxDesiredWidth(TAttribute<FOptionalSize> InMaxDesiredWidth)
{
	MaxDesiredWidth = MoveTemp(InMaxDesiredWidth);
}

void SBox::SetMaxDesiredHeight(TAttribute<FOptionalSize> InMaxDesiredHeight)
{
	MaxDesiredHeight = MoveTemp(InMaxDesiredHeight);
}

float SBox::ComputeDesiredExtent(float ContentExtent, const FOptionalSize& MinExtent, const FOptionalSize& MaxExtent) const
{
	float Extent = ContentExtent;
	if (MinExtent.IsSet())
	{
		Extent = FMath::Max(Extent, MinExtent.Get());
	}
	if (MaxExtent.IsSet())
	{
		Extent = FMath::Min(Extent, MaxExtent.Get());
	}
	return Extent;
}

FVector2D SBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	if (ChildSlot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D(0.0, 0.0);
	}
	const FVector2D ContentSize = ChildSlot.GetWidget()->GetDesiredSize() + ChildSlot.GetPadding().GetDesiredSize();
	const FOptionalSize Width = WidthOverride.Get();
	const FOptionalSize Height = HeightOverride.Get();
	return FVector2D(
		Width.IsSet() ? Width.Get() : ComputeDesiredExtent(float(ContentSize.X), MinDesiredWidth.Get(), MaxDesiredWidth.Get()),
		Height.IsSet() ? Height.Get() : ComputeDesiredExtent(float(ContentSize.Y), MinDesiredHeight.Get(), MaxDesiredHeight.Get()));
}
