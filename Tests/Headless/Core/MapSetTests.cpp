#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
	// Every key lands in the same bucket, so lookups must compare keys, not hashes alone.
	struct FCollidingKey
	{
		int32 Id = 0;

		bool operator==(const FCollidingKey& Other) const
		{
			return Id == Other.Id;
		}

		friend uint32 GetTypeHash(const FCollidingKey&)
		{
			return 42;
		}
	};

	// Equal regardless of case, like FString, so a replaced key is observable.
	struct FCaseBlindKey
	{
		std::string Text;

		bool operator==(const FCaseBlindKey& Other) const
		{
			if (Text.size() != Other.Text.size())
			{
				return false;
			}
			for (size_t Index = 0; Index < Text.size(); ++Index)
			{
				if (std::tolower(Text[Index]) != std::tolower(Other.Text[Index]))
				{
					return false;
				}
			}
			return true;
		}

		friend uint32 GetTypeHash(const FCaseBlindKey& Key)
		{
			uint32 Hash = 0;
			for (char Char : Key.Text)
			{
				Hash = HashCombineFast(Hash, uint32(std::tolower(Char)));
			}
			return Hash;
		}
	};

	template <typename MapType>
	TArray<int32> KeysOf(const MapType& Map)
	{
		TArray<int32> Keys;
		for (const auto& [Key, Value] : Map)
		{
			Keys.Add(Key);
		}
		return Keys;
	}
}

TEST(MapTest, IteratesInInsertionOrderAcrossRehashes)
{
	TMap<int32, std::string> Map;
	TArray<int32> Expected;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		const int32 Key = (Index * 7919) % 1000;
		Map.Add(Key, std::string(30, 'x') + std::to_string(Key));
		Expected.Add(Key);
	}
	EXPECT_EQ(KeysOf(Map), Expected);
	for (const TPair<int32, std::string>& Pair : Map)
	{
		EXPECT_EQ(Pair.Value, std::string(30, 'x') + std::to_string(Pair.Key));
	}
}

TEST(MapTest, ReAddedKeyTakesTheMostRecentlyFreedSlot)
{
	TMap<int32, int32> Map;
	for (int32 Key = 0; Key < 5; ++Key)
	{
		Map.Add(Key, Key * 10);
	}
	EXPECT_EQ(Map.Remove(1), 1);
	EXPECT_EQ(Map.Remove(3), 1);
	EXPECT_EQ(Map.Remove(3), 0);
	EXPECT_EQ(KeysOf(Map), TArray<int32>({0, 2, 4}));

	Map.Add(7, 70);
	Map.Add(8, 80);
	Map.Add(9, 90);
	EXPECT_EQ(KeysOf(Map), TArray<int32>({0, 8, 2, 7, 4, 9}));

	Map.Remove(8);
	Map.CompactStable();
	Map.Add(8, 80);
	EXPECT_EQ(KeysOf(Map), TArray<int32>({0, 2, 7, 4, 9, 8})) << "compaction leaves no hole to refill";
	EXPECT_EQ(Map.FindRef(7), 70);
}

TEST(MapTest, AddingAnExistingKeyReplacesKeyAndValueInPlace)
{
	TMap<FCaseBlindKey, int32> Map;
	Map.Add({"Alpha"}, 1);
	Map.Add({"Beta"}, 2);
	int32& Value = Map.Add({"ALPHA"}, 3);
	EXPECT_EQ(Value, 3);
	ASSERT_EQ(Map.Num(), 2);
	auto It = Map.CreateConstIterator();
	EXPECT_EQ(It.Key().Text, "ALPHA");
	EXPECT_EQ(It.Value(), 3);
	EXPECT_EQ(Map.FindChecked({"alpha"}), 3);
}

TEST(MapTest, CollidingKeysAreFoundAndRemovedIndividually)
{
	TMap<FCollidingKey, int32> Map;
	for (int32 Id = 0; Id < 50; ++Id)
	{
		Map.Add({Id}, Id * 2);
	}
	for (int32 Id = 0; Id < 50; Id += 3)
	{
		EXPECT_EQ(Map.Remove({Id}), 1);
	}
	for (int32 Id = 0; Id < 50; ++Id)
	{
		const int32* Value = Map.Find({Id});
		if (Id % 3 == 0)
		{
			EXPECT_EQ(Value, nullptr) << Id;
		}
		else
		{
			ASSERT_NE(Value, nullptr) << Id;
			EXPECT_EQ(*Value, Id * 2);
		}
	}
	EXPECT_EQ(Map.Num(), 33);
}

