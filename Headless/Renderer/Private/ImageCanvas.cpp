#include "ImageCanvas.h"

namespace UE::HeadlessRenderer::Private
{
	namespace
	{
		// Edge pixels are sampled on a 4 x 4 grid: 16 coverage levels, enough for text-sized detail.
		constexpr int32 SamplesPerAxis = 4;

		float EncodeSRGB(float Linear)
		{
			const float Clamped = FMath::Clamp(Linear, 0.0f, 1.0f);
			return Clamped <= 0.0031308f ? Clamped * 12.92f : FMath::Pow(Clamped, 1.0f / 2.4f) * 1.055f - 0.055f;
		}

		/** Rounds to the nearest of 256 levels, as RoundToInt would, without its library call. */
		uint8 Quantise(float Value)
		{
			return uint8(FMath::Clamp(Value, 0.0f, 1.0f) * 255.0f + 0.5f);
		}
	}

	FPremultipliedColor FPremultipliedColor::FromLinear(const FLinearColor& Color)
	{
		const float Alpha = FMath::Clamp(Color.A, 0.0f, 1.0f);
		return { EncodeSRGB(Color.R) * Alpha, EncodeSRGB(Color.G) * Alpha, EncodeSRGB(Color.B) * Alpha, Alpha };
	}

	FPremultipliedColor FPremultipliedColor::FromSRGB(uint8 InR, uint8 InG, uint8 InB, uint8 InA)
	{
		const float Alpha = float(InA) / 255.0f;
		return { float(InR) / 255.0f * Alpha, float(InG) / 255.0f * Alpha, float(InB) / 255.0f * Alpha, Alpha };
	}

	FImageCanvas::FImageCanvas(int32 InSizeX, int32 InSizeY, const FLinearColor& ClearColor)
		: SizeX(FMath::Max(InSizeX, 0))
		, SizeY(FMath::Max(InSizeY, 0))
	{
		Pixels.Init(FPremultipliedColor::FromLinear(ClearColor), SizeX * SizeY);
	}

	void FImageCanvas::FillQuad(const FSlateRenderTransform& LocalToCanvas, const FVector2f& LocalSize,
		TFunctionRef<FPremultipliedColor(const FVector2f&)> Shade)
	{
		FillQuadWith(LocalToCanvas, LocalSize, Shade);
	}

	void FImageCanvas::FillSolidQuad(const FSlateRenderTransform& LocalToCanvas, const FVector2f& LocalSize, const FPremultipliedColor& Colour)
	{
		FillQuadWith(LocalToCanvas, LocalSize, [&Colour](const FVector2f&) { return Colour; });
	}

