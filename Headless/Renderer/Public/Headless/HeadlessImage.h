// Headless only: an 8-bit sRGB image with straight alpha, as the image renderer produces it.
#pragma once

#include "CoreMinimal.h"
#include "Math/Color.h"

struct HEADLESSRENDERER_API FHeadlessImage
{
	FHeadlessImage() = default;
	FHeadlessImage(int32 InSizeX, int32 InSizeY, const FColor& Fill = FColor::Transparent);
	/** Takes the pixels, row by row from the top; there must be InSizeX * InSizeY of them. */
	FHeadlessImage(int32 InSizeX, int32 InSizeY, TArray<FColor>&& InPixels);

	int32 GetSizeX() const
	{
		return SizeX;
	}

	int32 GetSizeY() const
	{
		return SizeY;
	}

	bool IsEmpty() const
	{
		return Pixels.IsEmpty();
	}

	/** The coordinates must be inside the image. */
	FColor GetPixel(int32 X, int32 Y) const;
	void SetPixel(int32 X, int32 Y, const FColor& Color);

	/** The image as a PNG file's bytes (8-bit RGBA); empty when the image is. */
	TArray<uint8> EncodePng() const;

	/** Writes the PNG, making its directory if needed; false, with a log line, when that fails. */
	bool SaveAsPng(const FString& Filename) const;

private:
	int32 SizeX = 0;
	int32 SizeY = 0;
	TArray<FColor> Pixels;
};