TEST(MapTest, LookupsAndRemovalsReportWhatTheyFound)
{
	TMap<int32, std::string> Map;
	Map.Add(1, "one");
	EXPECT_EQ(Map.FindOrAdd(1), "one");
	Map.FindOrAdd(2) = "two";
	EXPECT_EQ(Map.FindOrAdd(3, "three"), "three");
	EXPECT_TRUE(Map.Contains(2));
	EXPECT_EQ(Map.FindRef(9), "");
	EXPECT_EQ(Map.FindRef(9, "none"), "none");
	EXPECT_EQ(Map[3], "three");
	EXPECT_EQ(*Map.FindKey("two"), 2);

	std::string Removed;
	EXPECT_TRUE(Map.RemoveAndCopyValue(2, Removed));
	EXPECT_EQ(Removed, "two");
	EXPECT_FALSE(Map.RemoveAndCopyValue(2, Removed));
	EXPECT_EQ(Map.FindAndRemoveChecked(1), "one");
	EXPECT_EQ(Map.Num(), 1);

	EXPECT_DEATH(Map.FindChecked(1), "Value != nullptr");
}

TEST(MapTest, StringKeysAreFoundByHashThroughAViewOfAnyCase)
{
	TMap<FString, int32> Map;
	Map.Add(TEXT("item_id"), 1);
	Map.Add(TEXT("item"), 2);

	// Views cut out of a longer text: not terminated where the key ends.
	const FString Text(TEXT("ITEM_ID:item"));
	const FStringView Upper = FStringView(Text).Left(7);
	const FStringView Prefix = FStringView(Text).Left(4);
	EXPECT_EQ(GetTypeHash(Upper), GetTypeHash(FString(TEXT("item_id"))));
	ASSERT_NE(Map.FindByHash(GetTypeHash(Upper), Upper), nullptr);
	EXPECT_EQ(*Map.FindByHash(GetTypeHash(Upper), Upper), 1);
	ASSERT_NE(Map.FindByHash(GetTypeHash(Prefix), Prefix), nullptr);
	EXPECT_EQ(*Map.FindByHash(GetTypeHash(Prefix), Prefix), 2);
	const FStringView Missing = FStringView(Text).Left(6);
	EXPECT_EQ(Map.FindByHash(GetTypeHash(Missing), Missing), nullptr);
}

TEST(MapTest, KeyAndValueArraysFollowIterationOrder)
{
	TMap<int32, int32> Map = {{5, 50}, {1, 10}, {3, 30}};
	TArray<int32> Keys = {99};
	EXPECT_EQ(Map.GetKeys(Keys), 3);
	EXPECT_EQ(Keys, TArray<int32>({5, 1, 3}));
	TArray<int32> Values;
	Map.GenerateValueArray(Values);
	EXPECT_EQ(Values, TArray<int32>({50, 10, 30}));

	Map.KeySort([](int32 A, int32 B) { return A < B; });
	EXPECT_EQ(KeysOf(Map), TArray<int32>({1, 3, 5}));
	EXPECT_EQ(Map.FindRef(5), 50);
	Map.ValueSort([](int32 A, int32 B) { return A > B; });
	EXPECT_EQ(KeysOf(Map), TArray<int32>({5, 3, 1}));

	TMap<int32, int32> Reordered = {{1, 10}, {3, 30}, {5, 50}};
	EXPECT_TRUE(Map.OrderIndependentCompareEqual(Reordered));
	Reordered[3] = 31;
	EXPECT_FALSE(Map.OrderIndependentCompareEqual(Reordered));
}

TEST(MapTest, IteratorRemovesWhileWalkingEveryElement)
{
	TMap<int32, int32> Map;
	for (int32 Key = 0; Key < 20; ++Key)
	{
		Map.Add(Key, Key);
	}
	int32 Visited = 0;
	for (auto It = Map.CreateIterator(); It; ++It)
	{
		++Visited;
		if (It.Key() % 2 == 1)
		{
			It.RemoveCurrent();
		}
		else
		{
			It.Value() *= 10;
		}
	}
	EXPECT_EQ(Visited, 20);
	EXPECT_EQ(Map.Num(), 10);
	EXPECT_EQ(Map.FindRef(4), 40);
	EXPECT_FALSE(Map.Contains(5));
}

