// Log lines written while an automation test runs: unexpected errors and warnings fail it, expected
// messages consume the lines they match and fail the test when they did not occur as often as said.
#include "AutomationTestSupport.h"

#include "Logging/LogMacros.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

using QuorvelTest::FAutomationRun;
using QuorvelTest::RunAutomationTest;

DEFINE_LOG_CATEGORY_STATIC(LogQuorvelSelfTest, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogQuorvelIgnored, Log, All);

namespace
{
	TFunction<bool(FAutomationTestBase&)> GProbeBody;

	FAutomationRun RunProbe(const TCHAR* FullTestPath, TFunction<bool(FAutomationTestBase&)> Body)
	{
		GProbeBody = MoveTemp(Body);
		FAutomationRun Run = RunAutomationTest(FullTestPath);
		GProbeBody = nullptr;
		return Run;
	}

	FAutomationRun RunProbe(TFunction<bool(FAutomationTestBase&)> Body)
	{
		return RunProbe(TEXT("QuorvelSelfTest.Log capture.Probe"), MoveTemp(Body));
	}

	bool Contains(const std::string& Text, const char* Part)
	{
		return Text.find(Part) != std::string::npos;
	}

	/** What a studio's own test base class may do: list log warnings without failing on them, and ignore errors. */
	class FLenientAutomationTestBase : public FAutomationTestBase
	{
	public:
		using FAutomationTestBase::FAutomationTestBase;

		virtual bool ElevateLogWarningsToErrors() override
		{
			return false;
		}

		virtual bool SuppressLogErrors() override
		{
			return true;
		}
	};
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelSelfTestLogProbe, "QuorvelSelfTest.Log capture.Probe",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)

bool FQuorvelSelfTestLogProbe::RunTest(const FString& Parameters)
{
	return GProbeBody ? GProbeBody(*this) : true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST_PRIVATE(FQuorvelSelfTestLenientLogProbe, FLenientAutomationTestBase, "QuorvelSelfTest.Log capture.Lenient probe",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter, __FILE__, __LINE__)

namespace
{
	FQuorvelSelfTestLenientLogProbe LenientLogProbeInstance(TEXT("FQuorvelSelfTestLenientLogProbe"));
}

bool FQuorvelSelfTestLenientLogProbe::RunTest(const FString& Parameters)
{
	return GProbeBody ? GProbeBody(*this) : true;
}

TEST(AutomationLogCaptureTests, UnexpectedErrorAndWarningLinesFailTheTestAndLessSevereLinesDoNot)
{
	const FAutomationRun Run = RunProbe([](FAutomationTestBase&)
	{
		UE_LOG(LogQuorvelSelfTest, Display, TEXT("loading the stash"));
		UE_LOG(LogQuorvelSelfTest, Log, TEXT("request sent"));
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("Sign-in failed with %d"), 401);
		UE_LOG(LogQuorvelSelfTest, Warning, TEXT("Icon %s is missing"), TEXT("Sword"));
		return true;
	});

	EXPECT_FALSE(Run.bPassed);
	EXPECT_EQ(Run.Errors(), (std::vector<std::string>{ "Sign-in failed with 401", "Icon Sword is missing" }));
	EXPECT_TRUE(Run.Messages(EAutomationEventType::Info).empty());

	// The capture ends with the test.
	UE_LOG(LogQuorvelSelfTest, Error, TEXT("after the test"));
	EXPECT_TRUE(RunProbe([](FAutomationTestBase&) { return true; }).bPassed);
}

