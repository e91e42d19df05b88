// The engine's built-in style: here, only its default font.
#pragma once

#include "Fonts/SlateFontInfo.h"

class FCoreStyle
{
public:
	// The default family ("Roboto" in the engine) with the given typeface and size in points.
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const float InSize,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings())
	{
		return FSlateFontInfo(nullptr, InSize, InTypefaceFontName, InOutlineSettings);
	}
};
