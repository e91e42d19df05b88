// The demo content matches the emulator: every item of the shipped catalog has a row and an icon.
#include "Api/RequestFields.h"
#include "Domain/ItemCatalog.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace quorvel::emulator::test
{
	namespace
	{
		std::string readFile(const std::filesystem::path& path)
		{
			std::ifstream file(path, std::ios::binary);
			std::ostringstream text;
			text << file.rdbuf();
			return text.str();
		}

		/** "/Game/Dir/Name.Name" as the file Content/Dir/Name<extension>; empty when malformed. */
		std::filesystem::path contentFile(const std::string& objectPath, const std::string& extension)
		{
			const std::string prefix = "/Game/";
			const size_t dot = objectPath.rfind('.');
			const size_t slash = objectPath.rfind('/');
			if (!objectPath.starts_with(prefix) || dot == std::string::npos || dot < slash
				|| objectPath.substr(slash + 1, dot - slash - 1) != objectPath.substr(dot + 1))
			{
				return {};
			}
			return std::filesystem::path("Content") / (objectPath.substr(prefix.size(), dot - prefix.size()) + extension);
		}

		std::uint32_t bigEndian(const std::string& bytes, size_t offset)
		{
			std::uint32_t value = 0;
			for (size_t i = 0; i < 4; ++i)
			{
				value = (value << 8) | static_cast<unsigned char>(bytes[offset + i]);
			}
			return value;
		}
	}

	TEST(DemoContentTest, TheGameSettingsNameTheDemoItemTable)
	{
		const std::string ini = readFile("Config/DefaultGame.ini");
		EXPECT_NE(ini.find("[/Script/QuorvelCore.QuorvelSettings]"), std::string::npos);
		EXPECT_NE(ini.find("BaseUrl=http://127.0.0.1:8787\n"), std::string::npos);
		const std::string key = "ItemTablePath=";
		const size_t at = ini.find(key);
		ASSERT_NE(at, std::string::npos);
		const std::string path = ini.substr(at + key.size(), ini.find('\n', at) - at - key.size());
		EXPECT_EQ(contentFile(path, ".json"), std::filesystem::path("Content/Items/DT_StashItems.json"));
	}

	TEST(DemoContentTest, EveryItemOfTheShippedCatalogHasATableRowWithA64PixelIcon)
	{
		const ItemCatalog catalog = ItemCatalog::load("Content/Items/Catalog.json");
		const Json table = Json::parse(readFile("Content/Items/DT_StashItems.json"));
		ASSERT_TRUE(table["Rows"].is_array());
		EXPECT_EQ(table["Rows"].size(), catalog.items().size());
		for (const ItemDefinition& item : catalog.items())
		{
			SCOPED_TRACE(item.id);
			const auto row = std::find_if(table["Rows"].begin(), table["Rows"].end(),
				[&](const Json& candidate) { return candidate.value("Name", "") == item.id; });
			ASSERT_NE(row, table["Rows"].end());

			const std::filesystem::path icon = contentFile(row->value("Icon", ""), ".png");
			ASSERT_FALSE(icon.empty()) << row->dump();
			const std::string png = readFile(icon);
			ASSERT_GE(png.size(), 24u) << icon;
			EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
			EXPECT_EQ(png.substr(12, 4), "IHDR");
			EXPECT_EQ(bigEndian(png, 16), 64u);
			EXPECT_EQ(bigEndian(png, 20), 64u);
		}
	}
}
