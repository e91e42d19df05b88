#include "Fonts/FontMeasure.h"

TSharedRef<FSlateFontMeasure> FSlateFontMeasure::Create(const TSharedRef<FSlateFontCache>& FontCache)
{
	return MakeShared<FSlateFontMeasure>(FontCache);
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(Text, 0, Text.Len(), InFontInfo, true, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
	bool IncludeKerningWithPrecedingChar, float FontScale) const
{
	EndIndex = FMath::Min(EndIndex, Text.Len());
	const double LineHeight = GetMaxCharacterHeight(InFontInfo, FontScale);

	double MaxWidth = 0.0;
	int32 NumLines = 1;
	int32 LineStart = StartIndex;
	for (int32 Index = StartIndex; Index <= EndIndex; ++Index)
	{
		if (Index == EndIndex || Text[Index] == TEXT('\n'))
		{
			const TArray<FShapedGlyphEntry> Glyphs = FontCache->ShapeLine(Text, LineStart, Index, InFontInfo, FontScale);
			if (Glyphs.Num() > 0)
			{
				const FShapedGlyphEntry& Last = Glyphs.Last();
				MaxWidth = FMath::Max(MaxWidth, double(Last.XOffset + Last.XAdvance));
			}
			if (Index < EndIndex)
			{
				++NumLines;
			}
			LineStart = Index + 1;
		}
	}
	return FVector2D(MaxWidth, LineHeight * NumLines);
}

uint16 FSlateFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FontCache->GetMaxCharacterHeight(InFontInfo, FontScale);
}

int16 FSlateFontMeasure::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FontCache->GetBaseline(InFontInfo, FontScale);
}
