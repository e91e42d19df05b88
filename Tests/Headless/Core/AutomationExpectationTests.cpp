// Simple and complex automation tests: how they are listed and run, and what each expectation
// records. The probe's body is set by each case, so every expectation runs inside a real test.
#include "AutomationTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using QuorvelTest::FAutomationRun;
using QuorvelTest::RunAutomationTest;

namespace
{
	TFunction<bool(FAutomationTestBase&)> GProbeBody;

	struct FStashCell
	{
		int32 X = 0;
		int32 Y = 0;

		bool operator==(const FStashCell& Other) const
		{
			return X == Other.X && Y == Other.Y;
		}
	};

	FAutomationRun RunProbe(TFunction<bool(FAutomationTestBase&)> Body)
	{
		GProbeBody = MoveTemp(Body);
		FAutomationRun Run = RunAutomationTest(TEXT("QuorvelSelfTest.Expectations.Probe"));
		GProbeBody = nullptr;
		return Run;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelSelfTestExpectationProbe, "QuorvelSelfTest.Expectations.Probe",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)

bool FQuorvelSelfTestExpectationProbe::RunTest(const FString& Parameters)
{
	return GProbeBody ? GProbeBody(*this) : true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelSelfTestDisabled, "QuorvelSelfTest.Expectations.Disabled",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter | EAutomationTestFlags::Disabled)

bool FQuorvelSelfTestDisabled::RunTest(const FString& Parameters)
{
	return true;
}

IMPLEMENT_COMPLEX_AUTOMATION_TEST(FQuorvelSelfTestSlotCounts, "QuorvelSelfTest.Expectations.Slot counts",
	EAutomationTestFlags::ClientContext | EAutomationTestFlags::ProductFilter)

void FQuorvelSelfTestSlotCounts::GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const
{
	OutBeautifiedNames = { TEXT("Twelve"), TEXT("Eighty") };
	OutTestCommands = { TEXT("12"), TEXT("80") };
}

bool FQuorvelSelfTestSlotCounts::RunTest(const FString& Parameters)
{
	return TestEqual(TEXT("Slot count"), FCString::Atoi(*Parameters), 12);
}

TEST(AutomationTests, SimpleAndComplexTestsAreListedUnderTheirPrettyNamesAndDisabledOnesAreNot)
{
	const FAutomationTestInfo Probe = QuorvelTest::FindAutomationTest(TEXT("QuorvelSelfTest.Expectations.Probe"));
	EXPECT_TRUE(Probe.GetTestName().Equals(TEXT("FQuorvelSelfTestExpectationProbe"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Probe.GetTestParameter().IsEmpty());
	EXPECT_TRUE(Probe.GetSourceFile().EndsWith(TEXT("AutomationExpectationTests.cpp")));
	EXPECT_GT(Probe.GetSourceFileLine(), 0);
	EXPECT_EQ(Probe.GetTestFlags(), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter);

	const FAutomationTestInfo Eighty = QuorvelTest::FindAutomationTest(TEXT("QuorvelSelfTest.Expectations.Slot counts.Eighty"));
	EXPECT_TRUE(Eighty.GetTestName().Equals(TEXT("FQuorvelSelfTestSlotCounts 80"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Eighty.GetTestParameter().Equals(TEXT("80")));

	TArray<FAutomationTestInfo> Tests;
	FAutomationTestFramework::Get().GetValidTestNames(Tests);
	EXPECT_FALSE(Tests.ContainsByPredicate([](const FAutomationTestInfo& Test)
	{
		return Test.GetFullTestPath().Contains(TEXT("Disabled"));
	}));
	EXPECT_TRUE(FAutomationTestFramework::Get().ContainsTest(TEXT("FQuorvelSelfTestDisabled")));
}

TEST(AutomationTests, AComplexTestRunsOneCasePerParameter)
{
	EXPECT_TRUE(RunAutomationTest(TEXT("QuorvelSelfTest.Expectations.Slot counts.Twelve")).bPassed);
	const FAutomationRun Eighty = RunAutomationTest(TEXT("QuorvelSelfTest.Expectations.Slot counts.Eighty"));
	EXPECT_FALSE(Eighty.bPassed);
	ASSERT_EQ(Eighty.Errors().size(), 1u);
	EXPECT_EQ(Eighty.Errors()[0], "Expected 'Slot count' to be 12, but it was 80.");
}

TEST(AutomationTests, ATestNameTakenTwiceIsRefusedAndAnUnknownNameFailsToRun)
{
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	TArray<FAutomationTestInfo> Before;
	Framework.GetValidTestNames(Before);
	EXPECT_FALSE(Framework.RegisterAutomationTest(TEXT("FQuorvelSelfTestExpectationProbe"), nullptr));
	EXPECT_FALSE(Framework.UnregisterAutomationTest(TEXT("FQuorvelSelfTestNobody")));
	TArray<FAutomationTestInfo> After;
	Framework.GetValidTestNames(After);
	EXPECT_EQ(After.Num(), Before.Num());

	Framework.StartTestByName(TEXT("FQuorvelSelfTestNobody"), 0);
	EXPECT_EQ(Framework.GetCurrentTest(), nullptr);
	FAutomationTestExecutionInfo Info;
	EXPECT_FALSE(Framework.StopTest(Info));
	ASSERT_EQ(Info.GetErrorTotal(), 1);
	EXPECT_TRUE(Info.GetEntries()[0].Event.Message.Contains(TEXT("FQuorvelSelfTestNobody")));
}

TEST(AutomationTests, AFailedExpectationRecordsAnErrorAndTheTestGoesOnToFailAtItsEnd)
{
	std::vector<bool> Results;
	bool bReachedEnd = false;
	const FAutomationRun Run = RunProbe([&](FAutomationTestBase& Test)
	{
		Results.push_back(Test.TestEqual(TEXT("Stack count"), 3, 2));
		Results.push_back(Test.TestTrue(TEXT("Panel visible"), false));
		Results.push_back(Test.TestEqual(TEXT("Stack size"), 20, 20));
		Test.AddWarning(TEXT("slow icon load"));
		Test.AddInfo(TEXT("drew 80 cells"));
		bReachedEnd = true;
		return true;
	});

	EXPECT_EQ(Results, (std::vector<bool>{ false, false, true }));
	EXPECT_TRUE(bReachedEnd);
	EXPECT_FALSE(Run.bPassed);
	EXPECT_FALSE(Run.Info.bSuccessful);
	EXPECT_EQ(Run.Errors(), (std::vector<std::string>{ "Expected 'Stack count' to be 2, but it was 3.", "Expected 'Panel visible' to be true." }));
	EXPECT_EQ(Run.Messages(EAutomationEventType::Warning), (std::vector<std::string>{ "slow icon load" }));
	EXPECT_EQ(Run.Messages(EAutomationEventType::Info), (std::vector<std::string>{ "drew 80 cells" }));
	EXPECT_EQ(Run.Info.GetWarningTotal(), 1);
}

TEST(AutomationTests, AWarningAloneDoesNotFailATestButReturningFalseDoes)
{
	EXPECT_TRUE(RunProbe([](FAutomationTestBase& Test)
	{
		Test.AddWarning(TEXT("nothing to draw"));
		return true;
	}).bPassed);

	const FAutomationRun Refused = RunProbe([](FAutomationTestBase&)
	{
		return false;
	});
	EXPECT_FALSE(Refused.bPassed);
	EXPECT_TRUE(Refused.Errors().empty());

	// A run starts clean: nothing from the failed run before carries over.
	EXPECT_TRUE(RunProbe([](FAutomationTestBase&) { return true; }).bPassed);
}

TEST(AutomationTests, StringExpectationsAreCaseSensitiveWhileNamesCompareAsNames)
{
	std::vector<bool> Results;
	const FAutomationRun Run = RunProbe([&](FAutomationTestBase& Test)
	{
		const FString Title(TEXT("Stash"));
		Results.push_back(Test.TestEqual(TEXT("title"), Title, FString(TEXT("stash"))));
		Results.push_back(Test.TestEqual(TEXT("title"), Title, TEXT("Stash")));
		Results.push_back(Test.TestEqual(TEXT("title"), *Title, TEXT("STASH")));
		Results.push_back(Test.TestEqual(TEXT("title"), FText::FromString(Title), FText::FromString(TEXT("stash"))));
		Results.push_back(Test.TestEqual(TEXT("title"), FStringView(Title), FStringView(TEXT("Stash"))));
		Results.push_back(Test.TestEqualInsensitive(TEXT("title"), *Title, TEXT("STASH")));
		Results.push_back(Test.TestEqual(TEXT("item"), FName(TEXT("Sword")), FName(TEXT("SWORD"))));
		Results.push_back(Test.TestNotEqual(TEXT("title"), Title, TEXT("stash")));
		Results.push_back(Test.TestNotEqual(TEXT("title"), Title, FString(TEXT("Stash"))));
		Results.push_back(Test.TestEqual(FString(TEXT("title as FString")), Title, TEXT("Stash")));
		return true;
	});

	EXPECT_EQ(Results, (std::vector<bool>{ false, true, false, false, true, true, true, true, false, true }));
	ASSERT_EQ(Run.Errors().size(), 4u);
	EXPECT_EQ(Run.Errors()[0], "Expected 'title' to be \"stash\", but it was \"Stash\".");
}

TEST(AutomationTests, NumericExpectationsCompareWithinTheirTolerance)
{
	std::vector<bool> Results;
	const FAutomationRun Run = RunProbe([&](FAutomationTestBase& Test)
	{
		Results.push_back(Test.TestEqual(TEXT("scale"), 1.0f, 1.00001f));
		Results.push_back(Test.TestEqual(TEXT("scale"), 1.0f, 1.1f));
		Results.push_back(Test.TestEqual(TEXT("scale"), 1.0f, 1.1f, 0.2f));
		Results.push_back(Test.TestEqual(TEXT("width"), 640.0, 640.00001));
		Results.push_back(Test.TestEqual(TEXT("width"), 640.0, 641.0));
		Results.push_back(Test.TestEqual(TEXT("cell"), FVector2D(32.0, 48.0), FVector2D(32.00001, 48.0)));
		Results.push_back(Test.TestEqual(TEXT("cell"), FVector2D(32.0, 48.0), FVector2D(32.0, 49.0)));
		Results.push_back(Test.TestEqual(TEXT("instance id"), int64(1) << 40, (int64(1) << 40) + 1));
		return true;
	});

	EXPECT_EQ(Results, (std::vector<bool>{ true, false, true, true, false, true, false, false }));
	ASSERT_EQ(Run.Errors().size(), 4u);
	EXPECT_EQ(Run.Errors()[3], "Expected 'instance id' to be 1099511627777, but it was 1099511627776.");
}

TEST(AutomationTests, PointerValidityAndGenericExpectations)
{
	std::vector<bool> Results;
	RunProbe([&](FAutomationTestBase& Test)
	{
		const TSharedPtr<int32> Shared = MakeShared<int32>(7);
		const TWeakPtr<int32> Weak = Shared;
		const TSharedPtr<int32> Empty;
		const int32* const Missing = nullptr;
		Results.push_back(Test.TestValid(TEXT("shared"), Shared));
		Results.push_back(Test.TestValid(TEXT("weak"), Weak));
		Results.push_back(Test.TestInvalid(TEXT("empty"), Empty));
		Results.push_back(Test.TestValid(TEXT("empty"), Empty));
		Results.push_back(Test.TestNotNull(TEXT("value"), Shared.Get()));
		Results.push_back(Test.TestNull(TEXT("missing"), Missing));
		Results.push_back(Test.TestNotNull(TEXT("missing"), Missing));
		Results.push_back(Test.TestEqual(TEXT("cell"), FStashCell{ 1, 2 }, FStashCell{ 1, 2 }));
		Results.push_back(Test.TestEqual(TEXT("cell"), FStashCell{ 1, 2 }, FStashCell{ 2, 1 }));
		Results.push_back(Test.TestNotEqual(TEXT("cell"), FStashCell{ 1, 2 }, FStashCell{ 2, 1 }));
		return true;
	});

	EXPECT_EQ(Results, (std::vector<bool>{ true, true, true, false, true, true, false, true, false, true }));
}
