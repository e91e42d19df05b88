#include "Domain/Inventory.h"

#include "Api/ApiError.h"
#include "Api/Replies.h"
#include "Domain/Ids.h"
#include "Domain/ItemCatalog.h"
#include "Domain/Placement.h"
#include "Store/Statements.h"

#include <algorithm>

namespace quorvel::emulator
{
	namespace
	{
		std::vector<Stack> stacksOtherThan(Database& database, const std::string& containerId, const std::string& instanceId)
		{
			std::vector<Stack> stacks = stacksIn(database, containerId);
			std::erase_if(stacks, [&](const Stack& stack) { return stack.id == instanceId; });
			return stacks;
		}
	}

	Json grantItem(Database& database, const ItemCatalog& catalog, const std::string& playerId, const Json& body)
	{
		const std::string containerId = requiredString(body, "container_id");
		const std::string itemId = requiredString(body, "item_id");
		const int quantity = requiredInt(body, "quantity");
		const Json* to = optionalObject(body, "to");
		if (quantity < 1)
		{
			throw unprocessable("invalid_quantity", "\"quantity\" must be at least 1");
		}
		const ItemDefinition* item = catalog.find(itemId);
		if (!item)
		{
			throw unprocessable("unknown_item", "no item definition '" + itemId + "'");
		}
		if (quantity > item->maxStack)
		{
			throw unprocessable("stack_limit_exceeded", "a stack of '" + itemId + "' holds at most "
				+ std::to_string(item->maxStack) + ", not " + std::to_string(quantity));
		}

		const Container container = requireContainer(database, playerId, containerId);
		Stack stack{
			.id = newId("inst"),
			.containerId = container.id,
			.itemId = itemId,
			.quantity = quantity,
			.baseWidth = item->width,
			.baseHeight = item->height,
		};
		applyPlacement(stack, placeStack(container, stacksIn(database, container.id), stack, to));
		insertStack(database, stack);
		return Json{{"container_id", container.id}, {"instance", stackJson(container, stack)}};
	}

	Json consumeItem(Database& database, const std::string& playerId, const Json& body)
	{
		const std::string instanceId = requiredString(body, "instance_id");
		const std::optional<int> asked = optionalInt(body, "quantity");
		Stack stack = requireStack(database, playerId, instanceId);
		const int quantity = asked.value_or(stack.quantity);
		if (quantity < 1)
		{
			throw unprocessable("invalid_quantity", "\"quantity\" must be at least 1");
		}
		if (quantity > stack.quantity)
		{
			throw conflict("insufficient_quantity", "the stack holds " + std::to_string(stack.quantity) + ", not "
				+ std::to_string(quantity));
		}

		stack.quantity -= quantity;
		if (stack.quantity == 0)
		{
			deleteStack(database, stack.id);
		}
		else
		{
			updateStack(database, stack);
		}
		return Json{
			{"instance_id", stack.id},
			{"item_id", stack.itemId},
			{"consumed", quantity},
			{"remaining", stack.quantity},
		};
	}

	Json moveItem(Database& database, const std::string& playerId, const Json& body)
	{
		const std::string instanceId = requiredString(body, "instance_id");
		const std::string toContainerId = requiredString(body, "to_container_id");
		const Json* to = optionalObject(body, "to");

		Stack stack = requireStack(database, playerId, instanceId);
		const Container destination = requireContainer(database, playerId, toContainerId);
		const std::string fromContainerId = stack.containerId;

		// The stack's own cells count as free, so it can shift within its container.
		applyPlacement(stack, placeStack(destination, stacksOtherThan(database, destination.id, stack.id), stack, to));
		stack.containerId = destination.id;
		updateStack(database, stack);
		return Json{
			{"from_container_id", fromContainerId},
			{"to_container_id", destination.id},
			{"instance", stackJson(destination, stack)},
		};
	}
}
