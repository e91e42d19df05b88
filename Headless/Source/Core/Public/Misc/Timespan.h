// A length of time, counted in ticks of 100 nanoseconds as the engine counts it.
#pragma once

#include "HAL/Platform.h"

namespace ETimespan
{
	inline constexpr int64 MaxTicks = 9223372036854775807;
	inline constexpr int64 MinTicks = -9223372036854775807 - 1;
	inline constexpr int64 NanosecondsPerTick = 100;
	inline constexpr int64 TicksPerMicrosecond = 10;
	inline constexpr int64 TicksPerMillisecond = 10000;
	inline constexpr int64 TicksPerSecond = 10000000;
	inline constexpr int64 TicksPerMinute = 600000000;
	inline constexpr int64 TicksPerHour = 36000000000;
	inline constexpr int64 TicksPerDay = 864000000000;
	inline constexpr int64 TicksPerWeek = 6048000000000;
}

struct FTimespan
{
	constexpr FTimespan() = default;

	constexpr FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}

	constexpr FTimespan(int32 Hours, int32 Minutes, int32 Seconds)
		: FTimespan(0, Hours, Minutes, Seconds)
	{
	}

	constexpr FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds)
		: Ticks(Days * ETimespan::TicksPerDay + Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute + Seconds * ETimespan::TicksPerSecond)
	{
	}

	constexpr int64 GetTicks() const
	{
		return Ticks;
	}

	constexpr double GetTotalSeconds() const
	{
		return double(Ticks) / double(ETimespan::TicksPerSecond);
	}

	constexpr double GetTotalMilliseconds() const
	{
		return double(Ticks) / double(ETimespan::TicksPerMillisecond);
	}

	constexpr bool IsZero() const
	{
		return Ticks == 0;
	}

	/** Rounded to the nearest tick, halves away from zero. */
	static constexpr FTimespan FromSeconds(double Seconds)
	{
		return FromTicks(Seconds * double(ETimespan::TicksPerSecond));
	}

	static constexpr FTimespan FromMilliseconds(double Milliseconds)
	{
		return FromTicks(Milliseconds * double(ETimespan::TicksPerMillisecond));
	}

	static constexpr FTimespan FromMinutes(double Minutes)
	{
		return FromTicks(Minutes * double(ETimespan::TicksPerMinute));
	}

	static constexpr FTimespan Zero()
	{
		return FTimespan(int64(0));
	}

	static constexpr FTimespan MaxValue()
	{
		return FTimespan(ETimespan::MaxTicks);
	}

	static constexpr FTimespan MinValue()
	{
		return FTimespan(ETimespan::MinTicks);
	}

	constexpr FTimespan operator+(const FTimespan& Other) const
	{
		return FTimespan(Ticks + Other.Ticks);
	}

	constexpr FTimespan operator-(const FTimespan& Other) const
	{
		return FTimespan(Ticks - Other.Ticks);
	}

	constexpr FTimespan operator-() const
	{
		return FTimespan(-Ticks);
	}

	constexpr bool operator==(const FTimespan& Other) const
	{
		return Ticks == Other.Ticks;
	}

	constexpr bool operator<(const FTimespan& Other) const
	{
		return Ticks < Other.Ticks;
	}

	constexpr bool operator<=(const FTimespan& Other) const
	{
		return Ticks <= Other.Ticks;
	}

	constexpr bool operator>(const FTimespan& Other) const
	{
		return Ticks > Other.Ticks;
	}

	constexpr bool operator>=(const FTimespan& Other) const
	{
		return Ticks >= Other.Ticks;
	}

private:
	static constexpr FTimespan FromTicks(double InTicks)
	{
		return FTimespan(int64(InTicks < 0.0 ? InTicks - 0.5 : InTicks + 0.5));
	}

	int64 Ticks = 0;
};
