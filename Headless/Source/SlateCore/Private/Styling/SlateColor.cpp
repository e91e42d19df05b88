#include "Styling/SlateColor.h"

#include "Styling/WidgetStyle.h"

FLinearColor FSlateColor::GetColor(const FWidgetStyle& InWidgetStyle) const
{
	switch (ColorUseRule)
	{
	case ESlateColorStylingMode::UseColor_Foreground:
		return InWidgetStyle.GetForegroundColor();
	case ESlateColorStylingMode::UseColor_Foreground_Subdued:
		return InWidgetStyle.GetSubduedForegroundColor();
	default:
		// There is no style colour table here; table entries resolve to the colour they carry.
		return SpecifiedColor;
	}
}

FWidgetStyle& FWidgetStyle::SetForegroundColor(const TAttribute<FSlateColor>& InForeground)
{
	if (InForeground.IsSet())
	{
		const FSlateColor Foreground = InForeground.Get();
		if (Foreground.GetColorUseRule() != ESlateColorStylingMode::UseColor_Foreground)
		{
			SetForegroundColor(Foreground.GetColor(*this));
		}
	}
	return *this;
}
