#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"

#include "Texture2D.generated.h"

/**
 * A two-dimensional texture asset. The headless engine has no GPU: the texture keeps its pixels in
 * memory as 8-bit RGBA (sRGB-encoded, straight alpha), rows top to bottom, for the renderer to draw.
 */
UCLASS(MinimalAPI, BlueprintType)
class UTexture2D : public UTexture
{
	GENERATED_BODY()

public:
	int32 GetSizeX() const
	{
		return SizeX;
	}

	int32 GetSizeY() const
	{
		return SizeY;
	}

	FIntPoint GetImportedSize() const
	{
		return FIntPoint(SizeX, SizeY);
	}

	virtual float GetSurfaceWidth() const override
	{
		return float(SizeX);
	}

	virtual float GetSurfaceHeight() const override
	{
		return float(SizeY);
	}

	/** A texture of that size, transparent black, in the transient package. Null when a size is not positive. */
	ENGINE_API static UTexture2D* CreateTransient(int32 InSizeX, int32 InSizeY, const FName InName = NAME_None);

	/** The headless pixel store: SizeX * SizeY * 4 bytes, R, G, B, A per pixel, top row first. */
	const TArray<uint8>& GetHeadlessPixelsRGBA8() const
	{
		return PixelsRGBA8;
	}

	/** One pixel of the headless store; the coordinates must be inside the texture. */
	ENGINE_API FColor GetHeadlessPixel(int32 X, int32 Y) const;

	/** Replaces size and pixels; Pixels must hold InSizeX * InSizeY * 4 bytes laid out as GetHeadlessPixelsRGBA8. */
	ENGINE_API void SetHeadlessPixelsRGBA8(int32 InSizeX, int32 InSizeY, TArray<uint8> Pixels);

private:
	int32 SizeX = 0;
	int32 SizeY = 0;
	TArray<uint8> PixelsRGBA8;
};
