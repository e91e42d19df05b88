#include "Containers/Map.h"
#include "UObject/NameTypes.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

TEST(NameTest, ComparesWithoutCaseButPrintsTheCasingItWasMadeWith)
{
	const FName Mixed(TEXT("StashPanel"));
	const FName Upper(TEXT("STASHPANEL"));
	EXPECT_EQ(Mixed, Upper);
	EXPECT_EQ(GetTypeHash(Mixed), GetTypeHash(Upper));
	EXPECT_TRUE(Mixed.ToString().Equals(TEXT("StashPanel")));
	EXPECT_TRUE(Upper.ToString().Equals(TEXT("STASHPANEL")));
	EXPECT_NE(Mixed, FName(TEXT("StashPanels")));
	EXPECT_TRUE(Mixed == TEXT("stashpanel"));
	EXPECT_FALSE(Mixed == TEXT("stash"));
}

TEST(NameTest, EmptyAndNoneInAnyCaseAreTheNoneNameAndPrintNone)
{
	const FName Defaulted;
	const FName FromEmpty(TEXT(""));
	const FName FromLower(TEXT("none"));
	EXPECT_TRUE(Defaulted.IsNone());
	EXPECT_TRUE(FromEmpty.IsNone());
	EXPECT_TRUE(FromLower.IsNone());
	EXPECT_EQ(FromLower, NAME_None);
	EXPECT_TRUE(FName(NAME_None).ToString().Equals(TEXT("None")));
	EXPECT_TRUE(FromEmpty.ToString().Equals(TEXT("None")));
	EXPECT_TRUE(FromLower.ToString().Equals(TEXT("None")));
	EXPECT_TRUE(Defaulted == TEXT("NONE"));
	EXPECT_TRUE(Defaulted == TEXT(""));
}

TEST(NameTest, TrailingNumberIsStoredApartAndPrintsBackExactly)
{
	const FName Numbered(TEXT("Item_3"));
	EXPECT_EQ(Numbered.GetNumber(), NAME_EXTERNAL_TO_INTERNAL(3));
	EXPECT_TRUE(Numbered.GetPlainNameString().Equals(TEXT("Item")));
	EXPECT_TRUE(Numbered.ToString().Equals(TEXT("Item_3")));
	EXPECT_EQ(Numbered.GetComparisonIndex(), FName(TEXT("Item")).GetComparisonIndex());
	EXPECT_NE(Numbered, FName(TEXT("Item")));
	EXPECT_EQ(Numbered, FName(FName(TEXT("item")), NAME_EXTERNAL_TO_INTERNAL(3)));

	const FName Zero(TEXT("Item_0"));
	EXPECT_EQ(Zero.GetNumber(), 1);
	EXPECT_TRUE(Zero.ToString().Equals(TEXT("Item_0")));
}

TEST(NameTest, SuffixesThatWouldNotRoundTripStayInThePlainName)
{
	const TCHAR* const Unsplit[] = { TEXT("Item_03"), TEXT("Item_"), TEXT("_7"), TEXT("Item7"), TEXT("Item_99999999999") };
	for (const TCHAR* Text : Unsplit)
	{
		const FName Name(Text);
		EXPECT_EQ(Name.GetNumber(), NAME_NO_NUMBER_INTERNAL) << FString(Text).Len();
		EXPECT_TRUE(Name.ToString().Equals(Text));
	}
	EXPECT_NE(FName(TEXT("Item_03")), FName(TEXT("Item_3")));
}

TEST(NameTest, FindingDoesNotAddUnknownNames)
{
	EXPECT_TRUE(FName(TEXT("NeverRegisteredBeforeThisTest"), FNAME_Find).IsNone());
	const FName Added(TEXT("RegisteredByThisTest"));
	EXPECT_EQ(FName(TEXT("registeredbythistest"), FNAME_Find), Added);
}

TEST(NameTest, LexicalOrderIgnoresCaseThenComparesNumbers)
{
	EXPECT_TRUE(FName(TEXT("apple")).LexicalLess(FName(TEXT("Banana"))));
	EXPECT_FALSE(FName(TEXT("Banana")).LexicalLess(FName(TEXT("apple"))));
	EXPECT_TRUE(FName(TEXT("Slot_2")).LexicalLess(FName(TEXT("slot_10"))));
	EXPECT_EQ(FName(TEXT("X")).Compare(FName(TEXT("x"))), 0);
	const FName A(TEXT("FastA"));
	const FName B(TEXT("FastB"));
	EXPECT_NE(A.FastLess(B), B.FastLess(A));
}

TEST(NameTest, WorksAsAMapKeyWithoutRegardToCase)
{
	TMap<FName, int32> Counts;
	Counts.Add(FName(TEXT("Ammo")), 3);
	Counts.FindOrAdd(FName(TEXT("AMMO"))) += 2;
	EXPECT_EQ(Counts.Num(), 1);
	ASSERT_NE(Counts.Find(FName(TEXT("ammo"))), nullptr);
	EXPECT_EQ(*Counts.Find(FName(TEXT("ammo"))), 5);
}

TEST(NameTest, ConcurrentRegistrationGivesEveryThreadTheSameEntries)
{
	constexpr int32 ThreadCount = 4;
	constexpr int32 NamesPerThread = 500;
	std::vector<std::vector<FName>> Results(ThreadCount);
	std::vector<std::thread> Threads;
	for (int32 ThreadIndex = 0; ThreadIndex < ThreadCount; ++ThreadIndex)
	{
		Threads.emplace_back([ThreadIndex, &Results]
		{
			for (int32 Index = 0; Index < NamesPerThread; ++Index)
			{
				const FString Text = ThreadIndex % 2 ? FString::Printf(TEXT("CONCURRENT%d"), Index) : FString::Printf(TEXT("concurrent%d"), Index);
				Results[ThreadIndex].push_back(FName(Text));
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (int32 Index = 0; Index < NamesPerThread; ++Index)
	{
		for (int32 ThreadIndex = 1; ThreadIndex < ThreadCount; ++ThreadIndex)
		{
			ASSERT_EQ(Results[0][Index], Results[ThreadIndex][Index]);
		}
		EXPECT_TRUE(Results[1][Index].ToString().StartsWith(TEXT("CONCURRENT"), ESearchCase::CaseSensitive));
	}
}
