#include "Misc/AutomationTest.h"

namespace
{
	// A message at this verbosity is at least as severe as the least severe one the expectation takes.
	bool IsAtLeastAsSevere(ELogVerbosity::Type Actual, ELogVerbosity::Type LeastSevere)
	{
		return (Actual & ELogVerbosity::VerbosityMask) <= (LeastSevere & ELogVerbosity::VerbosityMask);
	}

	FString Quoted(FStringView Text)
	{
		return FString::Printf(TEXT("\"%s\""), *FString(Text));
	}
}

FString FAutomationExecutionEntry::ToString() const
{
	FString Result = Event.Message;
	if (!Event.Context.IsEmpty())
	{
		Result += FString::Printf(TEXT(" [%s]"), *Event.Context);
	}
	if (!Filename.IsEmpty() && LineNumber > 0)
	{
		Result += FString::Printf(TEXT(" [%s(%d)]"), *Filename, LineNumber);
	}
	return Result;
}

void FAutomationTestExecutionInfo::Clear()
{
	Entries.Empty();
	Errors = 0;
	Warnings = 0;
	bSuccessful = false;
	Duration = 0.0;
}

void FAutomationTestExecutionInfo::AddEvent(const FAutomationEvent& Event, int32 StackOffset, bool bCaptureStack)
{
	if (Event.Type == EAutomationEventType::Error)
	{
		++Errors;
	}
	else if (Event.Type == EAutomationEventType::Warning)
	{
		++Warnings;
	}
	Entries.Add(FAutomationExecutionEntry(Event));
}

void FAutomationTestExecutionInfo::AddWarning(const FString& WarningMessage)
{
	AddEvent(FAutomationEvent(EAutomationEventType::Warning, WarningMessage));
}

void FAutomationTestExecutionInfo::AddError(const FString& ErrorMessage)
{
	AddEvent(FAutomationEvent(EAutomationEventType::Error, ErrorMessage));
}

int32 FAutomationTestExecutionInfo::RemoveAllEvents(EAutomationEventType EventType)
{
	const int32 Removed = Entries.RemoveAll([EventType](const FAutomationExecutionEntry& Entry)
	{
		return Entry.Event.Type == EventType;
	});
	if (EventType == EAutomationEventType::Error)
	{
		Errors -= Removed;
	}
	else if (EventType == EAutomationEventType::Warning)
	{
		Warnings -= Removed;
	}
	return Removed;
}

FAutomationExpectedMessage::FAutomationExpectedMessage(const FString& InMessagePattern, ELogVerbosity::Type InVerbosity,
	EAutomationExpectedMessageFlags::MatchType InCompareType, int32 InExpectedNumberOfOccurrences, bool bInIsRegex)
	: MessagePatternString(InMessagePattern)
	, CompareType(InCompareType)
	, ExpectedNumberOfOccurrences(InExpectedNumberOfOccurrences)
	, Verbosity(InVerbosity)
	, IsRegex(bInIsRegex)
{
	if (IsRegex)
	{
		// Anchored as a whole, so that alternatives in the pattern stay inside the anchors.
		const FString Source = CompareType == EAutomationExpectedMessageFlags::Exact ? FString::Printf(TEXT("^(?:%s)$"), *InMessagePattern) : InMessagePattern;
		MessagePattern = MakeShared<const FRegexPattern>(Source, ERegexPatternFlags::CaseInsensitive);
	}
}

bool FAutomationExpectedMessage::Matches(const FString& Message)
{
	bool bMatches = false;
	if (IsRegex)
	{
		FRegexMatcher Matcher(*MessagePattern, Message);
		bMatches = Matcher.FindNext();
	}
	else if (CompareType == EAutomationExpectedMessageFlags::Exact)
	{
		bMatches = Message.Equals(MessagePatternString, ESearchCase::IgnoreCase);
	}
	else
	{
		bMatches = Message.Contains(MessagePatternString, ESearchCase::IgnoreCase);
	}
	if (bMatches)
	{
		++ActualNumberOfOccurrences;
	}
	return bMatches;
}

