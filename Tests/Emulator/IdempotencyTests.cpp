// A repeated Idempotency-Key gets the first reply again and applies nothing a second time.
#include "Domain/Platform.h"
#include "EmulatorTestServer.h"
#include "Store/Database.h"

#include <gtest/gtest.h>

#include <atomic>

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
		const std::string ammo = emulator.change(grantPath,
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
		const std::string blocker = emulator.change(grantPath,
			{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 1}, {"to", {{"x", 0}, {"y", 0}}}},
			emulator.token).body["instance"]["id"];
		const Json body{{"container_id", stash["id"]}, {"item_id", "ration"}, {"quantity", 1}, {"to", {{"x", 0}, {"y", 0}}}};
		EXPECT_EQ(emulator.post(grantPath, body, emulator.token, "late").errorCode(), "cell_occupied");

		emulator.change("/v1/game/inventory/consume", {{"instance_id", blocker}, {"quantity", 1}}, emulator.token);
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

	TEST(EmulatorIdempotencyTest, ChangesWithoutAnIdempotencyKeyAreRefusedAndNothingIsApplied)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json pouch = emulator.ensureSlots(emulator.token, "pouch", 4);
		const std::string ammo = emulator.change(grantPath,
			{{"container_id", stash["id"]}, {"item_id", "ammo_556"}, {"quantity", 10}}, emulator.token).body["instance"]["id"];

		const std::pair<std::string, Json> changes[] = {
			{grantPath, {{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 1}}},
			{"/v1/game/inventory/consume", {{"instance_id", ammo}, {"quantity", 4}}},
			{"/v1/game/inventory/move", {{"instance_id", ammo}, {"to_container_id", pouch["id"]}}},
		};
		for (const auto& [path, body] : changes)
		{
			SCOPED_TRACE(path);
			const HttpReply refused = emulator.post(path, body, emulator.token);
			EXPECT_EQ(refused.status, 400);
			EXPECT_EQ(refused.errorCode(), "idempotency_key_missing");
		}
		const Json after = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		ASSERT_EQ(after["items"].size(), 1u);
		EXPECT_EQ(after["items"][0]["quantity"], 10);
		EXPECT_EQ(emulator.ensureSlots(emulator.token, "pouch", 4)["items"].size(), 0u);
	}

	TEST(EmulatorIdempotencyTest, AKeyIsRememberedForItsWindowAndIsFreeAgainAfterIt)
	{
		std::atomic<std::int64_t> now = 1'700'000'000;
		EmulatorOptions options = testOptions();
		options.keyTtlSeconds = 60;
		options.clock = [&now] { return now.load(); };
		EmulatorTestServer emulator(options);
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json one{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 1}};
		const Json two{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 2}};

		const HttpReply first = emulator.post(grantPath, one, emulator.token, "k");
		ASSERT_EQ(first.status, 200);
		now += 59;
		const HttpReply late = emulator.post(grantPath, one, emulator.token, "k");
		EXPECT_TRUE(late.replayed);
		EXPECT_EQ(late.body, first.body);
		EXPECT_EQ(emulator.post(grantPath, two, emulator.token, "k").errorCode(), "idempotency_key_reused");

		// Past the window the key names a new request, whatever its body.
		now += 1;
		const HttpReply again = emulator.post(grantPath, two, emulator.token, "k");
		ASSERT_EQ(again.status, 200);
		EXPECT_FALSE(again.replayed);
		EXPECT_NE(again.body["instance"]["id"], first.body["instance"]["id"]);
		EXPECT_TRUE(emulator.post(grantPath, two, emulator.token, "k").replayed);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 4, 4)["items"].size(), 2u);

		// Expired keys are swept out in passing, and the sweep spares keys still in their window.
		now += 120;
		emulator.post(grantPath, one, emulator.token, "fresh");
		Statement count(emulator.service.platform().database(), "SELECT COUNT(*) FROM idempotent_replies");
		count.step();
		EXPECT_EQ(count.integer(0), 1);
	}
}
