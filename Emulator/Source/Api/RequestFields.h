// Typed access to the fields of a request body; anything missing or of the wrong type is a 400.
#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string>

namespace quorvel::emulator
{
	// Ordered, so that replies keep their keys in the order they were written.
	using Json = nlohmann::ordered_json;

	/** The body as a JSON object. */
	Json parseBody(const std::string& text);

	std::string requiredString(const Json& object, const char* key);
	int requiredInt(const Json& object, const char* key);
	std::optional<int> optionalInt(const Json& object, const char* key);
	std::optional<bool> optionalBool(const Json& object, const char* key);
	/** Null when the key is absent. */
	const Json* optionalObject(const Json& object, const char* key);
}
