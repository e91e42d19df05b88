#include "Domain/Platform.h"

#include "Api/ApiError.h"
#include "Api/Replies.h"
#include "Domain/Accounts.h"
#include "Domain/Containers.h"
#include "Domain/Idempotency.h"
#include "Domain/Inventory.h"
#include "Domain/Seed.h"
#include "Store/Schema.h"
#include "Store/StateDocument.h"

#include <map>

namespace quorvel::emulator
{
	namespace
	{
		constexpr std::string_view sessionsPath = "/v1/game/sessions";

		// Expired keys and sessions are only dead weight, never read: sweeping them once a minute is enough.
		constexpr std::int64_t purgeIntervalSeconds = 60;

		using Operation = Json (*)(Database&, const ItemCatalog&, const std::string& playerId, const Json& body);

		struct Route
		{
			Operation operation;
			/** Changes state, so it needs an Idempotency-Key to be safe to retry. */
			bool needsKey;
		};

		/** An operation with no use for the catalog, in the shape of those that have. */
		template <Json (*operation)(Database&, const std::string&, const Json&)>
		Json catalogFree(Database& database, const ItemCatalog&, const std::string& playerId, const Json& body)
		{
			return operation(database, playerId, body);
		}

		const std::map<std::string, Route, std::less<>>& routes()
		{
			static const std::map<std::string, Route, std::less<>> table{
				{"/v1/game/containers/ensure", {&catalogFree<&ensureContainer>, false}},
				{"/v1/game/inventory/grant", {&grantItem, true}},
				{"/v1/game/inventory/consume", {&catalogFree<&consumeItem>, true}},
				{"/v1/game/inventory/move", {&catalogFree<&moveItem>, true}},
			};
			return table;
		}

		Reply errorReply(const ApiError& error)
		{
			return Reply{.status = error.status, .body = errorJson(error.code, error.what())};
		}

		Reply apply(Database& database, const ItemCatalog& catalog, const Route& route, const std::string& playerId,
			const Request& request)
		{
			Transaction transaction(database);
			Reply reply{.body = route.operation(database, catalog, playerId, parseBody(request.body))};
			transaction.commit();
			return reply;
		}

		/** Applies the request unless its key was seen within the window, and remembers the reply,
		    refusals included. */
		Reply applyOnce(Database& database, const ItemCatalog& catalog, const Route& route, const std::string& playerId,
			const Request& request, const KeyWindow& window)
		{
			if (request.idempotencyKey.empty())
			{
				throw ApiError(400, "idempotency_key_missing",
					"send an \"Idempotency-Key\" header, new for each change you mean to make, so that a retry is not applied twice");
			}
			if (std::optional<Reply> stored = findStoredReply(database, playerId, request, window))
			{
				return *stored;
			}
			Reply reply;
			{
				Transaction transaction(database);
				try
				{
					reply.body = route.operation(database, catalog, playerId, parseBody(request.body));
					storeReply(database, playerId, request, reply, window.now);
					transaction.commit();
					return reply;
				}
				catch (const ApiError& error)
				{
					reply = errorReply(error);
				}
			}
			// A refusal is remembered too, after the rollback: a retry must get the same answer, not be
			// applied later because the container has changed meanwhile.
			storeReply(database, playerId, request, reply, window.now);
			return reply;
		}
	}

	Platform::Platform(const std::string& databasePath, PlatformSettings platformSettings)
		: settings(std::move(platformSettings)), db(databasePath)
	{
		if (!settings.clock)
		{
			settings.clock = systemSeconds;
		}
		createSchema(db);
	}

	bool Platform::serves(std::string_view path)
	{
		return path == sessionsPath || routes().contains(path);
	}

	Reply Platform::handle(const Request& request)
	{
		std::lock_guard lock(mutex);
		const std::int64_t now = settings.clock();
		try
		{
			purgeNowAndThen(now);
			return request.path == sessionsPath ? signIn(request, now) : handleAuthenticated(request, now);
		}
		catch (const ApiError& error)
		{
			return errorReply(error);
		}
		catch (const std::exception& error)
		{
			return Reply{.status = 500, .body = errorJson("internal_error", error.what())};
		}
	}

	Reply Platform::signIn(const Request& request, std::int64_t now)
	{
		const Json body = parseBody(request.body);
		Transaction transaction(db);
		Reply reply{.body = emulator::signIn(db, body, now)};
		transaction.commit();
		reply.playerId = reply.body["player"]["id"];
		return reply;
	}

	Reply Platform::handleAuthenticated(const Request& request, std::int64_t now)
	{
		const auto route = routes().find(request.path);
		if (route == routes().end())
		{
			throw notFound("not_found", "no endpoint " + request.path);
		}
		const std::string playerId = authenticate(db, request.authorization, now);
		Reply reply;
		try
		{
			const KeyWindow window{.now = now, .seconds = settings.keyTtlSeconds};
			reply = route->second.needsKey ? applyOnce(db, settings.catalog, route->second, playerId, request, window)
				: apply(db, settings.catalog, route->second, playerId, request);
		}
		catch (const ApiError& error)
		{
			reply = errorReply(error);
		}
		reply.playerId = playerId;
		return reply;
	}

	void Platform::purgeNowAndThen(std::int64_t now)
	{
		if (now < nextPurge)
		{
			return;
		}
		purgeExpired(db, KeyWindow{.now = now, .seconds = settings.keyTtlSeconds});
		nextPurge = now + purgeIntervalSeconds;
	}

	void Platform::reset()
	{
		std::lock_guard lock(mutex);
		Transaction transaction(db);
		clearState(db);
		transaction.commit();
	}

	int Platform::seedDemo()
	{
		std::lock_guard lock(mutex);
		return seedDemoStash(db, settings.catalog);
	}

	Json Platform::exportState()
	{
		std::lock_guard lock(mutex);
		return emulator::exportState(db);
	}

	void Platform::importState(const Json& document)
	{
		std::lock_guard lock(mutex);
		emulator::importState(db, document);
	}
}
