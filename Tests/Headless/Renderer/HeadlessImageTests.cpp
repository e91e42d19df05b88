#include "Headless/HeadlessImage.h"

#include "Containers/StringConv.h"
#include "Misc/FileHelper.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstring>
#include <filesystem>

namespace
{
	std::filesystem::path TempDirectory()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "QuorvelImageXXXXXX").string();
		EXPECT_NE(mkdtemp(Pattern.data()), nullptr);
		return Pattern;
	}
}

TEST(HeadlessImage, SavedPngsReadBackWithTheSamePixels)
{
	FHeadlessImage Image(3, 2, FColor(10, 20, 30, 255));
	Image.SetPixel(2, 1, FColor(200, 100, 50, 128));
	const std::filesystem::path Directory = TempDirectory();
	const std::filesystem::path File = Directory / "Nested" / "Image.png";

	ASSERT_TRUE(Image.SaveAsPng(FString(UTF8_TO_TCHAR(File.string().c_str()))));

	png_image Read;
	std::memset(&Read, 0, sizeof(Read));
	Read.version = PNG_IMAGE_VERSION;
	ASSERT_TRUE(png_image_begin_read_from_file(&Read, File.string().c_str()));
	Read.format = PNG_FORMAT_RGBA;
	std::vector<uint8> Pixels(PNG_IMAGE_SIZE(Read));
	ASSERT_TRUE(png_image_finish_read(&Read, nullptr, Pixels.data(), 0, nullptr));
	EXPECT_EQ(Read.width, 3u);
	EXPECT_EQ(Read.height, 2u);
	EXPECT_EQ(std::vector<uint8>(Pixels.begin(), Pixels.begin() + 4), (std::vector<uint8>{ 10, 20, 30, 255 }));
	EXPECT_EQ(std::vector<uint8>(Pixels.end() - 4, Pixels.end()), (std::vector<uint8>{ 200, 100, 50, 128 }));
	std::filesystem::remove_all(Directory);
}

TEST(HeadlessImage, AnEmptyImageWritesNoFile)
{
	const std::filesystem::path Directory = TempDirectory();
	const std::filesystem::path File = Directory / "Empty.png";

	EXPECT_FALSE(FHeadlessImage().SaveAsPng(FString(UTF8_TO_TCHAR(File.string().c_str()))));
	EXPECT_FALSE(std::filesystem::exists(File));
	std::filesystem::remove_all(Directory);
}
