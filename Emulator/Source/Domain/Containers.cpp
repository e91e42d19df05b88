#include "Domain/Containers.h"

#include "Api/ApiError.h"
#include "Api/Replies.h"
#include "Domain/Ids.h"
#include "Store/Statements.h"

namespace quorvel::emulator
{
	namespace
	{
		void checkSize(const char* what, int value, int max)
		{
			if (value < 1 || value > max)
			{
				throw unprocessable("invalid_size", std::string(what) + " must be between 1 and " + std::to_string(max)
					+ ", not " + std::to_string(value));
			}
		}
	}

	Container ensureContainer(Database& database, const std::string& playerId, const std::string& kind,
		const std::string& layout, int width, int height, int slotCount)
	{
		if (std::optional<Container> existing = findContainerByKind(database, playerId, kind))
		{
			return *existing;
		}
		Container container{.id = newId("ctr"), .playerId = playerId, .kind = kind, .layout = layout};
		if (container.isSlots())
		{
			checkSize("slot_count", slotCount, maxSlotCount);
			container.slotCount = slotCount;
		}
		else
		{
			checkSize("grid_width", width, maxGridSide);
			checkSize("grid_height", height, maxGridSide);
			container.width = width;
			container.height = height;
		}
		insertContainer(database, container);
		return container;
	}

	Json ensureContainer(Database& database, const std::string& playerId, const Json& body)
	{
		const std::string kind = requiredString(body, "kind");
		const std::string layout = requiredString(body, "layout");
		if (kind.empty())
		{
			throw unprocessable("invalid_kind", "\"kind\" must not be empty");
		}
		if (layout != "grid" && layout != "slots")
		{
			throw unprocessable("invalid_layout", "\"layout\" must be \"grid\" or \"slots\", not \"" + layout + "\"");
		}
		// Sizes are read (and type-checked) always, but only matter when the container is new.
		const int width = optionalInt(body, "grid_width").value_or(0);
		const int height = optionalInt(body, "grid_height").value_or(0);
		const int slotCount = optionalInt(body, "slot_count").value_or(0);

		const Container container = ensureContainer(database, playerId, kind, layout, width, height, slotCount);
		return containerJson(container, stacksIn(database, container.id));
	}
}