FAutomationTestBase::FAutomationTestBase(const FString& InName, const bool bInComplexTask)
	: TestName(InName)
	, bComplexTask(bInComplexTask)
{
	FAutomationTestFramework::Get().RegisterAutomationTest(InName, this);
}

FAutomationTestBase::~FAutomationTestBase()
{
	FAutomationTestFramework::Get().UnregisterAutomationTest(TestName);
}

void FAutomationTestBase::GenerateTestNames(TArray<FAutomationTestInfo>& TestInfo) const
{
	TArray<FString> BeautifiedNames;
	TArray<FString> Parameters;
	GetTests(BeautifiedNames, Parameters);
	checkf(BeautifiedNames.Num() == Parameters.Num(), "GetTests gives one beautified name per parameter");

	const FString BeautifiedTestName = GetBeautifiedTestName();
	for (int32 Index = 0; Index < Parameters.Num(); ++Index)
	{
		const bool bHasParameter = !Parameters[Index].IsEmpty();
		const FString FullTestPath = bHasParameter ? BeautifiedTestName + TEXT(".") + BeautifiedNames[Index] : BeautifiedTestName;
		const FString CompleteTestName = bHasParameter ? TestName + TEXT(" ") + Parameters[Index] : TestName;
		TestInfo.Add(FAutomationTestInfo(FullTestPath, FullTestPath, CompleteTestName, GetTestFlags(), int32(GetRequiredDeviceNum()),
			Parameters[Index], GetTestSourceFileName(CompleteTestName), GetTestSourceFileLine(CompleteTestName)));
	}
}

void FAutomationTestBase::ClearExecutionInfo()
{
	std::lock_guard Lock(ActionMutex);
	ExecutionInfo.Clear();
	ExpectedMessages.Empty();
	bLastExecutionSuccessState = false;
}

void FAutomationTestBase::AddError(const FString& InError, int32 StackOffset)
{
	if (!IsExpectedMessage(InError, ELogVerbosity::Error))
	{
		AddEvent(FAutomationEvent(EAutomationEventType::Error, InError), StackOffset + 1);
	}
}

void FAutomationTestBase::AddErrorIfFalse(bool bCondition, const FString& InError, int32 StackOffset)
{
	if (!bCondition)
	{
		AddError(InError, StackOffset + 1);
	}
}

void FAutomationTestBase::AddWarning(const FString& InWarning, int32 StackOffset)
{
	if (!IsExpectedMessage(InWarning, ELogVerbosity::Warning))
	{
		AddEvent(FAutomationEvent(EAutomationEventType::Warning, InWarning), StackOffset + 1);
	}
}

void FAutomationTestBase::AddInfo(const FString& InLogItem, int32 StackOffset, bool bCaptureStack)
{
	AddEvent(FAutomationEvent(EAutomationEventType::Info, InLogItem), StackOffset + 1, bCaptureStack);
}

void FAutomationTestBase::AddEvent(const FAutomationEvent& InEvent, int32 StackOffset, bool bCaptureStack)
{
	std::lock_guard Lock(ActionMutex);
	ExecutionInfo.AddEvent(InEvent, StackOffset + 1, bCaptureStack);
}

void FAutomationTestBase::AddCapturedLogLine(const TCHAR* Message, ELogVerbosity::Type Verbosity)
{
	const ELogVerbosity::Type Level = ELogVerbosity::Type(Verbosity & ELogVerbosity::VerbosityMask);
	if (IsExpectedMessage(Message, Level))
	{
		return;
	}
	if (Level == ELogVerbosity::Error || Level == ELogVerbosity::Fatal)
	{
		if (!SuppressLogErrors())
		{
			AddEvent(FAutomationEvent(EAutomationEventType::Error, Message));
		}
	}
	else if (Level == ELogVerbosity::Warning)
	{
		if (!SuppressLogWarnings())
		{
			AddEvent(FAutomationEvent(ElevateLogWarningsToErrors() ? EAutomationEventType::Error : EAutomationEventType::Warning, Message));
		}
	}
	// Less severe lines are already on the console; an expected message is all they can be wanted for.
}

bool FAutomationTestBase::HasAnyErrors() const
{
	std::lock_guard Lock(ActionMutex);
	return ExecutionInfo.GetErrorTotal() > 0;
}

