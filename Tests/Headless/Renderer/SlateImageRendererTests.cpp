#include "Engine/Texture2D.h"
#include "Fonts/FontMeasure.h"
#include "Headless/SlateImageRenderer.h"
#include "Rendering/DrawElements.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{
	constexpr FColor Background(0, 0, 0, 255);

	FPaintGeometry Geometry(FVector2f Position, FVector2f Size, float Scale = 1.0f)
	{
		const FSlateLayoutTransform Layout(Scale, Position);
		return FPaintGeometry(Layout, FSlateRenderTransform(Layout), Size, false);
	}

	FPaintGeometry RotatedGeometry(FVector2f Position, FVector2f Size, float Degrees)
	{
		const float Radians = Degrees * 3.14159265f / 180.0f;
		const FSlateRenderTransform Rotation(FMatrix2x2f(FMath::Cos(Radians), FMath::Sin(Radians), -FMath::Sin(Radians), FMath::Cos(Radians)), Position);
		return FPaintGeometry(FSlateLayoutTransform(1.0f, Position), Rotation, Size, true);
	}

	bool Near(const FColor& Actual, const FColor& Expected, int32 Tolerance = 2)
	{
		return std::abs(int32(Actual.R) - int32(Expected.R)) <= Tolerance && std::abs(int32(Actual.G) - int32(Expected.G)) <= Tolerance
			&& std::abs(int32(Actual.B) - int32(Expected.B)) <= Tolerance && std::abs(int32(Actual.A) - int32(Expected.A)) <= Tolerance;
	}

	std::string Describe(const FColor& Color)
	{
		return "(" + std::to_string(Color.R) + ", " + std::to_string(Color.G) + ", " + std::to_string(Color.B) + ", " + std::to_string(Color.A) + ")";
	}

#define EXPECT_PIXEL(Image, X, Y, Expected) \
	EXPECT_TRUE(Near((Image).GetPixel(X, Y), Expected)) << "pixel (" << (X) << ", " << (Y) << ") is " << Describe((Image).GetPixel(X, Y)) \
		<< ", expected " << Describe(Expected)

	class SlateImageRendererTest : public ::testing::Test
	{
	protected:
		FHeadlessImage Render(FIntPoint Size = FIntPoint(40, 30))
		{
			return Renderer.RenderElementList(Elements, Size);
		}

		void AddBox(FPaintGeometry PaintGeometry, const FLinearColor& Tint, uint32 Layer = 0, const FSlateBrush& Brush = FSlateBrush())
		{
			FSlateDrawElement::MakeBox(Elements, Layer, PaintGeometry, &Brush, ESlateDrawEffect::None, Tint);
		}

		FSlateImageRenderer Renderer;
		FSlateWindowElementList Elements;
	};
}

TEST_F(SlateImageRendererTest, ABoxFillsItsRectangleWithItsTintAndBlendsTheCoveredPartOfEdgePixels)
{
	AddBox(Geometry(FVector2f(10.5f, 5.0f), FVector2f(20.0f, 10.0f)), FLinearColor(0.5f, 0.5f, 0.5f, 1.0f));

	const FHeadlessImage Image = Render();

	ASSERT_EQ(Image.GetSizeX(), 40);
	ASSERT_EQ(Image.GetSizeY(), 30);
	// Linear 0.5 is drawn sRGB-encoded, as the engine shows it.
	EXPECT_PIXEL(Image, 20, 10, FColor(188, 188, 188, 255));
	EXPECT_PIXEL(Image, 10, 10, FColor(94, 94, 94, 255));
	EXPECT_PIXEL(Image, 30, 10, FColor(94, 94, 94, 255));
	EXPECT_PIXEL(Image, 20, 5, FColor(188, 188, 188, 255));
	EXPECT_PIXEL(Image, 20, 15, Background);
	EXPECT_PIXEL(Image, 9, 10, Background);
	EXPECT_PIXEL(Image, 31, 10, Background);
}

TEST_F(SlateImageRendererTest, HigherLayersCoverLowerOnesAndPaintOrderDecidesWithinALayer)
{
	AddBox(Geometry(FVector2f(0.0f, 0.0f), FVector2f(20.0f, 20.0f)), FLinearColor::Red, 2);
	AddBox(Geometry(FVector2f(10.0f, 0.0f), FVector2f(20.0f, 20.0f)), FLinearColor::Blue, 1);
	AddBox(Geometry(FVector2f(0.0f, 10.0f), FVector2f(40.0f, 20.0f)), FLinearColor::Green, 2);
	AddBox(Geometry(FVector2f(30.0f, 0.0f), FVector2f(10.0f, 10.0f)), FLinearColor(1.0f, 1.0f, 1.0f, 0.5f), 3);

	const FHeadlessImage Image = Render();

	EXPECT_PIXEL(Image, 15, 5, FColor(255, 0, 0, 255));
	EXPECT_PIXEL(Image, 25, 5, FColor(0, 0, 255, 255));
	EXPECT_PIXEL(Image, 15, 15, FColor(0, 255, 0, 255));
	// Half-transparent white over black.
	EXPECT_PIXEL(Image, 35, 5, FColor(128, 128, 128, 255));
}

