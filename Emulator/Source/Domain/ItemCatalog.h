// The item definitions the platform knows, read from a JSON file at start-up:
//   {"items": [{"id": "medkit", "width": 2, "height": 2, "max_stack": 5}, ...]}
// The ids are the row names of the game's item table; the footprint is how many grid cells a stack
// covers unrotated; max_stack is the most one stack may hold.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::emulator
{
	struct ItemDefinition
	{
		std::string id;
		int width = 1;
		int height = 1;
		int maxStack = 1;
	};

	/** A catalog that cannot be used; the message reads "<file>: <problem>". */
	class CatalogError : public std::runtime_error
	{
	public:
		using std::runtime_error::runtime_error;
	};

	class ItemCatalog
	{
	public:
		/** Reads and checks the file; throws CatalogError. */
		static ItemCatalog load(const std::string& path);

		/** The same from text; `origin` names the text in messages. */
		static ItemCatalog parse(const std::string& text, const std::string& origin);

		/** Null for an id the catalog does not list. */
		const ItemDefinition* find(std::string_view id) const;

		/** In the order the file lists them. */
		const std::vector<ItemDefinition>& items() const { return definitions; }

	private:
		std::vector<ItemDefinition> definitions;
		std::map<std::string, std::size_t, std::less<>> indexById;
	};
}
