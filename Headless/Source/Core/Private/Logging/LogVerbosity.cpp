#include "Logging/LogVerbosity.h"

#include "Containers/UnrealString.h"

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity & ELogVerbosity::VerbosityMask)
	{
	case ELogVerbosity::NoLogging:
		return TEXT("NoLogging");
	case ELogVerbosity::Fatal:
		return TEXT("Fatal");
	case ELogVerbosity::Error:
		return TEXT("Error");
	case ELogVerbosity::Warning:
		return TEXT("Warning");
	case ELogVerbosity::Display:
		return TEXT("Display");
	case ELogVerbosity::Log:
		return TEXT("Log");
	case ELogVerbosity::Verbose:
		return TEXT("Verbose");
	case ELogVerbosity::VeryVerbose:
		return TEXT("VeryVerbose");
	default:
		return TEXT("UnknownVerbosity");
	}
}

ELogVerbosity::Type ParseLogVerbosityFromString(const FString& VerbosityString)
{
	for (uint8 Level = ELogVerbosity::NoLogging; Level < ELogVerbosity::NumVerbosity; ++Level)
	{
		if (VerbosityString == ToString(ELogVerbosity::Type(Level)))
		{
			return ELogVerbosity::Type(Level);
		}
	}
	if (VerbosityString == TEXT("All"))
	{
		return ELogVerbosity::All;
	}
	return ELogVerbosity::NoLogging;
}
