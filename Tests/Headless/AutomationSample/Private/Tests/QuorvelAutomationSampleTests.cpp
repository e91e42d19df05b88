// Automation tests as a plugin module writes them: compiled only in builds with development
// automation tests, run by the engine's automation window or by the headless runner alike.
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Containers/Ticker.h"

DEFINE_LOG_CATEGORY_STATIC(LogQuorvelSample, Log, All);

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelSampleFormatTest, "QuorvelSample.Format.Slot label",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ClientContext | EAutomationTestFlags::ProductFilter)

bool FQuorvelSampleFormatTest::RunTest(const FString& Parameters)
{
	TestEqual(TEXT("Label"), FString::Printf(TEXT("Slot %d"), 7), TEXT("Slot 7"));
	return true;
}

BEGIN_DEFINE_SPEC(FQuorvelSampleStashTest, "QuorvelSample.Stash", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ClientContext | EAutomationTestFlags::ProductFilter)
	TArray<int32> Stacks;
END_DEFINE_SPEC(FQuorvelSampleStashTest)

void FQuorvelSampleStashTest::Define()
{
	BeforeEach([this]
	{
		Stacks = { 20, 5 };
	});

	Describe("Depositing", [this]
	{
		It("adds a stack", [this]
		{
			Stacks.Add(1);
			TestEqual(TEXT("Stacks"), Stacks.Num(), 3);
		});

		It("warns when the stash is full", [this]
		{
			AddExpectedError(TEXT("Stash is full"), EAutomationExpectedErrorFlags::Contains, 1);
			UE_LOG(LogQuorvelSample, Warning, TEXT("Stash is full: %d stacks"), Stacks.Num());
		});
	});

	LatentIt("hears of a reload on a later frame", [this](const FDoneDelegate& Done)
	{
		FTSTicker::GetCoreTicker().AddTicker(TEXT("QuorvelSample"), 0.0f, [this, Done](float)
		{
			TestEqual(TEXT("Stacks"), Stacks.Num(), 2);
			Done.Execute();
			return false;
		});
	});
}

#endif
