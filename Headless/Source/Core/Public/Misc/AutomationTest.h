// The engine's automation test framework. Tests are static instances that register themselves with
// FAutomationTestFramework: simple and complex tests (IMPLEMENT_*_AUTOMATION_TEST) and describe/it
// automation tests (BEGIN_DEFINE_SPEC / FAutomationSpecBase), in which each It is a test case of its
// own. A failed expectation records an error and the test goes on; the test fails when it ends. While
// a test runs, log lines at Warning and Error fail it unless an expected message consumes them. Latent
// commands queued by a test are updated once per frame by whoever drives the game thread.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "HAL/PlatformTime.h"
#include "Internationalization/Regex.h"
#include "Misc/OutputDevice.h"
#include "Misc/Timespan.h"

#include <atomic>
#include <mutex>

enum class EAutomationTestFlags : uint64
{
	None = 0x00000000,

	// Where the test can run.
	EditorContext = 0x00000001,
	ClientContext = 0x00000002,
	ServerContext = 0x00000004,
	CommandletContext = 0x00000008,
	ProgramContext = 0x00000010,

	// What the test needs; none means any combination will do.
	NonNullRHI = 0x00000100,
	RequiresUser = 0x00000200,

	// Never listed nor run.
	Disabled = 0x00010000,

	CriticalPriority = 0x00100000,
	HighPriority = 0x00200000,
	HighPriorityAndAbove = CriticalPriority | HighPriority,
	MediumPriority = 0x00400000,
	MediumPriorityAndAbove = CriticalPriority | HighPriority | MediumPriority,
	LowPriority = 0x00800000,

	// Which run the test belongs to; each test names exactly one.
	SmokeFilter = 0x01000000,
	EngineFilter = 0x02000000,
	ProductFilter = 0x04000000,
	PerfFilter = 0x08000000,
	StressFilter = 0x10000000,
	NegativeFilter = 0x20000000,
};
ENUM_CLASS_FLAGS(EAutomationTestFlags);

inline constexpr EAutomationTestFlags EAutomationTestFlags_ApplicationContextMask = EAutomationTestFlags::EditorContext
	| EAutomationTestFlags::ClientContext | EAutomationTestFlags::ServerContext | EAutomationTestFlags::CommandletContext
	| EAutomationTestFlags::ProgramContext;
inline constexpr EAutomationTestFlags EAutomationTestFlags_FeatureMask = EAutomationTestFlags::NonNullRHI | EAutomationTestFlags::RequiresUser;
inline constexpr EAutomationTestFlags EAutomationTestFlags_PriorityMask = EAutomationTestFlags::CriticalPriority
	| EAutomationTestFlags::HighPriority | EAutomationTestFlags::MediumPriority | EAutomationTestFlags::LowPriority;
inline constexpr EAutomationTestFlags EAutomationTestFlags_FilterMask = EAutomationTestFlags::SmokeFilter
	| EAutomationTestFlags::EngineFilter | EAutomationTestFlags::ProductFilter | EAutomationTestFlags::PerfFilter
	| EAutomationTestFlags::StressFilter | EAutomationTestFlags::NegativeFilter;

namespace UE::Automation::Private
{
	constexpr bool HasApplicationContext(EAutomationTestFlags Flags)
	{
		return EnumHasAnyFlags(Flags, EAutomationTestFlags_ApplicationContextMask);
	}

	constexpr bool HasExactlyOneFilter(EAutomationTestFlags Flags)
	{
		const uint64 Filters = uint64(Flags & EAutomationTestFlags_FilterMask);
		return Filters != 0 && (Filters & (Filters - 1)) == 0;
	}
}

// The checks every test declaration makes, so that a test the engine would refuse does not build here either.
#define UE_AUTOMATION_TEST_CHECK_FLAGS(TFlags) \
	static_assert(UE::Automation::Private::HasApplicationContext(TFlags), "AutomationTest has no application flag. It shouldn't run. See AutomationTest.h."); \
	static_assert(UE::Automation::Private::HasExactlyOneFilter(TFlags), "All AutomationTests must have exactly 1 filter type specified. See AutomationTest.h.");

namespace EAutomationExpectedErrorFlags
{
	enum MatchType
	{
		/** The whole line matches the pattern. */
		Exact,
		/** The pattern is found somewhere in the line. */
		Contains,
	};

	inline const TCHAR* ToString(MatchType ThisType)
	{
		return ThisType == Exact ? TEXT("Exact") : TEXT("Contains");
	}
}

