#include "Misc/FileHelper.h"
#include "ProjectTreeFixture.h"

#include <gtest/gtest.h>

using QuorvelTest::Utf8;

namespace
{
	class FileHelperTest : public QuorvelTest::FProjectTreeTest
	{
	protected:
		std::string ReadBytes(const std::string& RelativePath) const
		{
			TArray<uint8> Bytes;
			EXPECT_TRUE(FFileHelper::LoadFileToArray(Bytes, *PathOf(RelativePath)));
			return std::string(reinterpret_cast<const char*>(Bytes.GetData()), size_t(Bytes.Num()));
		}
	};

	// "Épée €5" in UTF-8.
	const std::string SampleUtf8 = "\xC3\x89p\xC3\xA9\x65 \xE2\x82\xAC\x35";
}

TEST_F(FileHelperTest, TextIsDecodedFromUtf8WithOrWithoutMarkAndFromUtf16WithMark)
{
	WriteFile("Plain.txt", SampleUtf8);
	WriteFile("Marked.txt", "\xEF\xBB\xBF" + SampleUtf8);
	WriteFile("Wide.txt", std::string("\xFF\xFE\xC9\x00p\x00\xE9\x00\x65\x00 \x00\xAC\x20\x35\x00", 16));
	WriteFile("WideBigEndian.txt", std::string("\xFE\xFF\x00\xC9\x00p\x00\xE9\x00\x65\x00 \x20\xAC\x00\x35", 16));

	for (const char* Name : { "Plain.txt", "Marked.txt", "Wide.txt", "WideBigEndian.txt" })
	{
		FString Text;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *PathOf(Name))) << Name;
		EXPECT_EQ(Utf8(Text), SampleUtf8) << Name;
		EXPECT_EQ(Text.Len(), 7) << Name;
	}
}

TEST_F(FileHelperTest, AMissingFileFailsAndLeavesTheResultEmpty)
{
	FString Text(TEXT("stale"));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *PathOf("Missing.txt")));
	EXPECT_TRUE(Text.IsEmpty());
	TArray<uint8> Bytes;
	Bytes.Add(1);
	EXPECT_FALSE(FFileHelper::LoadFileToArray(Bytes, *PathOf("Missing.txt")));
	EXPECT_EQ(Bytes.Num(), 0);
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *PathOf("")));
}

TEST_F(FileHelperTest, SavedTextCarriesTheRequestedEncodingAndReadsBack)
{
	const FString Sample = QuorvelTest::FromUtf8(SampleUtf8);
	using EEncoding = FFileHelper::EEncodingOptions;

	ASSERT_TRUE(FFileHelper::SaveStringToFile(Sample, *PathOf("Out/Utf8.txt"), EEncoding::ForceUTF8WithoutBOM));
	EXPECT_EQ(ReadBytes("Out/Utf8.txt"), SampleUtf8);
	ASSERT_TRUE(FFileHelper::SaveStringToFile(Sample, *PathOf("Out/Utf8Bom.txt"), EEncoding::ForceUTF8));
	EXPECT_EQ(ReadBytes("Out/Utf8Bom.txt"), "\xEF\xBB\xBF" + SampleUtf8);
	// Anything beyond 7 bits makes AutoDetect write UTF-16 with its mark; plain ASCII stays ASCII.
	ASSERT_TRUE(FFileHelper::SaveStringToFile(Sample, *PathOf("Out/Auto.txt")));
	EXPECT_EQ(ReadBytes("Out/Auto.txt").substr(0, 4), std::string("\xFF\xFE\xC9\x00", 4));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("Key=1")), *PathOf("Out/Ascii.txt")));
	EXPECT_EQ(ReadBytes("Out/Ascii.txt"), "Key=1");

	for (const char* Name : { "Out/Utf8.txt", "Out/Utf8Bom.txt", "Out/Auto.txt" })
	{
		FString Text;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *PathOf(Name)));
		EXPECT_EQ(Utf8(Text), SampleUtf8) << Name;
	}
}
