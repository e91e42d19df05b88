// The admin routes: fault settings read and changed with every value checked, the state and the
// request log as JSON, and nobody but this machine let in.
#include "Api/Loopback.h"
#include "Api/RequestLog.h"
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvel::emulator::test
{
	TEST(EmulatorAdminTest, FaultSettingsAreReadAndChangedAsOneObjectWithTheCounts)
	{
		EmulatorTestServer emulator;
		const HttpReply initial = emulator.get("/admin/faults");
		EXPECT_EQ(initial.status, 200);
		EXPECT_FALSE(initial.requestId.empty());
		EXPECT_EQ(initial.body, Json::parse(R"({"fail_rate": 0.0, "retry_after": 1, "delay_ms": 0, "drop_rate": 0.0,
			"counts": {"failed": 0, "delayed": 0, "dropped": 0}})"));

		const HttpReply changed = emulator.put("/admin/faults", {{"fail_rate", 0.25}, {"retry_after", 0}});
		EXPECT_EQ(changed.status, 200);
		EXPECT_EQ(changed.body, Json::parse(R"({"fail_rate": 0.25, "retry_after": 0, "delay_ms": 0, "drop_rate": 0.0,
			"counts": {"failed": 0, "delayed": 0, "dropped": 0}})"));
		EXPECT_EQ(emulator.service.faultSettings().failRate, 0.25);
	}

	TEST(EmulatorAdminTest, AFaultSettingOutOfRangeOrUnknownIsRefusedAndChangesNothing)
	{
		EmulatorTestServer emulator;
		ASSERT_EQ(emulator.put("/admin/faults", {{"drop_rate", 0.5}}).status, 200);
		const Json refused[] = {
			{{"fail_rate", 1.5}},
			{{"drop_rate", -0.1}},
			{{"fail_rate", "0.1"}},
			{{"retry_after", -1}},
			{{"retry_after", 1.5}},
			{{"delay_ms", -5}},
			{{"delay_ms", 60001}},
			{{"failrate", 0.1}},
			{{"fail_rate", 0.1}, {"drop_rate", 2}},
			Json::array(),
		};
		for (const Json& body : refused)
		{
			SCOPED_TRACE(body.dump());
			const HttpReply reply = emulator.put("/admin/faults", body);
			EXPECT_EQ(reply.status, 400);
			EXPECT_FALSE(reply.body["error"]["message"].get<std::string>().empty());
		}
		const FaultSettings kept = emulator.service.faultSettings();
		EXPECT_EQ(kept.failRate, 0.0);
		EXPECT_EQ(kept.dropRate, 0.5);
	}

	TEST(EmulatorAdminTest, OnlyLoopbackAddressesCountAsThisMachine)
	{
		for (const char* address : {"127.0.0.1", "127.8.9.10", "::1", "::ffff:127.0.0.1"})
		{
			EXPECT_TRUE(isLoopbackAddress(address)) << address;
		}
		for (const char* address : {"10.0.0.1", "192.168.1.20", "128.0.0.1", "::ffff:10.0.0.1", "fe80::1", "::", "localhost", ""})
		{
			EXPECT_FALSE(isLoopbackAddress(address)) << address;
		}
	}

	TEST(EmulatorAdminTest, TheStateAndTheRequestLogAreServedAsJsonNewestRequestFirst)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 3, 3);
		const HttpReply granted = emulator.post("/v1/game/inventory/grant",
			{{"container_id", stash["id"]}, {"item_id", "ration"}, {"quantity", 2}}, emulator.token, "admin-key");
		ASSERT_EQ(granted.status, 200);

		const HttpReply state = emulator.get("/admin/state");
		EXPECT_EQ(state.body, emulator.service.exportState());
		EXPECT_EQ(state.body["stacks"][0]["item_id"], "ration");

		const HttpReply log = emulator.get("/admin/requests");
		ASSERT_EQ(log.body["requests"].size(), 3u); // sign-in, ensure, grant
		const Json& newest = log.body["requests"][0];
		std::set<std::string> keys;
		for (const auto& [key, value] : newest.items())
		{
			keys.insert(key);
		}
		EXPECT_EQ(keys, (std::set<std::string>{"time", "method", "path", "status", "request_id", "idempotency_key", "replayed",
			"fault", "player_id", "duration_ms"}));
		EXPECT_EQ(newest["path"], "/v1/game/inventory/grant");
		EXPECT_EQ(newest["method"], "POST");
		EXPECT_EQ(newest["status"], 200);
		EXPECT_EQ(newest["request_id"], granted.requestId);
		EXPECT_EQ(newest["idempotency_key"], "admin-key");
		EXPECT_EQ(newest["replayed"], false);
		EXPECT_EQ(newest["fault"], nullptr);
		EXPECT_EQ(newest["player_id"], state.body["players"][0]["id"]);
		EXPECT_TRUE(newest["time"].get<std::string>().ends_with("Z"));
		EXPECT_EQ(log.body["requests"][2]["path"], "/v1/game/sessions");
		EXPECT_EQ(log.body["requests"][2]["idempotency_key"], nullptr);
	}

	TEST(EmulatorAdminTest, TheRequestLogKeepsOnlyTheLatestEntries)
	{
		RequestLog log(3);
		for (int status = 1; status <= 5; ++status)
		{
			log.add(RequestLogEntry{.status = status});
		}
		std::vector<int> kept;
		for (const RequestLogEntry& entry : log.newestFirst())
		{
			kept.push_back(entry.status);
		}
		EXPECT_EQ(kept, (std::vector<int>{5, 4, 3}));
	}
}
