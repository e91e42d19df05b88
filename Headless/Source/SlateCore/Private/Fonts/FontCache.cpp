#include "Fonts/FontCache.h"

#include "Misc/AssertionMacros.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <map>
#include <string>
#include <unordered_map>

namespace
{
	// DejaVu Sans stands in for the engine's default font, Roboto.
	constexpr const ANSICHAR* RegularFontPath = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
	constexpr const ANSICHAR* BoldFontPath = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";
	constexpr const ANSICHAR* ItalicFontPath = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Oblique.ttf";
	constexpr const ANSICHAR* BoldItalicFontPath = "/usr/share/fonts/truetype/dejavu/DejaVuSans-BoldOblique.ttf";

	FT_F26Dot6 RoundTo26Dot6Pixel(FT_Pos Value)
	{
		return (Value + 32) & ~63;
	}

	// TCHAR is UTF-16: surrogate pairs make one code point.
	uint32 NextCodepoint(const FString& Text, int32& Index, int32 EndIndex)
	{
		const uint32 First = uint32(Text[Index++]);
		if (First >= 0xD800 && First <= 0xDBFF && Index < EndIndex)
		{
			const uint32 Second = uint32(Text[Index]);
			if (Second >= 0xDC00 && Second <= 0xDFFF)
			{
				++Index;
				return 0x10000 + ((First - 0xD800) << 10) + (Second - 0xDC00);
			}
		}
		return First;
	}
}

struct FSlateFontCache::FImpl
{
	struct FFace
	{
		FT_Face Face = nullptr;
		/** The size last set on the face: setting it again would run the font's size program again. */
		FT_F26Dot6 Size = -1;
		/** Slot of this face in advance keys. */
		uint64 Index = 0;
	};

	FT_Library Library = nullptr;
	mutable std::map<std::string, FFace> Faces;
	/** Pen advances already measured, by face, size and glyph: text is measured again on every layout. */
	mutable std::unordered_map<uint64, float> Advances;

	~FImpl()
	{
		for (auto& [Path, Entry] : Faces)
		{
			FT_Done_Face(Entry.Face);
		}
		if (Library)
		{
			FT_Done_FreeType(Library);
		}
	}

	// The face for the font, sized in points at the render DPI times the scale, as the engine sizes it.
	FFace& GetSizedFace(const FSlateFontInfo& InFontInfo, float FontScale) const
	{
		const std::string Path = GetFontFilePath(InFontInfo.TypefaceFontName);
		FFace& Entry = Faces[Path];
		if (!Entry.Face)
		{
			const FT_Error Error = FT_New_Face(Library, Path.c_str(), 0, &Entry.Face);
			checkf(Error == 0, "Cannot load the default font face");
			Entry.Index = Faces.size() - 1;
		}
		const float Points = FMath::Max(InFontInfo.Size * FontScale, 0.0f);
		const FT_F26Dot6 Size = FT_F26Dot6(Points * 64.0f + 0.5f);
		if (Size != Entry.Size)
		{
			FT_Set_Char_Size(Entry.Face, 0, Size, FontConstants::RenderDPI, FontConstants::RenderDPI);
			Entry.Size = Size;
		}
		return Entry;
	}

	/** Glyphs rasterised already, by the same key, as the engine keeps them in its font atlas. */
	mutable std::unordered_map<uint64, FSlateGlyphBitmap> Bitmaps;

	/** One glyph of one face at one size. */
	static uint64 GlyphKey(const FFace& Entry, uint32 GlyphIndex)
	{
		return (Entry.Index << 56) | (uint64(uint32(Entry.Size)) << 24) | (GlyphIndex & 0xFFFFFFu);
	}

	/** The hinted advance of a glyph at the face's current size, in whole pixels. */
	float GetAdvance(const FFace& Entry, uint32 GlyphIndex) const
	{
		const uint64 Key = GlyphKey(Entry, GlyphIndex);
		if (const auto Found = Advances.find(Key); Found != Advances.end())
		{
			return Found->second;
		}
		float Advance = 0.0f;
		if (FT_Load_Glyph(Entry.Face, GlyphIndex, FT_LOAD_DEFAULT) == 0)
		{
			Advance = float(RoundTo26Dot6Pixel(Entry.Face->glyph->advance.x) >> 6);
		}
		Advances.emplace(Key, Advance);
		return Advance;
	}
};

FSlateFontCache::FSlateFontCache()
	: Impl(MakeUnique<FImpl>())
{
	const FT_Error Error = FT_Init_FreeType(&Impl->Library);
	checkf(Error == 0, "FreeType failed to initialise");
}

FSlateFontCache::~FSlateFontCache() = default;

