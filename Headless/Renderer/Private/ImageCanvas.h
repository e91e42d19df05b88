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

		FHeadlessImage ToImage() const;

	private:
		void Blend(int32 X, int32 Y, const FPremultipliedColor& Source);

		int32 SizeX = 0;
		int32 SizeY = 0;
		TArray<FPremultipliedColor> Pixels;
	};
}
