#include "Faults/FaultInjector.h"

#include <stdexcept>

namespace quorvel::emulator
{
	namespace
	{
		void check(const FaultSettings& settings)
		{
			if (const std::string problem = faultSettingsProblem(settings); !problem.empty())
			{
				throw std::invalid_argument(problem);
			}
		}
	}

	FaultInjector::FaultInjector(const FaultSettings& settings, std::optional<std::uint64_t> seed)
		: current(settings), random(seed ? *seed : std::random_device{}())
	{
		check(settings);
	}

	FaultSettings FaultInjector::settings() const
	{
		std::lock_guard lock(mutex);
		return current;
	}

	void FaultInjector::setSettings(const FaultSettings& settings)
	{
		check(settings);
		std::lock_guard lock(mutex);
		current = settings;
	}

	FaultPlan FaultInjector::choose()
	{
		std::lock_guard lock(mutex);
		const double failDraw = unit(random);
		const double dropDraw = unit(random);
		FaultPlan plan{.retryAfterSeconds = current.retryAfterSeconds, .delayMs = current.delayMs};
		if (failDraw < current.failRate)
		{
			plan.fault = Fault::fail;
		}
		else if (dropDraw < current.dropRate)
		{
			plan.fault = Fault::drop;
		}
		else if (current.delayMs > 0)
		{
			plan.fault = Fault::delay;
		}
		return plan;
	}

	void FaultInjector::count(Fault fault)
	{
		std::lock_guard lock(mutex);
		switch (fault)
		{
		case Fault::fail:
			++tally.failed;
			break;
		case Fault::delay:
			++tally.delayed;
			break;
		case Fault::drop:
			++tally.dropped;
			break;
		case Fault::none:
			break;
		}
	}

	FaultCounts FaultInjector::counts() const
	{
		std::lock_guard lock(mutex);
		return tally;
	}

	void FaultInjector::wait(std::chrono::milliseconds delay)
	{
		std::unique_lock lock(mutex);
		waits.wait_for(lock, delay, [this] { return cancelled; });
	}

	void FaultInjector::cancelWaits()
	{
		{
			std::lock_guard lock(mutex);
			cancelled = true;
		}
		waits.notify_all();
	}
}
