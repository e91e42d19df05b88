// The item definitions the platform knows. Their ids are the row names of the demo item table in
// Content/Items/DT_StashItems.json; the footprint is how many grid cells a stack covers unrotated.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quorvel::emulator
{
	struct ItemDefinition
	{
		std::string_view id;
		int width;
		int height;
	};

	std::span<const ItemDefinition> itemCatalog();

	std::optional<ItemDefinition> findItem(std::string_view id);
}
