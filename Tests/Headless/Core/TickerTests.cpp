#include "Containers/Ticker.h"

#include <gtest/gtest.h>

TEST(Ticker, ADelegateRunsOnceItsDelayHasBeenTickedAndStopsWhenItReturnsFalse)
{
	FTSTicker Ticker;
	TArray<float> Calls;
	Ticker.AddTicker(TEXT("Once"), 0.5f, [&Calls](float DeltaTime)
	{
		Calls.Add(DeltaTime);
		return false;
	});

	Ticker.Tick(0.3f);
	EXPECT_EQ(Calls.Num(), 0);
	Ticker.Tick(0.25f);
	ASSERT_EQ(Calls.Num(), 1);
	EXPECT_FLOAT_EQ(Calls[0], 0.25f);
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls.Num(), 1);
}

TEST(Ticker, ADelegateThatReturnsTrueRunsAgainAfterItsDelayUntilRemoved)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	const FTSTicker::FDelegateHandle Handle = Ticker.AddTicker(FTickerDelegate::CreateLambda([&Calls](float)
	{
		++Calls;
		return true;
	}), 1.0f);

	Ticker.Tick(1.0f);
	Ticker.Tick(0.5f);
	EXPECT_EQ(Calls, 1);
	Ticker.Tick(0.5f);
	EXPECT_EQ(Calls, 2);

	FTSTicker::RemoveTicker(Handle);
	Ticker.Tick(5.0f);
	EXPECT_EQ(Calls, 2);
}

TEST(Ticker, ATickerAddedDuringATickWaitsForTheNextOne)
{
	FTSTicker Ticker;
	int32 InnerCalls = 0;
	Ticker.AddTicker(TEXT("Outer"), 0.0f, [&](float)
	{
		Ticker.AddTicker(TEXT("Inner"), 0.0f, [&InnerCalls](float)
		{
			++InnerCalls;
			return false;
		});
		return false;
	});

	Ticker.Tick(0.1f);
	EXPECT_EQ(InnerCalls, 0);
	Ticker.Tick(0.1f);
	EXPECT_EQ(InnerCalls, 1);
}
