#include "EngineTestSupport.h"
#include "EngineTestTypes.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

using QuorvelTest::FLogLineCounter;
using QuorvelTest::FromUtf8;
using QuorvelTest::Utf8;

namespace
{
	// As the engine exports an item table: texts as NSLOCTEXT, enums by name, references as paths.
	constexpr const char* ItemsJson = R"json([
		{
			"Name": "Sword",
			"DisplayName": "NSLOCTEXT(\"Items\", \"SwordName\", \"Iron \\\"Sword\\\"\")",
			"MaxStack": 1,
			"Weight": 2.5,
			"bTradable": true,
			"Rarity": "Rare",
			"Icon": "/Game/Icons/Sword.Sword",
			"Thumbnail": "Texture2D'/Game/Icons/SwordThumb.SwordThumb'",
			"Tags": ["Weapon", "Melee"]
		},
		{
			"Name": "bandage",
			"DisplayName": "Bandage",
			"MaxStack": 20,
			"Weight": 0.1,
			"bTradable": false,
			"Rarity": "Common",
			"Icon": "None",
			"Thumbnail": "None",
			"Tags": []
		}
	])json";

	class DataTableTest : public QuorvelTest::FContentTest
	{
	protected:
		virtual void TearDown() override
		{
			CollectGarbage();
			FContentTest::TearDown();
		}

		UDataTable* NewItemTable()
		{
			UDataTable* Table = NewObject<UDataTable>(GetTransientPackage());
			Table->RowStruct = FTestItemRow::StaticStruct();
			return Table;
		}

		static std::vector<std::string> Joined(const TArray<FString>& Problems)
		{
			std::vector<std::string> Result;
			for (const FString& Problem : Problems)
			{
				Result.push_back(Utf8(Problem));
			}
			return Result;
		}
	};
}

TEST_F(DataTableTest, TheEngineJsonExportFillsEveryKindOfRowField)
{
	WriteTwoPixelTexture("Icons/SwordThumb.png");
	UDataTable* Table = NewItemTable();

	const TArray<FString> Problems = Table->CreateTableFromJSONString(FromUtf8(ItemsJson));

	EXPECT_TRUE(Problems.IsEmpty()) << ::testing::PrintToString(Joined(Problems));
	const FTestItemRow* Sword = Table->FindRow<FTestItemRow>(FName(TEXT("Sword")), TEXT("test"));
	ASSERT_NE(Sword, nullptr);
	EXPECT_EQ(Utf8(Sword->DisplayName.ToString()), "Iron \"Sword\"");
	EXPECT_EQ(Utf8(FTextInspector::GetNamespace(Sword->DisplayName).Get(FString())), "Items");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Sword->DisplayName).Get(FString())), "SwordName");
	EXPECT_EQ(Sword->MaxStack, 1);
	EXPECT_FLOAT_EQ(Sword->Weight, 2.5f);
	EXPECT_TRUE(Sword->bTradable);
	EXPECT_EQ(Sword->Rarity, ETestItemRarity::Rare);
	ASSERT_EQ(Sword->Tags.Num(), 2);
	EXPECT_EQ(Sword->Tags[1], FName(TEXT("Melee")));

	// The soft reference keeps its path without loading; the hard one is loaded with the table.
	EXPECT_EQ(Utf8(Sword->Icon.ToSoftObjectPath().ToString()), "/Game/Icons/Sword.Sword");
	EXPECT_TRUE(Sword->Icon.IsPending());
	ASSERT_NE(Sword->Thumbnail, nullptr);
	EXPECT_EQ(Utf8(Sword->Thumbnail->GetPathName()), "/Game/Icons/SwordThumb.SwordThumb");

	const FTestItemRow* Bandage = Table->FindRow<FTestItemRow>(FName(TEXT("bandage")), TEXT("test"));
	ASSERT_NE(Bandage, nullptr);
	EXPECT_EQ(Utf8(Bandage->DisplayName.ToString()), "Bandage");
	EXPECT_TRUE(Bandage->Icon.IsNull());
	EXPECT_EQ(Bandage->Thumbnail, nullptr);
	EXPECT_TRUE(Bandage->Tags.IsEmpty());
}

