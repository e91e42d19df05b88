// How much a log line matters; lower values matter more.
#pragma once

#include "HAL/Platform.h"

class FString;

namespace ELogVerbosity
{
	enum Type : uint8
	{
		NoLogging = 0,
		/** Always printed, then the process stops. */
		Fatal,
		Error,
		Warning,
		/** Printed to the console as well as the log. */
		Display,
		Log,
		Verbose,
		VeryVerbose,

		All = VeryVerbose,
		NumVerbosity,
		VerbosityMask = 0xf,
		SetColor = 0x40,
		BreakOnLog = 0x80,
	};
}

/** The verbosity's name, as printed in log lines ("Warning"). */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);

/** Parses a verbosity name without regard to case; unknown names give NoLogging. */
CORE_API ELogVerbosity::Type ParseLogVerbosityFromString(const FString& VerbosityString);
