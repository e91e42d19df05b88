// Decides which platform requests meet a fault, counts the faults, and holds delayed replies.
// Thread-safe: every server worker asks it.
#pragma once

#include "Faults/FaultSettings.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <random>

namespace quorvel::emulator
{
	/** A request's fault with the settings it was chosen under, so a change in between cannot mix them. */
	struct FaultPlan
	{
		Fault fault = Fault::none;
		int retryAfterSeconds = 0;
		int delayMs = 0;
	};

	class FaultInjector
	{
	public:
		/** The same seed gives the same sequence of faults for the same requests; none picks one at random.
		    Throws std::invalid_argument for unusable settings. */
		explicit FaultInjector(const FaultSettings& settings = {}, std::optional<std::uint64_t> seed = std::nullopt);

		FaultSettings settings() const;
		/** Throws std::invalid_argument for unusable settings, keeping the old ones. */
		void setSettings(const FaultSettings& settings);

		/** At most one fault per request: a failure, else a drop, else the delay when one is set.
		    Two draws are taken every time, so changing one rate does not shift the other's sequence. */
		FaultPlan choose();

		/** Counts a fault once it has been carried out. */
		void count(Fault fault);
		FaultCounts counts() const;

		/** Waits out a delay, or less once cancelWaits() is called. */
		void wait(std::chrono::milliseconds delay);
		/** Ends every wait now and later: for shutting down without holding back the server. */
		void cancelWaits();

	private:
		mutable std::mutex mutex;
		FaultSettings current;
		std::mt19937_64 random;
		std::uniform_real_distribution<double> unit{0.0, 1.0};
		FaultCounts tally;
		std::condition_variable waits;
		bool cancelled = false;
	};
}