TEST_F(DataTableTest, RowsAreFoundByNameWithoutRegardToCaseAndListedInFileOrder)
{
	WriteTwoPixelTexture("Icons/SwordThumb.png");
	UDataTable* Table = NewItemTable();
	Table->CreateTableFromJSONString(FromUtf8(ItemsJson));

	EXPECT_EQ(Table->FindRowUnchecked(FName(TEXT("SWORD"))), Table->FindRowUnchecked(FName(TEXT("Sword"))));
	EXPECT_NE(Table->FindRow<FTestItemRow>(FName(TEXT("Bandage")), TEXT("test")), nullptr);
	const TArray<FName> Names = Table->GetRowNames();
	ASSERT_EQ(Names.Num(), 2);
	EXPECT_EQ(Utf8(Names[0].ToString()), "Sword");
	EXPECT_EQ(Utf8(Names[1].ToString()), "bandage");
}

TEST_F(DataTableTest, FindRowRefusesMissingRowsNoneAndOtherRowStructsWithOneLogLineEach)
{
	WriteTwoPixelTexture("Icons/SwordThumb.png");
	UDataTable* Table = NewItemTable();
	Table->CreateTableFromJSONString(FromUtf8(ItemsJson));
	FLogLineCounter Log(TEXT("LogDataTable"));

	EXPECT_EQ(Table->FindRow<FTestItemRow>(FName(TEXT("Shield")), TEXT("test")), nullptr);
	EXPECT_EQ(Log.Lines, 1);
	EXPECT_NE(Utf8(Log.LastLine).find("Shield"), std::string::npos);
	EXPECT_EQ(Table->FindRow<FTestItemRow>(FName(TEXT("Shield")), TEXT("test"), false), nullptr);
	EXPECT_EQ(Log.Lines, 1);
	EXPECT_EQ(Table->FindRow<FTestItemRow>(NAME_None, TEXT("test")), nullptr);
	EXPECT_EQ(Log.Lines, 2);
	EXPECT_EQ(Table->FindRow<FTestOtherRow>(FName(TEXT("Sword")), TEXT("test")), nullptr);
	EXPECT_EQ(Log.Lines, 3);
}

TEST_F(DataTableTest, MalformedJsonEmptiesTheTableAndSaysWhereParsingFailed)
{
	WriteTwoPixelTexture("Icons/SwordThumb.png");
	UDataTable* Table = NewItemTable();
	Table->CreateTableFromJSONString(FromUtf8(ItemsJson));
	ASSERT_EQ(Table->GetRowMap().Num(), 2);

	const TArray<FString> Truncated = Table->CreateTableFromJSONString(TEXT("[ { \"Name\": \"Sword\", \"MaxStack\": "));
	ASSERT_EQ(Truncated.Num(), 1);
	EXPECT_NE(Utf8(Truncated[0]).find("Failed to parse"), std::string::npos);
	EXPECT_EQ(Table->GetRowMap().Num(), 0);

	EXPECT_EQ(Table->CreateTableFromJSONString(TEXT("{ \"Name\": \"Sword\" }")).Num(), 1);
	EXPECT_EQ(Table->GetRowMap().Num(), 0);
	EXPECT_EQ(Table->CreateTableFromJSONString(FString()).Num(), 1);
}

TEST_F(DataTableTest, BadRowsAndFieldsAreReportedWhileTheRestOfTheTableIsRead)
{
	UDataTable* Table = NewItemTable();

	const TArray<FString> Problems = Table->CreateTableFromJSONString(TEXT(R"([
		42,
		{ "MaxStack": 3 },
		{ "Name": "Arrow", "MaxStack": "lots", "Rarity": "Mythic", "Icon": 7, "Thumbnail": "/Game/Missing.Missing", "Colour": "red" },
		{ "Name": "Arrow", "MaxStack": 50 }
	])"));

	const std::string All = ::testing::PrintToString(Joined(Problems));
	EXPECT_NE(All.find("Row '0' is not a JSON object"), std::string::npos) << All;
	EXPECT_NE(All.find("Row '1' is missing a name"), std::string::npos) << All;
	EXPECT_NE(All.find("'lots' is not a valid int32"), std::string::npos) << All;
	EXPECT_NE(All.find("'Mythic'"), std::string::npos) << All;
	EXPECT_NE(All.find("/Game/Missing.Missing"), std::string::npos) << All;
	EXPECT_NE(All.find("'Colour' that is not a property"), std::string::npos) << All;
	EXPECT_NE(All.find("Duplicate row name 'Arrow'"), std::string::npos) << All;
	// The later row replaces the earlier, starting again from the defaults.
	const FTestItemRow* Arrow = Table->FindRow<FTestItemRow>(FName(TEXT("Arrow")), TEXT("test"));
	ASSERT_NE(Arrow, nullptr);
	EXPECT_EQ(Arrow->MaxStack, 50);
	EXPECT_EQ(Arrow->Rarity, ETestItemRarity::Common);
	EXPECT_EQ(Table->GetRowMap().Num(), 1);
}

