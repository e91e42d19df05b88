// Facts the database keeps about itself, in the meta table.
#pragma once

namespace quorvel::emulator
{
	class Database;

	/** Whether this database has had its demo stash; reset and import decide it afresh. */
	bool demoSeeded(Database& database);
	void setDemoSeeded(Database& database, bool seeded);
}
