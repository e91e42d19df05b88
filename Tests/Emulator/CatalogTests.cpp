// The item catalog read from JSON at start-up: checked entry by entry, and used by grant and seed.
#include "Domain/ItemCatalog.h"
#include "EmulatorTestServer.h"
#include "TemporaryFile.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	TEST(EmulatorCatalogTest, ACatalogGivesEachItemItsFootprintAndStackLimitInFileOrder)
	{
		const ItemCatalog catalog = ItemCatalog::parse(R"({"items": [
			{"id": "crate", "width": 3, "height": 2, "max_stack": 4},
			{"id": "coin", "width": 1, "height": 1, "max_stack": 999, "note": "ignored"}]})", "test");
		ASSERT_EQ(catalog.items().size(), 2u);
		EXPECT_EQ(catalog.items()[0].id, "crate");
		const ItemDefinition* crate = catalog.find("crate");
		ASSERT_NE(crate, nullptr);
		EXPECT_EQ(crate->width, 3);
		EXPECT_EQ(crate->height, 2);
		EXPECT_EQ(crate->maxStack, 4);
		EXPECT_EQ(catalog.find("coin")->maxStack, 999);
		EXPECT_EQ(catalog.find("medkit"), nullptr);
	}

	TEST(EmulatorCatalogTest, ABadCatalogIsRefusedNamingTheFileTheEntryAndTheProblem)
	{
		const std::pair<std::string, std::string> catalogs[] = {
			{"{\"items\": [", "Catalog.json: not valid JSON"},
			{"[]", "Catalog.json: expected an object with an \"items\" array"},
			{R"({"items": []})", "Catalog.json: \"items\" lists no items"},
			{R"({"items": [{"id": "a", "width": 1, "height": 1}]})", "Catalog.json: items[0]: \"max_stack\" is required"},
			{R"({"items": [{"id": "a", "width": 1, "height": 1, "max_stack": 1}, {"id": "", "width": 1, "height": 1, "max_stack": 1}]})",
				"Catalog.json: items[1]: \"id\" must not be empty"},
			{R"({"items": [{"id": "a", "width": 0, "height": 1, "max_stack": 1}]})", "Catalog.json: items[0]: \"width\" must be from 1 to 100"},
			{R"({"items": [{"id": "a", "width": 1, "height": 1, "max_stack": 0}]})", "Catalog.json: items[0]: \"max_stack\" must be at least 1"},
			{R"({"items": [{"id": "a", "width": 1, "height": 1.5, "max_stack": 1}]})", "Catalog.json: items[0]: \"height\" must be a whole number"},
			{R"({"items": [{"id": "a", "width": 1, "height": 1, "max_stack": 1}, {"id": "a", "width": 2, "height": 1, "max_stack": 1}]})",
				"Catalog.json: items[1]: \"a\" is listed twice"},
		};
		for (const auto& [text, problem] : catalogs)
		{
			SCOPED_TRACE(text);
			try
			{
				ItemCatalog::parse(text, "Catalog.json");
				ADD_FAILURE() << "accepted";
			}
			catch (const CatalogError& error)
			{
				EXPECT_TRUE(std::string(error.what()).starts_with(problem)) << error.what();
			}
		}
		EXPECT_THROW(ItemCatalog::load("Content/Items/Missing.json"), CatalogError);
	}

	TEST(EmulatorCatalogTest, AnotherCatalogReplacesTheItemsGrantAndSeedKnow)
	{
		const TemporaryFile catalog("Catalog.json");
		catalog.write(R"({"items": [{"id": "crate", "width": 2, "height": 3, "max_stack": 4},
			{"id": "medkit", "width": 1, "height": 1, "max_stack": 1}]})");
		EmulatorOptions options = testOptions();
		options.catalog = catalog.path();
		options.seed = true;
		EmulatorTestServer emulator(options);
		// Of the demo stacks only the medkit is known here, and two exceed its limit of one.
		EXPECT_EQ(emulator.service.seededStacks(), 0);

		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const auto grant = [&](const std::string& item, int quantity)
		{
			return emulator.change("/v1/game/inventory/grant", {{"container_id", stash["id"]}, {"item_id", item}, {"quantity", quantity}},
				emulator.token);
		};
		const HttpReply crate = grant("crate", 4);
		ASSERT_EQ(crate.status, 200);
		EXPECT_EQ(crate.body["instance"]["grid_w"], 2);
		EXPECT_EQ(crate.body["instance"]["grid_h"], 3);
		EXPECT_EQ(grant("crate", 5).errorCode(), "stack_limit_exceeded");
		EXPECT_EQ(grant("rifle", 1).errorCode(), "unknown_item");
	}

	TEST(EmulatorCatalogTest, AnEmulatorWithABadCatalogDoesNotStart)
	{
		const TemporaryFile catalog("Broken.json");
		catalog.write(R"({"items": [{"id": "crate"}]})");
		EmulatorOptions options = testOptions();
		options.catalog = catalog.path();
		try
		{
			Emulator emulator(options);
			ADD_FAILURE() << "started";
		}
		catch (const std::runtime_error& error)
		{
			EXPECT_EQ(std::string(error.what()), catalog.path() + ": items[0]: \"width\" is required");
		}
	}
}
