#include "PngDecoding.h"

#include <png.h>

#include <cstring>

namespace UE::Engine::Private
{
	namespace
	{
		// Larger than any texture the engine would import; guards against headers that claim absurd sizes.
		constexpr uint32 MaxTextureSize = 16384;
	}

	bool DecodePngToRGBA8(const TArray<uint8>& FileBytes, int32& OutSizeX, int32& OutSizeY, TArray<uint8>& OutPixels, FString& OutError)
	{
		png_image Image;
		std::memset(&Image, 0, sizeof(Image));
		Image.version = PNG_IMAGE_VERSION;
		if (!png_image_begin_read_from_memory(&Image, FileBytes.GetData(), size_t(FileBytes.Num())))
		{
			OutError = FString(Image.message);
			return false;
		}
		if (Image.width == 0 || Image.height == 0 || Image.width > MaxTextureSize || Image.height > MaxTextureSize)
		{
			OutError = FString::Printf(TEXT("a %ux%u image is outside the supported sizes"), Image.width, Image.height);
			png_image_free(&Image);
			return false;
		}
		Image.format = PNG_FORMAT_RGBA;
		TArray<uint8> Pixels;
		Pixels.SetNumZeroed(int32(PNG_IMAGE_SIZE(Image)));
		if (!png_image_finish_read(&Image, nullptr, Pixels.GetData(), 0, nullptr))
		{
			OutError = FString(Image.message);
			png_image_free(&Image);
			return false;
		}
		OutSizeX = int32(Image.width);
		OutSizeY = int32(Image.height);
		OutPixels = MoveTemp(Pixels);
		return true;
	}
}
