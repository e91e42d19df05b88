// The three item operations. Each runs inside the caller's transaction and either applies
// completely or throws an ApiError having changed nothing.
#pragma once

#include "Api/RequestFields.h"

#include <string>

namespace quorvel::emulator
{
	class Database;
	class ItemCatalog;

	/** Adds a new stack of an item the catalog knows, no larger than its stack limit:
	    {"container_id", "item_id", "quantity", "to"?}. */
	Json grantItem(Database& database, const ItemCatalog& catalog, const std::string& playerId, const Json& body);

	/** Takes some or all of a stack: {"instance_id", "quantity"?}; no quantity takes the whole stack. */
	Json consumeItem(Database& database, const std::string& playerId, const Json& body);

	/** Moves a whole stack to a container of the same player: {"instance_id", "to_container_id", "to"?}. */
	Json moveItem(Database& database, const std::string& playerId, const Json& body);
}
