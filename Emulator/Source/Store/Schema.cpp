#include "Store/Schema.h"

#include "Store/Database.h"

namespace quorvel::emulator
{
	namespace
	{
		// Raised whenever a table changes shape; files from before get the change in migrate().
		constexpr int schemaVersion = 2;

		void migrate(Database& database)
		{
			Statement query(database, "PRAGMA user_version");
			query.step();
			const std::int64_t version = query.integer(0);
			if (version < 2)
			{
				// Version 1 kept replies without a time, so they could never expire. They are only
				// retry guards, so starting them afresh loses nothing a client relies on.
				database.execute("DROP TABLE IF EXISTS idempotent_replies");
			}
		}
	}

	void createSchema(Database& database)
	{
		migrate(database);
		database.execute(R"sql(
			CREATE TABLE IF NOT EXISTS players (
				id       TEXT PRIMARY KEY,
				provider TEXT NOT NULL,
				subject  TEXT NOT NULL,
				UNIQUE (provider, subject)
			);

			CREATE TABLE IF NOT EXISTS sessions (
				token      TEXT PRIMARY KEY,
				player_id  TEXT NOT NULL REFERENCES players (id),
				expires_at INTEGER NOT NULL
			);

			-- The layout is chosen once, when the container is created, and never changes.
			CREATE TABLE IF NOT EXISTS containers (
				id         TEXT PRIMARY KEY,
				player_id  TEXT NOT NULL REFERENCES players (id),
				kind       TEXT NOT NULL,
				layout     TEXT NOT NULL CHECK (layout IN ('grid', 'slots')),
				width      INTEGER NOT NULL,
				height     INTEGER NOT NULL,
				slot_count INTEGER NOT NULL,
				UNIQUE (player_id, kind)
			);

			-- base_w x base_h is the item's unrotated footprint; a grid stack covers it swapped
			-- when rotated. Slot stacks keep x and y at -1, grid stacks keep slot_index at -1.
			CREATE TABLE IF NOT EXISTS stacks (
				id           TEXT PRIMARY KEY,
				container_id TEXT NOT NULL REFERENCES containers (id),
				item_id      TEXT NOT NULL,
				quantity     INTEGER NOT NULL CHECK (quantity > 0),
				x            INTEGER NOT NULL,
				y            INTEGER NOT NULL,
				slot_index   INTEGER NOT NULL,
				rotated      INTEGER NOT NULL,
				base_w       INTEGER NOT NULL,
				base_h       INTEGER NOT NULL
			);
			CREATE INDEX IF NOT EXISTS stacks_by_container ON stacks (container_id);

			CREATE TABLE IF NOT EXISTS idempotent_replies (
				player_id  TEXT NOT NULL,
				key        TEXT NOT NULL,
				path       TEXT NOT NULL,
				request    TEXT NOT NULL,
				status     INTEGER NOT NULL,
				reply      TEXT NOT NULL,
				created_at INTEGER NOT NULL,
				PRIMARY KEY (player_id, key)
			);
			CREATE INDEX IF NOT EXISTS idempotent_replies_by_age ON idempotent_replies (created_at);

			-- Small facts about the database itself, such as whether the demo stash was ever seeded.
			CREATE TABLE IF NOT EXISTS meta (
				key   TEXT PRIMARY KEY,
				value TEXT NOT NULL
			);
		)sql");
		database.execute("PRAGMA user_version = " + std::to_string(schemaVersion));
	}

	void clearState(Database& database)
	{
		// Children first, for the foreign keys.
		database.execute(R"sql(
			DELETE FROM idempotent_replies;
			DELETE FROM sessions;
			DELETE FROM stacks;
			DELETE FROM containers;
			DELETE FROM players;
			DELETE FROM meta;
		)sql");
	}
}
