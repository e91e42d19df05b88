#include "Domain/Idempotency.h"

#include "Api/ApiError.h"
#include "Store/Database.h"

namespace quorvel::emulator
{
	namespace
	{
		void forget(Database& database, const std::string& playerId, const std::string& key)
		{
			Statement remove(database, "DELETE FROM idempotent_replies WHERE player_id = ?1 AND key = ?2");
			remove.bind(1, playerId).bind(2, key).run();
		}
	}

	std::optional<Reply> findStoredReply(Database& database, const std::string& playerId, const Request& request,
		const KeyWindow& window)
	{
		Statement query(database,
			"SELECT path, request, status, reply, created_at FROM idempotent_replies WHERE player_id = ?1 AND key = ?2");
		query.bind(1, playerId).bind(2, request.idempotencyKey);
		if (!query.step())
		{
			return std::nullopt;
		}
		if (query.integer(4) + window.seconds <= window.now)
		{
			forget(database, playerId, request.idempotencyKey);
			return std::nullopt;
		}
		if (query.text(0) != request.path || query.text(1) != request.body)
		{
			throw unprocessable("idempotency_key_reused", "this Idempotency-Key was already used for a different request");
		}
		return Reply{.status = static_cast<int>(query.integer(2)), .body = Json::parse(query.text(3)), .replayed = true};
	}

	void storeReply(Database& database, const std::string& playerId, const Request& request, const Reply& reply,
		std::int64_t now)
	{
		Statement insert(database,
			"INSERT INTO idempotent_replies (player_id, key, path, request, status, reply, created_at)"
			" VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)");
		insert.bind(1, playerId)
			.bind(2, request.idempotencyKey)
			.bind(3, request.path)
			.bind(4, request.body)
			.bind(5, reply.status)
			.bind(6, reply.body.dump())
			.bind(7, now)
			.run();
	}

	void purgeExpired(Database& database, const KeyWindow& window)
	{
		Statement keys(database, "DELETE FROM idempotent_replies WHERE created_at <= ?1");
		keys.bind(1, window.now - window.seconds).run();
		Statement sessions(database, "DELETE FROM sessions WHERE expires_at <= ?1");
		sessions.bind(1, window.now).run();
	}
}
