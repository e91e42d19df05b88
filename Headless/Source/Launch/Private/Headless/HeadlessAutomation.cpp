#include "Headless/HeadlessAutomation.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformTime.h"
#include "Headless/HeadlessHttp.h"
#include "Misc/AutomationTest.h"
#include "Misc/CommandLine.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdio>
#include <cstring>

namespace
{
	const char* const Usage = "usage: %s [--filter <prefix>[+<prefix>...]] [--test <full name>] [--list] [--project <dir>] [-<engine switch>...]\n";

	void PrintLine(const FHeadlessAutomationOptions& Options, const FString& Line)
	{
		if (Options.ReportLine)
		{
			Options.ReportLine(Line);
			return;
		}
		// The log's own lines about a test come before the test's result.
		GLog->Flush();
		const FTCHARToUTF8 Utf8(*Line, Line.Len());
		std::fwrite(Utf8.Get(), 1, size_t(Utf8.Length()), stdout);
		std::fputc('\n', stdout);
		std::fflush(stdout);
	}

	TArray<FString> ParseFilter(const FString& Filter)
	{
		TArray<FString> Prefixes;
		Filter.ParseIntoArray(Prefixes, TEXT("+"), true);
		for (FString& Prefix : Prefixes)
		{
			Prefix.TrimStartAndEndInline();
		}
		Prefixes.RemoveAll([](const FString& Prefix)
		{
			return Prefix.IsEmpty();
		});
		return Prefixes;
	}

	TArray<FAutomationTestInfo> FindTests(const FHeadlessAutomationOptions& Options)
	{
		const TArray<FString> Prefixes = ParseFilter(Options.Filter);
		TArray<FAutomationTestInfo> AllTests;
		FAutomationTestFramework::Get().GetValidTestNames(AllTests);
		TArray<FAutomationTestInfo> Matching;
		for (const FAutomationTestInfo& Test : AllTests)
		{
			const bool bMatches = !Options.TestName.IsEmpty()
				? Test.GetFullTestPath().Equals(Options.TestName, ESearchCase::IgnoreCase)
				: Prefixes.Num() == 0 || Prefixes.ContainsByPredicate([&Test](const FString& Prefix)
				{
					return Test.GetFullTestPath().StartsWith(Prefix, ESearchCase::IgnoreCase);
				});
			if (bMatches)
			{
				Matching.Add(Test);
			}
		}
		// Registration order depends on how the modules were linked; names do not.
		Matching.StableSort([](const FAutomationTestInfo& A, const FAutomationTestInfo& B)
		{
			return A.GetFullTestPath().Compare(B.GetFullTestPath(), ESearchCase::CaseSensitive) < 0;
		});
		return Matching;
	}

	/**
	 * Updates the running test's latent commands once per frame until none is left, ticking the engine
	 * between frames and waiting for HTTP replies meanwhile; false when the test ran out of time.
	 */
	bool RunLatentCommands(FHeadlessEngine& Engine, const FHeadlessAutomationOptions& Options)
	{
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		const double Deadline = FPlatformTime::Seconds() + Options.TestTimeoutSeconds;
		double LastFrame = FPlatformTime::Seconds();
		for (;;)
		{
			Framework.ExecuteLatentCommands();
			if (Framework.IsLatentCommandQueueEmpty())
			{
				return true;
			}
			const double Remaining = Deadline - FPlatformTime::Seconds();
			if (Remaining <= 0.0)
			{
				return false;
			}
			FHeadlessHttp::WaitForGameThreadWork(float(FMath::Min(Remaining, double(Options.MaxFrameSeconds))));
			const double Now = FPlatformTime::Seconds();
			Engine.Tick(float(Now - LastFrame));
			LastFrame = Now;
		}
	}

	bool RunTest(FHeadlessEngine& Engine, const FAutomationTestInfo& Test, const FHeadlessAutomationOptions& Options, FAutomationTestExecutionInfo& OutInfo)
	{
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		Framework.StartTestByName(Test.GetTestName(), 0, Test.GetFullTestPath());
		if (!RunLatentCommands(Engine, Options))
		{
			Framework.DequeueAllCommands();
			if (FAutomationTestBase* Current = Framework.GetCurrentTest())
			{
				Current->AddError(FString::Printf(TEXT("Test timed out after %.1f seconds; its remaining latent commands were dropped."), Options.TestTimeoutSeconds));
			}
		}
		return Framework.StopTest(OutInfo);
	}
}

