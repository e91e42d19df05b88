// Headless only: nothing in the engine corresponds to this file. Plugin code never includes it.
#pragma once

#include "CoreMinimal.h"

/** Lets a loop that ticks the HTTP manager sleep until there is something to tick for. */
struct FHeadlessHttp
{
	/**
	 * Blocks until a completion waits for the next FHttpManager::Tick, or the time runs out; true
	 * when one waits. Timeouts are noticed by Tick itself, so a caller still ticks now and then.
	 */
	static bool WaitForGameThreadWork(float TimeoutSeconds);
};
