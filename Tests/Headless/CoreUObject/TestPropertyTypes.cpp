#include "TestPropertyTypes.h"

FTestPlacement UTestCalls::Shift(const FTestPlacement& From, int32 By) const
{
	FTestPlacement Result = From;
	Result.Cell.X += By;
	Result.Cell.Y += By;
	Result.Path.Add(From.Cell);
	return Result;
}

UTestBase* UTestCalls::Pick(const TArray<UTestBase*>& Candidates, int32 Index)
{
	return Candidates.IsValidIndex(Index) ? Candidates[Index] : nullptr;
}

void UTestCalls::Fill(TArray<FString>& Out, int32 Count, bool bUpper)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Out.Add(bUpper ? FString(TEXT("X")) : FString(TEXT("x")));
	}
}

int32 UTestCalls::Twice(int32 Value)
{
	return Value * 2;
}

int32 UTestCalls::Score_Implementation(int32 Base)
{
	return Base + 100;
}

void UTestCalls::Mixed(uint8 Small, FName Tag, double Scale, bool bOn, ETestLayout Layout, int64 Big)
{
	LastSmall = Small;
	LastTag = Tag;
	LastScale = Scale;
	bLastOn = bOn;
	LastLayout = Layout;
	LastBig = Big;
}
