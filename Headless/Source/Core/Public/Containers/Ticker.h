// The engine's thread-safe ticker: callables run after a delay, from whatever thread ticks it. The
// core ticker is ticked by the engine loop on the game thread: FTSTicker::GetCoreTicker().Tick(DeltaSeconds).
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Delegates/DelegateCombinations.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

#include <mutex>

/** Gets the seconds since the last tick; returns true to run again after its delay, false to be removed. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

class FTSTicker
{
public:
	struct FElement;
	using FDelegateHandle = TWeakPtr<FElement, ESPMode::ThreadSafe>;

	FTSTicker() = default;
	FTSTicker(const FTSTicker&) = delete;
	FTSTicker& operator=(const FTSTicker&) = delete;

	/** The ticker the engine loop ticks once per frame. */
	static FTSTicker& GetCoreTicker();

	/** From any thread. The delegate first runs at the first tick at least InDelay seconds of ticked time later. */
	FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);
	FDelegateHandle AddTicker(const TCHAR* InName, float InDelay, TFunction<bool(float)> Function);

	/** From any thread; a removed ticker does not run again. Safe with a stale handle. */
	static void RemoveTicker(FDelegateHandle Handle);

	/** Advances the ticker's clock and runs what is due; tickers added meanwhile wait for a later tick. */
	void Tick(float DeltaTime);

	/** Drops every ticker. */
	void Reset();

private:
	using FElementPtr = TSharedPtr<FElement, ESPMode::ThreadSafe>;

	std::mutex Mutex;
	TArray<FElementPtr> Elements;
	double CurrentTime = 0.0;
};
