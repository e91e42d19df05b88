#include "Components/Border.h"

#include "Components/BorderSlot.h"
#include "Widgets/Layout/SBorder.h"

UBorder::UBorder(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Padding(4.0f, 2.0f)
	, HorizontalAlignment(HAlign_Fill)
	, VerticalAlignment(VAlign_Fill)
	, BrushColor(FLinearColor::White)
	, ContentColorAndOpacity(FLinearColor::White)
	, DesiredSizeScale(1.0, 1.0)
{
}

void UBorder::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (MyBorder)
	{
		MyBorder->SetPadding(InPadding);
	}
}

void UBorder::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (MyBorder)
	{
		MyBorder->SetHAlign(InHorizontalAlignment);
	}
}

void UBorder::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (MyBorder)
	{
		MyBorder->SetVAlign(InVerticalAlignment);
	}
}

void UBorder::SetBrushColor(FLinearColor InBrushColor)
{
	BrushColor = InBrushColor;
	if (MyBorder)
	{
		MyBorder->SetBorderBackgroundColor(FSlateColor(InBrushColor));
	}
}

FLinearColor UBorder::GetBrushColor() const
{
	return BrushColor;
}

void UBorder::SetContentColorAndOpacity(FLinearColor InContentColorAndOpacity)
{
	ContentColorAndOpacity = InContentColorAndOpacity;
	if (MyBorder)
	{
		MyBorder->SetColorAndOpacity(InContentColorAndOpacity);
	}
}

void UBorder::SetBrush(const FSlateBrush& InBrush)
{
	Background = InBrush;
	if (MyBorder)
	{
		MyBorder->SetBorderImage(&Background);
	}
}

void UBorder::SetDesiredSizeScale(FVector2D InScale)
{
	DesiredSizeScale = InScale;
	if (MyBorder)
	{
		MyBorder->SetDesiredSizeScale(InScale);
	}
}

TSharedRef<SWidget> UBorder::RebuildWidget()
{
	MyBorder = SNew(SBorder);
	if (UBorderSlot* ContentSlot = Cast<UBorderSlot>(GetContentSlot()))
	{
		ContentSlot->BuildSlot(MyBorder.ToSharedRef());
	}
	return MyBorder.ToSharedRef();
}

void UBorder::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyBorder)
	{
		return;
	}
	MyBorder->SetPadding(Padding);
	MyBorder->SetHAlign(HorizontalAlignment);
	MyBorder->SetVAlign(VerticalAlignment);
	MyBorder->SetBorderImage(&Background);
	MyBorder->SetBorderBackgroundColor(FSlateColor(BrushColor));
	MyBorder->SetColorAndOpacity(ContentColorAndOpacity);
	MyBorder->SetDesiredSizeScale(DesiredSizeScale);
}

void UBorder::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyBorder.Reset();
}

UClass* UBorder::GetSlotClass() const
{
	return UBorderSlot::StaticClass();
}

void UBorder::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyBorder)
	{
		CastChecked<UBorderSlot>(InSlot)->BuildSlot(MyBorder.ToSharedRef());
	}
}

void UBorder::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (MyBorder)
	{
		MyBorder->ClearContent();
	}
}
