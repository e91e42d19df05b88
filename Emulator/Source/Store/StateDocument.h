// The whole platform state as one JSON document, for saving, sharing and restoring a situation:
//   {"format": 1, "demo_seeded": bool,
//    "players":    [{"id", "provider", "subject"}],
//    "containers": [{"id", "player_id", "kind", "layout", "grid_width", "grid_height" | "slot_count"}],
//    "stacks":     [{"id", "container_id", "item_id", "quantity", "x", "y", "slot_index", "rotated",
//                    "base_width", "base_height"}]}
// Sessions and remembered replies are left out: they belong to clients of the moment.
#pragma once

#include "Api/RequestFields.h"

#include <stdexcept>

namespace quorvel::emulator
{
	class Database;

	/** A document that cannot be imported; the message names the entry and the problem. */
	class StateError : public std::runtime_error
	{
	public:
		using std::runtime_error::runtime_error;
	};

	/** Rows in the order they were stored, so an imported document reads back in the same order. */
	Json exportState(Database& database);

	/** Checks the whole document first, then replaces every table with it in one transaction, so a
	    bad document changes nothing. Throws StateError. */
	void importState(Database& database, const Json& document);
}
