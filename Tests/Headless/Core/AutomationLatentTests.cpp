// Latent steps: describe/it steps that finish when their Done delegate is executed on a later frame
// or fail on their time-out, and the latent commands simple tests queue. Done comes from the core
// ticker, which the support code ticks between frames as the engine loop does.
#include "AutomationTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using QuorvelTest::FAutomationRun;
using QuorvelTest::RunAutomationTest;

namespace
{
	std::vector<std::string> GTrace;
	int32 GStarts = 0;
	FDoneDelegate GSavedDone;

	void Trace(const char* Step)
	{
		GTrace.emplace_back(Step);
	}

	/** Executes Done from the core ticker once it has been ticked Frames times. */
	void CallDoneAfterFrames(const FDoneDelegate& Done, int32 Frames, const char* Step)
	{
		FTSTicker::GetCoreTicker().AddTicker(TEXT("AutomationSelfTest"), 0.0f, [Done, Step, Remaining = Frames](float) mutable
		{
			if (--Remaining > 0)
			{
				return true;
			}
			Trace(Step);
			Done.Execute();
			return false;
		});
	}
}

BEGIN_DEFINE_SPEC(FQuorvelSelfTestLatent, "QuorvelSelfTest.Latent", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
END_DEFINE_SPEC(FQuorvelSelfTestLatent)

void FQuorvelSelfTestLatent::Define()
{
	LatentBeforeEach([](const FDoneDelegate& Done)
	{
		Trace("before starts");
		CallDoneAfterFrames(Done, 2, "before done");
	});
	AfterEach([] { Trace("after"); });

	LatentIt(TEXT("finishes when Done is called on a later frame"), [](const FDoneDelegate& Done)
	{
		Trace("it starts");
		CallDoneAfterFrames(Done, 3, "it done");
	});

	LatentIt(TEXT("times out when Done never comes"), FTimespan::Zero(), [](const FDoneDelegate& Done)
	{
		Trace("it starts");
	});

	Describe(TEXT("when setting up never finishes"), [this]
	{
		LatentBeforeEach(FTimespan::Zero(), [](const FDoneDelegate& Done)
		{
			Trace("set-up starts");
		});
		LatentAfterEach([](const FDoneDelegate& Done)
		{
			CallDoneAfterFrames(Done, 1, "tear-down done");
		});
		It(TEXT("is skipped"), [] { Trace("skipped it"); });
	});

	LatentIt(TEXT("keeps its Done"), [](const FDoneDelegate& Done)
	{
		++GStarts;
		GSavedDone = Done;
	});
}

TEST(AutomationLatentTests, ALatentItAndItsLatentBeforeEachFinishWhenDoneIsCalledOnALaterFrame)
{
	GTrace.clear();
	const FAutomationRun Run = RunAutomationTest(TEXT("QuorvelSelfTest.Latent.finishes when Done is called on a later frame"));

	EXPECT_TRUE(Run.bPassed);
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "before starts", "before done", "it starts", "it done", "after" }));
	EXPECT_GE(Run.Frames, 5);
}

TEST(AutomationLatentTests, ALatentItThatNeverCallsDoneTimesOutAndItsAfterEachStillRuns)
{
	GTrace.clear();
	const FAutomationRun Run = RunAutomationTest(TEXT("QuorvelSelfTest.Latent.times out when Done never comes"));

	EXPECT_FALSE(Run.bPassed);
	ASSERT_EQ(Run.Errors().size(), 1u);
	EXPECT_NE(Run.Errors()[0].find("timed out"), std::string::npos) << Run.Errors()[0];
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "before starts", "before done", "it starts", "after" }));
}

TEST(AutomationLatentTests, ASetUpThatTimesOutSkipsTheItButEveryTearDownRuns)
{
	GTrace.clear();
	const FAutomationRun Run = RunAutomationTest(TEXT("QuorvelSelfTest.Latent.when setting up never finishes.is skipped"));

	EXPECT_FALSE(Run.bPassed);
	EXPECT_EQ(Run.Errors().size(), 1u);
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "before starts", "before done", "set-up starts", "tear-down done", "after" }));
}