TEST(AutomationLogCaptureTests, AnExpectedErrorConsumesExactlyTheNumberOfLinesItNames)
{
	const auto LogNotFound = [](int32 Lines)
	{
		return RunProbe([Lines](FAutomationTestBase& Test)
		{
			Test.AddExpectedError(TEXT("container .* not found"), EAutomationExpectedErrorFlags::Contains, 2);
			for (int32 Index = 0; Index < Lines; ++Index)
			{
				UE_LOG(LogQuorvelSelfTest, Error, TEXT("Ensure: container %d not found"), Index);
			}
			return true;
		});
	};

	EXPECT_TRUE(LogNotFound(2).bPassed);
	for (const int32 Lines : { 1, 3 })
	{
		const FAutomationRun Run = LogNotFound(Lines);
		EXPECT_FALSE(Run.bPassed) << Lines << " lines";
		ASSERT_EQ(Run.Errors().size(), 1u) << Lines << " lines";
		EXPECT_TRUE(Contains(Run.Errors()[0], "container .* not found")) << Run.Errors()[0];
		EXPECT_TRUE(Contains(Run.Errors()[0], "2 time(s)")) << Run.Errors()[0];
	}
}

TEST(AutomationLogCaptureTests, ZeroOccurrencesMeansAtLeastOnce)
{
	const auto LogTimeouts = [](int32 Lines)
	{
		return RunProbe([Lines](FAutomationTestBase& Test)
		{
			Test.AddExpectedErrorPlain(TEXT("timed out"), EAutomationExpectedErrorFlags::Contains, 0);
			for (int32 Index = 0; Index < Lines; ++Index)
			{
				UE_LOG(LogQuorvelSelfTest, Warning, TEXT("Request %d timed out"), Index);
			}
			return true;
		});
	};

	EXPECT_TRUE(LogTimeouts(1).bPassed);
	EXPECT_TRUE(LogTimeouts(4).bPassed);
	const FAutomationRun None = LogTimeouts(0);
	EXPECT_FALSE(None.bPassed);
	ASSERT_EQ(None.Errors().size(), 1u);
	EXPECT_TRUE(Contains(None.Errors()[0], "'timed out'")) << None.Errors()[0];
}

TEST(AutomationLogCaptureTests, ExactMatchesTheWholeLineContainsAnyPartAndPlainPatternsAreLiteral)
{
	const FAutomationRun Run = RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddExpectedError(TEXT("Slot [0-9]+ is full"), EAutomationExpectedErrorFlags::Exact);
		Test.AddExpectedErrorPlain(TEXT("cell (3, 4)"), EAutomationExpectedErrorFlags::Contains);
		Test.AddExpectedErrorPlain(TEXT("stash is locked"), EAutomationExpectedErrorFlags::Exact);
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("slot 12 IS FULL"));
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("Slot 12 is full, try another"));
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("Nothing fits in cell (3, 4) here"));
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("The stash is locked"));
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("Stash Is Locked"));
		return true;
	});

	EXPECT_EQ(Run.Errors(), (std::vector<std::string>{ "Slot 12 is full, try another", "The stash is locked" }));
}

TEST(AutomationLogCaptureTests, AnExpectedMessageConsumesLinesOfItsVerbosityOrMoreSevere)
{
	const FAutomationRun AtWarning = RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddExpectedMessage(TEXT("disk"), ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Contains, 2);
		UE_LOG(LogQuorvelSelfTest, Warning, TEXT("disk almost full"));
		UE_LOG(LogQuorvelSelfTest, Error, TEXT("disk almost full"));
		UE_LOG(LogQuorvelSelfTest, Display, TEXT("disk almost full"));
		return true;
	});
	EXPECT_TRUE(AtWarning.bPassed);
	EXPECT_TRUE(AtWarning.Info.GetEntries().IsEmpty());

	const FAutomationRun AtError = RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddExpectedMessage(TEXT("disk"), ELogVerbosity::Error);
		UE_LOG(LogQuorvelSelfTest, Warning, TEXT("disk almost full"));
		return true;
	});
	EXPECT_FALSE(AtError.bPassed);
	ASSERT_EQ(AtError.Errors().size(), 2u);
	EXPECT_EQ(AtError.Errors()[0], "disk almost full");
	EXPECT_TRUE(Contains(AtError.Errors()[1], "'disk'")) << AtError.Errors()[1];
	EXPECT_TRUE(Contains(AtError.Errors()[1], "Error")) << AtError.Errors()[1];
}

