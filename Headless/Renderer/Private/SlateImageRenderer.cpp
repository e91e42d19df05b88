#include "Headless/SlateImageRenderer.h"

#include "Engine/Texture2D.h"
#include "Fonts/FontCache.h"
#include "ImageCanvas.h"
#include "Rendering/DrawElements.h"
#include "Widgets/SWindow.h"

using namespace UE::HeadlessRenderer::Private;

namespace
{
	// Where a local coordinate of a nine-sliced brush falls in the image (0 to 1): the edges keep
	// their size, the middle stretches. Also says whether it is in the middle part.
	float NineSlice(float Local, float Size, float StartLocal, float EndLocal, float StartUV, float EndUV, bool& bOutMiddle)
	{
		// Edges wider than the rectangle share it in proportion, as the engine's batcher does.
		if (StartLocal + EndLocal > Size && StartLocal + EndLocal > 0.0f)
		{
			const float Shrink = Size / (StartLocal + EndLocal);
			StartLocal *= Shrink;
			EndLocal *= Shrink;
		}
		bOutMiddle = false;
		if (Local < StartLocal)
		{
			return Local / StartLocal * StartUV;
		}
		if (Local > Size - EndLocal)
		{
			return 1.0f - (Size - Local) / EndLocal * EndUV;
		}
		bOutMiddle = true;
		const float Middle = Size - StartLocal - EndLocal;
		return Middle > 0.0f ? StartUV + (Local - StartLocal) / Middle * (1.0f - StartUV - EndUV) : StartUV;
	}

	// Bilinear, clamped to the edge texels.
	FPremultipliedColor SampleTexture(const UTexture2D& Texture, float U, float V)
	{
		const int32 SizeX = Texture.GetSizeX();
		const int32 SizeY = Texture.GetSizeY();
		const float X = U * float(SizeX) - 0.5f;
		const float Y = V * float(SizeY) - 0.5f;
		const int32 X0 = FMath::FloorToInt(X);
		const int32 Y0 = FMath::FloorToInt(Y);
		const float FracX = X - float(X0);
		const float FracY = Y - float(Y0);
		const TArray<uint8>& Pixels = Texture.GetHeadlessPixelsRGBA8();
		auto Texel = [&](int32 TexelX, int32 TexelY)
		{
			const int32 Index = (FMath::Clamp(TexelY, 0, SizeY - 1) * SizeX + FMath::Clamp(TexelX, 0, SizeX - 1)) * 4;
			return FPremultipliedColor::FromSRGB(Pixels[Index], Pixels[Index + 1], Pixels[Index + 2], Pixels[Index + 3]);
		};
		auto Lerp = [](const FPremultipliedColor& A, const FPremultipliedColor& B, float Alpha)
		{
			return FPremultipliedColor{ A.R + (B.R - A.R) * Alpha, A.G + (B.G - A.G) * Alpha, A.B + (B.B - A.B) * Alpha, A.A + (B.A - A.A) * Alpha };
		};
		return Lerp(Lerp(Texel(X0, Y0), Texel(X0 + 1, Y0), FracX), Lerp(Texel(X0, Y0 + 1), Texel(X0 + 1, Y0 + 1), FracX), FracY);
	}

	void DrawBrush(FImageCanvas& Canvas, const FSlateDrawElement& Element)
	{
		const FSlateBrush& Brush = Element.GetBrush();
		const FVector2f Size = Element.GetLocalSize();
		const FPremultipliedColor Tint = FPremultipliedColor::FromLinear(Element.GetTint());
		const UTexture2D* Texture = Cast<UTexture2D>(Brush.GetResourceObject());
		if (Texture != nullptr && (Texture->GetSizeX() <= 0 || Texture->GetSizeY() <= 0))
		{
			Texture = nullptr;
		}

		const bool bBorder = Element.GetElementType() == FSlateDrawElement::EElementType::ET_Border;
		const bool bSliced = bBorder || Brush.DrawAs == ESlateBrushDrawType::Box;
		const FMargin& Margin = Brush.GetMargin();
		const FVector2f ImageSize = Brush.ImageSize;
		// Without a texture, slicing only moves texture coordinates: the tint covers the whole box.
		if (Texture == nullptr && !bBorder)
		{
			Canvas.FillSolidQuad(Element.GetRenderTransform(), Size, Tint);
			return;
		}

		Canvas.FillQuad(Element.GetRenderTransform(), Size, [&](const FVector2f& Local) -> FPremultipliedColor
		{
			float U = Local.X / Size.X;
			float V = Local.Y / Size.Y;
			if (bSliced)
			{
				bool bMiddleX = false;
				bool bMiddleY = false;
				U = NineSlice(Local.X, Size.X, Margin.Left * ImageSize.X, Margin.Right * ImageSize.X, Margin.Left, Margin.Right, bMiddleX);
				V = NineSlice(Local.Y, Size.Y, Margin.Top * ImageSize.Y, Margin.Bottom * ImageSize.Y, Margin.Top, Margin.Bottom, bMiddleY);
				// A border draws its edges only.
				if (bBorder && bMiddleX && bMiddleY)
				{
					return FPremultipliedColor();
				}
			}
			return Texture ? SampleTexture(*Texture, U, V) * Tint : Tint;
		});
	}

