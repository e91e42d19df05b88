// Container ensure: created once, with the layout it was first asked for.
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	TEST(EmulatorContainerTest, EnsureCreatesTheContainerOnceAndKeepsTheLayoutItWasCreatedWith)
	{
		EmulatorTestServer emulator;
		const Json created = emulator.ensureSlots(emulator.token, "stash", 24);
		EXPECT_EQ(created["kind"], "stash");
		EXPECT_EQ(created["layout"], "slots");
		EXPECT_EQ(created["slot_count"], 24);
		EXPECT_EQ(created["items"], Json::array());

		const Json again = emulator.ensureGrid(emulator.token, "stash", 10, 8);
		EXPECT_EQ(again["id"], created["id"]);
		EXPECT_EQ(again["layout"], "slots");
		EXPECT_EQ(again["slot_count"], 24);
		EXPECT_FALSE(again.contains("grid_width"));

		const Json loadout = emulator.ensureGrid(emulator.token, "loadout", 5, 3);
		EXPECT_NE(loadout["id"], created["id"]);
		EXPECT_EQ(loadout["layout"], "grid");
		EXPECT_EQ(loadout["grid_width"], 5);
		EXPECT_EQ(loadout["grid_height"], 3);
	}

	TEST(EmulatorContainerTest, EnsureRefusesAnUnknownLayoutAndSizesOutOfRangeOnCreation)
	{
		EmulatorTestServer emulator;
		const std::string path = "/v1/game/containers/ensure";
		const HttpReply hex = emulator.post(path, {{"kind", "stash"}, {"layout", "hex"}}, emulator.token);
		EXPECT_EQ(hex.status, 422);
		EXPECT_EQ(hex.errorCode(), "invalid_layout");

		const HttpReply flat = emulator.post(path, {{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 0}, {"grid_height", 8}}, emulator.token);
		EXPECT_EQ(flat.status, 422);
		EXPECT_EQ(flat.errorCode(), "invalid_size");
		const HttpReply noSlots = emulator.post(path, {{"kind", "stash"}, {"layout", "slots"}}, emulator.token);
		EXPECT_EQ(noSlots.errorCode(), "invalid_size");

		// Once it exists, the size asked for no longer matters.
		emulator.ensureGrid(emulator.token, "stash", 3, 3);
		EXPECT_EQ(emulator.post(path, {{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 0}, {"grid_height", 0}}, emulator.token).status, 200);
	}
}
