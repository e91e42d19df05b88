// Holds one child and can impose a width and a height on it, whatever the child wants.
#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(0.0f))
		{}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
		SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
	SLATE_END_ARGS()

	SLATE_API SBox();
	SLATE_API void Construct(const FArguments& InArgs);

	SLATE_API void SetContent(const TSharedRef<SWidget>& InContent);
	SLATE_API void SetHAlign(EHorizontalAlignment HAlign);
	SLATE_API void SetVAlign(EVerticalAlignment VAlign);
	SLATE_API void SetPadding(TAttribute<FMargin> InPadding);
	SLATE_API void SetWidthOverride(TAttribute<FOptionalSize> InWidthOverride);
	SLATE_API void SetHeightOverride(TAttribute<FOptionalSize> InHeightOverride);
	SLATE_API void SetMinDesiredWidth(TAttribute<FOptionalSize> InMinDesiredWidth);
	SLATE_API void SetMinDesiredHeight(TAttribute<FOptionalSize> InMinDesiredHeight);
	SLATE_API void SetMaxDesiredWidth(TAttribute<FOptionalSize> InMaxDesiredWidth);
	SLATE_API void SetMaxDesiredHeight(TAttribute<FOptionalSize> InMaxDesiredHeight);

protected:
	// An override wins outright; otherwise the content plus padding, clamped to the min and max.
	SLATE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	float ComputeDesiredExtent(float ContentExtent, const FOptionalSize& MinExtent, const FOptionalSize& MaxExtent) const;

	TAttribute<FOptionalSize> WidthOverride;
	TAttribute<FOptionalSize> HeightOverride;
	TAttribute<FOptionalSize> MinDesiredWidth;
	TAttribute<FOptionalSize> MinDesiredHeight;
	TAttribute<FOptionalSize> MaxDesiredWidth;
	TAttribute<FOptionalSize> MaxDesiredHeight;
};
