// The emulator on 127.0.0.1 and a port the system picks, with a client that speaks its protocol.
#pragma once

#include "Api/HttpServer.h"
#include "Domain/Platform.h"

#include <httplib.h>

#include <memory>
#include <string>
#include <thread>

namespace quorvel::emulator::test
{
	struct HttpReply
	{
		int status = 0;
		std::string text;
		/** The text as JSON; discarded when it is not. */
		Json body;
		httplib::Headers headers;
		std::string requestId;
		bool replayed = false;

		std::string errorCode() const { return body.at("error").at("code").get<std::string>(); }
		std::string header(const std::string& name) const;
	};

	class EmulatorTestServer
	{
	public:
		/** Serves a fresh in-memory platform, or the given database file, with the shipped catalog.
		    Signs in the player "tester" before returning, which also proves the server is accepting. */
		explicit EmulatorTestServer(const std::string& databasePath = ":memory:");
		/** A fresh in-memory platform with these settings. */
		explicit EmulatorTestServer(PlatformSettings settings);
		~EmulatorTestServer();

		HttpReply postText(const std::string& path, const std::string& body, const std::string& token = {},
			const std::string& idempotencyKey = {}, const std::string& contentType = "application/json");
		HttpReply post(const std::string& path, const Json& body, const std::string& token = {},
			const std::string& idempotencyKey = {});
		/** A post with an Idempotency-Key of its own, as a client sends each change it means to make. */
		HttpReply change(const std::string& path, const Json& body, const std::string& token);

		/** The access token of a fresh session for the ticket. */
		std::string signIn(const std::string& ticket);

		/** The container reply of an ensure that asks for a grid or for slots. */
		Json ensureGrid(const std::string& token, const std::string& kind, int width, int height);
		Json ensureSlots(const std::string& token, const std::string& kind, int slots);

		/** A client of its own, for tests that need a second connection or raw results. */
		std::unique_ptr<httplib::Client> newClient() const;

		Platform platform;
		std::string token; // the tester's

	private:
		EmulatorTestServer(const std::string& databasePath, PlatformSettings settings);

		HttpServer server;
		int port = 0;
		std::thread thread;
		std::unique_ptr<httplib::Client> client;
		int keysUsed = 0;
	};

	/** The shipped catalog with the default key window and the system clock. */
	PlatformSettings shippedSettings();

	/** The stacks of a container reply whose "id" is instanceId; null when absent. */
	const Json* findStack(const Json& container, const std::string& instanceId);
}
