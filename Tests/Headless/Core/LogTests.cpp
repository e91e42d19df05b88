#include "Logging/LogMacros.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

DECLARE_LOG_CATEGORY_EXTERN(LogQuorvelTest, Log, All);
DEFINE_LOG_CATEGORY(LogQuorvelTest);
DEFINE_LOG_CATEGORY_STATIC(LogQuorvelCompiledOut, Log, Warning);

namespace
{
	struct FCapturedLine
	{
		FString Category;
		ELogVerbosity::Type Verbosity;
		FString Message;
	};

	class FCaptureDevice final : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			Lines.Add({ Category.ToString(), Verbosity, FString(V) });
		}

		TArray<FCapturedLine> Lines;
	};

	class LogTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			GLog->AddOutputDevice(&Capture);
			LogQuorvelTest.ResetToDefault();
		}

		void TearDown() override
		{
			GLog->RemoveOutputDevice(&Capture);
			LogQuorvelTest.ResetToDefault();
		}

		FCaptureDevice Capture;
	};

	int32 CountingArgument(int32& Calls)
	{
		++Calls;
		return Calls;
	}

	class FHasClassCategory
	{
	public:
		DECLARE_LOG_CATEGORY_CLASS(LogQuorvelClass, Log, All);

		static void Speak()
		{
			UE_LOG(LogQuorvelClass, Log, TEXT("from a class"));
		}
	};

	DEFINE_LOG_CATEGORY_CLASS(FHasClassCategory, LogQuorvelClass);
}

TEST_F(LogTest, SendsCategoryVerbosityAndFormattedMessageToEveryDevice)
{
	UE_LOG(LogQuorvelTest, Warning, TEXT("Slot %d of %s"), 3, TEXT("stash"));
	ASSERT_EQ(Capture.Lines.Num(), 1);
	EXPECT_TRUE(Capture.Lines[0].Category.Equals(TEXT("LogQuorvelTest"), ESearchCase::CaseSensitive));
	EXPECT_EQ(Capture.Lines[0].Verbosity, ELogVerbosity::Warning);
	EXPECT_TRUE(Capture.Lines[0].Message.Equals(TEXT("Slot 3 of stash")));
	EXPECT_TRUE(GLog->IsRedirectingTo(&Capture));
}

TEST_F(LogTest, SuppressedLinesAreNeitherFormattedNorSent)
{
	LogQuorvelTest.SetVerbosity(ELogVerbosity::Warning);
	int32 Calls = 0;
	UE_LOG(LogQuorvelTest, Display, TEXT("hidden %d"), CountingArgument(Calls));
	UE_LOG(LogQuorvelTest, Verbose, TEXT("hidden %d"), CountingArgument(Calls));
	UE_LOG(LogQuorvelTest, Error, TEXT("shown %d"), CountingArgument(Calls));
	EXPECT_EQ(Calls, 1);
	ASSERT_EQ(Capture.Lines.Num(), 1);
	EXPECT_EQ(Capture.Lines[0].Verbosity, ELogVerbosity::Error);
	EXPECT_TRUE(LogQuorvelTest.IsSuppressed(ELogVerbosity::Log));
	EXPECT_FALSE(LogQuorvelTest.IsSuppressed(ELogVerbosity::Warning));
}

TEST_F(LogTest, DefaultVerbosityHidesVerboseAndCompileTimeVerbosityCapsEverything)
{
	UE_LOG(LogQuorvelTest, Verbose, TEXT("not by default"));
	LogQuorvelTest.SetVerbosity(ELogVerbosity::VeryVerbose);
	UE_LOG(LogQuorvelTest, VeryVerbose, TEXT("now shown"));
	ASSERT_EQ(Capture.Lines.Num(), 1);
	EXPECT_TRUE(Capture.Lines[0].Message.Equals(TEXT("now shown")));

	LogQuorvelCompiledOut.SetVerbosity(ELogVerbosity::VeryVerbose);
	EXPECT_EQ(LogQuorvelCompiledOut.GetVerbosity(), ELogVerbosity::Warning);
	UE_LOG(LogQuorvelCompiledOut, Log, TEXT("compiled out"));
	UE_LOG(LogQuorvelCompiledOut, Warning, TEXT("kept"));
	ASSERT_EQ(Capture.Lines.Num(), 2);
	EXPECT_TRUE(Capture.Lines[1].Message.Equals(TEXT("kept")));
}

