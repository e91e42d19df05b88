#include "Misc/AutomationTest.h"

#include "Misc/OutputDeviceRedirector.h"

DEFINE_LOG_CATEGORY_STATIC(LogAutomationTest, Log, All);

FAutomationTestFramework& FAutomationTestFramework::Get()
{
	// Never destroyed: test instances unregister from their own static destructors, in any module.
	static FAutomationTestFramework* const Singleton = new FAutomationTestFramework();
	return *Singleton;
}

bool FAutomationTestFramework::RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister)
{
	if (AutomationTestClassNameToInstanceMap.Contains(InTestNameToRegister))
	{
		return false;
	}
	AutomationTestClassNameToInstanceMap.Add(InTestNameToRegister, InTestToRegister);
	return true;
}

bool FAutomationTestFramework::UnregisterAutomationTest(const FString& InTestNameToUnregister)
{
	FAutomationTestBase* const* Test = AutomationTestClassNameToInstanceMap.Find(InTestNameToUnregister);
	if (Test == nullptr)
	{
		return false;
	}
	if (*Test == CurrentTest)
	{
		AutomationTestOutputDevice.SetCurrentAutomationTest(nullptr);
		GLog->RemoveOutputDevice(&AutomationTestOutputDevice);
		CurrentTest = nullptr;
	}
	AutomationTestClassNameToInstanceMap.Remove(InTestNameToUnregister);
	return true;
}

bool FAutomationTestFramework::ContainsTest(const FString& InTestName) const
{
	return AutomationTestClassNameToInstanceMap.Contains(InTestName);
}

void FAutomationTestFramework::GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const
{
	for (const TPair<FString, FAutomationTestBase*>& Entry : AutomationTestClassNameToInstanceMap)
	{
		if (!EnumHasAnyFlags(Entry.Value->GetTestFlags(), EAutomationTestFlags::Disabled))
		{
			Entry.Value->GenerateTestNames(TestInfo);
		}
	}
}

void FAutomationTestFramework::StartTestByName(const FString& InTestToRun, const int32 InRoleIndex, const FString& InFullTestPath)
{
	DequeueAllCommands();
	FString Name = InTestToRun;
	FString Parameters;
	InTestToRun.Split(TEXT(" "), &Name, &Parameters, ESearchCase::CaseSensitive);

	FAutomationTestBase* const* Test = AutomationTestClassNameToInstanceMap.Find(Name);
	if (Test == nullptr)
	{
		UE_LOG(LogAutomationTest, Error, TEXT("Test %s does not exist and could not be run."), *InTestToRun);
		CurrentTest = nullptr;
		MissingTestName = InTestToRun;
		return;
	}

	CurrentTest = *Test;
	MissingTestName.Reset();
	CurrentTest->ClearExecutionInfo();
	AutomationTestOutputDevice.SetCurrentAutomationTest(CurrentTest);
	GLog->AddOutputDevice(&AutomationTestOutputDevice);
	StartTime = FPlatformTime::Seconds();
	bTestSuccessful = CurrentTest->RunTest(Parameters);
}

bool FAutomationTestFramework::StopTest(FAutomationTestExecutionInfo& OutExecutionInfo)
{
	checkf(LatentCommands.Num() == 0, "A test is stopped once its latent commands have finished");
	if (CurrentTest == nullptr)
	{
		OutExecutionInfo.Clear();
		OutExecutionInfo.AddError(FString::Printf(TEXT("Test %s does not exist and could not be run."), *MissingTestName));
		return false;
	}

	// Expected messages are checked only now: latent steps may log them until the very end.
	const bool bMetExpectedMessages = CurrentTest->HasMetExpectedMessages();
	const bool bSuccessful = bTestSuccessful && !CurrentTest->HasAnyErrors() && bMetExpectedMessages;
	AutomationTestOutputDevice.SetCurrentAutomationTest(nullptr);
	GLog->RemoveOutputDevice(&AutomationTestOutputDevice);
	CurrentTest->SetSuccessState(bSuccessful);
	CurrentTest->GetExecutionInfo(OutExecutionInfo);
	OutExecutionInfo.Duration = FPlatformTime::Seconds() - StartTime;
	CurrentTest = nullptr;
	return bSuccessful;
}

void FAutomationTestFramework::EnqueueLatentCommand(TSharedPtr<IAutomationLatentCommand> NewCommand)
{
	check(NewCommand.IsValid());
	LatentCommands.Add(MoveTemp(NewCommand));
}

bool FAutomationTestFramework::ExecuteLatentCommands()
{
	const bool bHadCommands = LatentCommands.Num() > 0;
	while (LatentCommands.Num() > 0)
	{
		// Held here, so a command that clears the queue from inside Update is not destroyed under itself.
		const TSharedPtr<IAutomationLatentCommand> Command = LatentCommands[0];
		if (!Command->InternalUpdate())
		{
			break;
		}
		if (LatentCommands.Num() > 0 && LatentCommands[0] == Command)
		{
			LatentCommands.RemoveAt(0);
		}
	}
	return !bHadCommands;
}

void FAutomationTestFramework::DequeueAllCommands()
{
	LatentCommands.Empty();
}
