#include "Widgets/SWidget.h"

#include "Layout/Children.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

SWidget::SWidget()
	: EnabledState(true)
	, RenderTransformPivot(FVector2D(0.0, 0.0))
	, RenderOpacity(1.0f)
{
}

SWidget::~SWidget() = default;

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	EnabledState = Args._IsEnabled;
	Visibility = Args._Visibility;
	RenderOpacity = Args._RenderOpacity;
	RenderTransform = Args._RenderTransform;
	RenderTransformPivot = Args._RenderTransformPivot;
	Tag = Args._Tag;
}

void SWidget::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	Visibility = MoveTemp(InVisibility);
}

void SWidget::SlatePrepass(float InLayoutScaleMultiplier)
{
	// Children first: a widget's desired size is computed from theirs.
	if (FChildren* MyChildren = GetChildren())
	{
		for (int32 ChildIndex = 0; ChildIndex < MyChildren->Num(); ++ChildIndex)
		{
			const TSharedRef<SWidget> Child = MyChildren->GetChildAt(ChildIndex);
			if (Child->GetVisibility() != EVisibility::Collapsed)
			{
				Child->SlatePrepass(InLayoutScaleMultiplier * GetRelativeLayoutScale(ChildIndex, InLayoutScaleMultiplier));
			}
			else
			{
				Child->PrepassLayoutScaleMultiplier.Reset();
			}
		}
	}
	CacheDesiredSize(InLayoutScaleMultiplier);
}

void SWidget::CacheDesiredSize(float InLayoutScaleMultiplier)
{
	PrepassLayoutScaleMultiplier = InLayoutScaleMultiplier;
	DesiredSize = ComputeDesiredSize(InLayoutScaleMultiplier);
}

void SWidget::ArrangeChildren(const FGeometry& InAllottedGeometry, FArrangedChildren& ArrangedChildren, bool bUpdateAttributes) const
{
	OnArrangeChildren(InAllottedGeometry, ArrangedChildren);
}

int32 SWidget::Paint(const FPaintArgs& Args, const FGeometry& InAllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	AllottedGeometry = InAllottedGeometry;
	DesktopGeometry = InAllottedGeometry;
	DesktopGeometry.AppendTransform(FSlateLayoutTransform(Args.GetWindowToDesktopTransform()));

	FWidgetStyle ContentWidgetStyle = FWidgetStyle(InWidgetStyle).BlendOpacity(RenderOpacity);
	return OnPaint(Args.WithNewParent(this), InAllottedGeometry, MyCullingRect, OutDrawElements, LayerId, ContentWidgetStyle, bParentEnabled);
}
