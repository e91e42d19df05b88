// The platform behind the HTTP server: routes a request to its operation, checks the session,
// applies idempotency keys and turns refusals into error replies. One request at a time.
#pragma once

#include "Api/Reply.h"
#include "Domain/ItemCatalog.h"
#include "Store/Database.h"

#include <mutex>
#include <string>

namespace quorvel::emulator
{
	struct PlatformSettings
	{
		ItemCatalog catalog;
	};

	class Platform
	{
	public:
		/** Opens (or creates) the database and its tables. */
		Platform(const std::string& databasePath, PlatformSettings settings);

		Reply handle(const Request& request);

		const ItemCatalog& catalog() const { return settings.catalog; }

		/** For setting up state before serving; not for use while requests run. */
		Database& database() { return db; }

	private:
		Reply handleAuthenticated(const Request& request);

		PlatformSettings settings;
		std::mutex mutex;
		Database db;
	};
}
