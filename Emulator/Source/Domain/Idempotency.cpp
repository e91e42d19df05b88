#include "Domain/Idempotency.h"

#include "Api/ApiError.h"
#include "Store/Database.h"

namespace quorvel::emulator
{
	std::optional<Reply> findStoredReply(Database& database, const std::string& playerId, const Request& request)
	{
		Statement query(database, "SELECT path, request, status, reply FROM idempotent_replies WHERE player_id = ?1 AND key = ?2");
		query.bind(1, playerId).bind(2, request.idempotencyKey);
		if (!query.step())
		{
			return std::nullopt;
		}
		if (query.text(0) != request.path || query.text(1) != request.body)
		{
			throw unprocessable("idempotency_key_reused", "this Idempotency-Key was already used for a different request");
		}
		return Reply{.status = static_cast<int>(query.integer(2)), .body = Json::parse(query.text(3)), .replayed = true};
	}

	void storeReply(Database& database, const std::string& playerId, const Request& request, const Reply& reply)
	{
		Statement insert(database,
			"INSERT INTO idempotent_replies (player_id, key, path, request, status, reply) VALUES (?1, ?2, ?3, ?4, ?5, ?6)");
		insert.bind(1, playerId)
			.bind(2, request.idempotencyKey)
			.bind(3, request.path)
			.bind(4, request.body)
			.bind(5, reply.status)
			.bind(6, reply.body.dump())
			.run();
	}
}