TEST_F(LogTest, ConditionalAndClassCategoriesLog)
{
	UE_CLOG(false, LogQuorvelTest, Error, TEXT("skipped"));
	UE_CLOG(true, LogQuorvelTest, Error, TEXT("taken"));
	FHasClassCategory::Speak();
	ASSERT_EQ(Capture.Lines.Num(), 2);
	EXPECT_TRUE(Capture.Lines[0].Message.Equals(TEXT("taken")));
	EXPECT_TRUE(Capture.Lines[1].Category.Equals(TEXT("LogQuorvelClass")));
}

TEST_F(LogTest, RemovedDevicesReceiveNothing)
{
	GLog->RemoveOutputDevice(&Capture);
	EXPECT_FALSE(GLog->IsRedirectingTo(&Capture));
	UE_LOG(LogQuorvelTest, Error, TEXT("nobody listening here"));
	EXPECT_EQ(Capture.Lines.Num(), 0);
}

TEST_F(LogTest, DeviceMayRemoveItselfWhileBeingWrittenTo)
{
	class FOneShotDevice final : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			++Received;
			GLog->RemoveOutputDevice(this);
		}

		int32 Received = 0;
	};

	FOneShotDevice OneShot;
	GLog->AddOutputDevice(&OneShot);
	GLog->AddOutputDevice(&OneShot);
	UE_LOG(LogQuorvelTest, Log, TEXT("first"));
	UE_LOG(LogQuorvelTest, Log, TEXT("second"));
	EXPECT_EQ(OneShot.Received, 1);
	EXPECT_EQ(Capture.Lines.Num(), 2);
}

TEST_F(LogTest, LinesFromManyThreadsAllArriveWhole)
{
	constexpr int32 ThreadCount = 4;
	constexpr int32 LinesPerThread = 50;
	LogQuorvelTest.SetVerbosity(ELogVerbosity::Warning);
	std::vector<std::thread> Threads;
	for (int32 ThreadIndex = 0; ThreadIndex < ThreadCount; ++ThreadIndex)
	{
		Threads.emplace_back([ThreadIndex]
		{
			for (int32 Index = 0; Index < LinesPerThread; ++Index)
			{
				UE_LOG(LogQuorvelTest, Warning, TEXT("thread %d line %d"), ThreadIndex, Index);
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	ASSERT_EQ(Capture.Lines.Num(), ThreadCount * LinesPerThread);
	for (const FCapturedLine& Line : Capture.Lines)
	{
		EXPECT_TRUE(Line.Message.StartsWith(TEXT("thread ")));
	}
}

TEST_F(LogTest, DevicesCanBeWrittenToDirectly)
{
	Capture.Logf(TEXT("%d apples"), 3);
	Capture.Log(ELogVerbosity::Error, TEXT("bad"));
	ASSERT_EQ(Capture.Lines.Num(), 2);
	EXPECT_TRUE(Capture.Lines[0].Message.Equals(TEXT("3 apples")));
	EXPECT_EQ(Capture.Lines[0].Verbosity, ELogVerbosity::Log);
	EXPECT_TRUE(Capture.Lines[0].Category.Equals(TEXT("None")));
	EXPECT_EQ(Capture.Lines[1].Verbosity, ELogVerbosity::Error);
}

TEST(LogFormatTest, ConsoleLinesNameTheVerbosityExceptForLog)
{
	const FName Category(TEXT("LogQuorvel"));
	EXPECT_TRUE(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Warning, Category, TEXT("text")).Equals(TEXT("LogQuorvel: Warning: text")));
	EXPECT_TRUE(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Log, Category, TEXT("text")).Equals(TEXT("LogQuorvel: text")));
	EXPECT_TRUE(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Display, Category, TEXT("text")).Equals(TEXT("LogQuorvel: Display: text")));
	EXPECT_EQ(ParseLogVerbosityFromString(TEXT("veryverbose")), ELogVerbosity::VeryVerbose);
}

TEST(LogDeathTest, FatalLinesAbortEvenWhenTheCategoryIsSilenced)
{
	EXPECT_DEATH(
		{
			LogQuorvelTest.SetVerbosity(ELogVerbosity::NoLogging);
			UE_LOG(LogQuorvelTest, Fatal, TEXT("cannot continue %d"), 7);
		},
		"cannot continue 7");
}
