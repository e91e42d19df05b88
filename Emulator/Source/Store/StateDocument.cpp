#include "Store/StateDocument.h"

#include "Api/ApiError.h"
#include "Domain/Containers.h"
#include "Domain/Placement.h"
#include "Store/Database.h"
#include "Store/Meta.h"
#include "Store/Records.h"
#include "Store/Schema.h"
#include "Store/Statements.h"

#include <limits>
#include <map>
#include <optional>
#include <set>

namespace quorvel::emulator
{
	namespace
	{
		constexpr int formatVersion = 1;

		struct State
		{
			std::vector<Player> players;
			std::vector<Container> containers;
			std::vector<Stack> stacks;
			bool demoSeeded = false;
		};

		Json containerEntry(const Container& container)
		{
			Json entry{{"id", container.id}, {"player_id", container.playerId}, {"kind", container.kind}, {"layout", container.layout}};
			if (container.isSlots())
			{
				entry["slot_count"] = container.slotCount;
			}
			else
			{
				entry["grid_width"] = container.width;
				entry["grid_height"] = container.height;
			}
			return entry;
		}

		Json stackEntry(const Stack& stack)
		{
			return Json{
				{"id", stack.id},
				{"container_id", stack.containerId},
				{"item_id", stack.itemId},
				{"quantity", stack.quantity},
				{"x", stack.x},
				{"y", stack.y},
				{"slot_index", stack.slotIndex},
				{"rotated", stack.rotated},
				{"base_width", stack.baseWidth},
				{"base_height", stack.baseHeight},
			};
		}

		const Json& requiredArray(const Json& document, const char* key)
		{
			const auto found = document.find(key);
			if (found == document.end() || !found->is_array())
			{
				throw StateError(std::string("\"") + key + "\" must be an array");
			}
			return *found;
		}

		std::string nonEmptyString(const Json& entry, const char* key)
		{
			std::string value = requiredString(entry, key);
			if (value.empty())
			{
				throw badRequest(std::string("\"") + key + "\" must not be empty");
			}
			return value;
		}

		int intWithin(const Json& entry, const char* key, int min, int max)
		{
			const int value = requiredInt(entry, key);
			if (value < min || value > max)
			{
				throw badRequest(std::string("\"") + key + "\" must be from " + std::to_string(min) + " to "
					+ std::to_string(max) + ", not " + std::to_string(value));
			}
			return value;
		}

		/** Runs `read` on each entry of the array, naming the entry in whatever it refuses. */
		template <typename Read>
		void forEachEntry(const Json& array, const char* name, Read read)
		{
			for (std::size_t i = 0; i < array.size(); ++i)
			{
				const std::string where = std::string(name) + "[" + std::to_string(i) + "]: ";
				try
				{
					if (!array[i].is_object())
					{
						throw badRequest("must be an object");
					}
					read(array[i]);
				}
				catch (const ApiError& error)
				{
					throw StateError(where + error.what());
				}
			}
		}