bool FAutomationTestBase::HasMetExpectedMessages(ELogVerbosity::Type VerbosityType)
{
	std::lock_guard Lock(ActionMutex);
	bool bMetAll = true;
	for (const FAutomationExpectedMessage& Expected : ExpectedMessages)
	{
		if (!IsAtLeastAsSevere(Expected.Verbosity, VerbosityType))
		{
			continue;
		}
		const bool bAtLeastOnce = Expected.ExpectedNumberOfOccurrences == 0;
		if (bAtLeastOnce ? Expected.ActualNumberOfOccurrences > 0 : Expected.ActualNumberOfOccurrences == Expected.ExpectedNumberOfOccurrences)
		{
			continue;
		}
		bMetAll = false;
		const FString Level = Expected.Verbosity == ELogVerbosity::All ? FString(TEXT("any")) : FString(ToString(Expected.Verbosity));
		const FString Wanted = bAtLeastOnce ? FString(TEXT("at least once")) : FString::Printf(TEXT("%d time(s)"), Expected.ExpectedNumberOfOccurrences);
		ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Error, FString::Printf(
			TEXT("Expected a log message at %s level or more severe matching '%s' (%s) %s, but it occurred %d time(s)."),
			*Level, *Expected.MessagePatternString, EAutomationExpectedMessageFlags::ToString(Expected.CompareType), *Wanted,
			Expected.ActualNumberOfOccurrences)));
	}
	return bMetAll;
}

bool FAutomationTestBase::HasMetExpectedErrors()
{
	return HasMetExpectedMessages(ELogVerbosity::Warning);
}

void FAutomationTestBase::SetSuccessState(bool bSuccessful)
{
	std::lock_guard Lock(ActionMutex);
	bLastExecutionSuccessState = bSuccessful;
	ExecutionInfo.bSuccessful = bSuccessful;
}

bool FAutomationTestBase::GetLastExecutionSuccessState()
{
	std::lock_guard Lock(ActionMutex);
	return bLastExecutionSuccessState;
}

void FAutomationTestBase::GetExecutionInfo(FAutomationTestExecutionInfo& OutInfo) const
{
	std::lock_guard Lock(ActionMutex);
	OutInfo = ExecutionInfo;
}

void FAutomationTestBase::AddExpectedMessage(FString ExpectedPatternString, ELogVerbosity::Type ExpectedVerbosity,
	EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences, bool IsRegex)
{
	std::lock_guard Lock(ActionMutex);
	ExpectedMessages.Add(FAutomationExpectedMessage(ExpectedPatternString, ExpectedVerbosity, CompareType, Occurrences, IsRegex));
}

void FAutomationTestBase::AddExpectedMessage(FString ExpectedPatternString, EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences, bool IsRegex)
{
	AddExpectedMessage(MoveTemp(ExpectedPatternString), ELogVerbosity::All, CompareType, Occurrences, IsRegex);
}

void FAutomationTestBase::AddExpectedMessagePlain(FString ExpectedString, ELogVerbosity::Type ExpectedVerbosity,
	EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences)
{
	AddExpectedMessage(MoveTemp(ExpectedString), ExpectedVerbosity, CompareType, Occurrences, false);
}

void FAutomationTestBase::AddExpectedMessagePlain(FString ExpectedString, EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences)
{
	AddExpectedMessage(MoveTemp(ExpectedString), ELogVerbosity::All, CompareType, Occurrences, false);
}

void FAutomationTestBase::AddExpectedError(FString ExpectedPatternString, EAutomationExpectedErrorFlags::MatchType CompareType, int32 Occurrences, bool IsRegex)
{
	const EAutomationExpectedMessageFlags::MatchType MessageCompareType = CompareType == EAutomationExpectedErrorFlags::Exact
		? EAutomationExpectedMessageFlags::Exact
		: EAutomationExpectedMessageFlags::Contains;
	AddExpectedMessage(MoveTemp(ExpectedPatternString), ELogVerbosity::Warning, MessageCompareType, Occurrences, IsRegex);
}

void FAutomationTestBase::AddExpectedErrorPlain(FString ExpectedString, EAutomationExpectedErrorFlags::MatchType CompareType, int32 Occurrences)
{
	AddExpectedError(MoveTemp(ExpectedString), CompareType, Occurrences, false);
}

