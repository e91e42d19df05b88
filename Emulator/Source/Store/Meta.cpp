#include "Store/Meta.h"

#include "Store/Database.h"

namespace quorvel::emulator
{
	namespace
	{
		constexpr std::string_view seededKey = "demo_seeded";
	}

	bool demoSeeded(Database& database)
	{
		Statement query(database, "SELECT 1 FROM meta WHERE key = ?1");
		query.bind(1, seededKey);
		return query.step();
	}

	void setDemoSeeded(Database& database, bool seeded)
	{
		if (seeded)
		{
			Statement insert(database, "INSERT INTO meta (key, value) VALUES (?1, '1') ON CONFLICT (key) DO NOTHING");
			insert.bind(1, seededKey).run();
		}
		else
		{
			Statement remove(database, "DELETE FROM meta WHERE key = ?1");
			remove.bind(1, seededKey).run();
		}
	}
}
