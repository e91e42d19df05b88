// State kept in a database file across restarts, wiped by a reset, the demo stash seeded once per
// database, and the whole state exported and imported as one document.
#include "Domain/Platform.h"
#include "EmulatorTestServer.h"
#include "TemporaryFile.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	namespace
	{
		const std::string grantPath = "/v1/game/inventory/grant";

		EmulatorOptions optionsFor(const TemporaryFile& database)
		{
			EmulatorOptions options = testOptions();
			options.database = database.path();
			return options;
		}

		std::string messageOf(const EmulatorOptions& options)
		{
			try
			{
				openPlatform(options);
			}
			catch (const std::exception& error)
			{
				return error.what();
			}
			return "no error";
		}
	}

	TEST(EmulatorStateTest, AFileDatabaseKeepsTheStateAcrossARestartUntilAReset)
	{
		const TemporaryFile database("state.db");
		Json before;
		{
			EmulatorTestServer emulator(optionsFor(database));
			const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
			ASSERT_EQ(emulator.change(grantPath, {{"container_id", stash["id"]}, {"item_id", "medkit"}, {"quantity", 3}},
				emulator.token).status, 200);
			before = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		}
		{
			EmulatorTestServer emulator(optionsFor(database));
			EXPECT_EQ(emulator.ensureSlots(emulator.token, "stash", 9), before);
		}
		EmulatorOptions reset = optionsFor(database);
		reset.reset = true;
		{
			EmulatorTestServer emulator(reset);
			EXPECT_EQ(emulator.ensureSlots(emulator.token, "stash", 9)["layout"], "slots");
			EXPECT_EQ(emulator.service.exportState()["stacks"], Json::array());
		}
	}

	TEST(EmulatorStateTest, TheDemoStashIsSeededOncePerDatabaseSoAnEmptiedStashStaysEmptyUntilAReset)
	{
		const TemporaryFile database("seed.db");
		EmulatorOptions options = optionsFor(database);
		options.seed = true;
		{
			EmulatorTestServer emulator(options);
			EXPECT_EQ(emulator.service.seededStacks(), 8);
			const std::string demo = emulator.signIn("demo_account");
			const Json stash = emulator.ensureSlots(demo, "stash", 24);
			EXPECT_EQ(stash["layout"], "grid");
			EXPECT_EQ(stash["grid_width"], 10);
			EXPECT_EQ(stash["grid_height"], 8);
			ASSERT_EQ(stash["items"].size(), 8u);
			for (const Json& stack : stash["items"])
			{
				EXPECT_EQ(emulator.change("/v1/game/inventory/consume", {{"instance_id", stack["id"]}}, demo).status, 200);
			}
		}
		{
			EmulatorTestServer emulator(options);
			EXPECT_EQ(emulator.service.seededStacks(), 0);
			EXPECT_EQ(emulator.ensureGrid(emulator.signIn("demo_account"), "stash", 10, 8)["items"].size(), 0u);
		}
		options.reset = true;
		EmulatorTestServer emulator(options);
		EXPECT_EQ(emulator.service.seededStacks(), 8);
	}

	TEST(EmulatorStateTest, AnExportedStateImportsIntoAFreshEmulatorAsItWas)
	{
		EmulatorOptions seeded = testOptions();
		seeded.seed = true;
		Json exported;
		Json stashBefore;
		Json pouchBefore;
		{
			EmulatorTestServer emulator(seeded);
			const Json stash = emulator.ensureGrid(emulator.token, "stash", 6, 6);
			const Json pouch = emulator.ensureSlots(emulator.token, "pouch", 4);
			ASSERT_EQ(emulator.change(grantPath, {{"container_id", stash["id"]}, {"item_id", "rifle"}, {"quantity", 1},
				{"to", {{"x", 0}, {"y", 0}, {"rotated", true}}}}, emulator.token).status, 200);
			const HttpReply water = emulator.change(grantPath, {{"container_id", stash["id"]}, {"item_id", "water"}, {"quantity", 2}},
				emulator.token);
			ASSERT_EQ(emulator.change("/v1/game/inventory/move", {{"instance_id", water.body["instance"]["id"]},
				{"to_container_id", pouch["id"]}, {"to", {{"slot_index", 2}}}}, emulator.token).status, 200);
			exported = emulator.service.exportState();
			stashBefore = emulator.ensureGrid(emulator.token, "stash", 6, 6);
			pouchBefore = emulator.ensureSlots(emulator.token, "pouch", 4);
		}
		EXPECT_EQ(exported["demo_seeded"], true);
		EXPECT_EQ(exported["players"].size(), 2u);
		EXPECT_EQ(exported["stacks"].size(), 10u);

		const TemporaryFile document("state.json");
		document.write(exported.dump(1, '\t'));
		EmulatorOptions imported = testOptions();
		imported.importPath = document.path();
		imported.seed = true;
		EmulatorTestServer emulator(imported);
		EXPECT_EQ(emulator.service.seededStacks(), 0);
		EXPECT_EQ(emulator.service.exportState(), exported);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 6, 6), stashBefore);
		EXPECT_EQ(emulator.ensureSlots(emulator.token, "pouch", 4), pouchBefore);
	}

	TEST(EmulatorStateTest, ABadStateDocumentIsRefusedWithWhereItIsWrongAndChangesNothing)
	{
		const TemporaryFile database("kept.db");
		Json state;
		{
			EmulatorOptions options = optionsFor(database);
			options.seed = true;
			state = openPlatform(options)->exportState();
		}
		ASSERT_EQ(state["stacks"].size(), 8u);

		const auto withStack = [&](std::size_t index, const char* key, const Json& value)
		{
			Json changed = state;
			changed["stacks"][index][key] = value;
			return changed.dump();
		};
		const std::pair<std::string, std::string> documents[] = {
			{"{\"players\": [", "not valid JSON"},
			{"[]", "must be a JSON object"},
			{Json{{"players", Json::array()}, {"containers", Json::array()}}.dump(), "\"stacks\" must be an array"},
			{withStack(3, "container_id", "ctr_missing"), "stacks[3]: no container 'ctr_missing'"},
			{withStack(2, "quantity", 0), "stacks[2]: \"quantity\" must be from 1"},
			{withStack(1, "x", 0), "stacks[1]: cell 0, 0 is occupied"},
			{withStack(5, "id", state["stacks"][0]["id"]), "stacks[5]: the id '"},
			{withStack(4, "rotated", "yes"), "stacks[4]: \"rotated\" must be true or false"},
		};
		const TemporaryFile document("bad.json");
		for (const auto& [text, problem] : documents)
		{
			SCOPED_TRACE(problem);
			document.write(text);
			EmulatorOptions options = optionsFor(database);
			options.reset = true;
			options.importPath = document.path();
			const std::string message = messageOf(options);
			EXPECT_TRUE(message.starts_with(document.path() + ": ")) << message;
			EXPECT_NE(message.find(problem), std::string::npos) << message;
		}
		EXPECT_EQ(openPlatform(optionsFor(database))->exportState(), state);
	}

	TEST(EmulatorStateTest, AFileThatIsNotADatabaseStopsTheStartNamingTheFile)
	{
		const TemporaryFile notes("notes.db");
		notes.write(std::string(512, 'x'));
		const std::string message = messageOf(optionsFor(notes));
		EXPECT_TRUE(message.starts_with(notes.path() + ": ")) << message;
		EXPECT_NE(message.find("not a database"), std::string::npos) << message;
	}
}
