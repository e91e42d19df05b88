// Everything the emulator is started with, with the defaults a person running it gets.
#pragma once

#include "Domain/Clock.h"
#include "Faults/FaultSettings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quorvel::emulator
{
	struct EmulatorOptions
	{
		/** On 127.0.0.1; 0 lets the system pick a free port. */
		int port = 8787;
		/** A SQLite file (its folder is created), or ":memory:" for state that ends with the process.
		    Relative to the working directory, as the catalog is. */
		std::string database = "Saved/Emulator/Platform.db";
		/** Start empty: every table is wiped, the memory of the demo seed included. */
		bool reset = false;
		/** Fill the demo player's stash, once per database. */
		bool seed = false;
		std::string catalog = "Content/Items/Catalog.json";
		/** Replace the whole state with this state document before serving; empty for none. */
		std::string importPath;
		/** Write the whole state to this file (or "-" for stdout) and exit instead of serving; the
		    command line's business, an embedded emulator ignores it. */
		std::string exportPath;
		/** How long an Idempotency-Key is remembered. */
		std::int64_t keyTtlSeconds = 86400;
		FaultSettings faults;
		/** Seeds the fault choices, for a run that can be repeated; none picks one at random. */
		std::optional<std::uint64_t> faultSeed;
		/** One line per request on stdout. */
		bool logRequests = false;
		/** Platform time in seconds since the epoch, for tests; empty means the system clock. */
		Clock clock;
	};
}
