// Measures text in pixels at a given font scale, with the faces of the font cache.
#pragma once

#include "Containers/UnrealString.h"
#include "Fonts/FontCache.h"
#include "Fonts/SlateFontInfo.h"
#include "Math/Vector2D.h"
#include "Templates/SharedPointer.h"

class FSlateFontMeasure
{
public:
	static SLATECORE_API TSharedRef<FSlateFontMeasure> Create(const TSharedRef<FSlateFontCache>& FontCache);

	// Width of the widest line and height of all lines; an empty string is one empty line.
	SLATECORE_API FVector2D Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	SLATECORE_API FVector2D Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const;

	SLATECORE_API uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	SLATECORE_API int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	const TSharedRef<FSlateFontCache>& GetFontCache() const
	{
		return FontCache;
	}

	explicit FSlateFontMeasure(const TSharedRef<FSlateFontCache>& InFontCache)
		: FontCache(InFontCache)
	{
	}

private:
	TSharedRef<FSlateFontCache> FontCache;
};
