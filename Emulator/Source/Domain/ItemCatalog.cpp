#include "Domain/ItemCatalog.h"

#include <array>

namespace quorvel::emulator
{
	namespace
	{
		constexpr std::array<ItemDefinition, 8> definitions{{
			{"medkit", 2, 2},
			{"bandage", 1, 1},
			{"ammo_556", 1, 1},
			{"rifle", 4, 2},
			{"pistol", 2, 1},
			{"water", 1, 2},
			{"ration", 1, 1},
			{"backpack", 3, 3},
		}};
	}

	std::span<const ItemDefinition> itemCatalog()
	{
		return definitions;
	}

	std::optional<ItemDefinition> findItem(std::string_view id)
	{
		for (const ItemDefinition& definition : definitions)
		{
			if (definition.id == id)
			{
				return definition;
			}
		}
		return std::nullopt;
	}
}
