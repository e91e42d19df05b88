#include "Faults/FaultSettings.h"

namespace quorvel::emulator
{
	namespace
	{
		bool isRate(double value)
		{
			return value >= 0 && value <= 1; // false for NaN too
		}
	}

	std::string faultSettingsProblem(const FaultSettings& settings)
	{
		if (!isRate(settings.failRate))
		{
			return "fail_rate must be from 0 to 1";
		}
		if (!isRate(settings.dropRate))
		{
			return "drop_rate must be from 0 to 1";
		}
		if (settings.retryAfterSeconds < 0)
		{
			return "retry_after must be a whole number of seconds, 0 or more";
		}
		if (settings.delayMs < 0 || settings.delayMs > maxDelayMs)
		{
			return "delay_ms must be a whole number of milliseconds from 0 to " + std::to_string(maxDelayMs);
		}
		return {};
	}

	std::string_view faultName(Fault fault)
	{
		switch (fault)
		{
		case Fault::fail:
			return "503";
		case Fault::delay:
			return "delay";
		case Fault::drop:
			return "drop";
		case Fault::none:
			break;
		}
		return {};
	}
}
