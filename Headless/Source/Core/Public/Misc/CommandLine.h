// The process's command line as one string, as the engine keeps it: the launcher sets it from the
// program's arguments, and systems read their switches from it (the config system its -ini:
// overrides).
#pragma once

#include "CoreTypes.h"

struct FCommandLine
{
	/** The command line; empty until it is set. */
	static CORE_API const TCHAR* Get();

	/** Replaces the command line; true once it is set. */
	static CORE_API bool Set(const TCHAR* NewCommandLine);

	/** Appends text as it is; the caller adds the separating space. */
	static CORE_API void Append(const TCHAR* AppendString);

	/** True once the command line has been set. */
	static CORE_API bool IsInitialized();
};
