// Draws one brush over its whole geometry, tinted; it wants the brush's image size.
#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

class SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage)
		: _Image(nullptr)
		, _ColorAndOpacity(FLinearColor::White)
		{}
		SLATE_ATTRIBUTE(const FSlateBrush*, Image)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(TOptional<FVector2D>, DesiredSizeOverride)
	SLATE_END_ARGS()

	SLATE_API SImage();
	SLATE_API void Construct(const FArguments& InArgs);

	// Held by pointer, as the engine holds it: the brush's owner keeps it alive.
	SLATE_API void SetImage(TAttribute<const FSlateBrush*> InImage);
	SLATE_API void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity);
	SLATE_API void SetDesiredSizeOverride(TAttribute<TOptional<FVector2D>> InDesiredSizeOverride);

	const FSlateBrush* GetImage() const
	{
		return Image.Get();
	}

protected:
	SLATE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	SLATE_API int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TAttribute<const FSlateBrush*> Image;
	TAttribute<FSlateColor> ImageColorAndOpacity;
	TAttribute<TOptional<FVector2D>> DesiredSizeOverride;
};
