// Which font to draw text with, at what size. Sizes are in points; Slate renders fonts at
// 96 DPI, so a glyph's em is Size * 96 / 72 pixels at a layout scale of one.
#pragma once

#include "HAL/Platform.h"
#include "Math/Color.h"
#include "UObject/NameTypes.h"

class UObject;

struct FFontOutlineSettings
{
	int32 OutlineSize = 0;
	FLinearColor OutlineColor = FLinearColor::Black;

	bool operator==(const FFontOutlineSettings& Other) const
	{
		return OutlineSize == Other.OutlineSize && OutlineColor == Other.OutlineColor;
	}
};

struct FSlateFontInfo
{
	// The font asset; null selects the default font.
	const UObject* FontObject;
	FFontOutlineSettings OutlineSettings;
	// The face within the font family ("Regular", "Bold", "Italic"...).
	FName TypefaceFontName;
	// Size in points.
	float Size;
	// Extra space between glyphs, in thousandths of an em.
	int32 LetterSpacing;
	float SkewAmount;

	FSlateFontInfo()
		: FontObject(nullptr)
		, Size(24.0f)
		, LetterSpacing(0)
		, SkewAmount(0.0f)
	{
	}

	FSlateFontInfo(const UObject* InFontObject, const float InSize, const FName& InTypefaceFontName = NAME_None,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings())
		: FontObject(InFontObject)
		, OutlineSettings(InOutlineSettings)
		, TypefaceFontName(InTypefaceFontName)
		, Size(InSize)
		, LetterSpacing(0)
		, SkewAmount(0.0f)
	{
	}

	bool HasValidFont() const
	{
		// Every typeface resolves to a face of the default family.
		return true;
	}

	bool IsIdenticalTo(const FSlateFontInfo& Other) const
	{
		return FontObject == Other.FontObject && OutlineSettings == Other.OutlineSettings && TypefaceFontName == Other.TypefaceFontName
			&& Size == Other.Size && LetterSpacing == Other.LetterSpacing && SkewAmount == Other.SkewAmount;
	}

	bool operator==(const FSlateFontInfo& Other) const
	{
		return IsIdenticalTo(Other);
	}

	bool operator!=(const FSlateFontInfo& Other) const
	{
		return !IsIdenticalTo(Other);
	}
};