TEST(MapTest, CopiesAreIndependentAndMovesEmptyTheSource)
{
	TMap<int32, std::string> Map = {{1, std::string(50, 'a')}};
	TMap<int32, std::string> Copy = Map;
	Copy[1] = "changed";
	Copy.Add(2, "two");
	EXPECT_EQ(Map[1], std::string(50, 'a'));
	EXPECT_EQ(Map.Num(), 1);

	TMap<int32, std::string> Moved = MoveTemp(Copy);
	EXPECT_TRUE(Copy.IsEmpty());
	EXPECT_FALSE(Copy.Contains(1));
	EXPECT_EQ(Moved.FindRef(2), "two");

	Moved.Reset();
	EXPECT_TRUE(Moved.IsEmpty());
	Moved.Add(3, "three");
	EXPECT_EQ(KeysOf(Moved), TArray<int32>({3}));
}

TEST(SetTest, AddReportsDuplicatesAndKeepsInsertionOrder)
{
	TSet<int32> Set;
	bool bAlreadyInSet = true;
	Set.Add(3, &bAlreadyInSet);
	EXPECT_FALSE(bAlreadyInSet);
	Set.Add(1);
	Set.Add(2);
	Set.Add(3, &bAlreadyInSet);
	EXPECT_TRUE(bAlreadyInSet);
	EXPECT_EQ(Set.Num(), 3);
	EXPECT_EQ(Set.Array(), TArray<int32>({3, 1, 2}));

	EXPECT_EQ(Set.Remove(1), 1);
	EXPECT_EQ(Set.Remove(1), 0);
	EXPECT_FALSE(Set.Contains(1));
	EXPECT_EQ(*Set.Find(2), 2);
	EXPECT_EQ(Set.Find(1), nullptr);
	Set.Add(4);
	EXPECT_EQ(Set.Array(), TArray<int32>({3, 4, 2}));
}

TEST(SetTest, SetAlgebraUsesKeyEquality)
{
	const TSet<int32> A = {1, 2, 3, 4};
	const TSet<int32> B = {3, 4, 5};
	EXPECT_EQ(A.Intersect(B).Array(), TArray<int32>({3, 4}));
	EXPECT_EQ(A.Union(B).Array(), TArray<int32>({1, 2, 3, 4, 5}));
	EXPECT_EQ(A.Difference(B).Array(), TArray<int32>({1, 2}));
	EXPECT_TRUE(A.Includes(TSet<int32>({2, 4})));
	EXPECT_FALSE(A.Includes(B));
	EXPECT_EQ(GetTypeHash(TSet<int32>({1, 2})), GetTypeHash(TSet<int32>({2, 1})));
}

TEST(MapTest, HoldsMoveOnlyValues)
{
	TMap<int32, TUniquePtr<std::string>> Map;
	Map.Add(1, MakeUnique<std::string>("one"));
	Map.Emplace(2, MakeUnique<std::string>("two"));
	Map.FindOrAdd(3) = MakeUnique<std::string>("three");
	EXPECT_EQ(**Map.Find(2), "two");
	TUniquePtr<std::string> Removed = Map.FindAndRemoveChecked(1);
	EXPECT_EQ(*Removed, "one");
	EXPECT_EQ(KeysOf(Map), TArray<int32>({2, 3}));
}

TEST(SetTest, SortingReordersAndKeepsEveryElementFindable)
{
	TSet<int32> Set = {5, 1, 4, 2, 3};
	Set.Remove(4);
	Set.Sort([](int32 A, int32 B) { return A < B; });
	EXPECT_EQ(Set.Array(), TArray<int32>({1, 2, 3, 5}));
	for (int32 Value : {1, 2, 3, 5})
	{
		EXPECT_TRUE(Set.Contains(Value)) << Value;
	}
	EXPECT_FALSE(Set.Contains(4));
	Set.Add(0);
	EXPECT_EQ(Set.Array(), TArray<int32>({1, 2, 3, 5, 0}));
}
