#include "Layout/ArrangedChildren.h"

#include "Widgets/SWidget.h"

void FArrangedChildren::AddWidget(const FArrangedWidget& InWidgetGeometry)
{
	AddWidget(InWidgetGeometry.Widget->GetVisibility(), InWidgetGeometry);
}

void FArrangedChildren::AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry)
{
	if (Accepts(VisibilityOverride))
	{
		Array.Add(InWidgetGeometry);
	}
}
