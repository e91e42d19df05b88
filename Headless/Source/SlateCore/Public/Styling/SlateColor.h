// A colour that is either given outright or taken from the widget style when painted
// (the inherited foreground colour), so text follows the colour of what contains it.
#pragma once

#include "Math/Color.h"

class FWidgetStyle;

enum class ESlateColorStylingMode : uint8
{
	UseColor_Specified,
	UseColor_ColorTable,
	UseColor_Foreground,
	UseColor_Foreground_Subdued,
	UseColor_Specified_Link,
};

struct FSlateColor
{
public:
	// Unspecified colours follow the foreground; magenta makes a missed lookup stand out.
	FSlateColor()
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f))
		, ColorUseRule(ESlateColorStylingMode::UseColor_Foreground)
	{
	}

	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified)
	{
	}

	SLATECORE_API FLinearColor GetColor(const FWidgetStyle& InWidgetStyle) const;

	FLinearColor GetSpecifiedColor() const
	{
		return SpecifiedColor;
	}

	bool IsColorSpecified() const
	{
		return ColorUseRule == ESlateColorStylingMode::UseColor_Specified;
	}

	ESlateColorStylingMode GetColorUseRule() const
	{
		return ColorUseRule;
	}

	static FSlateColor UseForeground()
	{
		return FSlateColor(ESlateColorStylingMode::UseColor_Foreground);
	}

	static FSlateColor UseSubduedForeground()
	{
		return FSlateColor(ESlateColorStylingMode::UseColor_Foreground_Subdued);
	}

	bool operator==(const FSlateColor& Other) const
	{
		return SpecifiedColor == Other.SpecifiedColor && ColorUseRule == Other.ColorUseRule;
	}

	bool operator!=(const FSlateColor& Other) const
	{
		return !(*this == Other);
	}

private:
	explicit FSlateColor(ESlateColorStylingMode InColorUseRule)
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f))
		, ColorUseRule(InColorUseRule)
	{
	}

	FLinearColor SpecifiedColor;
	ESlateColorStylingMode ColorUseRule;
};
