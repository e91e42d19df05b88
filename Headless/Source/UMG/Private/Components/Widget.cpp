#include "Components/Widget.h"

UWidget::UWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Visibility(ESlateVisibility::Visible)
{
}

ESlateVisibility UWidget::GetVisibility() const
{
	return Visibility;
}

void UWidget::SetVisibility(ESlateVisibility InVisibility)
{
	Visibility = InVisibility;
}
