#include "Api/BodyReader.h"

#include <charconv>
#include <cstdint>

namespace quorvel::emulator
{
	namespace
	{
		bool declaredOver(const httplib::Request& request, std::size_t limit)
		{
			const std::string text = request.get_header_value("Content-Length");
			std::uint64_t length = 0;
			const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
			// A length too large to read is certainly over the limit.
			return !text.empty() && (error == std::errc::result_out_of_range || (error == std::errc() && length > limit));
		}
	}

	std::string readBody(const httplib::Request& request, const httplib::ContentReader& reader, std::size_t limit)
	{
		if (declaredOver(request, limit))
		{
			// httplib reads past what it was told is too long, so the reply is not lost in a reset.
			reader([](const char*, std::size_t) { return true; });
			throw bodyTooLarge(limit);
		}

		std::string body;
		bool over = false;
		const auto keep = [&](const char* data, std::size_t size)
		{
			if (size > limit - body.size())
			{
				over = true;
				return false;
			}
			body.append(data, size);
			return true;
		};
		// Multipart bodies are not JSON either, but must be read through their own callbacks.
		const bool complete = request.is_multipart_form_data()
			? reader([](const httplib::MultipartFormData&) { return true; }, keep)
			: reader(keep);
		if (over)
		{
			throw bodyTooLarge(limit);
		}
		if (!complete)
		{
			throw badRequest("the request body ended before its stated length");
		}
		return body;
	}

	ApiError bodyTooLarge(std::size_t limit)
	{
		return ApiError(413, "body_too_large", "the request body is over the limit of " + std::to_string(limit) + " bytes");
	}
}