TEST(AutomationLogCaptureTests, AnExpectedDisplayLineIsCountedButALessSevereLineIsNot)
{
	const FAutomationRun Run = RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddExpectedMessage(TEXT("stash loaded"), ELogVerbosity::Display);
		Test.AddExpectedMessage(TEXT("layout decided"), ELogVerbosity::Display);
		Test.AddExpectedMessage(TEXT("request sent"));
		UE_LOG(LogQuorvelSelfTest, Display, TEXT("stash loaded: 80 cells"));
		UE_LOG(LogQuorvelSelfTest, Log, TEXT("layout decided"));
		UE_LOG(LogQuorvelSelfTest, Log, TEXT("request sent"));
		return true;
	});

	EXPECT_FALSE(Run.bPassed);
	ASSERT_EQ(Run.Errors().size(), 1u);
	EXPECT_TRUE(Contains(Run.Errors()[0], "'layout decided'")) << Run.Errors()[0];
}

TEST(AutomationLogCaptureTests, ATestsOwnErrorsAndWarningsCanBeExpectedToo)
{
	const FAutomationRun Run = RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddExpectedError(TEXT("cannot be reached"), EAutomationExpectedErrorFlags::Contains, 2);
		Test.AddError(TEXT("The platform cannot be reached"));
		Test.AddWarning(TEXT("The platform cannot be reached"));
		return true;
	});

	EXPECT_TRUE(Run.bPassed);
	EXPECT_TRUE(Run.Info.GetEntries().IsEmpty());
}

TEST(AutomationLogCaptureTests, ATestBaseMayListWarningsWithoutFailingAndIgnoreErrors)
{
	const FAutomationRun Run = RunProbe(TEXT("QuorvelSelfTest.Log capture.Lenient probe"), [](FAutomationTestBase&)
	{
		UE_LOG(LogQuorvelSelfTest, Warning, TEXT("Icon missing"));
		UE_LOG(LogQuorvelIgnored, Error, TEXT("not for this test"));
		return true;
	});

	EXPECT_TRUE(Run.bPassed);
	EXPECT_EQ(Run.Messages(EAutomationEventType::Warning), (std::vector<std::string>{ "Icon missing" }));
	EXPECT_TRUE(Run.Errors().empty());
}

TEST(AutomationLogCaptureTests, LinesLoggedOnOtherThreadsWhileATestRunsAreCapturedAndCounted)
{
	constexpr int32 ThreadCount = 4;
	constexpr int32 LinesPerThread = 24;
	const FAutomationRun Run = RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddExpectedError(TEXT("worker [0-9]+ retry"), EAutomationExpectedErrorFlags::Exact, ThreadCount * LinesPerThread / 2);
		std::vector<std::thread> Threads;
		for (int32 ThreadIndex = 0; ThreadIndex < ThreadCount; ++ThreadIndex)
		{
			Threads.emplace_back([ThreadIndex]
			{
				for (int32 Index = 0; Index < LinesPerThread; ++Index)
				{
					if (Index % 2 == 0)
					{
						UE_LOG(LogQuorvelSelfTest, Error, TEXT("worker %d failed"), ThreadIndex);
					}
					else
					{
						UE_LOG(LogQuorvelSelfTest, Warning, TEXT("worker %d retry"), ThreadIndex);
					}
				}
			});
		}
		for (std::thread& Thread : Threads)
		{
			Thread.join();
		}
		return true;
	});

	// Every retry was expected; every failure is an error of its own.
	EXPECT_FALSE(Run.bPassed);
	const std::vector<std::string> Errors = Run.Errors();
	ASSERT_EQ(Errors.size(), size_t(ThreadCount * LinesPerThread / 2));
	for (const std::string& Error : Errors)
	{
		EXPECT_TRUE(Contains(Error, " failed")) << Error;
	}
}