	template <typename TShade>
	void FImageCanvas::FillQuadWith(const FSlateRenderTransform& LocalToCanvas, const FVector2f& LocalSize, const TShade& Shade)
	{
		if (LocalSize.X <= 0.0f || LocalSize.Y <= 0.0f || FMath::Abs(LocalToCanvas.GetMatrix().Determinant()) < 1e-8f)
		{
			return;
		}

		const FVector2f Corners[] = {
			LocalToCanvas.TransformPoint(FVector2f(0.0f, 0.0f)),
			LocalToCanvas.TransformPoint(FVector2f(LocalSize.X, 0.0f)),
			LocalToCanvas.TransformPoint(FVector2f(0.0f, LocalSize.Y)),
			LocalToCanvas.TransformPoint(LocalSize),
		};
		float MinX = Corners[0].X, MaxX = Corners[0].X, MinY = Corners[0].Y, MaxY = Corners[0].Y;
		for (const FVector2f& Corner : Corners)
		{
			MinX = FMath::Min(MinX, Corner.X);
			MaxX = FMath::Max(MaxX, Corner.X);
			MinY = FMath::Min(MinY, Corner.Y);
			MaxY = FMath::Max(MaxY, Corner.Y);
		}
		// Clipping to the window is clipping to the canvas.
		const int32 StartX = FMath::Max(FMath::FloorToInt(MinX), 0);
		const int32 EndX = FMath::Min(FMath::CeilToInt(MaxX), SizeX);
		const int32 StartY = FMath::Max(FMath::FloorToInt(MinY), 0);
		const int32 EndY = FMath::Min(FMath::CeilToInt(MaxY), SizeY);

		const FSlateRenderTransform CanvasToLocal = LocalToCanvas.Inverse();
		// How far half a pixel reaches in local units: pixels whose centre is further inside are
		// fully covered, those further outside not at all; only the rest are sampled.
		const FVector2f Diagonal = CanvasToLocal.TransformVector(FVector2f(0.5f, 0.5f));
		const FVector2f AntiDiagonal = CanvasToLocal.TransformVector(FVector2f(0.5f, -0.5f));
		const FVector2f Reach(FMath::Max(FMath::Abs(Diagonal.X), FMath::Abs(AntiDiagonal.X)), FMath::Max(FMath::Abs(Diagonal.Y), FMath::Abs(AntiDiagonal.Y)));

		// The transform is affine: a step of one pixel is the same local step everywhere, so each
		// pixel's centre and samples come from its row's start instead of a full transform each.
		const FVector2f StepX = CanvasToLocal.TransformVector(FVector2f(1.0f, 0.0f));
		const FVector2f StepY = CanvasToLocal.TransformVector(FVector2f(0.0f, 1.0f));
		FVector2f SampleOffsets[SamplesPerAxis * SamplesPerAxis];
		for (int32 SampleY = 0; SampleY < SamplesPerAxis; ++SampleY)
		{
			for (int32 SampleX = 0; SampleX < SamplesPerAxis; ++SampleX)
			{
				SampleOffsets[SampleY * SamplesPerAxis + SampleX] = StepX * ((float(SampleX) + 0.5f) / SamplesPerAxis - 0.5f)
					+ StepY * ((float(SampleY) + 0.5f) / SamplesPerAxis - 0.5f);
			}
		}

		for (int32 Y = StartY; Y < EndY; ++Y)
		{
			const FVector2f RowStart = CanvasToLocal.TransformPoint(FVector2f(float(StartX) + 0.5f, float(Y) + 0.5f));
			FPremultipliedColor* Row = Pixels.GetData() + Y * SizeX;
			for (int32 X = StartX; X < EndX; ++X)
			{
				const FVector2f Centre = RowStart + StepX * float(X - StartX);
				if (Centre.X < -Reach.X || Centre.Y < -Reach.Y || Centre.X > LocalSize.X + Reach.X || Centre.Y > LocalSize.Y + Reach.Y)
				{
					continue;
				}
				float Coverage = 1.0f;
				if (Centre.X < Reach.X || Centre.Y < Reach.Y || Centre.X > LocalSize.X - Reach.X || Centre.Y > LocalSize.Y - Reach.Y)
				{
					int32 Inside = 0;
					for (const FVector2f& Offset : SampleOffsets)
					{
						const FVector2f Sample = Centre + Offset;
						// Half-open, so that two rectangles sharing an edge cover its pixels once.
						Inside += (Sample.X >= 0.0f && Sample.X < LocalSize.X && Sample.Y >= 0.0f && Sample.Y < LocalSize.Y) ? 1 : 0;
					}
					if (Inside == 0)
					{
						continue;
					}
					Coverage = float(Inside) / float(SamplesPerAxis * SamplesPerAxis);
				}
				const FVector2f Clamped(FMath::Clamp(Centre.X, 0.0f, LocalSize.X), FMath::Clamp(Centre.Y, 0.0f, LocalSize.Y));
				Blend(Row[X], Shade(Clamped) * Coverage);
			}
		}
	}

	FHeadlessImage FImageCanvas::ToImage() const
	{
		TArray<FColor> Colours;
		Colours.SetNumUninitialized(Pixels.Num());
		for (int32 Index = 0; Index < Pixels.Num(); ++Index)
		{
			const FPremultipliedColor& Pixel = Pixels[Index];
			const float Unmultiply = Pixel.A >= 1.0f ? 1.0f : Pixel.A > 0.0f ? 1.0f / Pixel.A : 0.0f;
			Colours[Index] = FColor(Quantise(Pixel.R * Unmultiply), Quantise(Pixel.G * Unmultiply), Quantise(Pixel.B * Unmultiply), Quantise(Pixel.A));
		}
		return FHeadlessImage(SizeX, SizeY, MoveTemp(Colours));
	}
}
