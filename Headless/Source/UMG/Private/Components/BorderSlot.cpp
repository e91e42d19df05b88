#include "Components/BorderSlot.h"

#include "Components/Border.h"
#include "Widgets/Layout/SBorder.h"

FMargin UBorderSlot::GetPadding() const
{
	const UBorder* Border = Cast<UBorder>(Parent.Get());
	return Border ? Border->Padding : FMargin();
}

void UBorderSlot::SetPadding(FMargin InPadding)
{
	if (UBorder* Border = Cast<UBorder>(Parent.Get()))
	{
		Border->SetPadding(InPadding);
	}
}

EHorizontalAlignment UBorderSlot::GetHorizontalAlignment() const
{
	const UBorder* Border = Cast<UBorder>(Parent.Get());
	return Border ? Border->HorizontalAlignment : HAlign_Fill;
}

void UBorderSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	if (UBorder* Border = Cast<UBorder>(Parent.Get()))
	{
		Border->SetHorizontalAlignment(InHorizontalAlignment);
	}
}

EVerticalAlignment UBorderSlot::GetVerticalAlignment() const
{
	const UBorder* Border = Cast<UBorder>(Parent.Get());
	return Border ? Border->VerticalAlignment : VAlign_Fill;
}

void UBorderSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	if (UBorder* Border = Cast<UBorder>(Parent.Get()))
	{
		Border->SetVerticalAlignment(InVerticalAlignment);
	}
}

void UBorderSlot::BuildSlot(TSharedRef<SBorder> InBorder)
{
	InBorder->SetContent(Content ? Content->TakeWidget() : SNullWidget::NullWidget);
}