void FAutomationTestBase::GetExpectedMessages(TArray<FAutomationExpectedMessage>& OutInfo, ELogVerbosity::Type Verbosity) const
{
	std::lock_guard Lock(ActionMutex);
	OutInfo.Reset();
	for (const FAutomationExpectedMessage& Expected : ExpectedMessages)
	{
		if (IsAtLeastAsSevere(Verbosity, Expected.Verbosity))
		{
			OutInfo.Add(Expected);
		}
	}
}

bool FAutomationTestBase::IsExpectedMessage(const FString& Message, const ELogVerbosity::Type& Verbosity)
{
	std::lock_guard Lock(ActionMutex);
	for (FAutomationExpectedMessage& Expected : ExpectedMessages)
	{
		if (IsAtLeastAsSevere(Verbosity, Expected.Verbosity) && Expected.Matches(Message))
		{
			return true;
		}
	}
	return false;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const int32 Actual, const int32 Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %d, but it was %d."), What, Expected, Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const int64 Actual, const int64 Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %lld, but it was %lld."), What, (long long)Expected, (long long)Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance)
{
	if (!FMath::IsNearlyEqual(Actual, Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %f, but it was %f within tolerance %f."), What, Expected, Actual, Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance)
{
	if (!FMath::IsNearlyEqual(Actual, Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %f, but it was %f within tolerance %f."), What, Expected, Actual, Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FVector2D Actual, const FVector2D Expected, float Tolerance)
{
	if (!Actual.Equals(Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s within tolerance %f."), What, *Expected.ToString(), *Actual.ToString(), Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	return TestEqual(What, FStringView(Actual ? Actual : TEXT("")), FStringView(Expected ? Expected : TEXT("")));
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected)
{
	return TestEqual(What, FStringView(Actual), FStringView(Expected ? Expected : TEXT("")));
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const TCHAR* Actual, const FString& Expected)
{
	return TestEqual(What, FStringView(Actual ? Actual : TEXT("")), FStringView(Expected));
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FString& Actual, const FString& Expected)
{
	return TestEqual(What, FStringView(Actual), FStringView(Expected));
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, FStringView Actual, FStringView Expected)
{
	if (!Actual.Equals(Expected, ESearchCase::CaseSensitive))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *Quoted(Expected), *Quoted(Actual)), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FName Actual, const FName Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be \"%s\", but it was \"%s\"."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FText& Actual, const FText& Expected)
{
	return TestEqual(What, FStringView(Actual.ToString()), FStringView(Expected.ToString()));
}

bool FAutomationTestBase::TestEqualInsensitive(const TCHAR* What, FStringView Actual, FStringView Expected)
{
	if (!Actual.Equals(Expected, ESearchCase::IgnoreCase))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s (ignoring case), but it was %s."), What, *Quoted(Expected), *Quoted(Actual)), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	const FStringView ActualView(Actual ? Actual : TEXT(""));
	if (ActualView.Equals(FStringView(Expected ? Expected : TEXT("")), ESearchCase::CaseSensitive))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to differ from %s, but it was the same."), What, *Quoted(ActualView)), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected)
{
	return TestNotEqual(What, *Actual, Expected);
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const TCHAR* Actual, const FString& Expected)
{
	return TestNotEqual(What, Actual, *Expected);
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const FString& Actual, const FString& Expected)
{
	return TestNotEqual(What, *Actual, *Expected);
}

bool FAutomationTestBase::TestTrue(const TCHAR* What, bool Value)
{
	if (!Value)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be true."), What), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestFalse(const TCHAR* What, bool Value)
{
	if (Value)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be false."), What), 1);
		return false;
	}
	return true;
}

void FAutomationTestOutputDevice::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FAutomationTestBase* const Test = CurTest.load();
	const ELogVerbosity::Type Level = ELogVerbosity::Type(Verbosity & ELogVerbosity::VerbosityMask);
	if (Test == nullptr || Level == ELogVerbosity::NoLogging || Test->SuppressLogs())
	{
		return;
	}
	Test->AddCapturedLogLine(V, Level);
}
