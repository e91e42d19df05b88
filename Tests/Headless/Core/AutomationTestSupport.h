// Runs one automation test case through the framework the way a runner does: start it, update its
// latent commands once per frame with the core ticker ticked between frames, stop it. The automation
// tests these suites define register under "QuorvelSelfTest." and are run only by name from here.
#pragma once

#include "Containers/StringConv.h"
#include "Containers/Ticker.h"
#include "Misc/AutomationTest.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace QuorvelTest
{
	struct FAutomationRun
	{
		bool bPassed = false;
		/** Frames the core ticker was ticked while latent commands waited. */
		int32 Frames = 0;
		FAutomationTestExecutionInfo Info;

		/** The messages of one type of event, in the order they were recorded, as UTF-8. */
		std::vector<std::string> Messages(EAutomationEventType Type) const
		{
			std::vector<std::string> Result;
			for (const FAutomationExecutionEntry& Entry : Info.GetEntries())
			{
				if (Entry.Event.Type == Type)
				{
					Result.emplace_back(TCHAR_TO_UTF8(*Entry.Event.Message));
				}
			}
			return Result;
		}

		std::vector<std::string> Errors() const
		{
			return Messages(EAutomationEventType::Error);
		}
	};

	/** The listed case with this full test path; fails the calling test when there is none. */
	inline FAutomationTestInfo FindAutomationTest(const FString& FullTestPath)
	{
		TArray<FAutomationTestInfo> Tests;
		FAutomationTestFramework::Get().GetValidTestNames(Tests);
		for (const FAutomationTestInfo& Test : Tests)
		{
			if (Test.GetFullTestPath().Equals(FullTestPath, ESearchCase::CaseSensitive))
			{
				return Test;
			}
		}
		ADD_FAILURE() << "No automation test is listed as " << TCHAR_TO_UTF8(*FullTestPath);
		return FAutomationTestInfo();
	}

	inline FAutomationRun RunAutomationTest(const FString& FullTestPath, int32 MaxFrames = 100)
	{
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		FAutomationRun Run;
		Framework.StartTestByName(FindAutomationTest(FullTestPath).GetTestName(), 0, FullTestPath);
		while (!Framework.ExecuteLatentCommands() && Run.Frames < MaxFrames)
		{
			FTSTicker::GetCoreTicker().Tick(1.0f / 60.0f);
			++Run.Frames;
		}
		EXPECT_TRUE(Framework.IsLatentCommandQueueEmpty()) << "still waiting after " << MaxFrames << " frames";
		Framework.DequeueAllCommands();
		Run.bPassed = Framework.StopTest(Run.Info);
		return Run;
	}
}
