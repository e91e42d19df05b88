// The emulator on 127.0.0.1 and a port the system picks, with a client that speaks its protocol.
#pragma once

#include "Emulator.h"

#include <httplib.h>

#include <memory>
#include <string>

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

	/** Port 0 and a fresh in-memory database, otherwise the defaults. */
	EmulatorOptions testOptions();

	class EmulatorTestServer
	{
	public:
		/** Serves a fresh in-memory platform, or what the options say. Signs in the player "tester"
		    before returning. */
		explicit EmulatorTestServer(const EmulatorOptions& options = testOptions());

		HttpReply postText(const std::string& path, const std::string& body, const std::string& token = {},
			const std::string& idempotencyKey = {}, const std::string& contentType = "application/json");
		HttpReply post(const std::string& path, const Json& body, const std::string& token = {},
			const std::string& idempotencyKey = {});
		/** A post with an Idempotency-Key of its own, as a client sends each change it means to make. */
		HttpReply change(const std::string& path, const Json& body, const std::string& token);
		HttpReply get(const std::string& path);
		HttpReply put(const std::string& path, const Json& body);

		/** The access token of a fresh session for the ticket. */
		std::string signIn(const std::string& ticket);

		/** The container reply of an ensure that asks for a grid or for slots. */
		Json ensureGrid(const std::string& token, const std::string& kind, int width, int height);
		Json ensureSlots(const std::string& token, const std::string& kind, int slots);

		/** A client of its own, for tests that need a second connection or raw results. */
		std::unique_ptr<httplib::Client> newClient() const;

		Emulator service;
		std::string token; // the tester's

	private:
		HttpReply replyOf(const httplib::Result& result, const std::string& what);

		std::unique_ptr<httplib::Client> client;
		int keysUsed = 0;
	};

	/** The stacks of a container reply whose "id" is instanceId; null when absent. */
	const Json* findStack(const Json& container, const std::string& instanceId);

	/** Headers with a bearer token and, when given, an Idempotency-Key. */
	httplib::Headers platformHeaders(const std::string& token, const std::string& idempotencyKey = {});
}
