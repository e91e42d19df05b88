#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	std::string HttpReply::header(const std::string& name) const
	{
		const auto found = headers.find(name);
		return found == headers.end() ? std::string() : found->second;
	}

	EmulatorOptions testOptions()
	{
		return EmulatorOptions{.port = 0, .database = ":memory:"};
	}

	httplib::Headers platformHeaders(const std::string& token, const std::string& idempotencyKey)
	{
		httplib::Headers headers;
		if (!token.empty())
		{
			headers.emplace("Authorization", "Bearer " + token);
		}
		if (!idempotencyKey.empty())
		{
			headers.emplace("Idempotency-Key", idempotencyKey);
		}
		return headers;
	}

	EmulatorTestServer::EmulatorTestServer(const EmulatorOptions& options)
		: service(options), client(newClient())
	{
		token = signIn("tester");
	}

	std::unique_ptr<httplib::Client> EmulatorTestServer::newClient() const
	{
		auto result = std::make_unique<httplib::Client>("127.0.0.1", service.port());
		result->set_read_timeout(10, 0);
		result->set_tcp_nodelay(true);
		return result;
	}

	HttpReply EmulatorTestServer::replyOf(const httplib::Result& result, const std::string& what)
	{
		if (!result)
		{
			ADD_FAILURE() << "no reply to " << what << ": " << httplib::to_string(result.error());
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

	HttpReply EmulatorTestServer::postText(const std::string& path, const std::string& body, const std::string& accessToken,
		const std::string& idempotencyKey, const std::string& contentType)
	{
		return replyOf(client->Post(path.c_str(), platformHeaders(accessToken, idempotencyKey), body, contentType.c_str()), path);
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

	HttpReply EmulatorTestServer::get(const std::string& path)
	{
		return replyOf(client->Get(path.c_str()), path);
	}

	HttpReply EmulatorTestServer::put(const std::string& path, const Json& body)
	{
		return replyOf(client->Put(path.c_str(), body.dump(), "application/json"), path);
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
