// Describe/it automation tests: how their Its are named and listed, the order in which the steps
// around an It run, and how a failure stays inside the It it happened in.
#include "AutomationTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using QuorvelTest::FAutomationRun;
using QuorvelTest::RunAutomationTest;

namespace
{
	std::vector<std::string> GTrace;
	int32 GDefineCalls = 0;

	void Trace(const char* Step)
	{
		GTrace.emplace_back(Step);
	}
}

BEGIN_DEFINE_SPEC(FQuorvelSelfTestOrder, "QuorvelSelfTest.Order", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
END_DEFINE_SPEC(FQuorvelSelfTestOrder)

void FQuorvelSelfTestOrder::Define()
{
	++GDefineCalls;
	BeforeEach([] { Trace("outer before"); });
	AfterEach([] { Trace("outer after"); });

	Describe(TEXT("Hit testing"), [this]
	{
		BeforeEach([] { Trace("inner before 1"); });
		AfterEach([] { Trace("inner after 1"); });
		It(TEXT("returns the cell under a point"), [] { Trace("it: cell"); });
		BeforeEach([] { Trace("inner before 2"); });
		AfterEach([] { Trace("inner after 2"); });

		Describe(TEXT("at the edge"), [this]
		{
			It(TEXT("returns nothing"), [] { Trace("it: edge"); });
		});
		xIt(TEXT("is not ready"), [] { Trace("skipped it"); });
	});

	It("runs at the top level [TopLevel]", [] { Trace("it: top"); });

	xDescribe(TEXT("Dragging"), [this]
	{
		It(TEXT("moves the stack"), [] { Trace("skipped describe"); });
	});
}

BEGIN_DEFINE_SPEC(FQuorvelSelfTestFailures, "QuorvelSelfTest.Failures", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	int32 StackCount = 0;
END_DEFINE_SPEC(FQuorvelSelfTestFailures)

void FQuorvelSelfTestFailures::Define()
{
	BeforeEach([this] { StackCount = 3; });
	AfterEach([] { Trace("after"); });

	It(TEXT("fails an expectation"), [this]
	{
		TestEqual(TEXT("Stack count"), StackCount, 4);
		Trace("went on after the failure");
	});
	It(TEXT("passes"), [this]
	{
		TestEqual(TEXT("Stack count"), StackCount, 3);
		Trace("passed");
	});

	Describe(TEXT("when setting up fails"), [this]
	{
		BeforeEach([this] { TestTrue(TEXT("signed in"), false); });
		BeforeEach([] { Trace("second before"); });
		It(TEXT("is skipped"), [] { Trace("skipped it"); });
	});
}

TEST(AutomationDescribeItTests, EachItIsListedUnderThePrettyNameAndItsDescribePathAndDefineRunsOnce)
{
	TArray<FAutomationTestInfo> Tests;
	FAutomationTestFramework::Get().GetValidTestNames(Tests);
	FAutomationTestFramework::Get().GetValidTestNames(Tests);
	std::vector<std::string> Names;
	std::vector<std::string> TestNames;
	for (const FAutomationTestInfo& Test : Tests)
	{
		if (Test.GetFullTestPath().StartsWith(TEXT("QuorvelSelfTest.Order.")) && Names.size() < 3)
		{
			Names.emplace_back(TCHAR_TO_UTF8(*Test.GetFullTestPath()));
			TestNames.emplace_back(TCHAR_TO_UTF8(*Test.GetTestName()));
		}
	}

	EXPECT_EQ(Names, (std::vector<std::string>{
		"QuorvelSelfTest.Order.Hit testing.returns the cell under a point",
		"QuorvelSelfTest.Order.Hit testing.at the edge.returns nothing",
		"QuorvelSelfTest.Order.runs at the top level [TopLevel]",
	}));
	EXPECT_EQ(TestNames, (std::vector<std::string>{
		"FQuorvelSelfTestOrder Hit testing returns the cell under a point",
		"FQuorvelSelfTestOrder Hit testing at the edge returns nothing",
		"FQuorvelSelfTestOrder TopLevel",
	}));
	EXPECT_EQ(GDefineCalls, 1);
}

TEST(AutomationDescribeItTests, AnItRunsEveryEnclosingBeforeEachOutermostFirstAndEveryAfterEachInnermostFirst)
{
	GTrace.clear();
	EXPECT_TRUE(RunAutomationTest(TEXT("QuorvelSelfTest.Order.Hit testing.at the edge.returns nothing")).bPassed);
	EXPECT_EQ(GTrace, (std::vector<std::string>{
		"outer before", "inner before 1", "inner before 2",
		"it: edge",
		"inner after 2", "inner after 1", "outer after",
	}));

	GTrace.clear();
	EXPECT_TRUE(RunAutomationTest(TEXT("QuorvelSelfTest.Order.runs at the top level [TopLevel]")).bPassed);
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "outer before", "it: top", "outer after" }));
	EXPECT_EQ(GDefineCalls, 1);
}

TEST(AutomationDescribeItTests, RunningTheWholeTestRunsEachItInTurnAndSkipsDisabledOnes)
{
	GTrace.clear();
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	Framework.StartTestByName(TEXT("FQuorvelSelfTestOrder"), 0);
	for (int32 Frame = 0; Frame < 10 && !Framework.ExecuteLatentCommands(); ++Frame)
	{
	}
	FAutomationTestExecutionInfo Info;
	EXPECT_TRUE(Framework.StopTest(Info));

	EXPECT_EQ(GTrace, (std::vector<std::string>{
		"outer before", "inner before 1", "inner before 2", "it: cell", "inner after 2", "inner after 1", "outer after",
		"outer before", "inner before 1", "inner before 2", "it: edge", "inner after 2", "inner after 1", "outer after",
		"outer before", "it: top", "outer after",
	}));
}

TEST(AutomationDescribeItTests, AFailedExpectationFailsOnlyItsItWhichGoesOnAndStillRunsItsAfterEach)
{
	GTrace.clear();
	const FAutomationRun Failed = RunAutomationTest(TEXT("QuorvelSelfTest.Failures.fails an expectation"));
	const FAutomationRun Passed = RunAutomationTest(TEXT("QuorvelSelfTest.Failures.passes"));

	EXPECT_FALSE(Failed.bPassed);
	EXPECT_EQ(Failed.Errors(), (std::vector<std::string>{ "Expected 'Stack count' to be 4, but it was 3." }));
	EXPECT_TRUE(Passed.bPassed);
	EXPECT_TRUE(Passed.Errors().empty());
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "went on after the failure", "after", "passed", "after" }));
}

TEST(AutomationDescribeItTests, AnErrorInABeforeEachSkipsTheRestOfTheSetUpAndTheItButNotTheAfterEach)
{
	GTrace.clear();
	const FAutomationRun Run = RunAutomationTest(TEXT("QuorvelSelfTest.Failures.when setting up fails.is skipped"));

	EXPECT_FALSE(Run.bPassed);
	EXPECT_EQ(Run.Errors(), (std::vector<std::string>{ "Expected 'signed in' to be true." }));
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "after" }));
}
