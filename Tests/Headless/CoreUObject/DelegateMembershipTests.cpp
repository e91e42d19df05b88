#include "TestDelegates.h"

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

TEST(DelegateMembership, AddUniqueBindsOnceWhileAddBindsEveryTime)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* Listener = MakeListener(Log, TEXT("L"));
	EXPECT_FALSE(Broadcaster->OnCountChanged.IsBound());

	Broadcaster->OnCountChanged.AddUniqueDynamic(Listener, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.AddUniqueDynamic(Listener, &UTestListener::HandleCount);
	EXPECT_EQ(Broadcaster->OnCountChanged.GetInvocationList().Num(), 1);

	Broadcaster->OnCountChanged.AddDynamic(Listener, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.Broadcast(1);
	EXPECT_EQ(Log.Num(), 2);
	EXPECT_TRUE(Broadcaster->OnCountChanged.IsBound());
}

TEST(DelegateMembership, RemoveTakesOutOneBindingAndMovesTheLastIntoItsPlace)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* A = MakeListener(Log, TEXT("A"));
	UTestListener* B = MakeListener(Log, TEXT("B"));
	UTestListener* C = MakeListener(Log, TEXT("C"));
	Broadcaster->OnCountChanged.AddDynamic(A, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.AddDynamic(B, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.AddDynamic(C, &UTestListener::HandleCount);

	Broadcaster->OnCountChanged.RemoveDynamic(A, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.RemoveDynamic(A, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.Broadcast(3);

	// As in the engine, removal does not keep the order of binding: the last binding fills the gap.
	ASSERT_EQ(Log.Num(), 2);
	EXPECT_EQ(Log[0], FString(TEXT("C:3")));
	EXPECT_EQ(Log[1], FString(TEXT("B:3")));
	EXPECT_FALSE(Broadcaster->OnCountChanged.IsAlreadyBound(A, &UTestListener::HandleCount));
	EXPECT_TRUE(Broadcaster->OnCountChanged.IsAlreadyBound(B, &UTestListener::HandleCount));
}

TEST(DelegateMembership, ContainsMatchesObjectAndFunctionTogether)
{
	TArray<FString> Log;
	UTestListener* A = MakeListener(Log, TEXT("A"));
	UTestListener* B = MakeListener(Log, TEXT("B"));
	FMulticastScriptDelegate Multicast;
	FScriptDelegate ToA;
	ToA.BindUFunction(A, FName(TEXT("HandleCount")));
	Multicast.Add(ToA);

	EXPECT_TRUE(Multicast.Contains(ToA));
	EXPECT_TRUE(Multicast.Contains(A, FName(TEXT("HandleCount"))));
	EXPECT_FALSE(Multicast.Contains(A, FName(TEXT("HandleDeposit"))));
	EXPECT_FALSE(Multicast.Contains(B, FName(TEXT("HandleCount"))));

	Multicast.Remove(B, FName(TEXT("HandleCount")));
	EXPECT_TRUE(Multicast.IsBound());
	Multicast.Remove(A, FName(TEXT("HandleCount")));
	EXPECT_FALSE(Multicast.IsBound());
}

TEST(DelegateMembership, RemoveAllDropsEveryBindingOfOneObjectAndClearDropsAll)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* A = MakeListener(Log, TEXT("A"));
	UTestListener* B = MakeListener(Log, TEXT("B"));
	Broadcaster->OnCountChanged.AddDynamic(A, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.AddDynamic(B, &UTestListener::HandleCount);
	Broadcaster->OnCountChanged.AddDynamic(A, &UTestListener::HandleCount);

	Broadcaster->OnCountChanged.RemoveAll(A);
	Broadcaster->OnCountChanged.Broadcast(4);
	ASSERT_EQ(Log.Num(), 1);
	EXPECT_EQ(Log[0], FString(TEXT("B:4")));

	Broadcaster->OnCountChanged.Clear();
	Broadcaster->OnCountChanged.Broadcast(5);
	EXPECT_EQ(Log.Num(), 1);
	EXPECT_FALSE(Broadcaster->OnCountChanged.IsBound());
}

TEST(DelegateMembership, TheReflectedPropertyEditsTheInvocationListInTheObject)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	UTestListener* Listener = MakeListener(Log, TEXT("L"));
	const FMulticastDelegateProperty* Property = CastField<FMulticastDelegateProperty>(UTestBroadcaster::StaticClass()->FindPropertyByName(FName(TEXT("OnCountChanged"))));
	ASSERT_NE(Property, nullptr);
	EXPECT_EQ(Property->SignatureFunction->NumParms, 1);
	EXPECT_TRUE(Property->SignatureFunction->HasAllFunctionFlags(FUNC_MulticastDelegate | FUNC_Delegate));
	FScriptDelegate Binding;
	Binding.BindUFunction(Listener, FName(TEXT("HandleCount")));

	Property->AddDelegate(Binding, Broadcaster);
	EXPECT_TRUE(Broadcaster->OnCountChanged.IsAlreadyBound(Listener, &UTestListener::HandleCount));
	EXPECT_TRUE(Property->GetMulticastDelegate(Property->ContainerPtrToValuePtr<void>(Broadcaster))->Contains(Binding));
	Broadcaster->OnCountChanged.Broadcast(6);

	Property->RemoveDelegate(Binding, Broadcaster);
	EXPECT_FALSE(Broadcaster->OnCountChanged.IsBound());
	Property->AddDelegate(Binding, Broadcaster);
	Property->ClearDelegate(Broadcaster);
	EXPECT_FALSE(Broadcaster->OnCountChanged.IsBound());
	ASSERT_EQ(Log.Num(), 1);
	EXPECT_EQ(Log[0], FString(TEXT("L:6")));
}

TEST(DelegateMembership, ABindingToAnObjectThatIsGoneNoLongerCountsAsBound)
{
	TArray<FString> Log;
	UTestBroadcaster* Broadcaster = NewObject<UTestBroadcaster>();
	Broadcaster->AddToRoot();
	UTestListener* Listener = MakeListener(Log, TEXT("L"));
	Broadcaster->OnCountChanged.AddDynamic(Listener, &UTestListener::HandleCount);
	FScriptDelegate Single;
	Single.BindUFunction(Listener, FName(TEXT("HandleCount")));
	EXPECT_TRUE(Single.IsBound());

	CollectGarbage();

	EXPECT_FALSE(Single.IsBound());
	UTestListener* Other = MakeListener(Log, TEXT("O"));
	Broadcaster->OnCountChanged.AddDynamic(Other, &UTestListener::HandleCount);
	EXPECT_EQ(Broadcaster->OnCountChanged.GetInvocationList().Num(), 1);
	Broadcaster->RemoveFromRoot();
}
