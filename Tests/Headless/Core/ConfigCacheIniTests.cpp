#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "ProjectTreeFixture.h"

#include <gtest/gtest.h>

using QuorvelTest::Utf8;

namespace
{
	class ConfigCacheIniTest : public QuorvelTest::FProjectTreeTest
	{
	protected:
		void WriteGameIni(const std::string& Text)
		{
			WriteFile("Config/DefaultGame.ini", Text);
			FConfigCacheIni::InitializeConfigSystem();
		}

		std::string GetString(const TCHAR* Section, const TCHAR* Key)
		{
			FString Value(TEXT("<absent>"));
			GConfig->GetString(Section, Key, Value, GGameIni);
			return Utf8(Value);
		}

		std::vector<std::string> GetArray(const TCHAR* Section, const TCHAR* Key)
		{
			TArray<FString> Values;
			const int32 Count = GConfig->GetArray(Section, Key, Values, GGameIni);
			EXPECT_EQ(Count, Values.Num());
			std::vector<std::string> Result;
			for (const FString& Value : Values)
			{
				Result.push_back(Utf8(Value));
			}
			return Result;
		}
	};
}

TEST_F(ConfigCacheIniTest, SectionsKeysCommentsAndQuotedValuesReadAsTheEngineWritesThem)
{
	WriteGameIni(
		"; Project settings\r\n"
		"[/Script/QuorvelCore.QuorvelSettings]\r\n"
		"BaseUrl=http://127.0.0.1:8787/api;v=2\r\n"
		"  ; an indented comment\r\n"
		"ItemTablePath = /Game/Data/DT_Items.DT_Items  \r\n"
		"Greeting=\"  Hello, \\\"traveller\\\" \\\\ \"\r\n"
		"Empty=\r\n"
		"NoEqualsSign\r\n"
		"\r\n"
		"[Other]\n"
		"BaseUrl=other\n");

	EXPECT_EQ(GetString(TEXT("/Script/QuorvelCore.QuorvelSettings"), TEXT("BaseUrl")), "http://127.0.0.1:8787/api;v=2");
	EXPECT_EQ(GetString(TEXT("/Script/QuorvelCore.QuorvelSettings"), TEXT("ItemTablePath")), "/Game/Data/DT_Items.DT_Items");
	EXPECT_EQ(GetString(TEXT("/Script/QuorvelCore.QuorvelSettings"), TEXT("Greeting")), "  Hello, \"traveller\" \\ ");
	EXPECT_EQ(GetString(TEXT("/Script/QuorvelCore.QuorvelSettings"), TEXT("Empty")), "");
	EXPECT_EQ(GetString(TEXT("/Script/QuorvelCore.QuorvelSettings"), TEXT("NoEqualsSign")), "<absent>");
	EXPECT_EQ(GetString(TEXT("/script/quorvelcore.quorvelsettings"), TEXT("baseurl")), "http://127.0.0.1:8787/api;v=2");
	EXPECT_EQ(GetString(TEXT("Other"), TEXT("BaseUrl")), "other");
	EXPECT_EQ(GetString(TEXT("Missing"), TEXT("BaseUrl")), "<absent>");
	EXPECT_TRUE(GConfig->DoesSectionExist(TEXT("Other"), GGameIni));
	EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("Missing"), GGameIni));
}

TEST_F(ConfigCacheIniTest, ArrayOperatorsAddRemoveAndClearValuesInFileOrder)
{
	WriteGameIni(
		"[Items]\n"
		"+Icons=Sword\n"
		"+Icons=Shield\n"
		"+Icons=Sword\n"
		".Icons=Sword\n"
		"+Icons=Bow\n"
		"-Icons=Shield\n"
		"+Cleared=A\n"
		"!Cleared=ClearArray\n"
		"+Cleared=B\n"
		"Plain=First\n"
		"Plain=Second\n");

	EXPECT_EQ(GetArray(TEXT("Items"), TEXT("Icons")), (std::vector<std::string>{ "Sword", "Sword", "Bow" }));
	EXPECT_EQ(GetArray(TEXT("Items"), TEXT("Cleared")), (std::vector<std::string>{ "B" }));
	EXPECT_EQ(GetArray(TEXT("Items"), TEXT("Plain")), (std::vector<std::string>{ "Second" }));
	EXPECT_EQ(GetString(TEXT("Items"), TEXT("Icons")), "Sword");
	EXPECT_TRUE(GetArray(TEXT("Items"), TEXT("Missing")).empty());
}

TEST_F(ConfigCacheIniTest, TypedReadsConvertAndLeaveTheValueAloneWhenTheKeyIsAbsent)
{
	WriteGameIni(
		"[Numbers]\n"
		"Retries=3\n"
		"Timeout=2.5\n"
		"Precise=0.1234567890123\n"
		"Big=9000000000\n"
		"Enabled=True\n"
		"Yes=yes\n"
		"Off=False\n");

	int32 Retries = -1;
	EXPECT_TRUE(GConfig->GetInt(TEXT("Numbers"), TEXT("Retries"), Retries, GGameIni));
	EXPECT_EQ(Retries, 3);
	float Timeout = 0.0f;
	EXPECT_TRUE(GConfig->GetFloat(TEXT("Numbers"), TEXT("Timeout"), Timeout, GGameIni));
	EXPECT_FLOAT_EQ(Timeout, 2.5f);
	double Precise = 0.0;
	EXPECT_TRUE(GConfig->GetDouble(TEXT("Numbers"), TEXT("Precise"), Precise, GGameIni));
	EXPECT_DOUBLE_EQ(Precise, 0.1234567890123);
	int64 Big = 0;
	EXPECT_TRUE(GConfig->GetInt64(TEXT("Numbers"), TEXT("Big"), Big, GGameIni));
	EXPECT_EQ(Big, 9000000000ll);

	bool bEnabled = false;
	bool bYes = false;
	bool bOff = true;
	EXPECT_TRUE(GConfig->GetBool(TEXT("Numbers"), TEXT("Enabled"), bEnabled, GGameIni));
	EXPECT_TRUE(GConfig->GetBool(TEXT("Numbers"), TEXT("Yes"), bYes, GGameIni));
	EXPECT_TRUE(GConfig->GetBool(TEXT("Numbers"), TEXT("Off"), bOff, GGameIni));
	EXPECT_TRUE(bEnabled);
	EXPECT_TRUE(bYes);
	EXPECT_FALSE(bOff);

	int32 Untouched = 42;
	EXPECT_FALSE(GConfig->GetInt(TEXT("Numbers"), TEXT("Missing"), Untouched, GGameIni));
	EXPECT_FALSE(GConfig->GetInt(TEXT("Missing"), TEXT("Retries"), Untouched, GGameIni));
	EXPECT_EQ(Untouched, 42);
}

