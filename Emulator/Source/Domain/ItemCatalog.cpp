#include "Domain/ItemCatalog.h"

#include "Api/ApiError.h"
#include "Api/RequestFields.h"
#include "Domain/Containers.h"

#include <fstream>
#include <limits>
#include <sstream>

namespace quorvel::emulator
{
	namespace
	{
		int boundedInt(const Json& object, const char* key, int min, int max, const std::string& range)
		{
			const int value = requiredInt(object, key);
			if (value < min || value > max)
			{
				throw badRequest(std::string("\"") + key + "\" must be " + range + ", not " + std::to_string(value));
			}
			return value;
		}

		ItemDefinition readItem(const Json& entry)
		{
			if (!entry.is_object())
			{
				throw badRequest("each item must be an object");
			}
			ItemDefinition item;
			item.id = requiredString(entry, "id");
			if (item.id.empty())
			{
				throw badRequest("\"id\" must not be empty");
			}
			// An item wider than the largest grid could never be placed.
			const std::string side = "from 1 to " + std::to_string(maxGridSide);
			item.width = boundedInt(entry, "width", 1, maxGridSide, side);
			item.height = boundedInt(entry, "height", 1, maxGridSide, side);
			item.maxStack = boundedInt(entry, "max_stack", 1, std::numeric_limits<int>::max(), "at least 1");
			return item;
		}
	}

	ItemCatalog ItemCatalog::load(const std::string& path)
	{
		std::ifstream file(path, std::ios::binary);
		if (!file)
		{
			throw CatalogError(path + ": cannot be read");
		}
		std::ostringstream text;
		text << file.rdbuf();
		return parse(text.str(), path);
	}

	ItemCatalog ItemCatalog::parse(const std::string& text, const std::string& origin)
	{
		Json document;
		try
		{
			document = Json::parse(text);
		}
		catch (const Json::parse_error& error)
		{
			throw CatalogError(origin + ": not valid JSON (at byte " + std::to_string(error.byte) + ")");
		}
		const auto items = document.is_object() ? document.find("items") : document.end();
		if (!document.is_object() || items == document.end() || !items->is_array())
		{
			throw CatalogError(origin + ": expected an object with an \"items\" array");
		}
		if (items->empty())
		{
			throw CatalogError(origin + ": \"items\" lists no items, so nothing could be granted");
		}

		ItemCatalog catalog;
		for (std::size_t i = 0; i < items->size(); ++i)
		{
			const std::string where = origin + ": items[" + std::to_string(i) + "]: ";
			ItemDefinition item;
			try
			{
				item = readItem((*items)[i]);
			}
			catch (const ApiError& error)
			{
				throw CatalogError(where + error.what());
			}
			if (catalog.indexById.contains(item.id))
			{
				throw CatalogError(where + "\"" + item.id + "\" is listed twice");
			}
			catalog.indexById.emplace(item.id, catalog.definitions.size());
			catalog.definitions.push_back(std::move(item));
		}
		return catalog;
	}

	const ItemDefinition* ItemCatalog::find(std::string_view id) const
	{
		const auto found = indexById.find(id);
		return found == indexById.end() ? nullptr : &definitions[found->second];
	}
}
