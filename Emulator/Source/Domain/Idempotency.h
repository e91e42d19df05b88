// Replies remembered per player and Idempotency-Key, so that a retried operation is applied once.
// A key is kept for a window (a day by default) and is free again after it, as the IETF draft on
// the Idempotency-Key header describes.
#pragma once

#include "Api/Reply.h"

#include <cstdint>
#include <optional>

namespace quorvel::emulator
{
	class Database;

	/** When each key expires: `now` and the window are in seconds. */
	struct KeyWindow
	{
		std::int64_t now = 0;
		std::int64_t seconds = 86400;
	};

	/** The reply stored for this key within the window; 422 idempotency_key_reused when the key was
	    first used for a different path or body, which means a client bug rather than a retry. A key
	    found expired is forgotten here, so that it can be stored afresh. */
	std::optional<Reply> findStoredReply(Database& database, const std::string& playerId, const Request& request,
		const KeyWindow& window);

	void storeReply(Database& database, const std::string& playerId, const Request& request, const Reply& reply,
		std::int64_t now);

	/** Forgets every key older than the window, and every session past its expiry. */
	void purgeExpired(Database& database, const KeyWindow& window);
}