		State readDocument(const Json& document)
		{
			if (!document.is_object())
			{
				throw StateError("the document must be a JSON object");
			}
			if (const auto format = document.find("format"); format != document.end() && *format != formatVersion)
			{
				throw StateError("\"format\" " + format->dump() + " is not known here; this emulator reads format "
					+ std::to_string(formatVersion));
			}
			State state;
			try
			{
				state.demoSeeded = optionalBool(document, "demo_seeded").value_or(false);
			}
			catch (const ApiError& error)
			{
				throw StateError(error.what());
			}

			std::set<std::string> ids;
			const auto claimId = [&](const std::string& id)
			{
				if (!ids.insert(id).second)
				{
					throw badRequest("the id '" + id + "' is used twice");
				}
			};

			std::set<std::pair<std::string, std::string>> identities;
			std::map<std::string, std::size_t> players;
			forEachEntry(requiredArray(document, "players"), "players", [&](const Json& entry)
			{
				Player player{nonEmptyString(entry, "id"), nonEmptyString(entry, "provider"), nonEmptyString(entry, "subject")};
				claimId(player.id);
				if (!identities.emplace(player.provider, player.subject).second)
				{
					throw badRequest("another player already has provider '" + player.provider + "' and subject '"
						+ player.subject + "'");
				}
				players.emplace(player.id, state.players.size());
				state.players.push_back(std::move(player));
			});

			std::set<std::pair<std::string, std::string>> kinds;
			std::map<std::string, std::size_t> containers;
			forEachEntry(requiredArray(document, "containers"), "containers", [&](const Json& entry)
			{
				Container container{.id = nonEmptyString(entry, "id"), .playerId = requiredString(entry, "player_id"),
					.kind = nonEmptyString(entry, "kind"), .layout = requiredString(entry, "layout")};
				claimId(container.id);
				if (!players.contains(container.playerId))
				{
					throw badRequest("no player '" + container.playerId + "'");
				}
				if (!kinds.emplace(container.playerId, container.kind).second)
				{
					throw badRequest("the player has two containers of kind '" + container.kind + "'");
				}
				if (container.layout == "slots")
				{
					container.slotCount = intWithin(entry, "slot_count", 1, maxSlotCount);
				}
				else if (container.layout == "grid")
				{
					container.width = intWithin(entry, "grid_width", 1, maxGridSide);
					container.height = intWithin(entry, "grid_height", 1, maxGridSide);
				}
				else
				{
					throw badRequest("\"layout\" must be \"grid\" or \"slots\"");
				}
				containers.emplace(container.id, state.containers.size());
				state.containers.push_back(std::move(container));
			});

			// Each stack is placed among those before it in its container, by the rules a move obeys.
			std::map<std::string, std::vector<Stack>> placed;
			forEachEntry(requiredArray(document, "stacks"), "stacks", [&](const Json& entry)
			{
				Stack stack{
					.id = nonEmptyString(entry, "id"),
					.containerId = requiredString(entry, "container_id"),
					.itemId = nonEmptyString(entry, "item_id"),
					.quantity = intWithin(entry, "quantity", 1, std::numeric_limits<int>::max()),
					.baseWidth = intWithin(entry, "base_width", 1, maxGridSide),
					.baseHeight = intWithin(entry, "base_height", 1, maxGridSide),
				};
				claimId(stack.id);
				const auto container = containers.find(stack.containerId);
				if (container == containers.end())
				{
					throw badRequest("no container '" + stack.containerId + "'");
				}
				const Container& holder = state.containers[container->second];
				const std::optional<bool> rotated = optionalBool(entry, "rotated");
				const Json to = holder.isSlots()
					? Json{{"slot_index", requiredInt(entry, "slot_index")}}
					: Json{{"x", requiredInt(entry, "x")}, {"y", requiredInt(entry, "y")}, {"rotated", rotated.value_or(false)}};
				std::vector<Stack>& before = placed[holder.id];
				applyPlacement(stack, placeStack(holder, before, stack, &to));
				before.push_back(stack);
				state.stacks.push_back(std::move(stack));
			});
			return state;
		}
	}

	Json exportState(Database& database)
	{
		Json players = Json::array();
		for (const Player& player : allPlayers(database))
		{
			players.push_back({{"id", player.id}, {"provider", player.provider}, {"subject", player.subject}});
		}
		Json containers = Json::array();
		for (const Container& container : allContainers(database))
		{
			containers.push_back(containerEntry(container));
		}
		Json stacks = Json::array();
		for (const Stack& stack : allStacks(database))
		{
			stacks.push_back(stackEntry(stack));
		}
		return Json{
			{"format", formatVersion},
			{"demo_seeded", demoSeeded(database)},
			{"players", std::move(players)},
			{"containers", std::move(containers)},
			{"stacks", std::move(stacks)},
		};
	}

	void importState(Database& database, const Json& document)
	{
		const State state = readDocument(document);
		Transaction transaction(database);
		clearState(database);
		for (const Player& player : state.players)
		{
			insertPlayer(database, player);
		}
		for (const Container& container : state.containers)
		{
			insertContainer(database, container);
		}
		for (const Stack& stack : state.stacks)
		{
			insertStack(database, stack);
		}
		setDemoSeeded(database, state.demoSeeded);
		transaction.commit();
	}
}
