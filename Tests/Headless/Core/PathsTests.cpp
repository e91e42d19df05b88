#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "ProjectTreeFixture.h"

#include <gtest/gtest.h>

using QuorvelTest::Utf8;

namespace
{
	class ProjectPaths : public QuorvelTest::FProjectTreeTest
	{
	};
}

TEST_F(ProjectPaths, ProjectDirectoriesAreUnderTheProjectFilesDirectoryAndEndWithASlash)
{
	const std::string RootText = Root.generic_string();
	EXPECT_EQ(Utf8(FPaths::ProjectDir()), RootText + "/");
	EXPECT_EQ(Utf8(FPaths::ProjectContentDir()), RootText + "/Content/");
	EXPECT_EQ(Utf8(FPaths::ProjectConfigDir()), RootText + "/Config/");
	EXPECT_TRUE(FPaths::IsProjectFilePathSet());

	FPaths::SetProjectFilePath(FString());
	EXPECT_FALSE(FPaths::IsProjectFilePathSet());
	EXPECT_EQ(Utf8(FPaths::ProjectDir()), std::filesystem::current_path().generic_string() + "/");
}

TEST(Paths, FileNamePartsComeFromTheLastComponentOnly)
{
	EXPECT_EQ(Utf8(FPaths::GetExtension(TEXT("/Game/Icons/T_Sword.png"))), "png");
	EXPECT_EQ(Utf8(FPaths::GetExtension(TEXT("/Game/Icons/T_Sword.png"), true)), ".png");
	EXPECT_EQ(Utf8(FPaths::GetExtension(TEXT("/Game/Items.v2/Table"))), "");
	EXPECT_EQ(Utf8(FPaths::GetBaseFilename(TEXT("/Game/Icons/T_Sword.png"))), "T_Sword");
	EXPECT_EQ(Utf8(FPaths::GetBaseFilename(TEXT("/Game/Icons/T_Sword.png"), false)), "/Game/Icons/T_Sword");
	EXPECT_EQ(Utf8(FPaths::GetBaseFilename(TEXT("C:\\Items\\DT_Items.json"))), "DT_Items");
	EXPECT_EQ(Utf8(FPaths::GetCleanFilename(TEXT("/Game/Icons/T_Sword.png"))), "T_Sword.png");
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("/Game/Icons/T_Sword.png"))), "/Game/Icons");
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("T_Sword.png"))), "");
	EXPECT_EQ(Utf8(FPaths::ChangeExtension(TEXT("Dir.d/Icon.png"), TEXT("json"))), "Dir.d/Icon.json");
	EXPECT_EQ(Utf8(FPaths::ChangeExtension(TEXT("Dir.d/Icon"), TEXT("json"))), "Dir.d/Icon");
	EXPECT_EQ(Utf8(FPaths::SetExtension(TEXT("Dir.d/Icon"), TEXT(".json"))), "Dir.d/Icon.json");
}

TEST(Paths, CombineJoinsPartsWithExactlyOneSlash)
{
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("/Project/"), TEXT("Content"), FString(TEXT("Icons/T_Sword.png")))), "/Project/Content/Icons/T_Sword.png");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("A"), TEXT("/B"))), "A/B");
}

TEST(Paths, FullPathsAreNormalisedAndCollapsed)
{
	EXPECT_EQ(Utf8(FPaths::ConvertRelativePathToFull(TEXT("/Base/Dir"), TEXT("..\\Other/./File.ini"))), "/Base/Other/File.ini");
	EXPECT_EQ(Utf8(FPaths::ConvertRelativePathToFull(TEXT("/Base"), TEXT("/Abs/./File.ini"))), "/Abs/File.ini");
	EXPECT_EQ(Utf8(FPaths::ConvertRelativePathToFull(TEXT("File.ini"))), std::filesystem::current_path().generic_string() + "/File.ini");

	FString AboveRoot(TEXT("/Dir/../../File"));
	EXPECT_FALSE(FPaths::CollapseRelativeDirectories(AboveRoot));
	FString Directory(TEXT("C:\\Dir\\Sub\\"));
	FPaths::NormalizeDirectoryName(Directory);
	EXPECT_EQ(Utf8(Directory), "C:/Dir/Sub");
}

TEST_F(ProjectPaths, FilesAndDirectoriesAreToldApartAndFoundByWildcard)
{
	WriteFile("Content/Icons/T_Sword.png", "x");
	WriteFile("Content/Icons/T_Shield.PNG", "x");
	WriteFile("Content/Icons/Readme.txt", "x");
	std::filesystem::create_directories(Root / "Content/Icons/T_Folder.png");

	EXPECT_TRUE(FPaths::FileExists(PathOf("Content/Icons/T_Sword.png")));
	EXPECT_FALSE(FPaths::FileExists(PathOf("Content/Icons")));
	EXPECT_TRUE(FPaths::DirectoryExists(PathOf("Content/Icons")));
	EXPECT_FALSE(FPaths::DirectoryExists(PathOf("Content/Icons/T_Sword.png")));
	EXPECT_FALSE(FPaths::FileExists(FString()));

	TArray<FString> Found;
	IFileManager::Get().FindFiles(Found, *PathOf("Content/Icons/T_*.png"), true, false);
	ASSERT_EQ(Found.Num(), 2);
	EXPECT_EQ(Utf8(Found[0]), "T_Shield.PNG");
	EXPECT_EQ(Utf8(Found[1]), "T_Sword.png");

	TArray<FString> Directories;
	IFileManager::Get().FindFiles(Directories, *PathOf("Content/Icons/*"), false, true);
	ASSERT_EQ(Directories.Num(), 1);
	EXPECT_EQ(Utf8(Directories[0]), "T_Folder.png");

	TArray<FString> Recursive;
	IFileManager::Get().FindFilesRecursive(Recursive, *PathOf("Content"), TEXT("*.txt"), true, false);
	ASSERT_EQ(Recursive.Num(), 1);
	EXPECT_EQ(Utf8(Recursive[0]), (Root / "Content/Icons/Readme.txt").generic_string());
	EXPECT_EQ(IFileManager::Get().FileSize(*PathOf("Content/Icons/Readme.txt")), 1);
	EXPECT_EQ(IFileManager::Get().FileSize(*PathOf("Content/Icons/Missing.txt")), -1);
}
