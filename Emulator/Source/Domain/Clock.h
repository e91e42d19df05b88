// Platform time in whole seconds since the Unix epoch. It comes from a function so that tests move
// time on (session and idempotency-key expiry) instead of waiting for it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace quorvel::emulator
{
	using Clock = std::function<std::int64_t()>;

	inline std::int64_t systemSeconds()
	{
		return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch()).count();
	}
}
