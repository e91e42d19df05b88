#include "Widgets/SNullWidget.h"

#include "Layout/Children.h"
#include "Widgets/SLeafWidget.h"

namespace
{
	class SNullWidgetContent : public SLeafWidget
	{
	protected:
		FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override
		{
			return FVector2D(0.0, 0.0);
		}

		int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
			int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override
		{
			return LayerId;
		}
	};
}

// Both live here so the null widget never exists before the empty children list it reports.
FNoChildren FNoChildren::NoChildrenInstance;
TSharedRef<SWidget> SNullWidget::NullWidget = MakeShared<SNullWidgetContent>();
