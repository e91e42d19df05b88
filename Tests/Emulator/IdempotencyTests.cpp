// A repeated Idempotency-Key gets the first reply again and applies nothing a second time.
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	namespace
	{
		const std::string grantPath = "/v1/game/inventory/grant";
	}

	TEST(EmulatorIdempotencyTest, ARepeatedKeyReturnsTheFirstReplyWithoutApplyingAgain)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json body{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 2}};

		const HttpReply first = emulator.post(grantPath, body, emulator.token, "key-1");
		const HttpReply retry = emulator.post(grantPath, body, emulator.token, "key-1");
		ASSERT_EQ(first.status, 200);
		EXPECT_FALSE(first.replayed);
		EXPECT_EQ(retry.status, 200);
		EXPECT_TRUE(retry.replayed);
		EXPECT_EQ(retry.body, first.body);
		EXPECT_NE(retry.requestId, first.requestId);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 4, 4)["items"].size(), 1u);

		// Another key, or a retry from a fresh session of the same player, is told apart correctly.
		EXPECT_FALSE(emulator.post(grantPath, body, emulator.token, "key-2").replayed);
		EXPECT_TRUE(emulator.post(grantPath, body, emulator.signIn("tester"), "key-1").replayed);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 4, 4)["items"].size(), 2u);
	}

	TEST(EmulatorIdempotencyTest, ARepeatedConsumeOrMoveTakesEffectOnce)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json pouch = emulator.ensureSlots(emulator.token, "pouch", 4);
		const std::string ammo = emulator.post(grantPath,
			{{"container_id", stash["id"]}, {"item_id", "ammo_556"}, {"quantity", 10}}, emulator.token).body["instance"]["id"];

		const Json consume{{"instance_id", ammo}, {"quantity", 4}};
		EXPECT_EQ(emulator.post("/v1/game/inventory/consume", consume, emulator.token, "c").body["remaining"], 6);
		EXPECT_EQ(emulator.post("/v1/game/inventory/consume", consume, emulator.token, "c").body["remaining"], 6);

		const Json move{{"instance_id", ammo}, {"to_container_id", pouch["id"]}};
		const HttpReply moved = emulator.post("/v1/game/inventory/move", move, emulator.token, "m");
		EXPECT_EQ(emulator.post("/v1/game/inventory/move", move, emulator.token, "m").body, moved.body);
		const Json stack = *findStack(emulator.ensureSlots(emulator.token, "pouch", 4), ammo);
		EXPECT_EQ(stack["quantity"], 6);
		EXPECT_EQ(stack["slot_index"], 0);
	}

	TEST(EmulatorIdempotencyTest, ARefusalIsReplayedEvenAfterTheReasonHasGone)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const std::string blocker = emulator.post(grantPath,
			{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 1}, {"to", {{"x", 0}, {"y", 0}}}},
			emulator.token).body["instance"]["id"];
		const Json body{{"container_id", stash["id"]}, {"item_id", "ration"}, {"quantity", 1}, {"to", {{"x", 0}, {"y", 0}}}};
		EXPECT_EQ(emulator.post(grantPath, body, emulator.token, "late").errorCode(), "cell_occupied");

		emulator.post("/v1/game/inventory/consume", {{"instance_id", blocker}, {"quantity", 1}}, emulator.token);
		const HttpReply retry = emulator.post(grantPath, body, emulator.token, "late");
		EXPECT_EQ(retry.status, 409);
		EXPECT_TRUE(retry.replayed);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 4, 4)["items"].size(), 0u);
	}

	TEST(EmulatorIdempotencyTest, AKeyReusedForADifferentRequestIsRefused)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json one{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 1}};
		const Json two{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 2}};
		ASSERT_EQ(emulator.post(grantPath, one, emulator.token, "k").status, 200);
		const HttpReply reused = emulator.post(grantPath, two, emulator.token, "k");
		EXPECT_EQ(reused.status, 422);
		EXPECT_EQ(reused.errorCode(), "idempotency_key_reused");

		// Keys belong to a player: another player's "k" is a new request.
		const std::string other = emulator.signIn("someone else");
		const Json theirs = emulator.ensureGrid(other, "stash", 4, 4);
		EXPECT_EQ(emulator.post(grantPath, {{"container_id", theirs["id"]}, {"item_id", "bandage"}, {"quantity", 1}}, other, "k").status, 200);
	}
}
