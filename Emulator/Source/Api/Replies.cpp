#include "Api/Replies.h"

namespace quorvel::emulator
{
	Json stackJson(const Container& container, const Stack& stack)
	{
		const bool slots = container.isSlots();
		return Json{
			{"id", stack.id},
			{"item_id", stack.itemId},
			{"quantity", stack.quantity},
			{"x", stack.x},
			{"y", stack.y},
			{"slot_index", stack.slotIndex},
			{"slot_key", slots ? "slot_" + std::to_string(stack.slotIndex) : std::string()},
			{"grid_w", slots ? 1 : stack.width()},
			{"grid_h", slots ? 1 : stack.height()},
			{"rotated", !slots && stack.rotated},
		};
	}

	Json containerJson(const Container& container, const std::vector<Stack>& stacks)
	{
		Json items = Json::array();
		for (const Stack& stack : stacks)
		{
			items.push_back(stackJson(container, stack));
		}
		Json reply{{"id", container.id}, {"kind", container.kind}, {"layout", container.layout}};
		if (container.isSlots())
		{
			reply["slot_count"] = container.slotCount;
		}
		else
		{
			reply["grid_width"] = container.width;
			reply["grid_height"] = container.height;
		}
		reply["items"] = std::move(items);
		return reply;
	}

	Json errorJson(const std::string& code, const std::string& message)
	{
		return Json{{"error", {{"code", code}, {"message", message}}}};
	}
}
