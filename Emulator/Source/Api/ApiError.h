// A refusal that goes back to the caller as {"error": {"code", "message"}} with an HTTP status.
#pragma once

#include <stdexcept>
#include <string>

namespace quorvel::emulator
{
	class ApiError : public std::runtime_error
	{
	public:
		ApiError(int status, std::string code, const std::string& message)
			: std::runtime_error(message), status(status), code(std::move(code))
		{
		}

		int status;
		std::string code;
	};

	inline ApiError badRequest(const std::string& message) { return ApiError(400, "invalid_request", message); }
	inline ApiError notFound(const std::string& code, const std::string& message) { return ApiError(404, code, message); }
	inline ApiError conflict(const std::string& code, const std::string& message) { return ApiError(409, code, message); }
	inline ApiError unprocessable(const std::string& code, const std::string& message) { return ApiError(422, code, message); }
}
