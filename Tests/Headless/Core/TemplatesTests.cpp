#include "Misc/EnumClassFlags.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"
#include "Templates/Tuple.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
	enum class ETestFlags : uint8
	{
		None = 0,
		A = 1 << 0,
		B = 1 << 1,
		C = 1 << 2,
	};
	ENUM_CLASS_FLAGS(ETestFlags);

	int32 Twice(int32 Value)
	{
		return Value * 2;
	}

	int32 CallWith(TFunctionRef<int32(int32)> Func, int32 Value)
	{
		return Func(Value);
	}
}

TEST(FunctionTest, CopiesOwnIndependentState)
{
	int32 Counter = 0;
	TFunction<int32()> Increment = [Count = 0]() mutable { return ++Count; };
	EXPECT_EQ(Increment(), 1);
	TFunction<int32()> Copy = Increment;
	EXPECT_EQ(Copy(), 2);
	EXPECT_EQ(Increment(), 2);

	TFunction<void(int32)> Store = [&Counter](int32 Value) { Counter = Value; };
	TFunction<void(int32)> Moved = MoveTemp(Store);
	EXPECT_FALSE(Store.IsSet());
	Moved(7);
	EXPECT_EQ(Counter, 7);

	TFunction<int32(int32)> FromPointer = &Twice;
	EXPECT_EQ(FromPointer(4), 8);
	TFunction<void(int32)> DropsResult = &Twice;
	DropsResult(1);
}

TEST(FunctionTest, UnboundFunctionsReportUnsetAndFailWhenCalled)
{
	TFunction<void()> Empty;
	EXPECT_FALSE(Empty.IsSet());
	EXPECT_FALSE(static_cast<bool>(Empty));
	EXPECT_TRUE(Empty == nullptr);
	int32 (*NullPointer)(int32) = nullptr;
	TFunction<int32(int32)> FromNull = NullPointer;
	EXPECT_FALSE(FromNull.IsSet());
	EXPECT_DEATH(Empty(), "unbound TFunction");

	TFunction<void()> Bound = [] {};
	Bound = nullptr;
	EXPECT_FALSE(Bound.IsSet());
}

TEST(FunctionTest, UniqueFunctionHoldsMoveOnlyCallables)
{
	TUniquePtr<int32> Owned = MakeUnique<int32>(41);
	TUniqueFunction<int32()> Take = [Value = MoveTemp(Owned)]() { return *Value + 1; };
	TUniqueFunction<int32()> Moved = MoveTemp(Take);
	EXPECT_FALSE(Take.IsSet());
	EXPECT_EQ(Moved(), 42);

	TFunction<int32()> Copyable = [] { return 3; };
	TUniqueFunction<int32()> FromCopyable = Copyable;
	EXPECT_EQ(FromCopyable(), 3);
	EXPECT_TRUE(Copyable.IsSet());
	TUniqueFunction<int32()> FromUnset = TFunction<int32()>();
	EXPECT_FALSE(FromUnset.IsSet());
}

TEST(FunctionTest, ParametersKeepTheirReferenceAndMoveSemantics)
{
	int32 Target = 0;
	TFunction<void(int32&)> SetByReference = [](int32& Out) { Out = 9; };
	SetByReference(Target);
	EXPECT_EQ(Target, 9);

	TUniqueFunction<int32(TUniquePtr<int32>)> Consume = [](TUniquePtr<int32> Owned) { return *Owned; };
	EXPECT_EQ(Consume(MakeUnique<int32>(5)), 5);

	TFunction<const std::string&(const std::string&)> Identity = [](const std::string& In) -> const std::string& { return In; };
	const std::string Original = "same object";
	EXPECT_EQ(&Identity(Original), &Original);
}

TEST(FunctionTest, FunctionRefCallsTheReferencedCallable)
{
	int32 Calls = 0;
	auto Lambda = [&Calls](int32 Value) { ++Calls; return Value + 1; };
	EXPECT_EQ(CallWith(Lambda, 1), 2);
	EXPECT_EQ(CallWith([](int32 Value) { return Value * 10; }, 3), 30);
	EXPECT_EQ(Calls, 1);
}

TEST(OptionalTest, HoldsOrLacksAValue)
{
	TOptional<std::string> Value;
	EXPECT_FALSE(Value.IsSet());
	EXPECT_EQ(Value.Get("fallback"), "fallback");
	EXPECT_EQ(Value.GetPtrOrNull(), nullptr);
	EXPECT_DEATH(Value.GetValue(), "unset TOptional");

	Value = std::string(40, 'x');
	ASSERT_TRUE(Value.IsSet());
	EXPECT_EQ(Value->size(), 40u);
	Value.Emplace("short");
	EXPECT_EQ(*Value, "short");

	TOptional<std::string> Same(InPlace, "short");
	EXPECT_TRUE(Value == Same);
	Same.Reset();
	EXPECT_TRUE(Value != Same);
	EXPECT_TRUE(Same == TOptional<std::string>(NullOpt));
}

TEST(TupleTest, PairsExposeKeyValueAndBindStructurally)
{
	TPair<std::string, int32> Pair("key", 3);
	auto& [Key, Value] = Pair;
	Value = 4;
	EXPECT_EQ(Key, "key");
	EXPECT_EQ(Pair.Value, 4);
	EXPECT_EQ(Pair.Get<0>(), "key");
	EXPECT_EQ((TPair<int32, int32>().Value), 0);

	TTuple<int32, std::string, double> Triple = MakeTuple(1, std::string("two"), 3.0);
	EXPECT_EQ(Triple.Get<1>(), "two");
	EXPECT_EQ(GetTypeHash(MakeTuple(1, 2)), (GetTypeHash(TPair<int32, int32>(1, 2))));
}

TEST(EnumClassFlagsTest, CombinesAndTestsFlags)
{
	ETestFlags Flags = ETestFlags::A | ETestFlags::C;
	EXPECT_TRUE(EnumHasAnyFlags(Flags, ETestFlags::B | ETestFlags::C));
	EXPECT_FALSE(EnumHasAllFlags(Flags, ETestFlags::B | ETestFlags::C));
	EnumAddFlags(Flags, ETestFlags::B);
	EXPECT_TRUE(EnumHasAllFlags(Flags, ETestFlags::A | ETestFlags::B | ETestFlags::C));
	EnumRemoveFlags(Flags, ETestFlags::A);
	EXPECT_EQ(Flags, ETestFlags::B | ETestFlags::C);
	Flags &= ~ETestFlags::B;
	EXPECT_EQ(Flags, ETestFlags::C);
	EXPECT_TRUE(!(Flags & ETestFlags::A));
}
