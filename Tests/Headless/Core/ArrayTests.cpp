#include "Containers/Array.h"
#include "Containers/ScriptArray.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
	// Knows its own address, so a bitwise relocation, a double destruction or a leak shows up.
	struct FTracked
	{
		static inline int32 Live = 0;

		FTracked(int32 InValue = 0)
			: Self(this)
			, Value(InValue)
			, Text(std::string(40, char('a' + InValue % 26)))
		{
			++Live;
		}

		FTracked(const FTracked& Other)
			: Self(this)
			, Value(Other.Value)
			, Text(Other.Text)
		{
			++Live;
		}

		FTracked(FTracked&& Other)
			: Self(this)
			, Value(Other.Value)
			, Text(MoveTemp(Other.Text))
		{
			Other.Value = -1;
			++Live;
		}

		FTracked& operator=(const FTracked& Other)
		{
			EXPECT_EQ(Self, this);
			Value = Other.Value;
			Text = Other.Text;
			return *this;
		}

		FTracked& operator=(FTracked&& Other)
		{
			EXPECT_EQ(Self, this);
			Value = Other.Value;
			Text = MoveTemp(Other.Text);
			Other.Value = -1;
			return *this;
		}

		~FTracked()
		{
			EXPECT_EQ(Self, this) << "element was relocated bitwise";
			--Live;
		}

		bool operator==(const FTracked& Other) const
		{
			return Value == Other.Value;
		}

		bool operator<(const FTracked& Other) const
		{
			return Value < Other.Value;
		}

		FTracked* Self;
		int32 Value;
		std::string Text;
	};

	TArray<int32> Values(const TArray<FTracked>& Array)
	{
		TArray<int32> Result;
		for (const FTracked& Element : Array)
		{
			EXPECT_EQ(Element.Text, std::string(40, char('a' + Element.Value % 26)));
			Result.Add(Element.Value);
		}
		return Result;
	}

	class ArrayTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FTracked::Live = 0;
		}

		void TearDown() override
		{
			EXPECT_EQ(FTracked::Live, 0) << "elements leaked or destroyed twice";
		}
	};
}

TEST_F(ArrayTest, GrowingMovesNonTrivialElementsIntact)
{
	TArray<FTracked> Array;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Array.Emplace(Index);
	}
	ASSERT_EQ(Array.Num(), 100);
	EXPECT_GE(Array.Max(), 100);
	for (int32 Index = 0; Index < 100; ++Index)
	{
		EXPECT_EQ(Array[Index].Value, Index);
	}
	EXPECT_EQ(FTracked::Live, 100);
	Values(Array);
}

TEST_F(ArrayTest, AddingAnElementOfTheSameArrayCopiesItBeforeGrowing)
{
	TArray<FTracked> Array;
	Array.Emplace(7);
	Array.Shrink();
	Array.Add(Array[0]);
	Array.Shrink();
	Array.Add(Array.Last());
	EXPECT_EQ(Values(Array), TArray<int32>({7, 7, 7}));
}

TEST_F(ArrayTest, RemovalsKeepTheOrderOfTheRemainingElements)
{
	TArray<FTracked> Array;
	for (int32 Index = 0; Index < 10; ++Index)
	{
		Array.Emplace(Index % 5);
	}

	EXPECT_EQ(Array.Remove(FTracked(3)), 2);
	EXPECT_EQ(Values(Array), TArray<int32>({0, 1, 2, 4, 0, 1, 2, 4}));

	EXPECT_EQ(Array.RemoveSingle(FTracked(1)), 1);
	EXPECT_EQ(Values(Array), TArray<int32>({0, 2, 4, 0, 1, 2, 4}));

	Array.RemoveAt(1, 2);
	EXPECT_EQ(Values(Array), TArray<int32>({0, 0, 1, 2, 4}));

	EXPECT_EQ(Array.RemoveAll([](const FTracked& Element) { return Element.Value == 0; }), 2);
	EXPECT_EQ(Values(Array), TArray<int32>({1, 2, 4}));

	EXPECT_EQ(Array.Pop().Value, 4);
	EXPECT_EQ(Values(Array), TArray<int32>({1, 2}));
	EXPECT_EQ(Array.RemoveSingle(FTracked(9)), 0);
}

TEST_F(ArrayTest, SwapRemovalsFillTheHoleFromTheEnd)
{
	TArray<FTracked> Array;
	for (int32 Index = 0; Index < 6; ++Index)
	{
		Array.Emplace(Index);
	}
	Array.RemoveAtSwap(1);
	EXPECT_EQ(Values(Array), TArray<int32>({0, 5, 2, 3, 4}));
	Array.RemoveAtSwap(3, 2);
	EXPECT_EQ(Values(Array), TArray<int32>({0, 5, 2}));
	Array.RemoveAtSwap(0, 2);
	EXPECT_EQ(Values(Array), TArray<int32>({2}));
	EXPECT_EQ(Array.RemoveSwap(FTracked(2)), 1);
	EXPECT_TRUE(Array.IsEmpty());
}