	// One line of glyph coverage, in pixels at the element's scale, with its offset from the element's origin.
	struct FLineBitmap
	{
		int32 OriginX = 0;
		int32 OriginY = 0;
		int32 Width = 0;
		int32 Height = 0;
		TArray<uint8> Coverage;
	};

	FLineBitmap RasterizeLine(const FSlateFontCache& Fonts, const FString& Line, const FSlateFontInfo& Font, float Scale, int32 Baseline)
	{
		struct FPlacedGlyph
		{
			FSlateGlyphBitmap Bitmap;
			int32 Left = 0;
			int32 Top = 0;
		};
		TArray<FPlacedGlyph> Placed;
		FLineBitmap Result;
		int32 Right = 0;
		int32 Bottom = 0;
		for (const FShapedGlyphEntry& Glyph : Fonts.ShapeLine(Line, 0, Line.Len(), Font, Scale))
		{
			FPlacedGlyph Entry;
			if (!Fonts.RasterizeGlyph(Glyph.GlyphIndex, Font, Scale, Entry.Bitmap) || Entry.Bitmap.Width == 0 || Entry.Bitmap.Height == 0)
			{
				continue;
			}
			Entry.Left = FMath::RoundToInt(Glyph.XOffset) + Entry.Bitmap.BearingX;
			Entry.Top = Baseline - Entry.Bitmap.BearingY;
			if (Placed.IsEmpty())
			{
				Result.OriginX = Entry.Left;
				Result.OriginY = Entry.Top;
			}
			Result.OriginX = FMath::Min(Result.OriginX, Entry.Left);
			Result.OriginY = FMath::Min(Result.OriginY, Entry.Top);
			Right = Placed.IsEmpty() ? Entry.Left + Entry.Bitmap.Width : FMath::Max(Right, Entry.Left + Entry.Bitmap.Width);
			Bottom = Placed.IsEmpty() ? Entry.Top + Entry.Bitmap.Height : FMath::Max(Bottom, Entry.Top + Entry.Bitmap.Height);
			Placed.Add(MoveTemp(Entry));
		}
		if (Placed.IsEmpty())
		{
			return Result;
		}
		Result.Width = Right - Result.OriginX;
		Result.Height = Bottom - Result.OriginY;
		Result.Coverage.SetNumZeroed(Result.Width * Result.Height);
		for (const FPlacedGlyph& Entry : Placed)
		{
			for (int32 Row = 0; Row < Entry.Bitmap.Height; ++Row)
			{
				for (int32 Column = 0; Column < Entry.Bitmap.Width; ++Column)
				{
					uint8& Target = Result.Coverage[(Entry.Top - Result.OriginY + Row) * Result.Width + Entry.Left - Result.OriginX + Column];
					// Overlapping glyphs (kerned pairs) must not darken where they meet.
					Target = FMath::Max(Target, Entry.Bitmap.Coverage[Row * Entry.Bitmap.Width + Column]);
				}
			}
		}
		return Result;
	}

