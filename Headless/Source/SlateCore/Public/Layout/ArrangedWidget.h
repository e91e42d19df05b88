// A widget together with the geometry its parent gave it.
#pragma once

#include "Layout/Geometry.h"
#include "Templates/SharedPointer.h"

class SWidget;

struct FArrangedWidget
{
	FArrangedWidget(TSharedRef<SWidget> InWidget, const FGeometry& InGeometry)
		: Geometry(InGeometry)
		, Widget(MoveTemp(InWidget))
	{
	}

	SWidget* GetWidgetPtr() const
	{
		return &Widget.Get();
	}

	bool operator==(const FArrangedWidget& Other) const
	{
		return this->Widget == Other.Widget;
	}

	FGeometry Geometry;
	TSharedRef<SWidget> Widget;
};
