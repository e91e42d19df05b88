// The result of arranging a widget's children: the ones the filter accepts, in arrange order.
#pragma once

#include "Containers/Array.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

class FArrangedChildren
{
public:
	typedef TArray<FArrangedWidget> FArrangedWidgetArray;

	explicit FArrangedChildren(EVisibility InVisibilityFilter, bool bInAllow3DWidgets = false)
		: VisibilityFilter(InVisibilityFilter)
	{
	}

	// Adds the widget if the filter accepts the widget's own visibility.
	SLATECORE_API void AddWidget(const FArrangedWidget& InWidgetGeometry);
	// Adds the widget if the filter accepts the given visibility, for callers that already read it.
	SLATECORE_API void AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry);

	bool Accepts(EVisibility InVisibility) const
	{
		return (InVisibility.Value & VisibilityFilter.Value) != 0;
	}

	EVisibility GetFilter() const
	{
		return VisibilityFilter;
	}

	int32 Num() const
	{
		return Array.Num();
	}

	FArrangedWidget& operator[](int32 Index)
	{
		return Array[Index];
	}

	const FArrangedWidget& operator[](int32 Index) const
	{
		return Array[Index];
	}

	FArrangedWidgetArray& GetInternalArray()
	{
		return Array;
	}

	const FArrangedWidgetArray& GetInternalArray() const
	{
		return Array;
	}

	void Empty()
	{
		Array.Empty();
	}

private:
	EVisibility VisibilityFilter;
	FArrangedWidgetArray Array;
};