	void DrawText(FImageCanvas& Canvas, const FSlateDrawElement& Element, const FSlateFontCache& Fonts)
	{
		// Glyphs are rasterised at the layout scale the text was measured at, so each lands on whole pixels.
		const float Scale = Element.GetScale();
		if (Scale <= 0.0f)
		{
			return;
		}
		const FSlateFontInfo& Font = Element.GetFontInfo();
		const int32 LineHeight = int32(Fonts.GetMaxCharacterHeight(Font, Scale));
		const int32 Baseline = LineHeight + int32(Fonts.GetBaseline(Font, Scale));
		const FPremultipliedColor Tint = FPremultipliedColor::FromLinear(Element.GetTint());
		const FSlateRenderTransform& RenderTransform = Element.GetRenderTransform();
		float M00, M01, M10, M11;
		RenderTransform.GetMatrix().GetMatrix(M00, M01, M10, M11);
		const bool bSnap = M01 == 0.0f && M10 == 0.0f && !EnumHasAnyFlags(Element.GetDrawEffects(), ESlateDrawEffect::NoPixelSnapping);

		TArray<FString> Lines;
		Element.GetText().ParseIntoArray(Lines, TEXT("\n"), false);
		for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
		{
			const FLineBitmap Bitmap = RasterizeLine(Fonts, Lines[LineIndex], Font, Scale, Baseline + LineIndex * LineHeight);
			if (Bitmap.Width == 0)
			{
				continue;
			}
			// Bitmap pixels to the element's local units, then on through the element's transform.
			FSlateRenderTransform BitmapToCanvas = FSlateRenderTransform(1.0f / Scale, FVector2f(float(Bitmap.OriginX), float(Bitmap.OriginY)) / Scale)
				.Concatenate(RenderTransform);
			if (bSnap)
			{
				const FVector2f Translation = BitmapToCanvas.GetTranslation();
				BitmapToCanvas.SetTranslation(FVector2f(FMath::RoundToFloat(Translation.X), FMath::RoundToFloat(Translation.Y)));
			}
			Canvas.FillQuad(BitmapToCanvas, FVector2f(float(Bitmap.Width), float(Bitmap.Height)), [&Bitmap, &Tint](const FVector2f& Local)
			{
				const float X = Local.X - 0.5f;
				const float Y = Local.Y - 0.5f;
				const int32 X0 = FMath::FloorToInt(X);
				const int32 Y0 = FMath::FloorToInt(Y);
				auto Cell = [&Bitmap](int32 CellX, int32 CellY)
				{
					if (CellX < 0 || CellY < 0 || CellX >= Bitmap.Width || CellY >= Bitmap.Height)
					{
						return 0.0f;
					}
					return float(Bitmap.Coverage[CellY * Bitmap.Width + CellX]) / 255.0f;
				};
				const float FracX = X - float(X0);
				const float FracY = Y - float(Y0);
				const float Top = Cell(X0, Y0) + (Cell(X0 + 1, Y0) - Cell(X0, Y0)) * FracX;
				const float Lower = Cell(X0, Y0 + 1) + (Cell(X0 + 1, Y0 + 1) - Cell(X0, Y0 + 1)) * FracX;
				return Tint * (Top + (Lower - Top) * FracY);
			});
		}
	}
}

FHeadlessImage FSlateImageRenderer::RenderElementList(const FSlateWindowElementList& ElementList, FIntPoint SizeInPixels, const FLinearColor& ClearColor) const
{
	FImageCanvas Canvas(SizeInPixels.X, SizeInPixels.Y, ClearColor);
	const TArray<FSlateDrawElement>& Elements = ElementList.GetDrawElements();
	TArray<int32> Order;
	Order.Reserve(Elements.Num());
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		Order.Add(Index);
	}
	// Layers first; within a layer, the order the widgets painted in.
	Order.StableSort([&Elements](int32 A, int32 B) { return Elements[A].GetLayer() < Elements[B].GetLayer(); });

	const FSlateFontCache& Fonts = *GetFontCache();
	for (const int32 Index : Order)
	{
		const FSlateDrawElement& Element = Elements[Index];
		if (Element.GetElementType() == FSlateDrawElement::EElementType::ET_Text)
		{
			DrawText(Canvas, Element, Fonts);
		}
		else
		{
			DrawBrush(Canvas, Element);
		}
	}
	return Canvas.ToImage();
}

void FSlateImageRenderer::DrawWindows(FSlateDrawBuffer& InWindowDrawBuffer)
{
	LastImages.Empty();
	for (const TSharedRef<FSlateWindowElementList>& ElementList : InWindowDrawBuffer.GetWindowElementLists())
	{
		const TSharedPtr<SWindow> Window = ElementList->GetPaintWindow();
		if (!Window.IsValid())
		{
			continue;
		}
		const FVector2D Size = Window->GetSizeInScreen();
		FWindowImage& Entry = LastImages.AddDefaulted_GetRef();
		Entry.Window = Window;
		Entry.Image = RenderElementList(*ElementList, FIntPoint(FMath::RoundToInt(Size.X), FMath::RoundToInt(Size.Y)), WindowClearColor);
	}
}

const FHeadlessImage* FSlateImageRenderer::GetLastImage(const SWindow& Window) const
{
	for (const FWindowImage& Entry : LastImages)
	{
		if (Entry.Window.Pin().Get() == &Window)
		{
			return &Entry.Image;
		}
	}
	return nullptr;
}
