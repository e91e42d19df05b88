#include "Misc/OutputDevice.h"

#include "Misc/OutputDeviceHelper.h"

FOutputDevice::~FOutputDevice() = default;

void FOutputDevice::Log(const TCHAR* S)
{
	Serialize(S, ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(ELogVerbosity::Type Verbosity, const TCHAR* S)
{
	Serialize(S, Verbosity, NAME_None);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Str)
{
	Serialize(Str, Verbosity, Category);
}

void FOutputDevice::Log(const FString& S)
{
	Serialize(*S, ELogVerbosity::Log, NAME_None);
}

FString FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message)
{
	FString Line;
	if (!Category.IsNone())
	{
		Line += Category.ToString();
		Line += TEXT(": ");
	}
	const ELogVerbosity::Type Level = ELogVerbosity::Type(Verbosity & ELogVerbosity::VerbosityMask);
	if (Level != ELogVerbosity::Log)
	{
		Line += ToString(Level);
		Line += TEXT(": ");
	}
	Line += Message ? Message : TEXT("");
	return Line;
}
