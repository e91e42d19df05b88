#include "Logging/LogMacros.h"

#include "Containers/StringConv.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdio>
#include <cstdlib>

void FMsg::LogString(const ANSICHAR* File, int32 Line, const FLogCategoryName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Message)
{
	GLog->Serialize(Message, Verbosity, Category);
	if ((Verbosity & ELogVerbosity::VerbosityMask) == ELogVerbosity::Fatal)
	{
		GLog->Flush();
		const FString FormattedLine = FOutputDeviceHelper::FormatLogLine(Verbosity, Category, Message);
		std::fprintf(stderr, "Fatal error: [File:%s] [Line: %d]\n%s\n", File, Line, TCHAR_TO_UTF8(*FormattedLine));
		std::fflush(stderr);
		std::abort();
	}
}
