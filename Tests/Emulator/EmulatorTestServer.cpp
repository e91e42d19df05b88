#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	std::string HttpReply::header(const std::string& name) const
	{
		const auto found = headers.find(name);
		return found == headers.end() ? std::string() : found->second;
	}

	PlatformSettings shippedSettings()
	{
		return PlatformSettings{.catalog = ItemCatalog::load("Content/Items/Catalog.json")};
	}

	EmulatorTestServer::EmulatorTestServer(const std::string& databasePath)
		: EmulatorTestServer(databasePath, shippedSettings())
	{
	}

	EmulatorTestServer::EmulatorTestServer(PlatformSettings settings)
		: EmulatorTestServer(":memory:", std::move(settings))
	{
	}

	EmulatorTestServer::EmulatorTestServer(const std::string& databasePath, PlatformSettings settings)
		: platform(databasePath, std::move(settings)), server(platform)
	{
		port = server.bind("127.0.0.1", 0);
		thread = std::thread([this] { server.run(); });
		client = newClient();
		// httplib's stop() only acts on a server whose accept loop runs; a first reply shows it does.
		token = signIn("tester");
	}

	EmulatorTestServer::~EmulatorTestServer()
	{
		server.stop();
		thread.join();
	}

	std::unique_ptr<httplib::Client> EmulatorTestServer::newClient() const
	{
		auto result = std::make_unique<httplib::Client>("127.0.0.1", port);
		result->set_read_timeout(10, 0);
		result->set_tcp_nodelay(true);
		return result;
	}

	HttpReply EmulatorTestServer::postText(const std::string& path, const std::string& body, const std::string& accessToken,
		const std::string& idempotencyKey, const std::string& contentType)
	{
		httplib::Headers headers;
		if (!accessToken.empty())
		{
			headers.emplace("Authorization", "Bearer " + accessToken);
		}
		if (!idempotencyKey.empty())
		{
			headers.emplace("Idempotency-Key", idempotencyKey);
		}
		const httplib::Result result = client->Post(path.c_str(), headers, body, contentType.c_str());
		if (!result)
		{
			ADD_FAILURE() << "no reply to " << path << ": " << httplib::to_string(result.error());
			return {};
		}
		return HttpReply{
			.status = result->status,
			.text = result->body,
			.body = Json::parse(result->body, nullptr, false),
			.headers = result->headers,
			.requestId = result->get_header_value("X-Request-Id"),
			.replayed = result->get_header_value("Idempotent-Replayed") == "true",
		};
	}

	HttpReply EmulatorTestServer::post(const std::string& path, const Json& body, const std::string& accessToken,
		const std::string& idempotencyKey)
	{
		return postText(path, body.dump(), accessToken, idempotencyKey);
	}

	HttpReply EmulatorTestServer::change(const std::string& path, const Json& body, const std::string& accessToken)
	{
		return post(path, body, accessToken, "test-change-" + std::to_string(++keysUsed));
	}

	std::string EmulatorTestServer::signIn(const std::string& ticket)
	{
		const HttpReply reply = post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", ticket}});
		EXPECT_EQ(reply.status, 200) << reply.body;
		return reply.body.value("/tokens/access_token"_json_pointer, std::string());
	}

	Json EmulatorTestServer::ensureGrid(const std::string& accessToken, const std::string& kind, int width, int height)
	{
		const HttpReply reply = post("/v1/game/containers/ensure",
			{{"kind", kind}, {"layout", "grid"}, {"grid_width", width}, {"grid_height", height}}, accessToken);
		EXPECT_EQ(reply.status, 200) << reply.body;
		return reply.body;
	}

	Json EmulatorTestServer::ensureSlots(const std::string& accessToken, const std::string& kind, int slots)
	{
		const HttpReply reply = post("/v1/game/containers/ensure",
			{{"kind", kind}, {"layout", "slots"}, {"slot_count", slots}}, accessToken);
		EXPECT_EQ(reply.status, 200) << reply.body;
		return reply.body;
	}

	const Json* findStack(const Json& container, const std::string& instanceId)
	{
		for (const Json& stack : container.at("items"))
		{
			if (stack.at("id") == instanceId)
			{
				return &stack;
			}
		}
		return nullptr;
	}
}
