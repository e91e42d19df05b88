// The base of every Slate widget. Layout runs in two passes: the prepass computes desired sizes
// bottom up (children first), then painting arranges children top down, giving each its
// geometry, and caches that geometry on the widget.
#pragma once

#include "Layout/ArrangedChildren.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Layout/Visibility.h"
#include "Math/Vector2D.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Rendering/SlateRenderTransform.h"
#include "Templates/SharedPointer.h"
#include "Types/PaintArgs.h"
#include "UObject/NameTypes.h"
#include "Widgets/InvalidateWidgetReason.h"

class FChildren;
class FSlateWindowElementList;
class FWidgetStyle;
struct FSlateBaseNamedArgs;

class SWidget : public TSharedFromThis<SWidget>
{
public:
	SLATECORE_API SWidget();
	SLATECORE_API virtual ~SWidget();

	SWidget(const SWidget&) = delete;
	SWidget& operator=(const SWidget&) = delete;

	// Applies the arguments every widget accepts; SNew calls it before the widget's Construct.
	SLATECORE_API void SWidgetConstruct(const FSlateBaseNamedArgs& Args);

	// Layout

	// Computes desired sizes for this widget and all it contains. The multiplier is the scale
	// the widget will be drawn at, so text can be measured at the size it will be rendered.
	SLATECORE_API void SlatePrepass(float InLayoutScaleMultiplier = 1.0f);

	FVector2D GetDesiredSize() const
	{
		return DesiredSize.Get(FVector2D(0.0, 0.0));
	}

	TOptional<float> GetPrepassLayoutScaleMultiplier() const
	{
		return PrepassLayoutScaleMultiplier;
	}

	SLATECORE_API void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, bool bUpdateAttributes = false) const;

	virtual FChildren* GetChildren() = 0;

	// How much larger than this widget its child at ChildIndex is laid out.
	virtual float GetRelativeLayoutScale(int32 ChildIndex, float LayoutScaleMultiplier) const
	{
		return 1.0f;
	}

	// Painting

	SLATECORE_API int32 Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	// Cached geometry

	// Geometry in desktop space from the last paint.
	const FGeometry& GetCachedGeometry() const
	{
		return GetTickSpaceGeometry();
	}

	const FGeometry& GetTickSpaceGeometry() const
	{
		return DesktopGeometry;
	}

	// Geometry in window space from the last paint.
	const FGeometry& GetPaintSpaceGeometry() const
	{
		return AllottedGeometry;
	}

	// State

	EVisibility GetVisibility() const
	{
		return Visibility.Get();
	}

	SLATECORE_API virtual void SetVisibility(TAttribute<EVisibility> InVisibility);

	bool IsEnabled() const
	{
		return EnabledState.Get();
	}

	void SetEnabled(TAttribute<bool> InEnabledState)
	{
		EnabledState = MoveTemp(InEnabledState);
	}

	float GetRenderOpacity() const
	{
		return RenderOpacity;
	}

	void SetRenderOpacity(float InOpacity)
	{
		RenderOpacity = InOpacity;
	}

	TOptional<FSlateRenderTransform> GetRenderTransform() const
	{
		return RenderTransform.Get();
	}

	void SetRenderTransform(TAttribute<TOptional<FSlateRenderTransform>> InTransform)
	{
		RenderTransform = MoveTemp(InTransform);
	}

	// Normalized: (0,0) is the top-left corner, (0.5,0.5) the centre.
	FVector2D GetRenderTransformPivot() const
	{
		return RenderTransformPivot.Get();
	}

	void SetRenderTransformPivot(TAttribute<FVector2D> InTransformPivot)
	{
		RenderTransformPivot = MoveTemp(InTransformPivot);
	}

	FName GetTag() const
	{
		return Tag;
	}

	void SetTag(FName InTag)
	{
		Tag = InTag;
	}

	FName GetType() const
	{
		return TypeOfWidget;
	}

	FString GetTypeAsString() const
	{
		return TypeOfWidget.ToString();
	}

	void Invalidate(EInvalidateWidgetReason InvalidateReason)
	{
	}

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;

	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const = 0;

	bool ShouldBeEnabled(bool bParentEnabled) const
	{
		return bParentEnabled && IsEnabled();
	}

private:
	template <typename WidgetType>
	friend struct TDecl;

	void CacheDesiredSize(float InLayoutScaleMultiplier);

	TOptional<FVector2D> DesiredSize;
	TOptional<float> PrepassLayoutScaleMultiplier;
	TAttribute<EVisibility> Visibility;
	TAttribute<bool> EnabledState;
	TAttribute<TOptional<FSlateRenderTransform>> RenderTransform;
	TAttribute<FVector2D> RenderTransformPivot;
	float RenderOpacity;
	FName Tag;
	FName TypeOfWidget;
	mutable FGeometry AllottedGeometry;
	mutable FGeometry DesktopGeometry;
};