namespace EAutomationExpectedMessageFlags
{
	enum MatchType
	{
		Exact,
		Contains,
	};

	inline const TCHAR* ToString(MatchType ThisType)
	{
		return ThisType == Exact ? TEXT("Exact") : TEXT("Contains");
	}
}

enum class EAutomationEventType : uint8
{
	Info,
	Warning,
	Error,
};

inline const TCHAR* ToString(EAutomationEventType Type)
{
	switch (Type)
	{
	case EAutomationEventType::Info:
		return TEXT("Info");
	case EAutomationEventType::Warning:
		return TEXT("Warning");
	default:
		return TEXT("Error");
	}
}

struct FAutomationEvent
{
	FAutomationEvent(EAutomationEventType InType, const FString& InMessage, const FString& InContext = FString())
		: Type(InType)
		, Message(InMessage)
		, Context(InContext)
	{
	}

	EAutomationEventType Type;
	FString Message;
	FString Context;
};

struct FAutomationExecutionEntry
{
	explicit FAutomationExecutionEntry(const FAutomationEvent& InEvent, const FString& InFilename = FString(), int32 InLineNumber = -1)
		: Event(InEvent)
		, Filename(InFilename)
		, LineNumber(InLineNumber)
	{
	}

	/** The message, then the context and the source location when they are known. */
	CORE_API FString ToString() const;

	FAutomationEvent Event;
	FString Filename;
	int32 LineNumber;
};

/** What one run of one test produced. */
struct FAutomationTestExecutionInfo
{
	CORE_API void Clear();

	CORE_API void AddEvent(const FAutomationEvent& Event, int32 StackOffset = 0, bool bCaptureStack = false);
	CORE_API void AddWarning(const FString& WarningMessage);
	CORE_API void AddError(const FString& ErrorMessage);

	/** Removes every event of a type; returns how many went. */
	CORE_API int32 RemoveAllEvents(EAutomationEventType EventType);

	const TArray<FAutomationExecutionEntry>& GetEntries() const
	{
		return Entries;
	}

	int32 GetErrorTotal() const
	{
		return Errors;
	}

	int32 GetWarningTotal() const
	{
		return Warnings;
	}

	bool bSuccessful = false;
	/** Seconds from the start of the test to its end, latent commands included. */
	double Duration = 0.0;

private:
	TArray<FAutomationExecutionEntry> Entries;
	int32 Errors = 0;
	int32 Warnings = 0;
};

/**
 * A log line the test expects. Occurrences counts the lines it consumed; an expectation of zero
 * occurrences wants at least one. Its verbosity is the least severe one it matches: an expected
 * Warning also consumes Error lines, an expected Error does not consume Warning lines.
 */
struct FAutomationExpectedMessage
{
	CORE_API FAutomationExpectedMessage(const FString& InMessagePattern, ELogVerbosity::Type InVerbosity,
		EAutomationExpectedMessageFlags::MatchType InCompareType = EAutomationExpectedMessageFlags::Contains,
		int32 InExpectedNumberOfOccurrences = 1, bool bInIsRegex = true);

	/** Whether the line matches, text only, without regard to case; a match is counted. */
	CORE_API bool Matches(const FString& Message);

	FString MessagePatternString;
	EAutomationExpectedMessageFlags::MatchType CompareType;
	int32 ExpectedNumberOfOccurrences;
	int32 ActualNumberOfOccurrences = 0;
	ELogVerbosity::Type Verbosity;
	bool IsRegex;

private:
	TSharedPtr<const FRegexPattern> MessagePattern;
};

/** One runnable test case as the framework lists it. */
class FAutomationTestInfo
{
public:
	FAutomationTestInfo() = default;

	FAutomationTestInfo(const FString& InDisplayName, const FString& InFullTestPath, const FString& InTestName,
		EAutomationTestFlags InTestFlags, int32 InNumParticipantsRequired, const FString& InParameterName = FString(),
		const FString& InSourceFile = FString(), int32 InSourceFileLine = 0)
		: DisplayName(InDisplayName)
		, FullTestPath(InFullTestPath)
		, TestName(InTestName)
		, TestParameter(InParameterName)
		, SourceFile(InSourceFile)
		, SourceFileLine(InSourceFileLine)
		, TestFlags(InTestFlags)
		, NumParticipantsRequired(InNumParticipantsRequired)
	{
	}

