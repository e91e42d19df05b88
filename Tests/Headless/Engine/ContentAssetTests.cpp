#include "EngineTestSupport.h"
#include "EngineTestTypes.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

using QuorvelTest::FLogLineCounter;
using QuorvelTest::Utf8;

namespace
{
	class ContentAssetTest : public QuorvelTest::FContentTest
	{
	protected:
		virtual void TearDown() override
		{
			CollectGarbage();
			FContentTest::TearDown();
		}

		/** Loads the path, expecting nothing and one warning that contains Reason. */
		void ExpectNothingAt(const TCHAR* Path, const std::string& Reason)
		{
			FLogLineCounter Log(TEXT("LogStreaming"));
			EXPECT_EQ(FSoftObjectPath(Path).TryLoad(), nullptr) << Utf8(Path);
			EXPECT_EQ(Log.Lines, 1) << Utf8(Path);
			EXPECT_NE(Utf8(Log.LastLine).find(Reason), std::string::npos) << Utf8(Log.LastLine);
		}
	};
}

TEST_F(ContentAssetTest, APngInContentLoadsAsATextureWithItsSizeAndPixels)
{
	WriteTwoPixelTexture("Icons/Sword.png");

	UTexture2D* Texture = Cast<UTexture2D>(FSoftObjectPath(TEXT("/Game/Icons/Sword.Sword")).TryLoad());

	ASSERT_NE(Texture, nullptr);
	EXPECT_EQ(Utf8(Texture->GetPathName()), "/Game/Icons/Sword.Sword");
	EXPECT_EQ(Utf8(Texture->GetOutermost()->GetName()), "/Game/Icons/Sword");
	EXPECT_EQ(Texture->GetSizeX(), 2);
	EXPECT_EQ(Texture->GetSizeY(), 1);
	EXPECT_FLOAT_EQ(Texture->GetSurfaceWidth(), 2.0f);
	EXPECT_EQ(Texture->GetHeadlessPixel(0, 0), FColor(255, 0, 0, 255));
	EXPECT_EQ(Texture->GetHeadlessPixel(1, 0), FColor(0, 0, 255, 128));
}

TEST_F(ContentAssetTest, GreyscalePngsBecomeOpaqueRgba)
{
	WriteContent("Icons/Grey.png", std::string());
	std::vector<uint8> Grey = { 0, 128, 255 };
	png_image Image;
	std::memset(&Image, 0, sizeof(Image));
	Image.version = PNG_IMAGE_VERSION;
	Image.width = 3;
	Image.height = 1;
	Image.format = PNG_FORMAT_GRAY;
	ASSERT_TRUE(png_image_write_to_file(&Image, (Root / "Content/Icons/Grey.png").c_str(), 0, Grey.data(), 0, nullptr));

	UTexture2D* Texture = Cast<UTexture2D>(FSoftObjectPath(TEXT("/Game/Icons/Grey.Grey")).TryLoad());

	ASSERT_NE(Texture, nullptr);
	EXPECT_EQ(Texture->GetHeadlessPixel(1, 0), FColor(128, 128, 128, 255));
	EXPECT_EQ(Texture->GetHeadlessPixel(2, 0), FColor(255, 255, 255, 255));
}

TEST_F(ContentAssetTest, ResolveObjectFindsOnlyWhatIsInMemoryAndTryLoadLoadsOnDemandOnce)
{
	WriteTwoPixelTexture("Icons/Sword.png");
	const FSoftObjectPath Path(TEXT("/Game/Icons/Sword.Sword"));
	ASSERT_EQ(Path.ResolveObject(), nullptr);

	UObject* Loaded = Path.TryLoad();

	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Path.ResolveObject(), Loaded);
	// A second load finds the object in memory instead of reading the file again.
	WriteContent("Icons/Sword.png", "no longer a png");
	EXPECT_EQ(Path.TryLoad(), Loaded);
	EXPECT_EQ(FSoftObjectPath(TEXT("Texture2D'/Game/Icons/Sword.Sword'")).ResolveObject(), Loaded);
}

TEST_F(ContentAssetTest, UnreferencedAssetsAreCollectedAndLoadAgainOnDemand)
{
	WriteTwoPixelTexture("Icons/Sword.png");
	const FSoftObjectPath Path(TEXT("/Game/Icons/Sword.Sword"));
	ASSERT_NE(Path.TryLoad(), nullptr);

	CollectGarbage();

	EXPECT_EQ(Path.ResolveObject(), nullptr);
	UTexture2D* Again = Cast<UTexture2D>(Path.TryLoad());
	ASSERT_NE(Again, nullptr);
	EXPECT_EQ(Again->GetSizeX(), 2);
}

TEST_F(ContentAssetTest, PathsThatNameNoAssetLoadNothingAndSayWhy)
{
	WriteTwoPixelTexture("Icons/Sword.png");
	WriteContent("Icons/Readme.txt", "notes");
	WriteTwoPixelTexture("Secret.png");

	ExpectNothingAt(TEXT("/Game/Icons/Shield.Shield"), "there is no");
	ExpectNothingAt(TEXT("/Game/Icons/Readme.Readme"), "is not an asset file");
	ExpectNothingAt(TEXT("/Engine/Icons/Sword.Sword"), "only /Game/ paths");
	ExpectNothingAt(TEXT("/Game/Icons/Sword.Shield"), "holds only the asset 'Sword'");
	ExpectNothingAt(TEXT("/Game/Icons/Sword.Sword:Inner"), "holds only the asset 'Sword'");
	ExpectNothingAt(TEXT("/Game/Icons/../../Secret.Secret"), "Failed to load");
	EXPECT_EQ(FSoftObjectPath(TEXT("")).TryLoad(), nullptr);
	EXPECT_EQ(FSoftObjectPath(TEXT("None")).TryLoad(), nullptr);
}

TEST_F(ContentAssetTest, ACorruptPngLoadsNothingAndSaysWhy)
{
	const std::string Valid = QuorvelTest::EncodePng(4, 4, std::vector<FColor>(16, FColor(1, 2, 3, 255)));
	WriteContent("Icons/Garbage.png", "definitely not a png");
	WriteContent("Icons/Truncated.png", Valid.substr(0, Valid.size() / 2));
	WriteContent("Icons/Empty.png", std::string());

	ExpectNothingAt(TEXT("/Game/Icons/Garbage.Garbage"), "is not a readable PNG");
	ExpectNothingAt(TEXT("/Game/Icons/Truncated.Truncated"), "is not a readable PNG");
	ExpectNothingAt(TEXT("/Game/Icons/Empty.Empty"), "Empty.png");
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Icons/Truncated.Truncated")).ResolveObject(), nullptr);
}

TEST_F(ContentAssetTest, ASoftPointerToAnAssetOfAnotherClassGivesNothing)
{
	WriteContent("Data/DT_Items.json", R"({ "RowStruct": "/Script/EngineTests.TestOtherRow", "Rows": [] })");
	const TSoftObjectPtr<UTexture2D> NotATexture(FSoftObjectPath(TEXT("/Game/Data/DT_Items.DT_Items")));

	EXPECT_EQ(NotATexture.LoadSynchronous(), nullptr);
	EXPECT_NE(FSoftObjectPath(TEXT("/Game/Data/DT_Items.DT_Items")).ResolveObject(), nullptr);
	EXPECT_EQ(NotATexture.Get(), nullptr);
}
