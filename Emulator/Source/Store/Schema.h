#pragma once

namespace quorvel::emulator
{
	class Database;

	/** Creates the tables that are missing; an existing file keeps its data. */
	void createSchema(Database& database);

	/** Empties every table: players, sessions, containers, stacks, remembered replies and the meta notes. */
	void clearState(Database& database);
}