	const FString& GetDisplayName() const
	{
		return DisplayName;
	}

	/** The dotted name people filter by: the pretty name, then the case's own name for complex tests. */
	const FString& GetFullTestPath() const
	{
		return FullTestPath;
	}

	/** What StartTestByName takes: the test's class name, a space and the parameter when there is one. */
	const FString& GetTestName() const
	{
		return TestName;
	}

	const FString& GetTestParameter() const
	{
		return TestParameter;
	}

	const FString& GetSourceFile() const
	{
		return SourceFile;
	}

	int32 GetSourceFileLine() const
	{
		return SourceFileLine;
	}

	EAutomationTestFlags GetTestFlags() const
	{
		return TestFlags;
	}

	int32 GetNumParticipantsRequired() const
	{
		return NumParticipantsRequired;
	}

private:
	FString DisplayName;
	FString FullTestPath;
	FString TestName;
	FString TestParameter;
	FString SourceFile;
	int32 SourceFileLine = 0;
	EAutomationTestFlags TestFlags = EAutomationTestFlags::None;
	int32 NumParticipantsRequired = 1;
};

/** A step a test leaves to later frames; Update runs once per frame until it returns true. */
class IAutomationLatentCommand
{
public:
	virtual ~IAutomationLatentCommand() = default;

	/** True when the command has finished. */
	virtual bool Update() = 0;

protected:
	IAutomationLatentCommand() = default;

	/** Seconds since the command was first updated; zero before that. */
	double GetCurrentRunTime() const
	{
		return StartTime == 0.0 ? 0.0 : FPlatformTime::Seconds() - StartTime;
	}

	double StartTime = 0.0;

private:
	friend class FAutomationTestFramework;

	bool InternalUpdate()
	{
		if (StartTime == 0.0)
		{
			StartTime = FPlatformTime::Seconds();
		}
		return Update();
	}
};

/** Runs a predicate each frame until it returns true. */
class FFunctionLatentCommand : public IAutomationLatentCommand
{
public:
	explicit FFunctionLatentCommand(TFunction<bool()> InLatentPredicate)
		: LatentPredicate(MoveTemp(InLatentPredicate))
	{
	}

	virtual bool Update() override
	{
		return LatentPredicate();
	}

private:
	TFunction<bool()> LatentPredicate;
};

/** Calls a function once, when the given seconds have passed since the command was first updated. */
class FDelayedFunctionLatentCommand : public IAutomationLatentCommand
{
public:
	explicit FDelayedFunctionLatentCommand(TFunction<void()> InCallback, float InDelay = 0.1f)
		: Callback(MoveTemp(InCallback))
		, Delay(InDelay)
	{
	}

	virtual bool Update() override
	{
		if (GetCurrentRunTime() >= Delay)
		{
			Callback();
			return true;
		}
		return false;
	}

private:
	TFunction<void()> Callback;
	float Delay;
};

#define DEFINE_LATENT_AUTOMATION_COMMAND(CommandName) \
	class CommandName : public IAutomationLatentCommand \
	{ \
	public: \
		virtual ~CommandName() \
		{ \
		} \
		virtual bool Update() override; \
	}

#define DEFINE_LATENT_AUTOMATION_COMMAND_ONE_PARAMETER(CommandName, ParamType, ParamName) \
	class CommandName : public IAutomationLatentCommand \
	{ \
	public: \
		CommandName(ParamType InputParam) \
			: ParamName(InputParam) \
		{ \
		} \
		virtual ~CommandName() \
		{ \
		} \
		virtual bool Update() override; \
	private: \
		ParamType ParamName; \
	}

#define ADD_LATENT_AUTOMATION_COMMAND(ClassDeclaration) \
	FAutomationTestFramework::Get().EnqueueLatentCommand(MakeShareable(new ClassDeclaration));

class FAutomationTestBase;

/** Hands the log lines written while a test runs to that test. */
class FAutomationTestOutputDevice : public FOutputDevice
{
public:
	CORE_API virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

	virtual bool CanBeUsedOnAnyThread() const override
	{
		return true;
	}

	void SetCurrentAutomationTest(FAutomationTestBase* InAutomationTest)
	{
		CurTest = InAutomationTest;
	}

private:
	std::atomic<FAutomationTestBase*> CurTest = nullptr;
};

/**
 * Every registered test, the test running now and the latent command queue. A runner starts a test,
 * calls ExecuteLatentCommands once per frame until it returns true, then stops the test.
 */
