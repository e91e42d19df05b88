// A brush that fills its rectangle with one colour.
#pragma once

#include "Styling/SlateBrush.h"

struct FSlateColorBrush : public FSlateBrush
{
	FSlateColorBrush(const FLinearColor& InColor)
	{
		TintColor = InColor;
		DrawAs = ESlateBrushDrawType::Image;
	}

	FSlateColorBrush(const FColor& InColor)
		: FSlateColorBrush(FLinearColor(InColor))
	{
	}
};
