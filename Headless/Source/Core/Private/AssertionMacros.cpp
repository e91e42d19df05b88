#include "Misc/AssertionMacros.h"

#include <cstdio>
#include <cstdlib>

void FDebug::AssertFailed(const char* Expression, const char* File, int32 Line, const char* Message)
{
	std::fprintf(stderr, "Assertion failed: %s [File:%s] [Line: %d]%s%s\n", Expression, File, Line,
		Message ? " " : "", Message ? Message : "");
	std::fflush(stderr);
	std::abort();
}

bool FDebug::OptionallyLogEnsure(const char* Expression, const char* File, int32 Line, const char* Message)
{
	std::fprintf(stderr, "Ensure condition failed: %s [File:%s] [Line: %d]%s%s\n", Expression, File, Line,
		Message ? " " : "", Message ? Message : "");
	std::fflush(stderr);
	return false;
}