class FAutomationTestFramework
{
public:
	static CORE_API FAutomationTestFramework& Get();

	static FAutomationTestFramework& GetInstance()
	{
		return Get();
	}

	/** Keyed by the test's class name; false when the name is taken. */
	CORE_API bool RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister);
	CORE_API bool UnregisterAutomationTest(const FString& InTestNameToUnregister);
	CORE_API bool ContainsTest(const FString& InTestName) const;

	/** Every test case of every registered test but the disabled ones, in registration order. */
	CORE_API void GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const;

	/**
	 * Starts "ClassName" or "ClassName Parameter" (FAutomationTestInfo::GetTestName): clears what its
	 * last run left, starts capturing the log for it and calls RunTest. Latent commands left over from
	 * an earlier test are dropped.
	 */
	CORE_API void StartTestByName(const FString& InTestToRun, const int32 InRoleIndex, const FString& InFullTestPath = FString());

	/**
	 * Ends the test started last, once its latent commands are done: it passed when RunTest returned
	 * true, no error was recorded and every expected message occurred as often as expected.
	 */
	CORE_API bool StopTest(FAutomationTestExecutionInfo& OutExecutionInfo);

	FAutomationTestBase* GetCurrentTest() const
	{
		return CurrentTest;
	}

	CORE_API void EnqueueLatentCommand(TSharedPtr<IAutomationLatentCommand> NewCommand);

	/**
	 * Updates the queued commands in order, each until one has not finished yet. True when the queue
	 * was already empty, so the caller ticks a frame after the last command finished before stopping.
	 */
	CORE_API bool ExecuteLatentCommands();

	CORE_API void DequeueAllCommands();

	bool IsLatentCommandQueueEmpty() const
	{
		return LatentCommands.Num() == 0;
	}

	FAutomationTestFramework(const FAutomationTestFramework&) = delete;
	FAutomationTestFramework& operator=(const FAutomationTestFramework&) = delete;

private:
	FAutomationTestFramework() = default;

	TMap<FString, FAutomationTestBase*> AutomationTestClassNameToInstanceMap;
	TArray<TSharedPtr<IAutomationLatentCommand>> LatentCommands;
	FAutomationTestOutputDevice AutomationTestOutputDevice;
	FAutomationTestBase* CurrentTest = nullptr;
	// The name StartTestByName could not find, reported by the StopTest that follows it.
	FString MissingTestName;
	bool bTestSuccessful = false;
	double StartTime = 0.0;
};

class FAutomationTestBase
{
public:
	/** Registers the test under InName, its class name; a complex task has a case per parameter. */
	CORE_API FAutomationTestBase(const FString& InName, const bool bInComplexTask);
	CORE_API virtual ~FAutomationTestBase();

	FAutomationTestBase(const FAutomationTestBase&) = delete;
	FAutomationTestBase& operator=(const FAutomationTestBase&) = delete;

	virtual EAutomationTestFlags GetTestFlags() const = 0;
	virtual uint32 GetRequiredDeviceNum() const = 0;
	virtual FString GetTestSourceFileName() const = 0;
	virtual int32 GetTestSourceFileLine() const = 0;

	virtual FString GetTestSourceFileName(const FString& InTestName) const
	{
		return GetTestSourceFileName();
	}

	virtual int32 GetTestSourceFileLine(const FString& InTestName) const
	{
		return GetTestSourceFileLine();
	}

	const FString& GetTestName() const
	{
		return TestName;
	}

	bool IsComplexTask() const
	{
		return bComplexTask;
	}

	/** One entry per case: the full test path, the name StartTestByName takes, flags and source. */
	CORE_API void GenerateTestNames(TArray<FAutomationTestInfo>& TestInfo) const;

	/** Clears the events, the expected messages and the outcome of the last run. */
	CORE_API virtual void ClearExecutionInfo();

	/** Fails the test (it goes on); an expected message at Error or less severe consumes it instead. */
	CORE_API virtual void AddError(const FString& InError, int32 StackOffset = 0);
	CORE_API virtual void AddErrorIfFalse(bool bCondition, const FString& InError, int32 StackOffset = 0);
	/** Listed with the result without failing the test; an expected message may consume it. */
	CORE_API virtual void AddWarning(const FString& InWarning, int32 StackOffset = 0);
	CORE_API virtual void AddInfo(const FString& InLogItem, int32 StackOffset = 0, bool bCaptureStack = false);
	CORE_API virtual void AddEvent(const FAutomationEvent& InEvent, int32 StackOffset = 0, bool bCaptureStack = false);

