#pragma once

namespace quorvel::emulator
{
	class Database;

	/** Creates the tables that are missing; an existing file keeps its data. */
	void createSchema(Database& database);
}
