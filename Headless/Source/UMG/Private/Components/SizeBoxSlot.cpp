#include "Components/SizeBoxSlot.h"

#include "Components/Widget.h"
#include "Widgets/Layout/SBox.h"

USizeBoxSlot::USizeBoxSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Padding(0.0f)
	, HorizontalAlignment(HAlign_Fill)
	, VerticalAlignment(VAlign_Fill)
{
}

void USizeBoxSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (TSharedPtr<SBox> Box = SizeBox.Pin())
	{
		Box->SetPadding(InPadding);
	}
}

void USizeBoxSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (TSharedPtr<SBox> Box = SizeBox.Pin())
	{
		Box->SetHAlign(InHorizontalAlignment);
	}
}

void USizeBoxSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (TSharedPtr<SBox> Box = SizeBox.Pin())
	{
		Box->SetVAlign(InVerticalAlignment);
	}
}

void USizeBoxSlot::SynchronizeProperties()
{
	if (TSharedPtr<SBox> Box = SizeBox.Pin())
	{
		Box->SetPadding(Padding);
		Box->SetHAlign(HorizontalAlignment);
		Box->SetVAlign(VerticalAlignment);
	}
}

void USizeBoxSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	SizeBox.Reset();
}

void USizeBoxSlot::BuildSlot(TSharedRef<SBox> InSizeBox)
{
	SizeBox = InSizeBox;
	SynchronizeProperties();
	InSizeBox->SetContent(Content ? Content->TakeWidget() : SNullWidget::NullWidget);
}
