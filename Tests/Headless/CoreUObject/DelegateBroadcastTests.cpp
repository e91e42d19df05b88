#include "TestDelegates.h"

#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	UTestListener* MakeListener(TArray<FString>& Log, const TCHAR* Tag)
	{
		UTestListener* Listener = NewObject<UTestListener>();
		Listener->Log = &Log;
		Listener->Tag = Tag;
		return Listener;
	}
}

TEST(DelegateBroadcast, CallsHandlersInTheOrderTheyWereBound)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* A = MakeListener(Log, TEXT("A"));
	UTestListener* B = MakeListener(Log, TEXT("B"));
	Broadcaster->OnDeposited.AddDynamic(A, &UTestListener::HandleDeposit);
	Broadcaster->OnDeposited.AddDynamic(B, &UTestListener::HandleDeposit);

	Broadcaster->OnDeposited.Broadcast(FName(TEXT("Bandage")), 3, -1);

	ASSERT_EQ(Log.Num(), 2);
	EXPECT_EQ(Log[0], FString(TEXT("A:Bandage,3,-1")));
	EXPECT_EQ(Log[1], FString(TEXT("B:Bandage,3,-1")));
	EXPECT_TRUE(Broadcaster->OnDeposited.IsAlreadyBound(A, &UTestListener::HandleDeposit));
}

TEST(DelegateBroadcast, BindingChangesMadeByAHandlerCountFromTheNextBroadcast)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* SelfRemoving = MakeListener(Log, TEXT("Self"));
	UTestListener* Late = MakeListener(Log, TEXT("Late"));
	SelfRemoving->OnCount = [Broadcaster, Late](UTestListener* This)
	{
		Broadcaster->OnCountChanged.RemoveDynamic(This, &UTestListener::HandleCount);
		Broadcaster->OnCountChanged.AddUniqueDynamic(Late, &UTestListener::HandleCount);
	};
	Broadcaster->OnCountChanged.AddDynamic(SelfRemoving, &UTestListener::HandleCount);

	Broadcaster->OnCountChanged.Broadcast(1);
	Broadcaster->OnCountChanged.Broadcast(2);

	ASSERT_EQ(Log.Num(), 2);
	EXPECT_EQ(Log[0], FString(TEXT("Self:1")));
	EXPECT_EQ(Log[1], FString(TEXT("Late:2")));
}

TEST(DelegateBroadcast, SkipsAHandlerWhoseObjectIsGoneAndDropsItAfterTheCalls)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	Broadcaster->AddToRoot();
	UTestListener* Dead = MakeListener(Log, TEXT("Dead"));
	UTestListener* Alive = MakeListener(Log, TEXT("Alive"));
	Alive->AddToRoot();
	Broadcaster->OnCountChanged.AddDynamic(Dead, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.AddDynamic(Alive, &UTestListener::HandleCount);
	CollectGarbage();

	Broadcaster->OnCountChanged.Broadcast(5);

	ASSERT_EQ(Log.Num(), 1);
	EXPECT_EQ(Log[0], FString(TEXT("Alive:5")));
	EXPECT_EQ(Broadcaster->OnCountChanged.GetInvocationList().Num(), 1);
	Broadcaster->RemoveFromRoot();
	Alive->RemoveFromRoot();
}

TEST(DelegateBroadcast, SkipsAnEntryWhoseObjectHasNoFunctionOfThatName)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* Listener = MakeListener(Log, TEXT("L"));
	FScriptDelegate Missing;
	Missing.BindUFunction(Listener, FName(TEXT("NoSuchHandler")));
	Broadcaster->OnCountChanged.Add(Missing);
	Broadcaster->OnCountChanged.AddDynamic(Listener, &UTestListener::HandleCount);

	Broadcaster->OnCountChanged.Broadcast(9);

	ASSERT_EQ(Log.Num(), 1);
	EXPECT_EQ(Log[0], FString(TEXT("L:9")));
}

TEST(DelegateBroadcast, AHandlerWrittenForOneDelegateFitsAnotherPropertyOfTheSameType)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* Listener = MakeListener(Log, TEXT("L"));
	Broadcaster->OnTransferred.AddDynamic(Listener, &UTestListener::HandleRecord);
	FTestRecord Record;
	Record.Label = TEXT("moved");

	Broadcaster->OnTransferred.Broadcast(Record);

	ASSERT_EQ(Log.Num(), 1);
	EXPECT_EQ(Log[0], FString(TEXT("L:moved")));
	const FMulticastInlineDelegateProperty* Withdrawn = CastField<FMulticastInlineDelegateProperty>(UTestBroadcaster::StaticClass()->FindPropertyByName(FName(TEXT("OnWithdrawn"))));
	const FMulticastInlineDelegateProperty* Transferred = CastField<FMulticastInlineDelegateProperty>(UTestBroadcaster::StaticClass()->FindPropertyByName(FName(TEXT("OnTransferred"))));
	ASSERT_TRUE(Withdrawn && Transferred);
	EXPECT_EQ(Withdrawn->SignatureFunction, Transferred->SignatureFunction);
	EXPECT_EQ(Withdrawn->SignatureFunction->GetName(), FString(TEXT("TestRecordChanged__DelegateSignature")));
	EXPECT_EQ(Withdrawn->SignatureFunction->GetOuter()->GetName(), FString(TEXT("/Script/CoreUObjectTests")));
	EXPECT_TRUE(Withdrawn->HasAnyPropertyFlags(CPF_BlueprintAssignable));
}
