// Whether a widget is drawn, takes space and can be hit. Each value is a set of private flags
// so filters (such as "everything drawn") can be tested with one mask.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

struct EVisibility
{
	// Drawn and hit-testable, with its children.
	static SLATECORE_API const EVisibility Visible;
	// Not drawn and takes no space in layout.
	static SLATECORE_API const EVisibility Collapsed;
	// Not drawn but still takes space in layout.
	static SLATECORE_API const EVisibility Hidden;
	// Drawn; neither the widget nor its children can be hit.
	static SLATECORE_API const EVisibility HitTestInvisible;
	// Drawn; the widget cannot be hit but its children can.
	static SLATECORE_API const EVisibility SelfHitTestInvisible;
	// Matches every visibility, for arranging without a filter.
	static SLATECORE_API const EVisibility All;

	EVisibility()
		: Value(VIS_Visible)
	{
	}

	bool operator==(const EVisibility& Other) const
	{
		return Value == Other.Value;
	}

	bool operator!=(const EVisibility& Other) const
	{
		return Value != Other.Value;
	}

	bool AreChildrenHitTestVisible() const
	{
		return (Value & VISPRIVATE_ChildrenHitTestVisible) != 0;
	}

	bool IsHitTestVisible() const
	{
		return (Value & VISPRIVATE_SelfHitTestVisible) != 0;
	}

	bool IsVisible() const
	{
		return (Value & VIS_Visible) != 0;
	}

	SLATECORE_API FString ToString() const;

	// Public for filters only; compare with the named values above.
	uint8 Value;

private:
	enum Private : uint8
	{
		VISPRIVATE_Visible = 0x1 << 0,
		VISPRIVATE_Collapsed = 0x1 << 1,
		VISPRIVATE_Hidden = 0x1 << 2,
		VISPRIVATE_SelfHitTestVisible = 0x1 << 3,
		VISPRIVATE_ChildrenHitTestVisible = 0x1 << 4,

		VIS_Visible = VISPRIVATE_Visible | VISPRIVATE_SelfHitTestVisible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_Collapsed = VISPRIVATE_Collapsed,
		VIS_Hidden = VISPRIVATE_Hidden,
		VIS_HitTestInvisible = VISPRIVATE_Visible,
		VIS_SelfHitTestInvisible = VISPRIVATE_Visible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_All = VISPRIVATE_Visible | VISPRIVATE_Hidden | VISPRIVATE_Collapsed | VISPRIVATE_SelfHitTestVisible | VISPRIVATE_ChildrenHitTestVisible,
	};

	explicit EVisibility(Private InValue)
		: Value(InValue)
	{
	}
};