bool ParseHeadlessAutomationCommandLine(int32 ArgC, const char* const* ArgV, FHeadlessAutomationOptions& Options)
{
	const char* const Program = ArgC > 0 ? ArgV[0] : "HeadlessAutomation";
	for (int32 Index = 1; Index < ArgC; ++Index)
	{
		const char* const Argument = ArgV[Index];
		if (std::strcmp(Argument, "--list") == 0)
		{
			Options.bListOnly = true;
			continue;
		}
		if (Argument[0] == '-' && Argument[1] != '-' && Argument[1] != '\0')
		{
			if (!Options.CommandLine.IsEmpty())
			{
				Options.CommandLine += TEXT(" ");
			}
			Options.CommandLine += UTF8_TO_TCHAR(Argument);
			continue;
		}
		const bool bFilter = std::strcmp(Argument, "--filter") == 0;
		const bool bTest = std::strcmp(Argument, "--test") == 0;
		const bool bProject = std::strcmp(Argument, "--project") == 0;
		if (!bFilter && !bTest && !bProject)
		{
			std::fprintf(stderr, "Unknown argument '%s'\n", Argument);
			std::fprintf(stderr, Usage, Program);
			return false;
		}
		if (Index + 1 >= ArgC)
		{
			std::fprintf(stderr, "%s needs a value\n", Argument);
			std::fprintf(stderr, Usage, Program);
			return false;
		}
		const FString Value(UTF8_TO_TCHAR(ArgV[++Index]));
		(bFilter ? Options.Filter : (bTest ? Options.TestName : Options.EngineOptions.ProjectDirectory)) = Value;
	}
	return true;
}

int32 RunHeadlessAutomationTests(const FHeadlessAutomationOptions& Options)
{
	// Before the engine starts: its config system reads the -ini: switches as each branch is read.
	if (!Options.CommandLine.IsEmpty())
	{
		FCommandLine::Set(*Options.CommandLine);
	}
	FHeadlessEngine Engine(Options.EngineOptions);
	const TArray<FAutomationTestInfo> Tests = FindTests(Options);
	if (Tests.Num() == 0)
	{
		PrintLine(Options, FString::Printf(TEXT("No automation tests match '%s'."), Options.TestName.IsEmpty() ? *Options.Filter : *Options.TestName));
	}

	if (Options.bListOnly)
	{
		for (const FAutomationTestInfo& Test : Tests)
		{
			PrintLine(Options, Test.GetFullTestPath());
		}
		return Tests.Num() > 0 ? 0 : 1;
	}

	int32 Passed = 0;
	int32 Failed = 0;
	for (const FAutomationTestInfo& Test : Tests)
	{
		FAutomationTestExecutionInfo Info;
		const bool bPassed = RunTest(Engine, Test, Options, Info);
		++(bPassed ? Passed : Failed);
		PrintLine(Options, FString::Printf(TEXT("%s %s"), bPassed ? TEXT("PASS") : TEXT("FAIL"), *Test.GetFullTestPath()));
		for (const FAutomationExecutionEntry& Entry : Info.GetEntries())
		{
			PrintLine(Options, FString::Printf(TEXT("    %s: %s"), ToString(Entry.Event.Type), *Entry.ToString()));
		}
	}
	PrintLine(Options, FString::Printf(TEXT("%d passed, %d failed"), Passed, Failed));
	return Failed == 0 && Passed > 0 ? 0 : 1;
}

int32 RunHeadlessAutomationTests(int32 ArgC, char** ArgV, const FHeadlessAutomationOptions& Defaults)
{
	FHeadlessAutomationOptions Options = Defaults;
	if (!ParseHeadlessAutomationCommandLine(ArgC, ArgV, Options))
	{
		return 2;
	}
	return RunHeadlessAutomationTests(Options);
}
