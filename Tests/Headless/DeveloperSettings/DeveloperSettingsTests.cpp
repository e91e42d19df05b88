#include "../Core/ProjectTreeFixture.h"
#include "TestSettings.h"

#include "UObject/ObjectDefaults.h"

#include <gtest/gtest.h>

using QuorvelTest::FLogLineCounter;
using QuorvelTest::Utf8;

namespace
{
	using DeveloperSettingsTest = QuorvelTest::FProjectTreeTest;
}

TEST_F(DeveloperSettingsTest, DefaultsReadTheSectionNamedAfterTheClassInDefaultGameIni)
{
	WriteFile("Config/DefaultGame.ini",
		"[/Script/DeveloperSettingsTests.TestConfiguredSettings]\n"
		"BaseUrl=http://127.0.0.1:8787\n"
		"ItemTablePath=/Game/Data/DT_Items.DT_Items\n"
		"RequestTimeoutSeconds=2.5\n"
		"MaxRetries=many\n"
		"bVerbose=True\n"
		"+Regions=eu\n"
		"+Regions=us\n"
		"NotConfig=9\n"
		"[/Script/DeveloperSettingsTests.TestUnconfiguredSettings]\n"
		"BaseUrl=http://wrong-section\n");
	ASSERT_EQ(UTestConfiguredSettings::StaticClass()->GetDefaultObject(false), nullptr) << "another test made the defaults first";
	FLogLineCounter Log(TEXT("LogObjectConfig"));

	const UTestConfiguredSettings* Settings = GetDefault<UTestConfiguredSettings>();

	EXPECT_EQ(Utf8(Settings->GetClass()->GetPathName()), "/Script/DeveloperSettingsTests.TestConfiguredSettings");
	EXPECT_EQ(Utf8(Settings->GetSectionName().ToString()), "TestConfiguredSettings");
	EXPECT_EQ(Utf8(Settings->BaseUrl), "http://127.0.0.1:8787");
	EXPECT_EQ(Utf8(Settings->ItemTablePath.ToString()), "/Game/Data/DT_Items.DT_Items");
	EXPECT_FLOAT_EQ(Settings->RequestTimeoutSeconds, 2.5f);
	EXPECT_TRUE(Settings->bVerbose);
	ASSERT_EQ(Settings->Regions.Num(), 2);
	EXPECT_EQ(Utf8(Settings->Regions[1]), "us");
	// Absent keys, and array keys with no values, keep what the class gave them.
	ASSERT_EQ(Settings->Fallbacks.Num(), 1);
	EXPECT_EQ(Utf8(Settings->Fallbacks[0]), "eu");
	EXPECT_EQ(Settings->NotConfig, 5);
	// A value the property cannot read keeps the default and says so once.
	EXPECT_EQ(Settings->MaxRetries, 3);
	EXPECT_EQ(Log.Lines, 1);
	EXPECT_NE(Utf8(Log.LastLine).find("MaxRetries=many"), std::string::npos) << Utf8(Log.LastLine);
	EXPECT_EQ(GetDefault<UTestConfiguredSettings>(), Settings);
}

TEST_F(DeveloperSettingsTest, WithoutAConfigFileEverySettingKeepsItsDefault)
{
	ASSERT_EQ(UTestUnconfiguredSettings::StaticClass()->GetDefaultObject(false), nullptr) << "another test made the defaults first";
	FLogLineCounter Log(TEXT("LogConfig"));

	const UTestUnconfiguredSettings* Settings = GetDefault<UTestUnconfiguredSettings>();

	EXPECT_EQ(Utf8(Settings->BaseUrl), "http://localhost");
	EXPECT_EQ(Settings->MaxRetries, 3);
	EXPECT_EQ(Log.Lines, 1);
	EXPECT_NE(Utf8(Log.LastLine).find("DefaultGame.ini"), std::string::npos) << Utf8(Log.LastLine);
}
