// Request bodies: any content type up to 1 MiB, 413 over it however it is sent, and JSON too deep
// to be a platform request refused with 400.
#include "Api/HttpServer.h"
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	namespace
	{
		const std::string sessionsPath = "/v1/game/sessions";

		/** A sign-in body of exactly `size` bytes. */
		std::string signInOfSize(std::size_t size)
		{
			const std::string empty = Json{{"provider", "anonymous"}, {"ticket", ""}}.dump();
			return Json{{"provider", "anonymous"}, {"ticket", std::string(size - empty.size(), 't')}}.dump();
		}
	}

	TEST(EmulatorRequestBodyTest, ANineKilobyteSignInIsServedWhateverItsContentType)
	{
		EmulatorTestServer emulator;
		const std::string body = signInOfSize(9000);
		// curl -d sends this content type, whose bodies httplib would otherwise cap at 8 KiB.
		const HttpReply form = emulator.postText(sessionsPath, body, {}, {}, "application/x-www-form-urlencoded");
		ASSERT_EQ(form.status, 200) << form.text;
		const HttpReply json = emulator.postText(sessionsPath, body, {}, {}, "application/json");
		ASSERT_EQ(json.status, 200);
		EXPECT_EQ(form.body["player"]["id"], json.body["player"]["id"]);
	}

	TEST(EmulatorRequestBodyTest, ABodyOverTheLimitIsRefusedWith413WhetherItsLengthIsKnownOrNot)
	{
		EmulatorTestServer emulator;
		const std::size_t limit = HttpServer::maxBodyBytes;
		EXPECT_EQ(emulator.postText(sessionsPath, signInOfSize(limit)).status, 200);

		const HttpReply declared = emulator.postText(sessionsPath, signInOfSize(limit + 1), {}, {}, "application/x-www-form-urlencoded");
		EXPECT_EQ(declared.status, 413);
		EXPECT_EQ(declared.errorCode(), "body_too_large");
		EXPECT_NE(declared.body["error"]["message"].get<std::string>().find(std::to_string(limit) + " bytes"), std::string::npos);
		EXPECT_FALSE(declared.requestId.empty());

		const std::string oversized = signInOfSize(limit + 100);
		const std::unique_ptr<httplib::Client> client = emulator.newClient();
		const httplib::Result chunked = client->Post(sessionsPath.c_str(),
			[&](std::size_t offset, httplib::DataSink& sink)
			{
				const std::size_t size = std::min<std::size_t>(64 * 1024, oversized.size() - offset);
				sink.write(oversized.data() + offset, size);
				if (offset + size == oversized.size())
				{
					sink.done();
				}
				return true;
			},
			"application/json");
		ASSERT_TRUE(chunked) << httplib::to_string(chunked.error());
		EXPECT_EQ(chunked->status, 413);
		EXPECT_EQ(Json::parse(chunked->body)["error"]["code"], "body_too_large");

		// Neither refusal left the server unable to read what comes next.
		EXPECT_EQ(emulator.ensureGrid(emulator.token, "stash", 2, 2)["layout"], "grid");
	}

	TEST(EmulatorRequestBodyTest, DeeplyNestedJsonIsRefusedWith400)
	{
		EmulatorTestServer emulator;
		const std::size_t depth = 50000;
		const std::string nested = std::string(depth, '[') + std::string(depth, ']');
		EXPECT_EQ(emulator.postText(sessionsPath, nested).status, 400);
		EXPECT_EQ(emulator.postText(sessionsPath, "{\"provider\": \"anonymous\", \"ticket\": " + nested + "}").status, 400);
		const HttpReply unclosed = emulator.postText(sessionsPath, std::string(depth, '{'));
		EXPECT_EQ(unclosed.status, 400);
		EXPECT_EQ(unclosed.errorCode(), "malformed_json");
	}
}
