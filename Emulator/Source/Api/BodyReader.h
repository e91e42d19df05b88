// Reads a request body as the platform's routes take it: whatever its content type, up to a limit.
// httplib's own reading would refuse a form-typed body over 8 KiB (curl's default content type for
// -d) before any handler runs, so platform routes read through a content reader instead.
#pragma once

#include "Api/ApiError.h"

#include <httplib.h>

#include <cstddef>
#include <string>

namespace quorvel::emulator
{
	/** The whole body. Throws ApiError 413 body_too_large when it is over `limit` bytes, known from
	    Content-Length before reading or found while reading a chunked body, and 400 when the body
	    breaks off. The server's payload limit must equal `limit`, so that httplib skips an oversized
	    body it was told the length of and the connection stays usable. */
	std::string readBody(const httplib::Request& request, const httplib::ContentReader& reader, std::size_t limit);

	/** 413 body_too_large, stating the limit. */
	ApiError bodyTooLarge(std::size_t limit);
}
