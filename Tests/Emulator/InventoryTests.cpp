// Grant, consume and move: placement rules, footprints and ownership.
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	namespace
	{
		class EmulatorInventoryTest : public ::testing::Test
		{
		protected:
			HttpReply grant(const Json& container, const std::string& item, int quantity, const Json& to = nullptr)
			{
				Json body{{"container_id", container["id"]}, {"item_id", item}, {"quantity", quantity}};
				if (!to.is_null())
				{
					body["to"] = to;
				}
				return emulator.change("/v1/game/inventory/grant", body, emulator.token);
			}

			/** The granted stack as the next container read shows it. */
			Json granted(const Json& container, const std::string& item, int quantity, const Json& to = nullptr)
			{
				const HttpReply reply = grant(container, item, quantity, to);
				EXPECT_EQ(reply.status, 200) << reply.body;
				const Json after = reread(container);
				const Json* stack = findStack(after, reply.body["instance"]["id"]);
				return stack ? *stack : Json();
			}

			HttpReply move(const std::string& instanceId, const Json& container, const Json& to = nullptr)
			{
				Json body{{"instance_id", instanceId}, {"to_container_id", container["id"]}};
				if (!to.is_null())
				{
					body["to"] = to;
				}
				return emulator.change("/v1/game/inventory/move", body, emulator.token);
			}

			Json reread(const Json& container)
			{
				return emulator.post("/v1/game/containers/ensure", {{"kind", container["kind"]}, {"layout", "grid"}},
					emulator.token).body;
			}

			EmulatorTestServer emulator;
		};

		Json cell(int x, int y) { return Json{{"x", x}, {"y", y}}; }
		Json slot(int index) { return Json{{"slot_index", index}}; }
	}

	TEST_F(EmulatorInventoryTest, GrantWithoutATargetTakesTheFirstSpaceThatFitsInReadingOrder)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 5, 4);
		const Json first = granted(stash, "medkit", 1);
		EXPECT_EQ(first["item_id"], "medkit");
		EXPECT_EQ(first["x"], 0);
		EXPECT_EQ(first["y"], 0);
		EXPECT_EQ(first["grid_w"], 2);
		EXPECT_EQ(first["grid_h"], 2);
		EXPECT_EQ(first["slot_index"], -1);
		const Json second = granted(stash, "medkit", 1);
		EXPECT_EQ(second["x"], 2);
		EXPECT_EQ(second["y"], 0);
		// Column 4 is free but one cell wide, so the next 2x2 goes below.
		const Json third = granted(stash, "medkit", 1);
		EXPECT_EQ(third["x"], 0);
		EXPECT_EQ(third["y"], 2);
		const Json small = granted(stash, "bandage", 7);
		EXPECT_EQ(small["x"], 4);
		EXPECT_EQ(small["y"], 0);
		EXPECT_EQ(small["quantity"], 7);
	}

	TEST_F(EmulatorInventoryTest, GrantTurnsAStackOnlyWhenItFitsNoOtherWayAndRefusesWhenItCannotFit)
	{
		const Json narrow = emulator.ensureGrid(emulator.token, "narrow", 2, 4);
		const Json rifle = granted(narrow, "rifle", 1);
		EXPECT_EQ(rifle["rotated"], true);
		EXPECT_EQ(rifle["grid_w"], 2);
		EXPECT_EQ(rifle["grid_h"], 4);

		const HttpReply full = grant(narrow, "bandage", 1);
		EXPECT_EQ(full.status, 409);
		EXPECT_EQ(full.errorCode(), "container_full");
	}

	TEST_F(EmulatorInventoryTest, GrantAtANamedCellChecksTheWholeFootprintAgainstBoundsAndOtherStacks)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json medkit = granted(stash, "medkit", 1, cell(1, 1));
		EXPECT_EQ(medkit["x"], 1);
		EXPECT_EQ(medkit["y"], 1);

		const HttpReply onTop = grant(stash, "bandage", 1, cell(2, 2));
		EXPECT_EQ(onTop.status, 409);
		EXPECT_EQ(onTop.errorCode(), "cell_occupied");
		const HttpReply overlapping = grant(stash, "medkit", 1, cell(0, 0));
		EXPECT_EQ(overlapping.errorCode(), "cell_occupied");
		const HttpReply overhanging = grant(stash, "medkit", 1, cell(3, 0));
		EXPECT_EQ(overhanging.status, 422);
		EXPECT_EQ(overhanging.errorCode(), "out_of_bounds");
		EXPECT_EQ(grant(stash, "bandage", 1, cell(-1, 0)).errorCode(), "out_of_bounds");
		EXPECT_EQ(grant(stash, "bandage", 1, cell(2147483647, 0)).errorCode(), "out_of_bounds");
		EXPECT_EQ(grant(stash, "bandage", 1, slot(0)).errorCode(), "invalid_placement");

		// A rotated rifle is 2 wide and 4 tall, which fits nowhere beside the medkit.
		EXPECT_EQ(grant(stash, "rifle", 1, {{"x", 3}, {"y", 0}, {"rotated", true}}).errorCode(), "out_of_bounds");
		EXPECT_EQ(reread(stash)["items"].size(), 1u);
	}

	TEST_F(EmulatorInventoryTest, GrantIntoSlotsUsesSlotIndicesAndKeys)
	{
		const Json pouch = emulator.ensureSlots(emulator.token, "pouch", 3);
		const Json named = granted(pouch, "rifle", 1, slot(1));
		EXPECT_EQ(named["slot_index"], 1);
		EXPECT_EQ(named["slot_key"], "slot_1");
		EXPECT_EQ(named["grid_w"], 1);
		EXPECT_EQ(named["grid_h"], 1);
		EXPECT_EQ(granted(pouch, "water", 1)["slot_index"], 0);
		EXPECT_EQ(granted(pouch, "water", 1)["slot_index"], 2);

		EXPECT_EQ(grant(pouch, "water", 1).errorCode(), "container_full");
		EXPECT_EQ(grant(pouch, "water", 1, slot(1)).errorCode(), "cell_occupied");
		EXPECT_EQ(grant(pouch, "water", 1, slot(3)).errorCode(), "out_of_bounds");
		EXPECT_EQ(grant(pouch, "water", 1, cell(0, 0)).errorCode(), "invalid_placement");
	}

	TEST_F(EmulatorInventoryTest, GrantRefusesUnknownItemsBadQuantitiesAndOtherPlayersContainers)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		EXPECT_EQ(grant(stash, "None", 1).errorCode(), "unknown_item");
		EXPECT_EQ(grant(stash, "medkit", 0).errorCode(), "invalid_quantity");

		const Json theirs = emulator.ensureGrid(emulator.signIn("mallory"), "stash", 4, 4);
		const HttpReply intruding = grant(theirs, "medkit", 1);
		EXPECT_EQ(intruding.status, 404);
		EXPECT_EQ(intruding.errorCode(), "container_not_found");
		EXPECT_EQ(reread(stash)["items"].size(), 0u);
	}

	TEST_F(EmulatorInventoryTest, GrantRefusesMoreThanTheCatalogsStackLimitForTheItem)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 6, 6);
		const HttpReply tooMany = grant(stash, "medkit", 6);
		EXPECT_EQ(tooMany.status, 422);
		EXPECT_EQ(tooMany.errorCode(), "stack_limit_exceeded");
		EXPECT_NE(tooMany.body["error"]["message"].get<std::string>().find("at most 5"), std::string::npos);
		EXPECT_EQ(grant(stash, "rifle", 2).errorCode(), "stack_limit_exceeded");

		EXPECT_EQ(granted(stash, "medkit", 5)["quantity"], 5);
		EXPECT_EQ(granted(stash, "ammo_556", 120)["quantity"], 120);
		EXPECT_EQ(reread(stash)["items"].size(), 2u);
	}

	TEST_F(EmulatorInventoryTest, APlayerCanNeitherReadNorChangeAnotherPlayersStacks)
	{
		const std::string mallory = emulator.signIn("mallory");
		const Json theirs = emulator.ensureGrid(mallory, "stash", 4, 4);
		const HttpReply planted = emulator.change("/v1/game/inventory/grant",
			{{"container_id", theirs["id"]}, {"item_id", "medkit"}, {"quantity", 3}}, mallory);
		ASSERT_EQ(planted.status, 200);
		const std::string medkit = planted.body["instance"]["id"];

		// The same kind names the tester's own container, which holds nothing of theirs.
		const Json mine = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		EXPECT_NE(mine["id"], theirs["id"]);
		EXPECT_EQ(mine["items"].size(), 0u);

		const HttpReply consumed = emulator.change("/v1/game/inventory/consume", {{"instance_id", medkit}, {"quantity", 1}}, emulator.token);
		EXPECT_EQ(consumed.status, 404);
		EXPECT_EQ(consumed.errorCode(), "instance_not_found");
		EXPECT_EQ(move(medkit, mine).errorCode(), "instance_not_found");
		EXPECT_EQ(reread(mine)["items"].size(), 0u);

		const Json stillTheirs = emulator.ensureGrid(mallory, "stash", 4, 4);
		ASSERT_NE(findStack(stillTheirs, medkit), nullptr);
		EXPECT_EQ((*findStack(stillTheirs, medkit))["quantity"], 3);
	}

	TEST_F(EmulatorInventoryTest, ConsumeTakesPartOfAStackAndRemovesTheStackOnceEmpty)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const std::string ammo = granted(stash, "ammo_556", 30)["id"];
		const std::string consume = "/v1/game/inventory/consume";

		const HttpReply part = emulator.change(consume, {{"instance_id", ammo}, {"quantity", 10}}, emulator.token);
		EXPECT_EQ(part.status, 200);
		EXPECT_EQ(part.body["remaining"], 20);
		EXPECT_EQ((*findStack(reread(stash), ammo))["quantity"], 20);

		const HttpReply tooMany = emulator.change(consume, {{"instance_id", ammo}, {"quantity", 21}}, emulator.token);
		EXPECT_EQ(tooMany.status, 409);
		EXPECT_EQ(tooMany.errorCode(), "insufficient_quantity");

		EXPECT_EQ(emulator.change(consume, {{"instance_id", ammo}, {"quantity", 20}}, emulator.token).status, 200);
		EXPECT_EQ(findStack(reread(stash), ammo), nullptr);
		const HttpReply gone = emulator.change(consume, {{"instance_id", ammo}, {"quantity", 1}}, emulator.token);
		EXPECT_EQ(gone.status, 404);
		EXPECT_EQ(gone.errorCode(), "instance_not_found");
	}

	TEST_F(EmulatorInventoryTest, MoveCarriesTheWholeStackIntoAnotherContainerOfTheSamePlayer)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json pouch = emulator.ensureSlots(emulator.token, "pouch", 6);
		const std::string medkit = granted(stash, "medkit", 2)["id"];

		const HttpReply moved = move(medkit, pouch, slot(4));
		ASSERT_EQ(moved.status, 200) << moved.body;
		EXPECT_EQ(findStack(reread(stash), medkit), nullptr);
		const Json inPouch = *findStack(emulator.ensureSlots(emulator.token, "pouch", 6), medkit);
		EXPECT_EQ(inPouch["slot_index"], 4);
		EXPECT_EQ(inPouch["quantity"], 2);
		EXPECT_EQ(inPouch["x"], -1);

		// Back into the grid, it covers its footprint again.
		ASSERT_EQ(move(medkit, stash).status, 200);
		const Json back = *findStack(reread(stash), medkit);
		EXPECT_EQ(back["grid_w"], 2);
		EXPECT_EQ(back["grid_h"], 2);
		EXPECT_EQ(back["slot_index"], -1);
	}

	TEST_F(EmulatorInventoryTest, MoveMayOverlapTheStacksOwnCellsButNoOtherStack)
	{
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const std::string medkit = granted(stash, "medkit", 1, cell(0, 0))["id"];
		const std::string water = granted(stash, "water", 1, cell(3, 0))["id"];

		EXPECT_EQ(move(medkit, stash, cell(1, 0)).status, 200);
		const HttpReply blocked = move(medkit, stash, cell(2, 0));
		EXPECT_EQ(blocked.status, 409);
		EXPECT_EQ(blocked.errorCode(), "cell_occupied");
		const Json stacks = reread(stash);
		EXPECT_EQ((*findStack(stacks, medkit))["x"], 1);
		EXPECT_EQ((*findStack(stacks, water))["x"], 3);

		const Json theirs = emulator.ensureGrid(emulator.signIn("mallory"), "stash", 4, 4);
		EXPECT_EQ(move(medkit, theirs).errorCode(), "container_not_found");
		EXPECT_EQ(move("inst_missing", stash).errorCode(), "instance_not_found");
	}
}
