// A brush drawn behind one child, with padding and alignment for the child.
#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _BorderImage(GetDefaultBrush())
		, _ColorAndOpacity(FLinearColor::White)
		, _BorderBackgroundColor(FLinearColor::White)
		, _ForegroundColor(FSlateColor::UseForeground())
		, _DesiredSizeScale(FVector2D(1.0, 1.0))
		{}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
		SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
	SLATE_END_ARGS()

	SLATE_API SBorder();
	SLATE_API void Construct(const FArguments& InArgs);

	SLATE_API void SetContent(TSharedRef<SWidget> InContent);
	SLATE_API const TSharedRef<SWidget>& GetContent() const;
	SLATE_API void ClearContent();

	SLATE_API void SetBorderBackgroundColor(TAttribute<FSlateColor> InColorAndOpacity);
	SLATE_API void SetDesiredSizeScale(TAttribute<FVector2D> InDesiredSizeScale);
	SLATE_API void SetHAlign(EHorizontalAlignment HAlign);
	SLATE_API void SetVAlign(EVerticalAlignment VAlign);
	SLATE_API void SetPadding(TAttribute<FMargin> InPadding);
	// The brush is held by pointer, as the engine holds it: its owner must outlive this widget's use of it.
	SLATE_API void SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage);

	FSlateColor GetBorderBackgroundColor() const
	{
		return BorderBackgroundColor.Get();
	}

	const FSlateBrush* GetBorderImage() const
	{
		return BorderImage.Get();
	}

	// A white rectangle: tinted by the background colour it is a plain fill.
	static SLATE_API const FSlateBrush* GetDefaultBrush();

protected:
	SLATE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	SLATE_API int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TAttribute<const FSlateBrush*> BorderImage;
	TAttribute<FSlateColor> BorderBackgroundColor;
	TAttribute<FVector2D> DesiredSizeScale;
};