	CORE_API bool HasAnyErrors() const;

	/**
	 * Adds an error for each expected message (of at least the given verbosity) that did not occur as
	 * often as expected; true when none is missing.
	 */
	CORE_API bool HasMetExpectedMessages(ELogVerbosity::Type VerbosityType = ELogVerbosity::All);
	CORE_API bool HasMetExpectedErrors();

	CORE_API void SetSuccessState(bool bSuccessful);
	CORE_API bool GetLastExecutionSuccessState();
	CORE_API virtual void GetExecutionInfo(FAutomationTestExecutionInfo& OutInfo) const;

	/**
	 * Expects log lines, of the given verbosity or more severe, that match a pattern: a regular
	 * expression unless IsRegex is false, matched without regard to case. Occurrences of 0 means at
	 * least once. A matching line is consumed: it neither fails the test nor is listed.
	 */
	CORE_API void AddExpectedMessage(FString ExpectedPatternString, ELogVerbosity::Type ExpectedVerbosity,
		EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains,
		int32 Occurrences = 1, bool IsRegex = true);
	/** Lines of any verbosity. */
	CORE_API void AddExpectedMessage(FString ExpectedPatternString,
		EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains,
		int32 Occurrences = 1, bool IsRegex = true);
	CORE_API void AddExpectedMessagePlain(FString ExpectedString, ELogVerbosity::Type ExpectedVerbosity,
		EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, int32 Occurrences = 1);
	CORE_API void AddExpectedMessagePlain(FString ExpectedString,
		EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, int32 Occurrences = 1);

	/** Expects Warning or Error lines. */
	CORE_API void AddExpectedError(FString ExpectedPatternString,
		EAutomationExpectedErrorFlags::MatchType CompareType = EAutomationExpectedErrorFlags::Contains,
		int32 Occurrences = 1, bool IsRegex = true);
	CORE_API void AddExpectedErrorPlain(FString ExpectedString,
		EAutomationExpectedErrorFlags::MatchType CompareType = EAutomationExpectedErrorFlags::Contains, int32 Occurrences = 1);

	/** The expected messages that match lines of the given verbosity. */
	CORE_API void GetExpectedMessages(TArray<FAutomationExpectedMessage>& OutInfo, ELogVerbosity::Type Verbosity = ELogVerbosity::All) const;

	/** Whether an expected message consumes a line of this verbosity; the first that does counts it. */
	CORE_API bool IsExpectedMessage(const FString& Message, const ELogVerbosity::Type& Verbosity = ELogVerbosity::All);

	/** Whether log lines are captured at all while the test runs. */
	virtual bool SuppressLogs()
	{
		return bSuppressLogs;
	}

	/** Error lines are neither listed nor fail the test. */
	virtual bool SuppressLogErrors()
	{
		return false;
	}

	/** Warning lines are neither listed nor fail the test. */
	virtual bool SuppressLogWarnings()
	{
		return false;
	}

	/** Warning lines fail the test, as the engine's default settings have it. */
	virtual bool ElevateLogWarningsToErrors()
	{
		return true;
	}

	// Expectations. Each records an error naming What when it fails and returns false; the test goes on.