TEST_F(DataTableTest, ATableAssetInContentLoadsThroughItsPathAndLogsItsRowProblems)
{
	WriteContent("Data/DT_Items.json",
		R"({ "RowStruct": "/Script/EngineTests.TestItemRow", "Rows": [ { "Name": "Sword", "MaxStack": 1 } ] })");
	FLogLineCounter Log(TEXT("LogDataTable"));

	UDataTable* Table = Cast<UDataTable>(FSoftObjectPath(TEXT("/Game/Data/DT_Items.DT_Items")).TryLoad());

	ASSERT_NE(Table, nullptr);
	EXPECT_EQ(Table->GetRowStruct(), FTestItemRow::StaticStruct());
	EXPECT_EQ(Utf8(Table->GetPathName()), "/Game/Data/DT_Items.DT_Items");
	EXPECT_NE(Table->FindRowUnchecked(FName(TEXT("sword"))), nullptr);
	// Each field the row leaves out is one warning naming the asset.
	EXPECT_GE(Log.Lines, 1);
	EXPECT_NE(Utf8(Log.LastLine).find("/Game/Data/DT_Items.DT_Items"), std::string::npos);
}

TEST_F(DataTableTest, ATableFileThatIsNotATableLoadsNothingAndSaysWhy)
{
	WriteContent("Data/Broken.json", "{ \"RowStruct\": \"/Script/EngineTests.TestItemRow\", \"Rows\": [ ");
	WriteContent("Data/NoRows.json", "{ \"RowStruct\": \"/Script/EngineTests.TestItemRow\" }");
	WriteContent("Data/NoStruct.json", "{ \"RowStruct\": \"/Script/EngineTests.NoSuchRow\", \"Rows\": [] }");
	FLogLineCounter Log(TEXT("LogStreaming"));

	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Data/Broken.Broken")).TryLoad(), nullptr);
	EXPECT_NE(Utf8(Log.LastLine).find("is not a JSON object"), std::string::npos) << Utf8(Log.LastLine);
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Data/NoRows.NoRows")).TryLoad(), nullptr);
	EXPECT_NE(Utf8(Log.LastLine).find("\"Rows\" array"), std::string::npos) << Utf8(Log.LastLine);
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Data/NoStruct.NoStruct")).TryLoad(), nullptr);
	EXPECT_NE(Utf8(Log.LastLine).find("NoSuchRow"), std::string::npos) << Utf8(Log.LastLine);
	EXPECT_EQ(Log.Lines, 3);
}

TEST_F(DataTableTest, HardReferencesInRowsKeepTheirObjectsAliveAndSoftOnesDoNot)
{
	WriteTwoPixelTexture("Icons/SwordThumb.png");
	WriteTwoPixelTexture("Icons/Sword.png");
	UDataTable* Table = NewItemTable();
	Table->AddToRoot();
	Table->CreateTableFromJSONString(FromUtf8(ItemsJson));
	const FTestItemRow* Sword = Table->FindRow<FTestItemRow>(FName(TEXT("Sword")), TEXT("test"));
	ASSERT_NE(Sword->Icon.LoadSynchronous(), nullptr);

	CollectGarbage();

	EXPECT_NE(FSoftObjectPath(TEXT("/Game/Icons/SwordThumb.SwordThumb")).ResolveObject(), nullptr);
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Icons/Sword.Sword")).ResolveObject(), nullptr);
	EXPECT_EQ(Sword->Icon.Get(), nullptr);
	Table->RemoveFromRoot();
}
