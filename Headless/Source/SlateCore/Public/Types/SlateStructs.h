// Small value types of layout arguments.
#pragma once

#include "HAL/Platform.h"

// A size that may be left unset, so the widget falls back to its content's desired size.
struct FOptionalSize
{
	FOptionalSize()
		: Size(Unspecified)
	{
	}

	FOptionalSize(const float SpecifiedSize)
		: Size(SpecifiedSize)
	{
	}

	bool IsSet() const
	{
		return Size != Unspecified;
	}

	float Get() const
	{
		return Size;
	}

	bool operator==(const FOptionalSize& Other) const
	{
		return Size == Other.Size;
	}

private:
	// Sizes are never negative, so -1 is free to mean "not set", as the engine encodes it.
	static constexpr float Unspecified = -1.0f;

	float Size;
};