TEST_F(SlateImageRendererTest, AnImageBrushDrawsItsTextureStretchedAndTinted)
{
	UTexture2D* Texture = UTexture2D::CreateTransient(2, 2);
	TArray<uint8> Pixels = { 255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255, 255, 255, 0 };
	Texture->SetHeadlessPixelsRGBA8(2, 2, MoveTemp(Pixels));
	FSlateBrush Brush;
	Brush.SetResourceObject(Texture);
	AddBox(Geometry(FVector2f(0.0f, 0.0f), FVector2f(20.0f, 20.0f)), FLinearColor::White, 0, Brush);
	AddBox(Geometry(FVector2f(20.0f, 0.0f), FVector2f(20.0f, 20.0f)), FLinearColor(0.5f, 0.5f, 0.5f, 1.0f), 0, Brush);

	const FHeadlessImage Image = Render();

	EXPECT_PIXEL(Image, 2, 2, FColor(255, 0, 0, 255));
	EXPECT_PIXEL(Image, 17, 2, FColor(0, 255, 0, 255));
	EXPECT_PIXEL(Image, 2, 17, FColor(0, 0, 255, 255));
	EXPECT_PIXEL(Image, 17, 17, Background);
	EXPECT_PIXEL(Image, 22, 2, FColor(188, 0, 0, 255));
}

TEST_F(SlateImageRendererTest, ABorderBrushDrawsItsEdgesAndLeavesItsMiddleOpen)
{
	FSlateBrush Brush;
	Brush.DrawAs = ESlateBrushDrawType::Border;
	Brush.ImageSize = FVector2f(8.0f, 8.0f);
	Brush.Margin = FMargin(0.25f);
	AddBox(Geometry(FVector2f(0.0f, 0.0f), FVector2f(20.0f, 20.0f)), FLinearColor::White, 0, Brush);

	const FHeadlessImage Image = Render();

	EXPECT_PIXEL(Image, 1, 10, FColor(255, 255, 255, 255));
	EXPECT_PIXEL(Image, 10, 18, FColor(255, 255, 255, 255));
	EXPECT_PIXEL(Image, 10, 10, Background);
	EXPECT_PIXEL(Image, 2, 10, Background);
}

TEST_F(SlateImageRendererTest, ScaleAndRotationPlaceTheRectangleAndTheWindowClipsIt)
{
	AddBox(Geometry(FVector2f(4.0f, 4.0f), FVector2f(5.0f, 5.0f), 2.0f), FLinearColor::White);
	AddBox(RotatedGeometry(FVector2f(30.0f, 5.0f), FVector2f(10.0f, 10.0f), 45.0f), FLinearColor::Red);
	AddBox(Geometry(FVector2f(30.0f, 20.0f), FVector2f(100.0f, 100.0f)), FLinearColor::Blue);

	const FHeadlessImage Image = Render();

	EXPECT_PIXEL(Image, 4, 4, FColor(255, 255, 255, 255));
	EXPECT_PIXEL(Image, 13, 13, FColor(255, 255, 255, 255));
	EXPECT_PIXEL(Image, 14, 14, Background);
	// The square turned 45 degrees about its top-left corner stands on that corner.
	EXPECT_PIXEL(Image, 30, 12, FColor(255, 0, 0, 255));
	EXPECT_PIXEL(Image, 36, 6, Background);
	EXPECT_PIXEL(Image, 39, 29, FColor(0, 0, 255, 255));
}

TEST_F(SlateImageRendererTest, TextIsInkedInsideTheRectangleItWasMeasuredToNeed)
{
	const FSlateFontInfo Font(nullptr, 12.0f);
	const FString Text(TEXT("Hg"));
	const FVector2D Measured = Renderer.GetFontMeasureService()->Measure(Text, Font);
	const FVector2f Origin(6.0f, 4.0f);
	FSlateDrawElement::MakeText(Elements, 0, Geometry(Origin, FVector2f(Measured)), Text, Font, ESlateDrawEffect::None, FLinearColor::White);

	const FHeadlessImage Image = Render(FIntPoint(60, 40));

	int32 Inside = 0;
	int32 Solid = 0;
	int32 Outside = 0;
	for (int32 Y = 0; Y < Image.GetSizeY(); ++Y)
	{
		for (int32 X = 0; X < Image.GetSizeX(); ++X)
		{
			const FColor Pixel = Image.GetPixel(X, Y);
			if (Pixel == Background)
			{
				continue;
			}
			EXPECT_EQ(Pixel.R, Pixel.B) << "white text on black stays grey";
			const bool bInRect = X >= Origin.X && X < Origin.X + Measured.X && Y >= Origin.Y && Y < Origin.Y + Measured.Y;
			++(bInRect ? Inside : Outside);
			Solid += Pixel.R > 200 ? 1 : 0;
		}
	}
	EXPECT_GT(Inside, 20);
	EXPECT_GT(Solid, 5);
	EXPECT_EQ(Outside, 0);
}

TEST_F(SlateImageRendererTest, TextDrawnAtTwiceTheScaleInksAboutFourTimesThePixels)
{
	const FSlateFontInfo Font(nullptr, 10.0f);
	auto CountInk = [this, &Font](float Scale)
	{
		Elements.ResetElementList();
		FSlateDrawElement::MakeText(Elements, 0, Geometry(FVector2f(2.0f, 2.0f), FVector2f(40.0f, 20.0f), Scale), TEXT("Stash"), Font);
		const FHeadlessImage Image = Render(FIntPoint(120, 60));
		int32 Ink = 0;
		for (int32 Y = 0; Y < Image.GetSizeY(); ++Y)
		{
			for (int32 X = 0; X < Image.GetSizeX(); ++X)
			{
				Ink += Image.GetPixel(X, Y).R;
			}
		}
		return float(Ink);
	};

	const float Ratio = CountInk(2.0f) / CountInk(1.0f);

	EXPECT_GT(Ratio, 3.0f);
	EXPECT_LT(Ratio, 5.0f);
}