TEST_F(ConfigCacheIniTest, AMissingGameIniIsAnEmptyConfigReportedOnce)
{
	QuorvelTest::FLogLineCounter ConfigLog(TEXT("LogConfig"));
	FString Value;
	EXPECT_FALSE(GConfig->GetString(TEXT("Section"), TEXT("Key"), Value, GGameIni));
	EXPECT_FALSE(GConfig->GetString(TEXT("Section"), TEXT("Other"), Value, GGameIni));
	TArray<FString> Values;
	EXPECT_EQ(GConfig->GetArray(TEXT("Section"), TEXT("Key"), Values, GGameIni), 0);
	EXPECT_NE(GConfig->Find(GGameIni), nullptr);
	EXPECT_EQ(ConfigLog.Lines, 1);
	EXPECT_TRUE(ConfigLog.LastLine.Contains(TEXT("DefaultGame.ini")));
}

TEST_F(ConfigCacheIniTest, TheGameBranchIsReadAgainFromTheProjectAfterReinitialising)
{
	WriteGameIni("[S]\nKey=Before\n");
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "Before");

	WriteFile("Config/DefaultGame.ini", "[S]\nKey=After\n");
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "Before");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "After");

	WriteFile("Elsewhere/Config/DefaultGame.ini", "[S]\nKey=Elsewhere\n");
	FPaths::SetProjectFilePath(PathOf("Elsewhere/Other.uproject"));
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "Elsewhere");
}

TEST_F(ConfigCacheIniTest, AnIniPathIsReadDirectlyAndAPathToNothingHasNoValues)
{
	WriteFile("Custom/Tool.ini", std::string("\xFF\xFE[\0T\0]\0\n\0K\0=\0\xE9\0", 16));
	FString Value;
	EXPECT_TRUE(GConfig->GetString(TEXT("T"), TEXT("K"), Value, PathOf("Custom/Tool.ini")));
	EXPECT_EQ(Utf8(Value), "\xC3\xA9");

	QuorvelTest::FLogLineCounter ConfigLog(TEXT("LogConfig"));
	EXPECT_FALSE(GConfig->GetString(TEXT("T"), TEXT("K"), Value, PathOf("Custom/Missing.ini")));
	EXPECT_EQ(GConfig->Find(PathOf("Custom/Missing.ini")), nullptr);
	EXPECT_EQ(ConfigLog.Lines, 0);
}

TEST_F(ConfigCacheIniTest, WrittenValuesChangeOnlyTheCachedConfig)
{
	WriteGameIni("[S]\nKey=OnDisk\n");
	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("InMemory"), GGameIni);
	TArray<FString> List;
	List.Add(TEXT("A"));
	List.Add(TEXT("B"));
	GConfig->SetArray(TEXT("New"), TEXT("List"), List, GGameIni);

	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "InMemory");
	EXPECT_EQ(GetArray(TEXT("New"), TEXT("List")), (std::vector<std::string>{ "A", "B" }));
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "OnDisk");
}

TEST_F(ConfigCacheIniTest, IniSwitchesOfTheCommandLineOverrideTheirBranchAsItIsRead)
{
	const FString Previous(FCommandLine::Get());
	FCommandLine::Set(TEXT("-nullrhi -ini:Engine:[S]:Key=Engine -INI:game:[/Script/Mod.Settings]:BaseUrl=http://127.0.0.1:4321/v1,[S]:Key=Set")
		TEXT(" -ini:Game:[S]:Other=Second -ini:Game:Malformed=1,[S]:NoValue -Xini:Game:[S]:Other=NotASwitch"));
	WriteGameIni("[S]\nKey=File\n+Key=Array\nKept=Yes\n");

	// The last ']:' ends the section; a URL's own colons stay in the value.
	EXPECT_EQ(GetString(TEXT("/Script/Mod.Settings"), TEXT("BaseUrl")), "http://127.0.0.1:4321/v1");
	EXPECT_EQ(GetArray(TEXT("S"), TEXT("Key")), (std::vector<std::string>{ "Set" }));
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Other")), "Second");
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Kept")), "Yes");
	EXPECT_EQ(GetString(TEXT("S"), TEXT("NoValue")), "<absent>");
	EXPECT_EQ(GetString(TEXT("Malformed"), TEXT("Malformed")), "<absent>");

	// Written values still win until the branch is read again, which applies the switches anew.
	GConfig->SetString(TEXT("S"), TEXT("Key"), TEXT("InMemory"), GGameIni);
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "InMemory");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "Set");

	FCommandLine::Set(*Previous);
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("S"), TEXT("Key")), "File");
}
