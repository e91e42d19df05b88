// What a parent passes down while painting: the tint accumulated so far and the foreground
// colour that "use foreground" colours resolve to.
#pragma once

#include "Math/Color.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"

class FWidgetStyle
{
public:
	FWidgetStyle()
		: ColorAndOpacityTint(FLinearColor::White)
		, ForegroundColor(FLinearColor::White)
		, SubduedForeground(FLinearColor(1.0f, 1.0f, 1.0f, SubdueAmount))
		, DisabledForeground(FLinearColor(0.5f, 0.5f, 0.5f, 1.0f))
	{
	}

	FWidgetStyle& BlendColorAndOpacityTint(const FLinearColor& InTint)
	{
		ColorAndOpacityTint = ColorAndOpacityTint * InTint;
		return *this;
	}

	FWidgetStyle& BlendOpacity(float InOpacity)
	{
		ColorAndOpacityTint.A *= InOpacity;
		return *this;
	}

	FWidgetStyle& SetColorAndOpacityTint(const FLinearColor& InTint)
	{
		ColorAndOpacityTint = InTint;
		return *this;
	}

	// A foreground left to "use foreground" keeps the inherited one.
	SLATECORE_API FWidgetStyle& SetForegroundColor(const TAttribute<FSlateColor>& InForeground);

	FWidgetStyle& SetForegroundColor(const FLinearColor& InForeground)
	{
		ForegroundColor = InForeground;
		SubduedForeground = InForeground;
		SubduedForeground.A *= SubdueAmount;
		return *this;
	}

	const FLinearColor& GetColorAndOpacityTint() const
	{
		return ColorAndOpacityTint;
	}

	const FLinearColor& GetForegroundColor() const
	{
		return ForegroundColor;
	}

	const FLinearColor& GetSubduedForegroundColor() const
	{
		return SubduedForeground;
	}

	const FLinearColor& GetDisabledForegroundColor() const
	{
		return DisabledForeground;
	}

	static constexpr float SubdueAmount = 0.6f;

private:
	FLinearColor ColorAndOpacityTint;
	FLinearColor ForegroundColor;
	FLinearColor SubduedForeground;
	FLinearColor DisabledForeground;
};
