// Sign-in, bearer tokens, the error shape and request ids, over real HTTP.
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	namespace
	{
		const std::string ensurePath = "/v1/game/containers/ensure";
		const Json stashBody{{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 4}, {"grid_height", 4}};
	}

	TEST(EmulatorSessionTest, TheSameTicketSignsInTheSamePlayerWithAFreshTokenEachTime)
	{
		EmulatorTestServer emulator;
		const HttpReply first = emulator.post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", "alice"}});
		const HttpReply second = emulator.post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", "alice"}});
		const HttpReply other = emulator.post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", "bob"}});
		ASSERT_EQ(first.status, 200);
		ASSERT_EQ(second.status, 200);
		EXPECT_EQ(first.body["player"]["id"], second.body["player"]["id"]);
		EXPECT_NE(first.body["player"]["id"], other.body["player"]["id"]);
		EXPECT_NE(first.body["tokens"]["access_token"], second.body["tokens"]["access_token"]);

		// Both sessions stay valid side by side.
		for (const HttpReply* session : {&first, &second})
		{
			EXPECT_EQ(emulator.post(ensurePath, stashBody, session->body["tokens"]["access_token"]).status, 200);
		}
	}

	TEST(EmulatorSessionTest, SignInRefusesOtherProvidersAndAnEmptyTicket)
	{
		EmulatorTestServer emulator;
		const HttpReply steam = emulator.post("/v1/game/sessions", {{"provider", "steam"}, {"ticket", "abc"}});
		EXPECT_EQ(steam.status, 422);
		EXPECT_EQ(steam.errorCode(), "unsupported_provider");
		const HttpReply empty = emulator.post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", ""}});
		EXPECT_EQ(empty.status, 401);
		EXPECT_EQ(empty.errorCode(), "invalid_ticket");
	}

	TEST(EmulatorSessionTest, RequestsWithoutAValidBearerTokenAreRefusedWith401AndEveryReplyHasItsOwnRequestId)
	{
		EmulatorTestServer emulator;
		const HttpReply missing = emulator.post(ensurePath, stashBody);
		EXPECT_EQ(missing.status, 401);
		EXPECT_EQ(missing.errorCode(), "unauthorized");

		const HttpReply unknown = emulator.post(ensurePath, stashBody, "not-a-token");
		EXPECT_EQ(unknown.status, 401);
		EXPECT_EQ(unknown.errorCode(), "invalid_token");
		EXPECT_FALSE(unknown.body["error"]["message"].get<std::string>().empty());

		const HttpReply grant = emulator.post("/v1/game/inventory/grant",
			{{"container_id", "x"}, {"item_id", "medkit"}, {"quantity", 1}}, "not-a-token", "key-1");
		EXPECT_EQ(grant.status, 401);

		const HttpReply unknownPath = emulator.post("/v1/game/nothing", Json::object(), emulator.token);
		EXPECT_EQ(unknownPath.status, 404);
		EXPECT_EQ(unknownPath.errorCode(), "not_found");
		const HttpReply ok = emulator.post(ensurePath, stashBody, emulator.token);
		EXPECT_EQ(ok.status, 200);
		EXPECT_FALSE(ok.requestId.empty());
		EXPECT_FALSE(unknown.requestId.empty());
		EXPECT_NE(ok.requestId, unknown.requestId);
	}

	TEST(EmulatorSessionTest, MalformedBodiesAreRefusedWith400BeforeAnythingChanges)
	{
		EmulatorTestServer emulator;
		const HttpReply notJson = emulator.postText(ensurePath, "{\"kind\": \"stash\",", emulator.token);
		EXPECT_EQ(notJson.status, 400);
		EXPECT_EQ(notJson.errorCode(), "malformed_json");

		EXPECT_EQ(emulator.postText(ensurePath, "[1, 2]", emulator.token).status, 400);
		EXPECT_EQ(emulator.post(ensurePath, {{"layout", "grid"}}, emulator.token).status, 400);
		EXPECT_EQ(emulator.post(ensurePath, {{"kind", 7}, {"layout", "grid"}}, emulator.token).status, 400);
		EXPECT_EQ(emulator.post(ensurePath, {{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 2.5}, {"grid_height", 4}},
			emulator.token).status, 400);
		EXPECT_EQ(emulator.post(ensurePath, {{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 4294967297LL}, {"grid_height", 4}},
			emulator.token).status, 400);
		EXPECT_EQ(emulator.postText("/v1/game/sessions", "", {}).status, 400);

		// None of them made the container: the first real ensure picks the layout.
		EXPECT_EQ(emulator.ensureSlots(emulator.token, "stash", 6)["layout"], "slots");
	}
}
