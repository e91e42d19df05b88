#include "Domain/Platform.h"

#include "Api/ApiError.h"
#include "Api/Replies.h"
#include "Domain/Accounts.h"
#include "Domain/Containers.h"
#include "Domain/Idempotency.h"
#include "Domain/Inventory.h"
#include "Store/Schema.h"

#include <map>

namespace quorvel::emulator
{
	namespace
	{
		using Operation = Json (*)(Database&, const ItemCatalog&, const std::string& playerId, const Json& body);

		struct Route
		{
			Operation operation;
			bool idempotent;
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
	}

	Platform::Platform(const std::string& databasePath, PlatformSettings platformSettings)
		: settings(std::move(platformSettings)), db(databasePath)
	{
		createSchema(db);
	}

	Reply Platform::handle(const Request& request)
	{
		std::lock_guard lock(mutex);
		try
		{
			if (request.path == "/v1/game/sessions")
			{
				const Json body = parseBody(request.body);
				Transaction transaction(db);
				Reply reply{.body = signIn(db, body)};
				transaction.commit();
				return reply;
			}
			return handleAuthenticated(request);
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

	Reply Platform::handleAuthenticated(const Request& request)
	{
		const auto route = routes().find(request.path);
		if (route == routes().end())
		{
			throw notFound("not_found", "no endpoint " + request.path);
		}
		const std::string playerId = authenticate(db, request.authorization);
		const bool remember = route->second.idempotent && !request.idempotencyKey.empty();
		if (remember)
		{
			if (std::optional<Reply> stored = findStoredReply(db, playerId, request))
			{
				return *stored;
			}
		}

		Reply reply;
		{
			Transaction transaction(db);
			try
			{
				reply.body = route->second.operation(db, settings.catalog, playerId, parseBody(request.body));
				if (remember)
				{
					storeReply(db, playerId, request, reply);
				}
				transaction.commit();
			}
			catch (const ApiError& error)
			{
				reply = errorReply(error);
			}
		}
		// A refusal is remembered too, after the rollback: a retry must get the same answer, not be
		// applied later because the container has changed meanwhile.
		if (remember && reply.status != 200)
		{
			storeReply(db, playerId, request, reply);
		}
		return reply;
	}
}
