#include "Api/RequestFields.h"

#include "Api/ApiError.h"

#include <limits>

namespace quorvel::emulator
{
	namespace
	{
		const Json* find(const Json& object, const char* key)
		{
			const auto it = object.find(key);
			return it == object.end() ? nullptr : &*it;
		}

		ApiError wrongType(const char* key, const char* expected)
		{
			return badRequest(std::string("\"") + key + "\" must be " + expected);
		}

		ApiError missing(const char* key)
		{
			return badRequest(std::string("\"") + key + "\" is required");
		}
	}

	Json parseBody(const std::string& text)
	{
		Json body = Json::parse(text, nullptr, false);
		if (body.is_discarded())
		{
			throw ApiError(400, "malformed_json", "the request body is not valid JSON");
		}
		if (!body.is_object())
		{
			throw badRequest("the request body must be a JSON object");
		}
		return body;
	}

	std::string requiredString(const Json& object, const char* key)
	{
		const Json* value = find(object, key);
		if (!value)
		{
			throw missing(key);
		}
		if (!value->is_string())
		{
			throw wrongType(key, "a string");
		}
		return value->get<std::string>();
	}

	std::optional<int> optionalInt(const Json& object, const char* key)
	{
		const Json* value = find(object, key);
		if (!value)
		{
			return std::nullopt;
		}
		// Whole numbers only: a fractional cell or quantity means the caller is confused.
		if (!value->is_number_integer())
		{
			throw wrongType(key, "a whole number");
		}
		const bool tooLarge = value->is_number_unsigned() && value->get<std::uint64_t>() > std::numeric_limits<int>::max();
		const std::int64_t number = tooLarge ? 0 : value->get<std::int64_t>();
		if (tooLarge || number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
		{
			throw wrongType(key, "a 32-bit whole number");
		}
		return static_cast<int>(number);
	}

	int requiredInt(const Json& object, const char* key)
	{
		const std::optional<int> value = optionalInt(object, key);
		if (!value)
		{
			throw missing(key);
		}
		return *value;
	}

	std::optional<bool> optionalBool(const Json& object, const char* key)
	{
		const Json* value = find(object, key);
		if (!value)
		{
			return std::nullopt;
		}
		if (!value->is_boolean())
		{
			throw wrongType(key, "true or false");
		}
		return value->get<bool>();
	}

	const Json* optionalObject(const Json& object, const char* key)
	{
		const Json* value = find(object, key);
		if (value && !value->is_object())
		{
			throw wrongType(key, "an object");
		}
		return value;
	}
}
