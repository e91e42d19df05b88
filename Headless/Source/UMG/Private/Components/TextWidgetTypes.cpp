#include "Components/TextWidgetTypes.h"

UTextLayoutWidget::UTextLayoutWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, AutoWrapText(false)
	, WrapTextAt(0.0f)
	, LineHeightPercentage(1.0f)
	, Margin(0.0f)
	, Justification(ETextJustify::Left)
{
}

void UTextLayoutWidget::SetJustification(ETextJustify::Type InJustification)
{
	Justification = InJustification;
}