	CORE_API bool TestEqual(const TCHAR* What, const int32 Actual, const int32 Expected);
	CORE_API bool TestEqual(const TCHAR* What, const int64 Actual, const int64 Expected);
	CORE_API bool TestEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER);
	CORE_API bool TestEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER);
	CORE_API bool TestEqual(const TCHAR* What, const FVector2D Actual, const FVector2D Expected, float Tolerance = UE_KINDA_SMALL_NUMBER);
	/** Strings compare case-sensitively here, unlike FString's operator==. */
	CORE_API bool TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	CORE_API bool TestEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected);
	CORE_API bool TestEqual(const TCHAR* What, const TCHAR* Actual, const FString& Expected);
	CORE_API bool TestEqual(const TCHAR* What, const FString& Actual, const FString& Expected);
	CORE_API bool TestEqual(const TCHAR* What, FStringView Actual, FStringView Expected);
	/** Names compare as names do, without regard to case. */
	CORE_API bool TestEqual(const TCHAR* What, const FName Actual, const FName Expected);
	/** Texts compare by their display strings, case-sensitively. */
	CORE_API bool TestEqual(const TCHAR* What, const FText& Actual, const FText& Expected);

	CORE_API bool TestEqualInsensitive(const TCHAR* What, FStringView Actual, FStringView Expected);

	template <typename ValueType>
	bool TestEqual(const TCHAR* What, const ValueType& Actual, const ValueType& Expected)
	{
		if (!(Actual == Expected))
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be equal to the expected value, but it was not."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ActualType, typename ExpectedType, typename... ToleranceTypes>
	bool TestEqual(const FString& What, const ActualType& Actual, const ExpectedType& Expected, ToleranceTypes... Tolerance)
	{
		return TestEqual(*What, Actual, Expected, Tolerance...);
	}

	CORE_API bool TestNotEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	CORE_API bool TestNotEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected);
	CORE_API bool TestNotEqual(const TCHAR* What, const TCHAR* Actual, const FString& Expected);
	CORE_API bool TestNotEqual(const TCHAR* What, const FString& Actual, const FString& Expected);

	template <typename ValueType>
	bool TestNotEqual(const TCHAR* What, const ValueType& Actual, const ValueType& Expected)
	{
		if (Actual == Expected)
		{
			AddError(FString::Printf(TEXT("Expected '%s' to differ from the value it was compared with, but they were equal."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ActualType, typename ExpectedType>
	bool TestNotEqual(const FString& What, const ActualType& Actual, const ExpectedType& Expected)
	{
		return TestNotEqual(*What, Actual, Expected);
	}

	CORE_API bool TestTrue(const TCHAR* What, bool Value);
	CORE_API bool TestFalse(const TCHAR* What, bool Value);

	bool TestTrue(const FString& What, bool Value)
	{
		return TestTrue(*What, Value);
	}

	bool TestFalse(const FString& What, bool Value)
	{
		return TestFalse(*What, Value);
	}

	template <typename ValueType>
	bool TestNull(const TCHAR* What, const ValueType* Pointer)
	{
		if (Pointer != nullptr)
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be null."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ValueType>
	bool TestNotNull(const TCHAR* What, const ValueType* Pointer)
	{
		if (Pointer == nullptr)
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be not null."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ValueType>
	bool TestNull(const FString& What, const ValueType* Pointer)
	{
		return TestNull(*What, Pointer);
	}

	template <typename ValueType>
	bool TestNotNull(const FString& What, const ValueType* Pointer)
	{
		return TestNotNull(*What, Pointer);
	}

	/** Anything with IsValid: shared and weak pointers, weak object pointers. */
	template <typename ValueType>
	bool TestValid(const TCHAR* What, const ValueType& Value)
	{
		if (!Value.IsValid())
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be valid."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ValueType>
	bool TestInvalid(const TCHAR* What, const ValueType& Value)
	{
		if (Value.IsValid())
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be invalid."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ValueType>
	bool TestValid(const FString& What, const ValueType& Value)
	{
		return TestValid(*What, Value);
	}

	template <typename ValueType>
	bool TestInvalid(const FString& What, const ValueType& Value)
	{
		return TestInvalid(*What, Value);
	}

protected:
	/** The beautified names and the parameters of the test's cases, one pair per case. */
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const = 0;

	/** Runs one case; false fails it. Latent commands it queues run after it returns. */
	virtual bool RunTest(const FString& Parameters) = 0;

	/** The dotted name the test is listed and filtered under. */
	virtual FString GetBeautifiedTestName() const = 0;

	FString TestName;
	bool bComplexTask;
	bool bSuppressLogs = false;
	FAutomationTestExecutionInfo ExecutionInfo;
	TArray<FAutomationExpectedMessage> ExpectedMessages;

private:
	friend class FAutomationTestFramework;
	friend class FAutomationTestOutputDevice;

	/** Records a log line that no expected message consumed, as the test's settings say. */
	void AddCapturedLogLine(const TCHAR* Message, ELogVerbosity::Type Verbosity);

	// Log lines may arrive from any thread while the test records its own events.
	mutable std::recursive_mutex ActionMutex;
	bool bLastExecutionSuccessState = false;
};

#define IMPLEMENT_SIMPLE_AUTOMATION_TEST_PRIVATE(TClass, TBaseClass, PrettyName, TFlags, FileName, LineNumber) \
	class TClass : public TBaseClass \
	{ \
	public: \
		TClass(const FString& InName) \
			: TBaseClass(InName, false) \
		{ \
			UE_AUTOMATION_TEST_CHECK_FLAGS(TFlags) \
		} \
		virtual EAutomationTestFlags GetTestFlags() const override \
		{ \
			return TFlags; \
		} \
		virtual uint32 GetRequiredDeviceNum() const override \
		{ \
			return 1; \
		} \
		virtual FString GetTestSourceFileName() const override \
		{ \
			return FileName; \
		} \
		virtual int32 GetTestSourceFileLine() const override \
		{ \
			return LineNumber; \
		} \
	protected: \
		virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override \
		{ \
			OutBeautifiedNames.Add(PrettyName); \
			OutTestCommands.Add(FString()); \
		} \
		virtual bool RunTest(const FString& Parameters) override; \
		virtual FString GetBeautifiedTestName() const override \
		{ \
			return PrettyName; \
		} \
	};

#define IMPLEMENT_COMPLEX_AUTOMATION_TEST_PRIVATE(TClass, TBaseClass, PrettyName, TFlags, FileName, LineNumber) \
	class TClass : public TBaseClass \
	{ \
	public: \
		TClass(const FString& InName) \
			: TBaseClass(InName, true) \
		{ \
			UE_AUTOMATION_TEST_CHECK_FLAGS(TFlags) \
		} \
		virtual EAutomationTestFlags GetTestFlags() const override \
		{ \
			return TFlags; \
		} \
		virtual uint32 GetRequiredDeviceNum() const override \
		{ \
			return 1; \
		} \
		virtual FString GetTestSourceFileName() const override \
		{ \
			return FileName; \
		} \
		virtual int32 GetTestSourceFileLine() const override \
		{ \
			return LineNumber; \
		} \
	protected: \
		virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override; \
		virtual bool RunTest(const FString& Parameters) override; \
		virtual FString GetBeautifiedTestName() const override \
		{ \
			return PrettyName; \
		} \
	};

/** A test with one case; define `bool TClass::RunTest(const FString& Parameters)` after it. */
#define IMPLEMENT_SIMPLE_AUTOMATION_TEST(TClass, PrettyName, TFlags) \
	IMPLEMENT_SIMPLE_AUTOMATION_TEST_PRIVATE(TClass, FAutomationTestBase, PrettyName, TFlags, __FILE__, __LINE__) \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

/** A test with a case per parameter; define GetTests and RunTest after it. */
#define IMPLEMENT_COMPLEX_AUTOMATION_TEST(TClass, PrettyName, TFlags) \
	IMPLEMENT_COMPLEX_AUTOMATION_TEST_PRIVATE(TClass, FAutomationTestBase, PrettyName, TFlags, __FILE__, __LINE__) \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

/** Tells a latent step that it has finished; may be called on a later frame, or not at all. */
DECLARE_DELEGATE(FDoneDelegate);

/**
 * The describe/it form. Define() declares nested Describe blocks holding BeforeEach, It and AfterEach
 * steps; it runs once, the first time the test's cases are listed or run. Each It is a case of its
 * own, listed as "<pretty name>.<describe path>.<description>": it runs every enclosing BeforeEach
 * (outermost first), the It, then every enclosing AfterEach (innermost first). Once the case has an
 * error, its remaining BeforeEach and It steps are skipped (when bEnableSkipIfError) but its
 * AfterEach steps still run. A latent step finishes when its Done delegate is executed, or fails
 * with an error when its time-out has passed first.
 */
class FAutomationSpecBase : public FAutomationTestBase
{
public:
	CORE_API FAutomationSpecBase(const FString& InName, const bool bInComplexTask);
	CORE_API virtual ~FAutomationSpecBase() override;

	virtual uint32 GetRequiredDeviceNum() const override
	{
		return 1;
	}

	CORE_API void Describe(const FString& InDescription, TFunction<void()> DoWork);

	void xDescribe(const FString& InDescription, TFunction<void()> DoWork)
	{
	}

	CORE_API void It(const FString& InDescription, TFunction<void()> DoWork);
	CORE_API void LatentIt(const FString& InDescription, TFunction<void(const FDoneDelegate&)> DoWork);
	CORE_API void LatentIt(const FString& InDescription, const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork);

	void xIt(const FString& InDescription, TFunction<void()> DoWork)
	{
	}

	void xLatentIt(const FString& InDescription, TFunction<void(const FDoneDelegate&)> DoWork)
	{
	}

	void xLatentIt(const FString& InDescription, const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork)
	{
	}

	CORE_API void BeforeEach(TFunction<void()> DoWork);
	CORE_API void LatentBeforeEach(TFunction<void(const FDoneDelegate&)> DoWork);
	CORE_API void LatentBeforeEach(const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork);

	void xBeforeEach(TFunction<void()> DoWork)
	{
	}

	void xLatentBeforeEach(TFunction<void(const FDoneDelegate&)> DoWork)
	{
	}

	void xLatentBeforeEach(const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork)
	{
	}

	CORE_API void AfterEach(TFunction<void()> DoWork);
	CORE_API void LatentAfterEach(TFunction<void(const FDoneDelegate&)> DoWork);
	CORE_API void LatentAfterEach(const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork);

	void xAfterEach(TFunction<void()> DoWork)
	{
	}

	void xLatentAfterEach(TFunction<void(const FDoneDelegate&)> DoWork)
	{
	}

	void xLatentAfterEach(const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork)
	{
	}

protected:
	CORE_API virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override;
	/** Queues the steps of the case the parameter names, or of every case when it is empty. */
	CORE_API virtual bool RunTest(const FString& InParameters) override;

	virtual void Define() = 0;

	/** Calls Define the first time it is needed. */
	CORE_API void EnsureDefinitions() const;

	/** The time-out of latent steps declared without one. */
	FTimespan DefaultTimeout;
	/** Once a case has an error, its remaining BeforeEach and It steps are skipped. */
	bool bEnableSkipIfError;

private:
	class FUntilDoneLatentCommand;
	struct FItDefinition;
	struct FDefinitionScope;
	struct FCase;

	TSharedRef<IAutomationLatentCommand> MakeLatentStep(TFunction<void(const FDoneDelegate&)> DoWork, const FTimespan& Timeout, bool bSkipIfErrored);
	void AddIt(const FString& InDescription, TSharedRef<IAutomationLatentCommand> Command);
	FString GetDescription() const;
	FString GetId() const;
	void Bake(const FDefinitionScope& Scope, TArray<TSharedRef<IAutomationLatentCommand>> BeforeEachSteps, TArray<TSharedRef<IAutomationLatentCommand>> AfterEachSteps);

	// Filled while Define runs: the scope tree and the path of descriptions down to the current block.
	TSharedRef<FDefinitionScope> RootDefinitionScope;
	TArray<TSharedRef<FDefinitionScope>> DefinitionScopeStack;
	TArray<FString> Description;
	// One per It once Define has run, in declaration order, with every step it runs.
	TArray<TSharedRef<FCase>> Cases;
	TMap<FString, TSharedRef<FCase>> IdToCaseMap;
	// Every latent step, so that a run cut short (its commands dropped) leaves nothing to the next one.
	TArray<TSharedRef<FUntilDoneLatentCommand>> LatentSteps;
	bool bHasBeenDefined = false;
};

#define BEGIN_DEFINE_SPEC_PRIVATE(TClass, PrettyName, TFlags, FileName, LineNumber) \
	class TClass : public FAutomationSpecBase \
	{ \
	public: \
		TClass(const FString& InName) \
			: FAutomationSpecBase(InName, false) \
		{ \
			UE_AUTOMATION_TEST_CHECK_FLAGS(TFlags) \
		} \
		virtual EAutomationTestFlags GetTestFlags() const override \
		{ \
			return TFlags; \
		} \
		using FAutomationSpecBase::GetTestSourceFileName; \
		virtual FString GetTestSourceFileName() const override \
		{ \
			return FileName; \
		} \
		using FAutomationSpecBase::GetTestSourceFileLine; \
		virtual int32 GetTestSourceFileLine() const override \
		{ \
			return LineNumber; \
		} \
	protected: \
		virtual FString GetBeautifiedTestName() const override \
		{ \
			return PrettyName; \
		} \
		virtual void Define() override;

/** Opens a describe/it automation test class; members declared after it are shared by its steps. */
#define BEGIN_DEFINE_SPEC(TClass, PrettyName, TFlags) \
	BEGIN_DEFINE_SPEC_PRIVATE(TClass, PrettyName, TFlags, __FILE__, __LINE__)

/** Closes the class and registers its instance; define `void TClass::Define()` after it. */
#define END_DEFINE_SPEC(TClass) \
	}; \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

#define DEFINE_SPEC(TClass, PrettyName, TFlags) \
	BEGIN_DEFINE_SPEC(TClass, PrettyName, TFlags) \
	END_DEFINE_SPEC(TClass)
