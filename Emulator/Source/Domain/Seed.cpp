#include "Domain/Seed.h"

#include "Api/ApiError.h"
#include "Domain/Accounts.h"
#include "Domain/Containers.h"
#include "Domain/Ids.h"
#include "Domain/ItemCatalog.h"
#include "Domain/Placement.h"
#include "Store/Database.h"
#include "Store/Meta.h"
#include "Store/Statements.h"

#include <array>

namespace quorvel::emulator
{
	namespace
	{
		struct SeedStack
		{
			const char* itemId;
			int quantity;
			int x;
			int y;
			bool rotated;
		};

		constexpr std::array<SeedStack, 8> demoStacks{{
			{"rifle", 1, 0, 0, false},
			{"medkit", 2, 4, 0, false},
			{"ammo_556", 60, 6, 0, false},
			{"bandage", 5, 7, 0, false},
			{"water", 3, 8, 0, false},
			{"backpack", 1, 0, 2, false},
			{"pistol", 1, 3, 2, true},
			{"ration", 4, 5, 2, false},
		}};

		/** Places the stack at its demo cell, or wherever it fits when another catalog's footprints
		    make that cell unusable; false when it fits nowhere. */
		bool place(const Container& stash, const std::vector<Stack>& stacks, Stack& stack, const SeedStack& seed)
		{
			// A stash made earlier as slots gets the same stacks in its first free slots.
			if (!stash.isSlots())
			{
				try
				{
					const Json cell{{"x", seed.x}, {"y", seed.y}, {"rotated", seed.rotated}};
					applyPlacement(stack, placeStack(stash, stacks, stack, &cell));
					return true;
				}
				catch (const ApiError&)
				{
				}
			}
			try
			{
				applyPlacement(stack, placeStack(stash, stacks, stack, nullptr));
				return true;
			}
			catch (const ApiError&)
			{
				return false;
			}
		}
	}

	int seedDemoStash(Database& database, const ItemCatalog& catalog)
	{
		Transaction transaction(database);
		if (demoSeeded(database))
		{
			return 0;
		}
		const std::string playerId = playerFor(database, "anonymous", "demo_account");
		const Container stash = ensureContainer(database, playerId, "stash", "grid", 10, 8, 24);
		std::vector<Stack> stacks = stacksIn(database, stash.id);
		const bool wasEmpty = stacks.empty();
		if (wasEmpty)
		{
			for (const SeedStack& seed : demoStacks)
			{
				const ItemDefinition* item = catalog.find(seed.itemId);
				if (!item || seed.quantity > item->maxStack)
				{
					continue;
				}
				Stack stack{
					.id = newId("inst"),
					.containerId = stash.id,
					.itemId = seed.itemId,
					.quantity = seed.quantity,
					.baseWidth = item->width,
					.baseHeight = item->height,
				};
				if (place(stash, stacks, stack, seed))
				{
					insertStack(database, stack);
					stacks.push_back(stack);
				}
			}
		}
		setDemoSeeded(database, true);
		transaction.commit();
		return wasEmpty ? static_cast<int>(stacks.size()) : 0;
	}
}
