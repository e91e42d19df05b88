// Containers are made on demand, one per player and kind, with the layout asked for the first time.
#pragma once

#include "Api/RequestFields.h"
#include "Store/Records.h"

#include <string>

namespace quorvel::emulator
{
	class Database;

	constexpr int maxGridSide = 100;
	constexpr int maxSlotCount = 1000;

	/** The player's container of the body's kind with its stacks, created from the body's layout
	    and size when missing. An existing container comes back unchanged, whatever was asked. */
	Json ensureContainer(Database& database, const std::string& playerId, const Json& body);

	/** Creates or finds the container of that kind; size arguments count only when creating. */
	Container ensureContainer(Database& database, const std::string& playerId, const std::string& kind,
		const std::string& layout, int width, int height, int slotCount);
}
