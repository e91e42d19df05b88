// A throw-away project with a Content directory, and PNG bytes to put in it.
#pragma once

#include "../Core/ProjectTreeFixture.h"
#include "Containers/Array.h"
#include "Math/Color.h"

#include <png.h>

#include <cstring>
#include <string>
#include <vector>

namespace QuorvelTest
{
	/** A PNG of the given RGBA pixels (row by row, top first), encoded by libpng. */
	inline std::string EncodePng(int Width, int Height, const std::vector<FColor>& Pixels)
	{
		std::vector<uint8> Rgba;
		for (const FColor& Pixel : Pixels)
		{
			Rgba.insert(Rgba.end(), { Pixel.R, Pixel.G, Pixel.B, Pixel.A });
		}
		png_image Image;
		std::memset(&Image, 0, sizeof(Image));
		Image.version = PNG_IMAGE_VERSION;
		Image.width = png_uint_32(Width);
		Image.height = png_uint_32(Height);
		Image.format = PNG_FORMAT_RGBA;
		png_alloc_size_t Size = 0;
		EXPECT_TRUE(png_image_write_get_memory_size(Image, Size, 0, Rgba.data(), 0, nullptr));
		std::string Bytes(Size, '\0');
		EXPECT_TRUE(png_image_write_to_memory(&Image, Bytes.data(), &Size, 0, Rgba.data(), 0, nullptr));
		Bytes.resize(Size);
		return Bytes;
	}

	class FContentTest : public FProjectTreeTest
	{
	protected:
		void WriteContent(const std::string& RelativePath, const std::string& Bytes) const
		{
			WriteFile("Content/" + RelativePath, Bytes);
		}

		/** A 2 x 1 texture: opaque red, then half-transparent blue. */
		void WriteTwoPixelTexture(const std::string& RelativePath) const
		{
			WriteContent(RelativePath, EncodePng(2, 1, { FColor(255, 0, 0, 255), FColor(0, 0, 255, 128) }));
		}
	};
}
