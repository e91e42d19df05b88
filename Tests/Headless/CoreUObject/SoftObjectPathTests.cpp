#include "TestReflectedTypes.h"

#include "Headless/AssetLoader.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"

#include <gtest/gtest.h>

namespace
{
	class FTestAssetLoader : public UE::Headless::IAssetLoader
	{
	public:
		virtual UObject* LoadAsset(const FSoftObjectPath& Path) override
		{
			++Loads;
			UPackage* Package = CreatePackage(*Path.GetLongPackageName());
			return NewObject<UTestBase>(Package, FName(*Path.GetAssetName()));
		}
		int32 Loads = 0;
	};
}

TEST(SoftObjectPath, SplitsThePathIntoPackageAssetAndSubobject)
{
	const FSoftObjectPath Path(TEXT("/Game/Items/ItemTable.ItemTable"));
	EXPECT_EQ(Path.GetLongPackageName(), FString(TEXT("/Game/Items/ItemTable")));
	EXPECT_EQ(Path.GetAssetName(), FString(TEXT("ItemTable")));
	EXPECT_EQ(Path.ToString(), FString(TEXT("/Game/Items/ItemTable.ItemTable")));
	EXPECT_TRUE(Path.IsValid());
	EXPECT_TRUE(FSoftObjectPath(TEXT("")).IsNull());
	EXPECT_EQ(FSoftObjectPath(TEXT("DataTable'/Game/A/B.B'")).ToString(), FString(TEXT("/Game/A/B.B")));
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/A/B.B:Inner")).GetSubPathString(), FString(TEXT("Inner")));
}

TEST(SoftObjectPath, ResolvesObjectsInMemoryAndLoadsThroughTheInstalledLoader)
{
	FTestAssetLoader Loader;
	UE::Headless::SetAssetLoader(&Loader);
	const TSoftObjectPtr<UTestBase> Soft(FSoftObjectPath(TEXT("/Game/Tests/Loaded.Loaded")));
	EXPECT_TRUE(Soft.IsPending());
	EXPECT_EQ(Soft.Get(), nullptr);

	UTestBase* Loaded = Soft.LoadSynchronous();

	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->GetPathName(), FString(TEXT("/Game/Tests/Loaded.Loaded")));
	EXPECT_EQ(Soft.Get(), Loaded);
	EXPECT_EQ(Soft.LoadSynchronous(), Loaded);
	EXPECT_EQ(Loader.Loads, 1);
	UE::Headless::SetAssetLoader(nullptr);
}
