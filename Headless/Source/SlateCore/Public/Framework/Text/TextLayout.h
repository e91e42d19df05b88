// Options of a laid-out block of text.
#pragma once

#include "HAL/Platform.h"

namespace ETextJustify
{
	enum Type : int
	{
		Left,
		Center,
		Right,
		InvariantLeft,
		InvariantRight,
	};
}

enum class ETextWrappingPolicy : uint8
{
	DefaultWrapping,
	AllowPerCharacterWrapping,
};
