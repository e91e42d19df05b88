#include "Components/VerticalBoxSlot.h"

#include "Components/Widget.h"

UVerticalBoxSlot::UVerticalBoxSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Padding(0.0f)
	, Size(ESlateSizeRule::Automatic)
	, HorizontalAlignment(HAlign_Fill)
	, VerticalAlignment(VAlign_Fill)
{
}

SVerticalBox::FSlot* UVerticalBoxSlot::GetLiveSlot() const
{
	return VerticalBox.IsValid() ? Slot : nullptr;
}

void UVerticalBoxSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	SynchronizeProperties();
}

void UVerticalBoxSlot::SetSize(FSlateChildSize InSize)
{
	Size = InSize;
	SynchronizeProperties();
}

void UVerticalBoxSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	SynchronizeProperties();
}

void UVerticalBoxSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	SynchronizeProperties();
}

void UVerticalBoxSlot::SynchronizeProperties()
{
	SVerticalBox::FSlot* LiveSlot = GetLiveSlot();
	if (!LiveSlot)
	{
		return;
	}
	LiveSlot->SetPadding(Padding);
	LiveSlot->SetHorizontalAlignment(HorizontalAlignment);
	LiveSlot->SetVerticalAlignment(VerticalAlignment);
	if (Size.SizeRule == ESlateSizeRule::Fill)
	{
		LiveSlot->SetFillHeight(Size.Value);
	}
	else
	{
		LiveSlot->SetAutoHeight();
	}
}

void UVerticalBoxSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Slot = nullptr;
	VerticalBox.Reset();
}

void UVerticalBoxSlot::BuildSlot(TSharedRef<SVerticalBox> InVerticalBox)
{
	VerticalBox = InVerticalBox;
	InVerticalBox->AddSlot().Expose(Slot)[Content ? Content->TakeWidget() : SNullWidget::NullWidget];
	SynchronizeProperties();
}
