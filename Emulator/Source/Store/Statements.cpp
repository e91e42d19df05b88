#include "Store/Statements.h"

#include "Api/ApiError.h"
#include "Store/Database.h"

namespace quorvel::emulator
{
	namespace
	{
		constexpr const char* containerColumns = "id, player_id, kind, layout, width, height, slot_count";
		constexpr const char* stackColumns = "id, container_id, item_id, quantity, x, y, slot_index, rotated, base_w, base_h";

		Container readContainer(const Statement& row)
		{
			return Container{
				.id = row.text(0),
				.playerId = row.text(1),
				.kind = row.text(2),
				.layout = row.text(3),
				.width = static_cast<int>(row.integer(4)),
				.height = static_cast<int>(row.integer(5)),
				.slotCount = static_cast<int>(row.integer(6)),
			};
		}

		Stack readStack(const Statement& row)
		{
			return Stack{
				.id = row.text(0),
				.containerId = row.text(1),
				.itemId = row.text(2),
				.quantity = static_cast<int>(row.integer(3)),
				.x = static_cast<int>(row.integer(4)),
				.y = static_cast<int>(row.integer(5)),
				.slotIndex = static_cast<int>(row.integer(6)),
				.rotated = row.integer(7) != 0,
				.baseWidth = static_cast<int>(row.integer(8)),
				.baseHeight = static_cast<int>(row.integer(9)),
			};
		}

		// Binds every column but the id, from parameter 2 on, in the order of stackColumns.
		void bindStackValues(Statement& statement, const Stack& stack)
		{
			statement.bind(2, stack.containerId)
				.bind(3, stack.itemId)
				.bind(4, stack.quantity)
				.bind(5, stack.x)
				.bind(6, stack.y)
				.bind(7, stack.slotIndex)
				.bind(8, stack.rotated)
				.bind(9, stack.baseWidth)
				.bind(10, stack.baseHeight);
		}
	}

	std::optional<Container> findContainerByKind(Database& database, const std::string& playerId, const std::string& kind)
	{
		Statement query(database, std::string("SELECT ") + containerColumns + " FROM containers WHERE player_id = ?1 AND kind = ?2");
		query.bind(1, playerId).bind(2, kind);
		if (!query.step())
		{
			return std::nullopt;
		}
		return readContainer(query);
	}

	Container requireContainer(Database& database, const std::string& playerId, const std::string& containerId)
	{
		Statement query(database, std::string("SELECT ") + containerColumns + " FROM containers WHERE id = ?1 AND player_id = ?2");
		query.bind(1, containerId).bind(2, playerId);
		if (!query.step())
		{
			throw notFound("container_not_found", "no container '" + containerId + "' for this player");
		}
		return readContainer(query);
	}

	void insertContainer(Database& database, const Container& container)
	{
		Statement insert(database, std::string("INSERT INTO containers (") + containerColumns + ") VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)");
		insert.bind(1, container.id)
			.bind(2, container.playerId)
			.bind(3, container.kind)
			.bind(4, container.layout)
			.bind(5, container.width)
			.bind(6, container.height)
			.bind(7, container.slotCount)
			.run();
	}

	std::vector<Stack> stacksIn(Database& database, const std::string& containerId)
	{
		Statement query(database, std::string("SELECT ") + stackColumns + " FROM stacks WHERE container_id = ?1 ORDER BY rowid");
		query.bind(1, containerId);
		std::vector<Stack> stacks;
		while (query.step())
		{
			stacks.push_back(readStack(query));
		}
		return stacks;
	}

	Stack requireStack(Database& database, const std::string& playerId, const std::string& instanceId)
	{
		Statement query(database,
			"SELECT s.id, s.container_id, s.item_id, s.quantity, s.x, s.y, s.slot_index, s.rotated, s.base_w, s.base_h"
			" FROM stacks s JOIN containers c ON c.id = s.container_id WHERE s.id = ?1 AND c.player_id = ?2");
		query.bind(1, instanceId).bind(2, playerId);
		if (!query.step())
		{
			throw notFound("instance_not_found", "no stack '" + instanceId + "' in this player's containers");
		}
		return readStack(query);
	}

	void insertStack(Database& database, const Stack& stack)
	{
		Statement insert(database, std::string("INSERT INTO stacks (") + stackColumns + ") VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10)");
		insert.bind(1, stack.id);
		bindStackValues(insert, stack);
		insert.run();
	}

	void updateStack(Database& database, const Stack& stack)
	{
		Statement update(database,
			"UPDATE stacks SET container_id = ?2, item_id = ?3, quantity = ?4, x = ?5, y = ?6, slot_index = ?7,"
			" rotated = ?8, base_w = ?9, base_h = ?10 WHERE id = ?1");
		update.bind(1, stack.id);
		bindStackValues(update, stack);
		update.run();
	}

	void deleteStack(Database& database, const std::string& instanceId)
	{
		Statement remove(database, "DELETE FROM stacks WHERE id = ?1");
		remove.bind(1, instanceId).run();
	}

	std::vector<Player> allPlayers(Database& database)
	{
		Statement query(database, "SELECT id, provider, subject FROM players ORDER BY rowid");
		std::vector<Player> players;
		while (query.step())
		{
			players.push_back(Player{.id = query.text(0), .provider = query.text(1), .subject = query.text(2)});
		}
		return players;
	}

	std::vector<Container> allContainers(Database& database)
	{
		Statement query(database, std::string("SELECT ") + containerColumns + " FROM containers ORDER BY rowid");
		std::vector<Container> containers;
		while (query.step())
		{
			containers.push_back(readContainer(query));
		}
		return containers;
	}

	std::vector<Stack> allStacks(Database& database)
	{
		Statement query(database, std::string("SELECT ") + stackColumns + " FROM stacks ORDER BY rowid");
		std::vector<Stack> stacks;
		while (query.step())
		{
			stacks.push_back(readStack(query));
		}
		return stacks;
	}

	void insertPlayer(Database& database, const Player& player)
	{
		Statement insert(database, "INSERT INTO players (id, provider, subject) VALUES (?1, ?2, ?3)");
		insert.bind(1, player.id).bind(2, player.provider).bind(3, player.subject).run();
	}
}
