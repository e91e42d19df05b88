// Headless only: runs the engine's automation tests as a studio's "Automation RunTests <filter>" does,
// without the editor. It starts the engine with the project's modules (their tests register as the
// modules load), runs each test whose full name starts with the filter, ticks the engine frame by frame
// while latent steps wait, and prints one line per test and a closing tally.
//
//   <program> [--filter <prefix>[+<prefix>...]] [--list] [--project <dir>]
#pragma once

#include "CoreMinimal.h"
#include "Headless/HeadlessEngine.h"
#include "Templates/Function.h"

struct FHeadlessAutomationOptions
{
	/** Prefixes of full test names, separated by '+' and matched without regard to case; empty runs all. */
	FString Filter;
	/** One test's full name, matched whole without regard to case; when set, Filter is not used. */
	FString TestName;
	/** The engine's command line (FCommandLine), set before the engine starts when not empty. */
	FString CommandLine;
	/** Print the names of the matching tests instead of running them. */
	bool bListOnly = false;
	/** The project directory and the project modules whose tests are run. */
	FHeadlessEngineOptions EngineOptions;
	/** The longest wait between two frames while a latent step waits, for HTTP replies and tickers. */
	float MaxFrameSeconds = 0.05f;
	/** Real time one test may take, latent steps included, before it is failed and cut short. */
	float TestTimeoutSeconds = 600.0f;
	/** Receives the report one line at a time; standard output when unbound. */
	TFunction<void(const FString& Line)> ReportLine;
};

/**
 * Reads --filter, --test, --list and --project into Options, and appends engine switches (arguments
 * with a single leading dash) to its CommandLine; other fields keep their values. False, with a
 * message on standard error, for an unknown argument or one without its value.
 */
LAUNCH_API bool ParseHeadlessAutomationCommandLine(int32 ArgC, const char* const* ArgV, FHeadlessAutomationOptions& Options);

/**
 * Runs (or lists) the matching tests: "PASS <full name>" or "FAIL <full name>" for each, its errors,
 * warnings and infos indented below it, then "<N> passed, <N> failed". Returns 0 when at least one test
 * matched and none failed, 1 otherwise.
 */
LAUNCH_API int32 RunHeadlessAutomationTests(const FHeadlessAutomationOptions& Options);

/** The command line over Defaults, then RunHeadlessAutomationTests; 2 for a bad command line. */
LAUNCH_API int32 RunHeadlessAutomationTests(int32 ArgC, char** ArgV, const FHeadlessAutomationOptions& Defaults = FHeadlessAutomationOptions());
