// Item operations a panel refuses before it has loaded: one warning each, and nothing else: no
// request, no status, no delegate.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "HttpManager.h"
#include "HttpModule.h"
#include "QuorvelStashPanelTestListener.h"

BEGIN_DEFINE_SPEC(FQuorvelStashPanelRefusalTests, "Quorvel.UI.Refusals", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
	UQuorvelStashPanel* Panel = nullptr;
	UQuorvelStashPanelTestListener* Listener = nullptr;
	int32 RequestsStarted = 0;

	void ExpectWarning(const TCHAR* Text, int32 Occurrences = 1)
	{
		AddExpectedMessage(Text, ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Exact, Occurrences);
	}

	/** The refusal's warning was all: no request started, the status line and the delegates untouched. */
	void ExpectNothingElse(const TCHAR* Status)
	{
		TestEqual(TEXT("Requests started"), RequestsStarted, 0);
		TestEqual(TEXT("Status"), UE::Quorvel::Tests::StatusTextOf(Panel), Status);
		TestTrue(TEXT("Status colour"), UE::Quorvel::Tests::StatusColourOf(Panel) == UE::Quorvel::Tests::StatusColour);
		TestEqual(TEXT("Heard"), FString::Join(Listener->Heard, TEXT("; ")), TEXT(""));
	}

	FQuorvelItemInstance Rope()
	{
		return UE::Quorvel::Tests::MakeStack(TEXT("Rope"), 4, 0, 1, 1, 2);
	}
END_DEFINE_SPEC(FQuorvelStashPanelRefusalTests)

void FQuorvelStashPanelRefusalTests::Define()
{
	using namespace UE::Quorvel::Tests;

	BeforeEach([this]
	{
		Panel = Panels.Make();
		Listener = NewObject<UQuorvelStashPanelTestListener>(GetTransientPackage());
		Listener->Listen(Panel);
		RequestsStarted = 0;
		FHttpModule::Get().GetHttpManager().SetRequestAddedDelegate(FHttpManagerRequestAddedDelegate::CreateLambda([this](const FHttpRequestRef&)
		{
			++RequestsStarted;
		}));
	});

	AfterEach([this]
	{
		FHttpModule::Get().GetHttpManager().SetRequestAddedDelegate(FHttpManagerRequestAddedDelegate());
		Panels.Reset();
	});

	It("refuses a deposit before the stash has loaded", [this]
	{
		ExpectWarning(TEXT("Deposit refused: the stash is not loaded yet."));
		Panel->DepositItem(FName(TEXT("Medkit")), 1, 2, 3, 4);
		ExpectNothingElse(TEXT("Not loaded"));
	});

	It("refuses a withdraw before the stash has loaded", [this]
	{
		ExpectWarning(TEXT("Withdraw refused: no stash, or the stack has no instance id."));
		Panel->WithdrawInstance(Rope());
		ExpectNothingElse(TEXT("Not loaded"));
	});

	It("refuses a transfer into a panel that has not loaded, from itself too, naming the first reason only", [this]
	{
		UQuorvelStashPanel* Source = Panels.Make();
		ExpectWarning(TEXT("Transfer refused: destination not loaded, no source panel, or the stack has no instance id."), 2);
		Panel->TransferFrom(Source, Rope(), 1, 1);
		Panel->TransferFrom(Panel, Rope());
		ExpectNothingElse(TEXT("Not loaded"));
	});

	It("is not made ready by drawing a container handed to it", [this]
	{
		Panel->ShowContainer(MakeContainer(TEXT("grid"), { Rope() }));
		Listener->Heard.Reset();
		TestFalse(TEXT("Ready"), Panel->IsReady());
		ExpectWarning(TEXT("Deposit refused: the stash is not loaded yet."));
		ExpectWarning(TEXT("Withdraw refused: no stash, or the stack has no instance id."));
		Panel->DepositItem(FName(TEXT("Medkit")));
		Panel->WithdrawInstance(ContentsOf(Panel)[0]);
		ExpectNothingElse(TEXT("1 stack(s) \u00B7 10x8"));
	});
}

#endif
