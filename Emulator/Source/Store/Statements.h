// Reading and writing containers and stacks. Lookups are scoped to a player, so one player's
// ids are unknown to every other player.
#pragma once

#include "Store/Records.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvel::emulator
{
	class Database;

	std::optional<Container> findContainerByKind(Database& database, const std::string& playerId, const std::string& kind);
	/** 404 container_not_found unless the player owns it. */
	Container requireContainer(Database& database, const std::string& playerId, const std::string& containerId);
	void insertContainer(Database& database, const Container& container);

	/** In the order they were first stored. */
	std::vector<Stack> stacksIn(Database& database, const std::string& containerId);
	/** 404 instance_not_found unless the stack lies in one of the player's containers. */
	Stack requireStack(Database& database, const std::string& playerId, const std::string& instanceId);
	void insertStack(Database& database, const Stack& stack);
	/** Writes everything but the id, which never changes. */
	void updateStack(Database& database, const Stack& stack);
	void deleteStack(Database& database, const std::string& instanceId);

	/** Every row, in the order stored: for exporting the whole state. */
	std::vector<Player> allPlayers(Database& database);
	std::vector<Container> allContainers(Database& database);
	std::vector<Stack> allStacks(Database& database);
	void insertPlayer(Database& database, const Player& player);
}
