// The platform behind the HTTP server: routes a request to its operation, checks the session,
// applies idempotency keys and turns refusals into error replies. One request at a time.
#pragma once

#include "Api/Reply.h"
#include "Domain/Clock.h"
#include "Domain/ItemCatalog.h"
#include "Store/Database.h"

#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>

namespace quorvel::emulator
{
	struct PlatformSettings
	{
		ItemCatalog catalog;
		/** How long an Idempotency-Key is remembered, in seconds. */
		std::int64_t keyTtlSeconds = 86400;
		/** Seconds since the epoch; empty means the system clock. */
		Clock clock;
	};

	class Platform
	{
	public:
		/** Opens (or creates) the database and its tables. */
		Platform(const std::string& databasePath, PlatformSettings settings);

		Reply handle(const Request& request);

		/** The five paths handle() serves; anything else is a 404. */
		static bool serves(std::string_view path);

		/** Empties every table, the memory of the demo seed included. */
		void reset();

		/** Fills the demo stash unless this database has had it before; returns the stacks added. */
		int seedDemo();

		/** The whole state as one document (see Store/StateDocument.h). */
		Json exportState();

		/** Replaces the whole state with the document's, or changes nothing and throws StateError. */
		void importState(const Json& document);

		const ItemCatalog& catalog() const { return settings.catalog; }

		/** For setting up state in tests before serving; not for use while requests run. */
		Database& database() { return db; }

	private:
		Reply signIn(const Request& request, std::int64_t now);
		Reply handleAuthenticated(const Request& request, std::int64_t now);
		void purgeNowAndThen(std::int64_t now);

		PlatformSettings settings;
		std::mutex mutex;
		Database db;
		std::int64_t nextPurge = 0;
	};
}
