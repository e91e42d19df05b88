// PNG files to the headless texture's pixel layout, through libpng.
#pragma once

#include "CoreMinimal.h"

namespace UE::Engine::Private
{
	/** Any PNG colour type and depth becomes 8-bit RGBA, top row first. False, with a reason, when the bytes are not a usable PNG. */
	bool DecodePngToRGBA8(const TArray<uint8>& FileBytes, int32& OutSizeX, int32& OutSizeY, TArray<uint8>& OutPixels, FString& OutError);
}
