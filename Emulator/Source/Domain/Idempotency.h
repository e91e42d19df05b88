// Replies remembered per player and idempotency key, so that a retried operation is applied once.
#pragma once

#include "Api/Reply.h"

#include <optional>

namespace quorvel::emulator
{
	class Database;

	/** The reply stored for this key; 422 idempotency_key_reused when the key was first used for a
	    different path or body, which means a client bug rather than a retry. */
	std::optional<Reply> findStoredReply(Database& database, const std::string& playerId, const Request& request);

	void storeReply(Database& database, const std::string& playerId, const Request& request, const Reply& reply);
}
