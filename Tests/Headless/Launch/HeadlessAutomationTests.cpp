// The headless automation runner on automation tests defined here (under "QuorvelRunnerTest." and
// "QuorvelRunnerOther."): which tests the filter selects, the report, the exit status, and latent
// steps that need the engine to tick, HTTP completions included.
#include "../Core/ProjectTreeFixture.h"

#include "Containers/Ticker.h"
#include "Headless/HeadlessAutomation.h"
#include "Headless/HttpTestTransport.h"
#include "HttpModule.h"
#include "Interfaces/IHttpRequest.h"
#include "Interfaces/IHttpResponse.h"
#include "Misc/AutomationTest.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using QuorvelTest::Utf8;

namespace
{
	TUniquePtr<FHttpTestTransport> GTransport;
	FTSTicker::FDelegateHandle GFrameCounter;
	int32 GFramesWhileTimingOut = 0;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelRunnerTestPasses, "QuorvelRunnerTest.Passes",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FQuorvelRunnerTestPasses::RunTest(const FString& Parameters)
{
	AddInfo(TEXT("drew 80 cells"));
	return TestTrue(TEXT("always"), true);
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelRunnerTestFails, "QuorvelRunnerTest.Fails",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FQuorvelRunnerTestFails::RunTest(const FString& Parameters)
{
	TestEqual(TEXT("Stack count"), 2, 3);
	AddWarning(TEXT("icon missing"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelRunnerConfigReadsTheCommandLine, "QuorvelRunnerConfig.Reads the command line",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FQuorvelRunnerConfigReadsTheCommandLine::RunTest(const FString& Parameters)
{
	FString Url(TEXT("<absent>"));
	GConfig->GetString(TEXT("/Script/Runner.Settings"), TEXT("Url"), Url, GGameIni);
	AddInfo(Url);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelRunnerOtherPasses, "QuorvelRunnerOther.Passes",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

bool FQuorvelRunnerOtherPasses::RunTest(const FString& Parameters)
{
	return true;
}

BEGIN_DEFINE_SPEC(FQuorvelRunnerTestLatent, "QuorvelRunnerTest.Latent", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	TSharedPtr<IHttpRequest, ESPMode::ThreadSafe> Request;
END_DEFINE_SPEC(FQuorvelRunnerTestLatent)

void FQuorvelRunnerTestLatent::Define()
{
	AfterEach([this]
	{
		Request.Reset();
		GTransport.Reset();
		FTSTicker::RemoveTicker(GFrameCounter);
	});

	LatentIt(TEXT("finishes on a ticked delay"), [](const FDoneDelegate& Done)
	{
		FTSTicker::GetCoreTicker().AddTicker(TEXT("RunnerTest"), 0.05f, [Done](float)
		{
			Done.Execute();
			return false;
		});
	});

	LatentIt(TEXT("completes an HTTP request"), [this](const FDoneDelegate& Done)
	{
		GTransport = MakeUnique<FHttpTestTransport>();
		Request = FHttpModule::Get().CreateRequest();
		Request->SetURL(TEXT("http://127.0.0.1:1/stash"));
		Request->OnProcessRequestComplete().BindLambda([this, Done](FHttpRequestPtr, FHttpResponsePtr Response, bool bConnectedSuccessfully)
		{
			TestTrue(TEXT("connected"), bConnectedSuccessfully);
			TestEqual(TEXT("body"), Response.IsValid() ? Response->GetContentAsString() : FString(), TEXT("[]"));
			Done.Execute();
		});
		Request->ProcessRequest();
		// The platform answers a frame later; the reply reaches the game thread at the tick after that.
		FTSTicker::GetCoreTicker().AddTicker(TEXT("RunnerTest"), 0.0f, [](float)
		{
			return !(GTransport.IsValid() && GTransport->Respond(0, 200, TEXT("[]")));
		});
	});

	LatentIt(TEXT("times out"), FTimespan::FromMilliseconds(100.0), [](const FDoneDelegate& Done)
	{
		GFramesWhileTimingOut = 0;
		GFrameCounter = FTSTicker::GetCoreTicker().AddTicker(TEXT("RunnerTest"), 0.0f, [](float)
		{
			++GFramesWhileTimingOut;
			return true;
		});
	});
}

namespace
{
	class HeadlessAutomationTest : public QuorvelTest::FProjectTreeTest
	{
	protected:
		FHeadlessAutomationOptions Options(const TCHAR* Filter)
		{
			FHeadlessAutomationOptions Result;
			Result.Filter = Filter;
			Result.EngineOptions.ProjectDirectory = QuorvelTest::FromUtf8(Root.string());
			Result.MaxFrameSeconds = 0.01f;
			Result.ReportLine = [this](const FString& Line)
			{
				Lines.push_back(Utf8(Line));
			};
			return Result;
		}

		std::vector<std::string> Lines;
	};
}

TEST_F(HeadlessAutomationTest, RunsTheTestsWhoseNamesStartWithTheFilterAndReportsEachThenATally)
{
	const int32 ExitCode = RunHeadlessAutomationTests(Options(TEXT("quorvelrunnertest.")));

	EXPECT_EQ(ExitCode, 1);
	ASSERT_EQ(Lines.size(), 10u) << ::testing::PrintToString(Lines);
	EXPECT_EQ(Lines[0], "FAIL QuorvelRunnerTest.Fails");
	EXPECT_EQ(Lines[1], "    Error: Expected 'Stack count' to be 3, but it was 2.");
	EXPECT_EQ(Lines[2], "    Warning: icon missing");
	EXPECT_EQ(Lines[3], "PASS QuorvelRunnerTest.Latent.completes an HTTP request");
	EXPECT_EQ(Lines[4], "PASS QuorvelRunnerTest.Latent.finishes on a ticked delay");
	EXPECT_EQ(Lines[5], "FAIL QuorvelRunnerTest.Latent.times out");
	EXPECT_EQ(Lines[6].rfind("    Error: Latent command timed out", 0), 0u) << Lines[6];
	EXPECT_EQ(Lines[7], "PASS QuorvelRunnerTest.Passes");
	EXPECT_EQ(Lines[8], "    Info: drew 80 cells");
	EXPECT_EQ(Lines.back(), "3 passed, 2 failed");

	// The time-out was waited out in frames that waited between them, rather than in one spin.
	EXPECT_GE(GFramesWhileTimingOut, 2);
	EXPECT_LE(GFramesWhileTimingOut, 50);
}

TEST_F(HeadlessAutomationTest, ExitsWithZeroWhenEverySelectedTestPassesAndSeveralPrefixesMayBeGiven)
{
	EXPECT_EQ(RunHeadlessAutomationTests(Options(TEXT("QuorvelRunnerTest.Passes+QuorvelRunnerOther"))), 0);
	EXPECT_EQ(Lines, (std::vector<std::string>{
		"PASS QuorvelRunnerOther.Passes",
		"PASS QuorvelRunnerTest.Passes",
		"    Info: drew 80 cells",
		"2 passed, 0 failed",
	}));
}

TEST_F(HeadlessAutomationTest, ListingPrintsTheMatchingNamesAndAFilterMatchingNothingFails)
{
	FHeadlessAutomationOptions ListOptions = Options(TEXT("QuorvelRunnerTest.Latent"));
	ListOptions.bListOnly = true;
	EXPECT_EQ(RunHeadlessAutomationTests(ListOptions), 0);
	EXPECT_EQ(Lines, (std::vector<std::string>{
		"QuorvelRunnerTest.Latent.completes an HTTP request",
		"QuorvelRunnerTest.Latent.finishes on a ticked delay",
		"QuorvelRunnerTest.Latent.times out",
	}));

	Lines.clear();
	EXPECT_EQ(RunHeadlessAutomationTests(Options(TEXT("QuorvelNoSuchTest"))), 1);
	EXPECT_EQ(Lines, (std::vector<std::string>{ "No automation tests match 'QuorvelNoSuchTest'.", "0 passed, 0 failed" }));
}

TEST_F(HeadlessAutomationTest, TheCommandLineSetsFilterListAndProjectOverTheDefaultsAndRejectsTheRest)
{
	FHeadlessAutomationOptions Parsed = Options(TEXT("Quorvel"));
	const char* const Arguments[] = { "Runner", "--list", "--filter", "QuorvelRunnerOther", "--project", "Some Project" };
	ASSERT_TRUE(ParseHeadlessAutomationCommandLine(6, Arguments, Parsed));
	EXPECT_TRUE(Parsed.bListOnly);
	EXPECT_EQ(Utf8(Parsed.Filter), "QuorvelRunnerOther");
	EXPECT_EQ(Utf8(Parsed.EngineOptions.ProjectDirectory), "Some Project");

	const char* const Unknown[] = { "Runner", "--verbose" };
	const char* const Missing[] = { "Runner", "--filter" };
	EXPECT_FALSE(ParseHeadlessAutomationCommandLine(2, Unknown, Parsed));
	EXPECT_FALSE(ParseHeadlessAutomationCommandLine(2, Missing, Parsed));

	char Program[] = "Runner";
	char BadArgument[] = "--verbose";
	char* Argv[] = { Program, BadArgument };
	EXPECT_EQ(RunHeadlessAutomationTests(2, Argv, Options(TEXT(""))), 2);

	char ListArgument[] = "--list";
	char FilterArgument[] = "--filter";
	char FilterValue[] = "QuorvelRunnerOther.";
	char* ListArgv[] = { Program, ListArgument, FilterArgument, FilterValue };
	EXPECT_EQ(RunHeadlessAutomationTests(4, ListArgv, Options(TEXT(""))), 0);
	EXPECT_EQ(Lines, (std::vector<std::string>{ "QuorvelRunnerOther.Passes" }));
}

TEST_F(HeadlessAutomationTest, OneTestIsPickedByItsWholeNameAndEngineSwitchesBecomeTheCommandLineTheConfigReads)
{
	const FString Previous(FCommandLine::Get());
	FHeadlessAutomationOptions Parsed = Options(TEXT("QuorvelRunnerTest."));
	const char* const Arguments[] = { "Runner", "-nullrhi", "--test", "quorvelrunnerconfig.reads the command line",
		"-ini:Game:[/Script/Runner.Settings]:Url=http://127.0.0.1:9/v1" };
	ASSERT_TRUE(ParseHeadlessAutomationCommandLine(5, Arguments, Parsed));
	EXPECT_EQ(Utf8(Parsed.CommandLine), "-nullrhi -ini:Game:[/Script/Runner.Settings]:Url=http://127.0.0.1:9/v1");

	EXPECT_EQ(RunHeadlessAutomationTests(Parsed), 0);
	EXPECT_EQ(Utf8(FString(FCommandLine::Get())), Utf8(Parsed.CommandLine));
	EXPECT_EQ(Lines, (std::vector<std::string>{
		"PASS QuorvelRunnerConfig.Reads the command line",
		"    Info: http://127.0.0.1:9/v1",
		"1 passed, 0 failed",
	}));

	// The whole name, not a prefix of it.
	Lines.clear();
	FHeadlessAutomationOptions Prefix = Options(TEXT(""));
	Prefix.TestName = TEXT("QuorvelRunnerTest.Pass");
	EXPECT_EQ(RunHeadlessAutomationTests(Prefix), 1);
	EXPECT_EQ(Lines, (std::vector<std::string>{ "No automation tests match 'QuorvelRunnerTest.Pass'.", "0 passed, 0 failed" }));

	FCommandLine::Set(*Previous);
	FConfigCacheIni::InitializeConfigSystem();
}
