#include "Domain/Accounts.h"

#include "Api/ApiError.h"
#include "Domain/Ids.h"
#include "Store/Database.h"

namespace quorvel::emulator
{
	std::string playerFor(Database& database, const std::string& provider, const std::string& subject)
	{
		Statement insert(database, "INSERT INTO players (id, provider, subject) VALUES (?1, ?2, ?3) ON CONFLICT DO NOTHING");
		insert.bind(1, newId("plr")).bind(2, provider).bind(3, subject).run();
		Statement query(database, "SELECT id FROM players WHERE provider = ?1 AND subject = ?2");
		query.bind(1, provider).bind(2, subject);
		query.step();
		return query.text(0);
	}

	Json signIn(Database& database, const Json& body, std::int64_t now)
	{
		const std::string provider = requiredString(body, "provider");
		const std::string ticket = requiredString(body, "ticket");
		if (provider != "anonymous")
		{
			throw unprocessable("unsupported_provider", "this platform accepts only the provider \"anonymous\"");
		}
		if (ticket.empty())
		{
			throw ApiError(401, "invalid_ticket", "the ticket is empty");
		}

		const std::string playerId = playerFor(database, provider, ticket);
		const std::string token = newToken();
		Statement insert(database, "INSERT INTO sessions (token, player_id, expires_at) VALUES (?1, ?2, ?3)");
		insert.bind(1, token).bind(2, playerId).bind(3, now + tokenLifetimeSeconds).run();

		return Json{
			{"tokens", {{"access_token", token}, {"token_type", "Bearer"}, {"expires_in", tokenLifetimeSeconds}}},
			{"player", {{"id", playerId}, {"provider", provider}}},
		};
	}

	std::string authenticate(Database& database, const std::string& authorization, std::int64_t now)
	{
		constexpr std::string_view scheme = "Bearer ";
		if (!authorization.starts_with(scheme) || authorization.size() == scheme.size())
		{
			throw ApiError(401, "unauthorized", "sign in first and send \"Authorization: Bearer <access token>\"");
		}
		Statement query(database, "SELECT player_id, expires_at FROM sessions WHERE token = ?1");
		query.bind(1, authorization.substr(scheme.size()));
		if (!query.step())
		{
			throw ApiError(401, "invalid_token", "the access token is not known");
		}
		if (query.integer(1) <= now)
		{
			throw ApiError(401, "token_expired", "the access token has expired; sign in again");
		}
		return query.text(0);
	}
}
