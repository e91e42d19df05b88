// A widget without children, such as an image or a text block.
#pragma once

#include "Layout/Children.h"
#include "Widgets/SWidget.h"

class SLeafWidget : public SWidget
{
public:
	FChildren* GetChildren() override
	{
		return &FNoChildren::NoChildrenInstance;
	}

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override
	{
	}
};
