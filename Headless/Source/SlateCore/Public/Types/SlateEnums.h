// Enumerations shared across Slate.
#pragma once

#include "HAL/Platform.h"

enum EOrientation : int
{
	Orient_Horizontal,
	Orient_Vertical,
	Orient_MAX,
};

// Left and Top share a value (as do Right and Bottom) so layout code can treat both axes alike.
enum EHorizontalAlignment : int
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right,
};

enum EVerticalAlignment : int
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom,
};

enum class EFlowDirection : uint8
{
	LeftToRight,
	RightToLeft,
};