TEST_F(ArrayTest, InsertionsShiftLaterElementsUp)
{
	TArray<FTracked> Array;
	Array.Emplace(1);
	Array.Emplace(4);
	Array.Insert(FTracked(0), 0);
	TArray<FTracked> Middle;
	Middle.Emplace(2);
	Middle.Emplace(3);
	Array.Insert(Middle, 2);
	Array.Insert(FTracked(5), Array.Num());
	EXPECT_EQ(Values(Array), TArray<int32>({0, 1, 2, 3, 4, 5}));
	EXPECT_EQ(Values(Middle), TArray<int32>({2, 3}));

	Array.Insert(MoveTemp(Middle), 1);
	EXPECT_TRUE(Middle.IsEmpty());
	EXPECT_EQ(Values(Array), TArray<int32>({0, 2, 3, 1, 2, 3, 4, 5}));
}

TEST_F(ArrayTest, AppendCopiesOrMovesAndKeepsBothSidesValid)
{
	TArray<FTracked> Array;
	Array.Emplace(0);
	TArray<FTracked> Other;
	Other.Emplace(1);
	Other.Emplace(2);
	Array.Append(Other);
	Array.Append(MoveTemp(Other));
	Array.Append({FTracked(3)});
	EXPECT_TRUE(Other.IsEmpty());
	EXPECT_EQ(Values(Array), TArray<int32>({0, 1, 2, 1, 2, 3}));

	TArray<FTracked> Copy = Array;
	TArray<FTracked> Moved = MoveTemp(Copy);
	EXPECT_TRUE(Copy.IsEmpty());
	EXPECT_EQ(Moved, Array);
	Moved[0].Value = 9;
	EXPECT_NE(Moved, Array);
}

TEST_F(ArrayTest, ResetKeepsTheAllocationAndEmptyReleasesIt)
{
	TArray<FTracked> Array;
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Array.Emplace(Index);
	}
	const int32 Capacity = Array.Max();
	const FTracked* Storage = Array.GetData();
	Array.Reset();
	EXPECT_EQ(Array.Num(), 0);
	EXPECT_EQ(Array.Max(), Capacity);
	EXPECT_EQ(Array.GetData(), Storage);
	EXPECT_EQ(FTracked::Live, 0);

	Array.Emplace(1);
	Array.Empty(3);
	EXPECT_EQ(Array.Max(), 3);
	Array.Empty();
	EXPECT_EQ(Array.Max(), 0);
	EXPECT_EQ(Array.GetData(), nullptr);
}

TEST_F(ArrayTest, SetNumDefaultConstructsGrowthAndDestroysTheTail)
{
	TArray<FTracked> Array;
	Array.SetNum(3);
	EXPECT_EQ(Values(Array), TArray<int32>({0, 0, 0}));
	Array[2].Value = 5;
	Array.SetNum(1);
	EXPECT_EQ(FTracked::Live, 1);

	TArray<int32> Integers;
	Integers.SetNumZeroed(4);
	EXPECT_EQ(Integers, TArray<int32>({0, 0, 0, 0}));
	Integers.SetNumUninitialized(2);
	Integers.AddZeroed(2);
	EXPECT_EQ(Integers, TArray<int32>({0, 0, 0, 0}));
	EXPECT_EQ(Integers.AddDefaulted(2), 4);
	EXPECT_EQ(Integers.Num(), 6);
	EXPECT_EQ(Integers.Last(), 0);
}

TEST_F(ArrayTest, RemovingMostElementsGivesMemoryBackOnlyWhenAllowed)
{
	TArray<int32> Array;
	Array.SetNumZeroed(1000);
	Array.RemoveAt(10, 990, EAllowShrinking::No);
	EXPECT_GE(Array.Max(), 1000);
	Array.Add(1);
	Array.RemoveAt(10);
	EXPECT_EQ(Array.Max(), 10);
}

TEST_F(ArrayTest, SearchesFindFirstLastAndByPredicate)
{
	TArray<int32> Array = {4, 8, 15, 16, 23, 42, 8};
	int32 Index = 0;
	EXPECT_EQ(Array.Find(8), 1);
	EXPECT_TRUE(Array.Find(8, Index));
	EXPECT_EQ(Index, 1);
	EXPECT_EQ(Array.FindLast(8), 6);
	EXPECT_FALSE(Array.Find(5, Index));
	EXPECT_EQ(Index, INDEX_NONE);
	EXPECT_EQ(Array.IndexOfByKey(15), 2);
	EXPECT_EQ(Array.IndexOfByPredicate([](int32 Value) { return Value > 20; }), 4);
	EXPECT_EQ(*Array.FindByPredicate([](int32 Value) { return Value > 20; }), 23);
	EXPECT_EQ(Array.FindByKey(99), nullptr);
	EXPECT_TRUE(Array.ContainsByPredicate([](int32 Value) { return Value == 42; }));
	EXPECT_EQ(Array.FilterByPredicate([](int32 Value) { return Value % 2 == 0; }), TArray<int32>({4, 8, 16, 42, 8}));
	EXPECT_EQ(Array.AddUnique(15), 2);
	EXPECT_EQ(Array.AddUnique(99), 7);
}