TEST(AutomationLatentTests, ADoneFromARunThatWasCutShortDoesNotFinishTheNextRun)
{
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	const FString TestName = QuorvelTest::FindAutomationTest(TEXT("QuorvelSelfTest.Latent.keeps its Done")).GetTestName();
	GStarts = 0;

	// The first run is given up while its It waits, as a runner does when a test takes too long.
	Framework.StartTestByName(TestName, 0);
	for (int32 Frame = 0; Frame < 10 && GStarts == 0; ++Frame)
	{
		Framework.ExecuteLatentCommands();
		FTSTicker::GetCoreTicker().Tick(1.0f / 60.0f);
	}
	ASSERT_EQ(GStarts, 1);
	const FDoneDelegate StaleDone = GSavedDone;
	Framework.DequeueAllCommands();
	FAutomationTestExecutionInfo Info;
	Framework.StopTest(Info);

	Framework.StartTestByName(TestName, 0);
	for (int32 Frame = 0; Frame < 10 && GStarts == 1; ++Frame)
	{
		Framework.ExecuteLatentCommands();
		FTSTicker::GetCoreTicker().Tick(1.0f / 60.0f);
	}
	EXPECT_EQ(GStarts, 2) << "the It starts again rather than waiting on the abandoned run";
	StaleDone.Execute();
	EXPECT_FALSE(Framework.ExecuteLatentCommands());
	EXPECT_FALSE(Framework.IsLatentCommandQueueEmpty());

	GSavedDone.Execute();
	GSavedDone.Execute();
	EXPECT_FALSE(Framework.ExecuteLatentCommands());
	EXPECT_TRUE(Framework.ExecuteLatentCommands());
	EXPECT_TRUE(Framework.StopTest(Info));
	GSavedDone.Unbind();
}

DEFINE_LATENT_AUTOMATION_COMMAND_ONE_PARAMETER(FQuorvelSelfTestWaitFrames, int32*, FramesLeft);

bool FQuorvelSelfTestWaitFrames::Update()
{
	Trace("wait");
	return --*FramesLeft <= 0;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelSelfTestLatentCommands, "QuorvelSelfTest.Latent commands",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)

bool FQuorvelSelfTestLatentCommands::RunTest(const FString& Parameters)
{
	static int32 FramesLeft = 0;
	FramesLeft = 3;
	ADD_LATENT_AUTOMATION_COMMAND(FQuorvelSelfTestWaitFrames(&FramesLeft));
	ADD_LATENT_AUTOMATION_COMMAND(FFunctionLatentCommand([this]
	{
		Trace("then");
		return TestEqual(TEXT("frames left"), FramesLeft, 0);
	}));
	Trace("queued");
	return true;
}

TEST(AutomationLatentTests, ASimpleTestsLatentCommandsRunInOrderOncePerFrameAfterItsRunTest)
{
	GTrace.clear();
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	Framework.StartTestByName(TEXT("FQuorvelSelfTestLatentCommands"), 0);
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "queued" }));

	std::vector<bool> Finished;
	for (int32 Frame = 0; Frame < 10 && (Finished.empty() || !Finished.back()); ++Frame)
	{
		Finished.push_back(Framework.ExecuteLatentCommands());
	}

	// Three frames to wait, "then" finishes in the third, and only a frame with nothing queued says so.
	EXPECT_EQ(Finished, (std::vector<bool>{ false, false, false, true }));
	EXPECT_EQ(GTrace, (std::vector<std::string>{ "queued", "wait", "wait", "wait", "then" }));
	FAutomationTestExecutionInfo Info;
	EXPECT_TRUE(Framework.StopTest(Info));
}
