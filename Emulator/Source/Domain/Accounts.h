// Players and their sessions: sign-in hands out bearer tokens, every other request shows one.
#pragma once

#include "Api/RequestFields.h"

#include <cstdint>
#include <string>

namespace quorvel::emulator
{
	class Database;

	/** Seconds a token stays valid; the reply tells the client too. */
	constexpr int tokenLifetimeSeconds = 3600;

	/** "anonymous" is the only provider: its ticket is simply the identity claimed, so the same
	    ticket signs in the same player. Replies with the token and the player's id. `now` is in
	    seconds since the epoch, as every time the platform keeps. */
	Json signIn(Database& database, const Json& body, std::int64_t now);

	/** The id of the player whose session the "Bearer <token>" header names; 401 otherwise. */
	std::string authenticate(Database& database, const std::string& authorization, std::int64_t now);

	/** The player's id, creating the player on first sight. */
	std::string playerFor(Database& database, const std::string& provider, const std::string& subject);
}