TEST_F(ArrayTest, SortOrdersPointeesWhenElementsArePointers)
{
	int32 Storage[] = {3, 1, 2};
	TArray<int32*> Pointers = {&Storage[0], &Storage[1], &Storage[2]};
	Pointers.Sort();
	EXPECT_EQ(*Pointers[0], 1);
	EXPECT_EQ(*Pointers[2], 3);

	TArray<int32> Values = {5, 3, 9, 1};
	Values.Sort([](int32 A, int32 B) { return A > B; });
	EXPECT_EQ(Values, TArray<int32>({9, 5, 3, 1}));
}

TEST_F(ArrayTest, StableSortKeepsEqualElementsInOrder)
{
	struct FEntry
	{
		int32 Key;
		int32 Order;
	};
	TArray<FEntry> Entries;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Entries.Add({Index % 3, Index});
	}
	Entries.StableSort([](const FEntry& A, const FEntry& B) { return A.Key < B.Key; });
	for (int32 Index = 1; Index < Entries.Num(); ++Index)
	{
		const bool bOrdered = Entries[Index - 1].Key < Entries[Index].Key
			|| (Entries[Index - 1].Key == Entries[Index].Key && Entries[Index - 1].Order < Entries[Index].Order);
		EXPECT_TRUE(bOrdered) << "at " << Index;
	}
}

TEST_F(ArrayTest, IteratorRemoveCurrentVisitsEveryRemainingElement)
{
	TArray<int32> Array = {1, 2, 2, 3, 2, 4};
	TArray<int32> Visited;
	for (TArray<int32>::TIterator It = Array.CreateIterator(); It; ++It)
	{
		Visited.Add(*It);
		if (*It == 2)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(Visited, TArray<int32>({1, 2, 2, 3, 2, 4}));
	EXPECT_EQ(Array, TArray<int32>({1, 3, 4}));
}

TEST_F(ArrayTest, OutOfRangeAccessIsAFatalCheck)
{
	TArray<int32> Array = {1};
	EXPECT_DEATH((void)Array[1], "index out of bounds");
	EXPECT_DEATH((void)Array[-1], "index out of bounds");
}

TEST_F(ArrayTest, ScriptArrayGrowsAndShrinksAnArrayWithoutItsType)
{
	TArray<int32> Array = {1, 2, 3};
	FScriptArray& Script = reinterpret_cast<FScriptArray&>(Array);
	EXPECT_EQ(Script.Num(), 3);
	EXPECT_EQ(Script.GetData(), Array.GetData());

	const int32 Index = Script.AddZeroed(2, sizeof(int32), alignof(int32));
	EXPECT_EQ(Index, 3);
	Script.Insert(0, 1, sizeof(int32), alignof(int32));
	Array[0] = 7;
	EXPECT_EQ(Array, TArray<int32>({7, 1, 2, 3, 0, 0}));

	Script.Remove(1, 2, sizeof(int32), alignof(int32));
	EXPECT_EQ(Array, TArray<int32>({7, 3, 0, 0}));
	Array.Add(5);
	EXPECT_EQ(Script.Num(), 5);
}

TEST_F(ArrayTest, MoveOnlyElementsSurviveGrowthAndRemoval)
{
	TArray<TUniquePtr<int32>> Owners;
	for (int32 Index = 0; Index < 40; ++Index)
	{
		Owners.Add(MakeUnique<int32>(Index));
	}
	Owners.RemoveAt(0);
	Owners.Insert(MakeUnique<int32>(-1), 5);
	TUniquePtr<int32> Last = Owners.Pop();
	EXPECT_EQ(*Last, 39);
	EXPECT_EQ(*Owners[0], 1);
	EXPECT_EQ(*Owners[5], -1);
	EXPECT_EQ(*Owners[6], 6);
	EXPECT_EQ(Owners.Num(), 39);
}

TEST_F(ArrayTest, RangedForReportsAnArrayThatGrowsWhileIterated)
{
	// Room is reserved so the addition does not move the storage under the loop.
	TArray<int32> Array = {1, 2};
	Array.Reserve(64);
	testing::internal::CaptureStderr();
	int32 Visited = 0;
	for (int32 Value : Array)
	{
		if (Visited++ == 0)
		{
			Array.Add(Value);
		}
	}
	EXPECT_EQ(Visited, 2);
	const std::string Errors = testing::internal::GetCapturedStderr();
	EXPECT_NE(Errors.find("Array has changed during ranged-for iteration"), std::string::npos);
}