const ANSICHAR* FSlateFontCache::GetFontFilePath(const FName& TypefaceFontName)
{
	const FString Typeface = TypefaceFontName.ToString();
	const bool bBold = Typeface.Contains(TEXT("Bold")) || Typeface.Contains(TEXT("Black"));
	const bool bItalic = Typeface.Contains(TEXT("Italic"));
	if (bBold)
	{
		return bItalic ? BoldItalicFontPath : BoldFontPath;
	}
	return bItalic ? ItalicFontPath : RegularFontPath;
}

TArray<FShapedGlyphEntry> FSlateFontCache::ShapeLine(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
	float FontScale) const
{
	TArray<FShapedGlyphEntry> Glyphs;
	EndIndex = FMath::Min(EndIndex, Text.Len());
	if (StartIndex >= EndIndex)
	{
		return Glyphs;
	}

	const FImpl::FFace& Entry = Impl->GetSizedFace(InFontInfo, FontScale);
	FT_Face Face = Entry.Face;
	const bool bKerning = FT_HAS_KERNING(Face);
	// Letter spacing is in thousandths of an em; the em in pixels is the face's pixel size.
	const float EmPixels = InFontInfo.Size * FontScale * float(FontConstants::RenderDPI) / 72.0f;
	const float LetterSpacingPixels = float(InFontInfo.LetterSpacing) * EmPixels / 1000.0f;

	float PenX = 0.0f;
	uint32 PreviousGlyph = 0;
	for (int32 Index = StartIndex; Index < EndIndex;)
	{
		const uint32 Codepoint = NextCodepoint(Text, Index, EndIndex);
		const uint32 GlyphIndex = FT_Get_Char_Index(Face, Codepoint);
		if (Glyphs.Num() > 0)
		{
			PenX += LetterSpacingPixels;
			if (bKerning && PreviousGlyph != 0 && GlyphIndex != 0)
			{
				FT_Vector Delta;
				if (FT_Get_Kerning(Face, PreviousGlyph, GlyphIndex, FT_KERNING_DEFAULT, &Delta) == 0)
				{
					PenX += float(RoundTo26Dot6Pixel(Delta.x) >> 6);
				}
			}
		}

		FShapedGlyphEntry& Glyph = Glyphs.AddDefaulted_GetRef();
		Glyph.GlyphIndex = GlyphIndex;
		Glyph.XOffset = PenX;
		Glyph.XAdvance = Impl->GetAdvance(Entry, GlyphIndex);
		PenX += Glyph.XAdvance;
		PreviousGlyph = GlyphIndex;
	}
	return Glyphs;
}

uint16 FSlateFontCache::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	FT_Face Face = Impl->GetSizedFace(InFontInfo, FontScale).Face;
	const FT_Pos Height = RoundTo26Dot6Pixel(Face->size->metrics.ascender) - RoundTo26Dot6Pixel(Face->size->metrics.descender);
	return uint16(Height >> 6);
}

int16 FSlateFontCache::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	FT_Face Face = Impl->GetSizedFace(InFontInfo, FontScale).Face;
	return int16(RoundTo26Dot6Pixel(Face->size->metrics.descender) >> 6);
}

bool FSlateFontCache::RasterizeGlyph(uint32 GlyphIndex, const FSlateFontInfo& InFontInfo, float FontScale, FSlateGlyphBitmap& OutBitmap) const
{
	const FImpl::FFace& Entry = Impl->GetSizedFace(InFontInfo, FontScale);
	const uint64 Key = Impl->GlyphKey(Entry, GlyphIndex);
	if (const auto Found = Impl->Bitmaps.find(Key); Found != Impl->Bitmaps.end())
	{
		OutBitmap = Found->second;
		return true;
	}
	FT_Face Face = Entry.Face;
	if (FT_Load_Glyph(Face, GlyphIndex, FT_LOAD_RENDER) != 0)
	{
		return false;
	}
	const FT_Bitmap& Bitmap = Face->glyph->bitmap;
	OutBitmap.Width = int32(Bitmap.width);
	OutBitmap.Height = int32(Bitmap.rows);
	OutBitmap.BearingX = Face->glyph->bitmap_left;
	OutBitmap.BearingY = Face->glyph->bitmap_top;
	OutBitmap.Coverage.SetNumZeroed(OutBitmap.Width * OutBitmap.Height);
	for (int32 Row = 0; Row < OutBitmap.Height; ++Row)
	{
		const uint8* Source = Bitmap.buffer + Row * Bitmap.pitch;
		for (int32 Column = 0; Column < OutBitmap.Width; ++Column)
		{
			OutBitmap.Coverage[Row * OutBitmap.Width + Column] = Source[Column];
		}
	}
	Impl->Bitmaps.emplace(Key, OutBitmap);
	return true;
}
