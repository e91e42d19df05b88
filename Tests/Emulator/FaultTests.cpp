// Injected faults: 503 before anything is applied, delayed replies, and replies dropped after the
// commit, each counted; chosen from a seedable generator; never on the page or the admin routes.
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

#include <optional>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::emulator::test
{
	namespace
	{
		const std::string grantPath = "/v1/game/inventory/grant";

		/** Everything the server sends back for a raw request until it closes the connection;
		    nullopt when the socket fails or stays open for ten seconds. */
		std::optional<std::string> exchangeRaw(int port, const std::string& request)
		{
			const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
			const timeval timeout{.tv_sec = 10, .tv_usec = 0};
			setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
			sockaddr_in address{};
			address.sin_family = AF_INET;
			address.sin_port = htons(static_cast<std::uint16_t>(port));
			address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
			std::optional<std::string> received;
			if (connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0
				&& send(socket, request.data(), request.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(request.size()))
			{
				std::string text;
				char buffer[4096];
				ssize_t got = 0;
				while ((got = recv(socket, buffer, sizeof buffer, 0)) > 0)
				{
					text.append(buffer, static_cast<std::size_t>(got));
				}
				if (got == 0)
				{
					received = text;
				}
			}
			close(socket);
			return received;
		}

		std::string rawPost(const std::string& path, const std::string& token, const std::string& key, const std::string& body)
		{
			return "POST " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\nAuthorization: Bearer " + token + "\r\nIdempotency-Key: " + key
				+ "\r\nContent-Type: application/json\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
		}
	}

	TEST(EmulatorFaultTest, AFailedRequestGets503WithRetryAfterAndNothingIsApplied)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json body{{"container_id", stash["id"]}, {"item_id", "bandage"}, {"quantity", 1}};

		emulator.service.setFaultSettings({.failRate = 1, .retryAfterSeconds = 7});
		const HttpReply failed = emulator.post(grantPath, body, emulator.token, "k");
		EXPECT_EQ(failed.status, 503);
		EXPECT_EQ(failed.errorCode(), "unavailable");
		EXPECT_EQ(failed.header("Retry-After"), "7");
		EXPECT_FALSE(failed.requestId.empty());
		EXPECT_EQ(emulator.service.faultCounts().failed, 1u);

		// The failure was not remembered for the key: its retry is the first time the grant happens.
		emulator.service.setFaultSettings({.retryAfterSeconds = 0});
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 4, 4)["items"].size(), 0u);
		const HttpReply retry = emulator.post(grantPath, body, emulator.token, "k");
		EXPECT_EQ(retry.status, 200);
		EXPECT_FALSE(retry.replayed);
		EXPECT_EQ(emulator.service.faultCounts().failed, 1u);
	}

	TEST(EmulatorFaultTest, ADelayedReplyArrivesAfterTheDelayAndIsCounted)
	{
		EmulatorOptions options = testOptions();
		options.faults.delayMs = 30;
		EmulatorTestServer emulator(options);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 2, 2)["layout"], "grid");
		EXPECT_EQ(emulator.service.faultCounts().delayed, 2u); // the sign-in and the ensure

		const std::vector<RequestLogEntry> log = emulator.service.requests();
		ASSERT_EQ(log.size(), 2u);
		EXPECT_EQ(log[0].fault, Fault::delay);
		EXPECT_GE(log[0].durationMs, 30.0);
	}

	TEST(EmulatorFaultTest, ADroppedRequestIsCommittedWithoutAnyReplyAndItsRetryReplaysTheOutcome)
	{
		EmulatorTestServer emulator;
		const Json stash = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		const Json body{{"container_id", stash["id"]}, {"item_id", "medkit"}, {"quantity", 2}};

		emulator.service.setFaultSettings({.dropRate = 1});
		const std::optional<std::string> nothing = exchangeRaw(emulator.service.port(),
			rawPost(grantPath, emulator.token, "lost", body.dump()));
		ASSERT_TRUE(nothing.has_value()) << "the connection was not closed";
		EXPECT_EQ(*nothing, "");
		EXPECT_EQ(emulator.service.faultCounts().dropped, 1u);

		emulator.service.setFaultSettings({});
		const Json after = emulator.ensureGrid(emulator.token, "stash", 4, 4);
		ASSERT_EQ(after["items"].size(), 1u);
		const HttpReply retry = emulator.post(grantPath, body, emulator.token, "lost");
		EXPECT_EQ(retry.status, 200);
		EXPECT_TRUE(retry.replayed);
		EXPECT_EQ(retry.body["instance"]["id"], after["items"][0]["id"]);
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 4, 4)["items"].size(), 1u);

		const std::vector<RequestLogEntry> log = emulator.service.requests();
		const auto dropped = std::find_if(log.begin(), log.end(), [](const RequestLogEntry& entry) { return entry.fault == Fault::drop; });
		ASSERT_NE(dropped, log.end());
		EXPECT_EQ(dropped->idempotencyKey, "lost");
		EXPECT_EQ(dropped->status, 200);
	}

	TEST(EmulatorFaultTest, FaultsStrikeOnlyThePlatformRoutes)
	{
		EmulatorTestServer emulator;
		emulator.service.setFaultSettings({.failRate = 1});
		EXPECT_EQ(emulator.get("/").status, 200);
		EXPECT_EQ(emulator.get("/admin/faults").status, 200);
		EXPECT_EQ(emulator.get("/admin/state").status, 200);
		EXPECT_EQ(emulator.get("/admin/requests").status, 200);
		EXPECT_EQ(emulator.put("/admin/faults", {{"retry_after", 2}}).status, 200);
		EXPECT_EQ(emulator.post("/v1/game/elsewhere", Json::object(), emulator.token).status, 404);
		EXPECT_EQ(emulator.service.faultCounts().failed, 0u);

		EXPECT_EQ(emulator.post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", "x"}}).status, 503);
		EXPECT_EQ(emulator.service.faultCounts().failed, 1u);
	}

	TEST(EmulatorFaultTest, TheSameFaultSeedChoosesTheSameFaults)
	{
		const auto statuses = []
		{
			EmulatorOptions options = testOptions();
			options.faultSeed = 42;
			EmulatorTestServer emulator(options);
			emulator.service.setFaultSettings({.failRate = 0.5, .retryAfterSeconds = 0});
			std::vector<int> seen;
			for (int i = 0; i < 24; ++i)
			{
				seen.push_back(emulator.post("/v1/game/containers/ensure",
					{{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 2}, {"grid_height", 2}}, emulator.token).status);
			}
			return seen;
		};
		const std::vector<int> first = statuses();
		EXPECT_EQ(statuses(), first);
		EXPECT_NE(std::count(first.begin(), first.end(), 503), 0);
		EXPECT_NE(std::count(first.begin(), first.end(), 200), 0);
	}
}
