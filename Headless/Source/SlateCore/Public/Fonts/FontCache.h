// Font faces, loaded once through FreeType and shared by measuring and drawing, so that drawn
// text occupies exactly the space it was measured to need.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Fonts/SlateFontInfo.h"
#include "HAL/Platform.h"
#include "Templates/UniquePtr.h"

// RenderDPI matches the engine: fonts are authored in points and rendered at 96 DPI.
namespace FontConstants
{
	inline constexpr uint32 RenderDPI = 96;
}

// One glyph of a laid-out line: the pen position it is drawn at and how far it moves the pen,
// in pixels at the scale the line was shaped for.
struct FShapedGlyphEntry
{
	uint32 GlyphIndex = 0;
	float XOffset = 0.0f;
	float XAdvance = 0.0f;
};

// A glyph rasterised to 8-bit coverage; bearings place the bitmap relative to the pen on the baseline.
struct FSlateGlyphBitmap
{
	int32 Width = 0;
	int32 Height = 0;
	int32 BearingX = 0;
	int32 BearingY = 0;
	TArray<uint8> Coverage;
};

class FSlateFontCache
{
public:
	SLATECORE_API FSlateFontCache();
	SLATECORE_API ~FSlateFontCache();

	FSlateFontCache(const FSlateFontCache&) = delete;
	FSlateFontCache& operator=(const FSlateFontCache&) = delete;

	// Glyphs of Text[StartIndex, EndIndex) on one line, with kerning and letter spacing applied.
	SLATECORE_API TArray<FShapedGlyphEntry> ShapeLine(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		float FontScale) const;

	// Line height: from the top of the ascender to the bottom of the descender, in pixels.
	SLATECORE_API uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const;
	// Distance from the baseline to the bottom of the line; negative, as the engine reports it.
	SLATECORE_API int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const;

	SLATECORE_API bool RasterizeGlyph(uint32 GlyphIndex, const FSlateFontInfo& InFontInfo, float FontScale, FSlateGlyphBitmap& OutBitmap) const;

	// The font file a typeface resolves to; the one place the stand-in for "Roboto" is named.
	static SLATECORE_API const ANSICHAR* GetFontFilePath(const FName& TypefaceFontName);

private:
	struct FImpl;
	TUniquePtr<FImpl> Impl;
};
