// What can go wrong on purpose, so that a client's retries and timeouts can be tried against it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvel::emulator
{
	struct FaultSettings
	{
		/** Share of platform requests refused with 503 before anything is applied, 0 to 1. */
		double failRate = 0;
		/** Seconds the 503 replies ask the client to wait, in their Retry-After header. */
		int retryAfterSeconds = 1;
		/** Milliseconds every other reply is held back. */
		int delayMs = 0;
		/** Share of platform requests applied and committed whose connection is then closed with no reply, 0 to 1. */
		double dropRate = 0;
	};

	/** A delay holds a server worker for its length; past a minute every client has given up anyway. */
	constexpr int maxDelayMs = 60000;

	/** Empty when the settings are usable; otherwise what is wrong with them. */
	std::string faultSettingsProblem(const FaultSettings& settings);

	struct FaultCounts
	{
		std::uint64_t failed = 0;
		std::uint64_t delayed = 0;
		std::uint64_t dropped = 0;
	};

	/** The one fault a request gets, if any. */
	enum class Fault
	{
		none,
		fail,
		delay,
		drop,
	};

	/** "503", "delay", "drop", or empty for none: how logs and the page name it. */
	std::string_view faultName(Fault fault);
}
