// Text on one or more lines, measured with the renderer's font measure so that the layout gives
// it exactly the room the drawn glyphs take. Lines break at newlines and, when a wrap width is
// known, between words; a word longer than the width is not broken.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Internationalization/Text.h"
#include "Layout/Margin.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

class STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _Font(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9.0f))
		, _ColorAndOpacity(FSlateColor::UseForeground())
		, _Justification(ETextJustify::Left)
		, _AutoWrapText(false)
		, _WrapTextAt(0.0f)
		, _Margin(FMargin(0.0f))
		, _LineHeightPercentage(1.0f)
		, _MinDesiredWidth(0.0f)
		{}
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
		SLATE_ATTRIBUTE(bool, AutoWrapText)
		SLATE_ATTRIBUTE(float, WrapTextAt)
		SLATE_ATTRIBUTE(FMargin, Margin)
		SLATE_ATTRIBUTE(float, LineHeightPercentage)
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_END_ARGS()

	SLATE_API STextBlock();
	SLATE_API void Construct(const FArguments& InArgs);

	const FText& GetText() const
	{
		return BoundText.Get();
	}

	SLATE_API void SetText(TAttribute<FText> InText);
	SLATE_API void SetFont(TAttribute<FSlateFontInfo> InFont);
	SLATE_API void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity);
	SLATE_API void SetJustification(TAttribute<ETextJustify::Type> InJustification);
	SLATE_API void SetAutoWrapText(TAttribute<bool> InAutoWrapText);
	SLATE_API void SetWrapTextAt(TAttribute<float> InWrapTextAt);
	SLATE_API void SetMargin(TAttribute<FMargin> InMargin);
	SLATE_API void SetLineHeightPercentage(TAttribute<float> InLineHeightPercentage);
	SLATE_API void SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth);

	FSlateFontInfo GetFont() const
	{
		return Font.Get();
	}

	// One laid-out line: Text[Start, End) and its width in slate units.
	struct FLine
	{
		int32 Start = 0;
		int32 End = 0;
		float Width = 0.0f;
	};

	// The lines of the last layout, as the last paint drew them.
	const TArray<FLine>& GetLines() const
	{
		return Lines;
	}

protected:
	SLATE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	SLATE_API int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	// The width lines wrap at, or zero for no wrapping.
	float GetWrappingWidth() const;
	void LayOutLines(const FString& String, float WrappingWidth, float LayoutScale) const;

	TAttribute<FText> BoundText;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<ETextJustify::Type> Justification;
	TAttribute<bool> AutoWrapText;
	TAttribute<float> WrapTextAt;
	TAttribute<FMargin> Margin;
	TAttribute<float> LineHeightPercentage;
	TAttribute<float> MinDesiredWidth;

	mutable TArray<FLine> Lines;
	mutable float LineHeight = 0.0f;
	// Automatic wrapping follows the width of the last arrangement, so a change of width shows
	// one layout later, as in the engine.
	mutable float CachedAutoWrapTextWidth = 0.0f;
};
