#include "Widgets/Text/STextBlock.h"

#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

STextBlock::STextBlock()
	: Font(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9.0f))
	, ColorAndOpacity(FSlateColor::UseForeground())
	, Justification(ETextJustify::Left)
	, AutoWrapText(false)
	, WrapTextAt(0.0f)
	, Margin(FMargin(0.0f))
	, LineHeightPercentage(1.0f)
	, MinDesiredWidth(0.0f)
{
}

void STextBlock::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	Justification = InArgs._Justification;
	AutoWrapText = InArgs._AutoWrapText;
	WrapTextAt = InArgs._WrapTextAt;
	Margin = InArgs._Margin;
	LineHeightPercentage = InArgs._LineHeightPercentage;
	MinDesiredWidth = InArgs._MinDesiredWidth;
}

void STextBlock::SetText(TAttribute<FText> InText)
{
	BoundText = MoveTemp(InText);
}

void STextBlock::SetFont(TAttribute<FSlateFontInfo> InFont)
{
	Font = MoveTemp(InFont);
}

void STextBlock::SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity)
{
	ColorAndOpacity = MoveTemp(InColorAndOpacity);
}

void STextBlock::SetJustification(TAttribute<ETextJustify::Type> InJustification)
{
	Justification = MoveTemp(InJustification);
}

void STextBlock::SetAutoWrapText(TAttribute<bool> InAutoWrapText)
{
	AutoWrapText = MoveTemp(InAutoWrapText);
}

void STextBlock::SetWrapTextAt(TAttribute<float> InWrapTextAt)
{
	WrapTextAt = MoveTemp(InWrapTextAt);
}

void STextBlock::SetMargin(TAttribute<FMargin> InMargin)
{
	Margin = MoveTemp(InMargin);
}

void STextBlock::SetLineHeightPercentage(TAttribute<float> InLineHeightPercentage)
{
	LineHeightPercentage = MoveTemp(InLineHeightPercentage);
}

void STextBlock::SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth)
{
	MinDesiredWidth = MoveTemp(InMinDesiredWidth);
}

float STextBlock::GetWrappingWidth() const
{
	float WrappingWidth = WrapTextAt.Get(0.0f);
	if (AutoWrapText.Get(false) && CachedAutoWrapTextWidth > 0.0f)
	{
		const FMargin TextMargin = Margin.Get(FMargin());
		const float AvailableWidth = FMath::Max(CachedAutoWrapTextWidth - TextMargin.Left - TextMargin.Right, 1.0f);
		WrappingWidth = WrappingWidth >= 1.0f ? FMath::Min(WrappingWidth, AvailableWidth) : AvailableWidth;
	}
	return WrappingWidth;
}

void STextBlock::LayOutLines(const FString& String, float WrappingWidth, float LayoutScale) const
{
	// Glyphs are measured at the size they will be drawn, then brought back to slate units.
	const float Scale = LayoutScale > 0.0f ? LayoutScale : 1.0f;
	const FSlateFontInfo FontInfo = Font.Get();
	const TSharedRef<FSlateFontMeasure> FontMeasure = FSlateApplication::Get().GetRenderer()->GetFontMeasureService();
	auto MeasureRun = [&](int32 Start, int32 End)
	{
		return float(FontMeasure->Measure(String, Start, End, FontInfo, true, Scale).X) / Scale;
	};

	LineHeight = float(FontMeasure->GetMaxCharacterHeight(FontInfo, Scale)) / Scale * LineHeightPercentage.Get(1.0f);
	Lines.Reset();

	const int32 Length = String.Len();
	int32 ParagraphStart = 0;
	for (int32 ParagraphEnd = 0; ParagraphEnd <= Length; ++ParagraphEnd)
	{
		if (ParagraphEnd < Length && String[ParagraphEnd] != TEXT('\n'))
		{
			continue;
		}
		if (WrappingWidth <= 0.0f)
		{
			Lines.Add({ParagraphStart, ParagraphEnd, MeasureRun(ParagraphStart, ParagraphEnd)});
			ParagraphStart = ParagraphEnd + 1;
			continue;
		}

		// Greedy word wrap: each line takes as many whole words as fit, and at least one.
		int32 LineStart = ParagraphStart;
		for (;;)
		{
			int32 LineEnd = INDEX_NONE;
			float LineWidth = 0.0f;
			for (int32 Index = LineStart; Index <= ParagraphEnd; ++Index)
			{
				if ((Index < ParagraphEnd && String[Index] != TEXT(' ')) || Index == LineStart)
				{
					continue;
				}
				const float Width = MeasureRun(LineStart, Index);
				if (LineEnd != INDEX_NONE && Width > WrappingWidth)
				{
					break;
				}
				LineEnd = Index;
				LineWidth = Width;
				if (Width > WrappingWidth)
				{
					break;
				}
			}
			if (LineEnd == INDEX_NONE)
			{
				LineEnd = ParagraphEnd;
			}
			Lines.Add({LineStart, LineEnd, LineWidth});

			int32 Next = LineEnd;
			while (Next < ParagraphEnd && String[Next] == TEXT(' '))
			{
				++Next;
			}
			if (Next >= ParagraphEnd)
			{
				break;
			}
			LineStart = Next;
		}
		ParagraphStart = ParagraphEnd + 1;
	}
}

FVector2D STextBlock::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	LayOutLines(BoundText.Get().ToString(), GetWrappingWidth(), LayoutScaleMultiplier);
	float MaxLineWidth = 0.0f;
	for (const FLine& Line : Lines)
	{
		MaxLineWidth = FMath::Max(MaxLineWidth, Line.Width);
	}
	const FMargin TextMargin = Margin.Get(FMargin());
	const float Width = FMath::Max(MinDesiredWidth.Get(0.0f), MaxLineWidth + TextMargin.Left + TextMargin.Right);
	return FVector2D(Width, LineHeight * float(Lines.Num()) + TextMargin.Top + TextMargin.Bottom);
}

int32 STextBlock::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	CachedAutoWrapTextWidth = float(AllottedGeometry.GetLocalSize().X);

	const FString String = BoundText.Get().ToString();
	const FSlateFontInfo FontInfo = Font.Get();
	const FLinearColor Tint = ColorAndOpacity.Get().GetColor(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint();
	const FMargin TextMargin = Margin.Get(FMargin());
	const float ContentWidth = float(AllottedGeometry.GetLocalSize().X) - TextMargin.Left - TextMargin.Right;
	const ETextJustify::Type Justify = Justification.Get(ETextJustify::Left);

	for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
	{
		const FLine& Line = Lines[LineIndex];
		if (Line.End > String.Len())
		{
			// The text changed after the last layout; the next prepass lays it out again.
			break;
		}
		float X = TextMargin.Left;
		if (Justify == ETextJustify::Center)
		{
			X += (ContentWidth - Line.Width) / 2.0f;
		}
		else if (Justify == ETextJustify::Right || Justify == ETextJustify::InvariantRight)
		{
			X += ContentWidth - Line.Width;
		}
		const float Y = TextMargin.Top + LineHeight * float(LineIndex);
		const FPaintGeometry LineGeometry =
			AllottedGeometry.ToPaintGeometry(FVector2D(Line.Width, LineHeight), FSlateLayoutTransform(FVector2D(X, Y)));
		FSlateDrawElement::MakeText(OutDrawElements, uint32(LayerId), LineGeometry, String.Mid(Line.Start, Line.End - Line.Start), FontInfo,
			ESlateDrawEffect::None, Tint);
	}
	return LayerId;
}
