// The raster the image renderer paints into. Colours are sRGB-encoded and premultiplied, and blend
// as Slate's do on an 8-bit back buffer, so tints and textures look as they would in the engine.
#pragma once

#include "CoreMinimal.h"
#include "Headless/HeadlessImage.h"
#include "Rendering/SlateRenderTransform.h"
#include "Templates/Function.h"

namespace UE::HeadlessRenderer::Private
{
	struct FPremultipliedColor
	{
		float R = 0.0f;
		float G = 0.0f;
		float B = 0.0f;
		float A = 0.0f;

		FPremultipliedColor operator*(float Scale) const
		{
			return { R * Scale, G * Scale, B * Scale, A * Scale };
		}

		FPremultipliedColor operator*(const FPremultipliedColor& Other) const
		{
			return { R * Other.R, G * Other.G, B * Other.B, A * Other.A };
		}

		/** A linear colour (as widgets hold tints) encoded to sRGB; alpha stays linear. */
		static FPremultipliedColor FromLinear(const FLinearColor& Color);
		/** A straight-alpha sRGB pixel (as textures hold them). */
		static FPremultipliedColor FromSRGB(uint8 InR, uint8 InG, uint8 InB, uint8 InA);
	};

	class FImageCanvas
	{
	public:
		FImageCanvas(int32 InSizeX, int32 InSizeY, const FLinearColor& ClearColor);

		/**
		 * Fills the rectangle from the local origin to LocalSize, placed on the canvas by LocalToCanvas
		 * (which may scale, rotate or shear). Shade gives the colour at a local point of the rectangle;
		 * pixels on an edge take the fraction of them the rectangle covers.
		 */
		void FillQuad(const FSlateRenderTransform& LocalToCanvas, const FVector2f& LocalSize,
			TFunctionRef<FPremultipliedColor(const FVector2f&)> Shade);

		/** FillQuad with one colour all over, which most of a frame is. */
		void FillSolidQuad(const FSlateRenderTransform& LocalToCanvas, const FVector2f& LocalSize, const FPremultipliedColor& Colour);

		FHeadlessImage ToImage() const;

	private:
		template <typename TShade>
		void FillQuadWith(const FSlateRenderTransform& LocalToCanvas, const FVector2f& LocalSize, const TShade& Shade);

		/** Source over the pixel; a transparent source leaves it as it is. */
		void Blend(FPremultipliedColor& Target, const FPremultipliedColor& Source)
		{
			if (Source.A <= 0.0f)
			{
				return;
			}
			const float Keep = 1.0f - Source.A;
			Target = { Source.R + Target.R * Keep, Source.G + Target.G * Keep, Source.B + Target.B * Keep, Source.A + Target.A * Keep };
		}

		int32 SizeX = 0;
		int32 SizeY = 0;
		TArray<FPremultipliedColor> Pixels;
	};
}
