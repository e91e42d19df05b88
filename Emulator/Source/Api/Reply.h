// One platform request and its reply, as far as the platform cares: transport details are the server's.
#pragma once

#include "Api/RequestFields.h"

#include <string>

namespace quorvel::emulator
{
	struct Request
	{
		std::string path;
		std::string authorization;
		std::string idempotencyKey;
		std::string body;
	};

	struct Reply
	{
		int status = 200;
		Json body;
		/** The reply was stored for this idempotency key and is sent again, not recomputed. */
		bool replayed = false;
		/** The player who asked, once known; for the request log, never sent. */
		std::string playerId{};
	};
}
