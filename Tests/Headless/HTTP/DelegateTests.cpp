// Single-cast delegates, as the HTTP completion and the plugin use them.
#include "CoreMinimal.h"
#include "Delegates/Delegate.h"

#include <gtest/gtest.h>

namespace
{
	DECLARE_DELEGATE_RetVal_TwoParams(int32, FCombineDelegate, int32, int32);
	DECLARE_DELEGATE_OneParam(FNameDelegate, const FString&);

	class FListener : public TSharedFromThis<FListener>
	{
	public:
		void OnName(const FString& Name)
		{
			Names.Add(Name);
		}

		int32 Scale(int32 Value, int32 Factor) const
		{
			return Value * Factor * Multiplier;
		}

		TArray<FString> Names;
		int32 Multiplier = 1;
	};

	TEST(FDelegateTest, LambdaReceivesTheCallArgumentsFollowedByThePayload)
	{
		FCombineDelegate Combine;
		EXPECT_FALSE(Combine.IsBound());
		Combine.BindLambda([](int32 A, int32 B, int32 Offset) { return A * 10 + B + Offset; }, 100);
		ASSERT_TRUE(Combine.IsBound());
		EXPECT_EQ(Combine.Execute(4, 2), 142);

		const FCombineDelegate Copy = Combine;
		Combine.Unbind();
		EXPECT_FALSE(Combine.IsBound());
		EXPECT_EQ(Copy.Execute(1, 1), 111);
	}

	TEST(FDelegateTest, SharedPointerBindingStopsOnceTheObjectIsGone)
	{
		TSharedPtr<FListener> Listener = MakeShared<FListener>();
		FNameDelegate ByMethod = FNameDelegate::CreateSP(Listener.ToSharedRef(), &FListener::OnName);
		FNameDelegate ByThis;
		ByThis.BindSP(Listener.Get(), &FListener::OnName);
		int32 LambdaCalls = 0;
		FNameDelegate ByLambda = FNameDelegate::CreateSPLambda(Listener, [&LambdaCalls](const FString&) { ++LambdaCalls; });

		EXPECT_TRUE(ByMethod.ExecuteIfBound(TEXT("Sword")));
		EXPECT_TRUE(ByThis.ExecuteIfBound(TEXT("Shield")));
		EXPECT_TRUE(ByLambda.ExecuteIfBound(TEXT("Potion")));
		EXPECT_EQ(Listener->Names, (TArray<FString>{TEXT("Sword"), TEXT("Shield")}));
		EXPECT_EQ(LambdaCalls, 1);

		// The delegates do not keep the object alive, and skip it once it has gone.
		Listener.Reset();
		EXPECT_FALSE(ByMethod.IsBound());
		EXPECT_FALSE(ByMethod.ExecuteIfBound(TEXT("Bow")));
		EXPECT_FALSE(ByThis.ExecuteIfBound(TEXT("Bow")));
		EXPECT_FALSE(ByLambda.ExecuteIfBound(TEXT("Bow")));
		EXPECT_EQ(LambdaCalls, 1);
	}

	TEST(FDelegateTest, RawBindingCallsConstMethodsWithPayload)
	{
		FListener Listener;
		Listener.Multiplier = 2;
		FCombineDelegate Scale;
		Scale.BindRaw(&Listener, &FListener::Scale);
		EXPECT_EQ(Scale.Execute(3, 5), 30);

		FNameDelegate Named = FNameDelegate::CreateRaw(&Listener, &FListener::OnName);
		Named.Execute(TEXT("Helm"));
		EXPECT_EQ(Listener.Names, (TArray<FString>{TEXT("Helm")}));
	}

	TEST(FDelegateTest, StaticFunctionBindsWithPayload)
	{
		struct FMath
		{
			static int32 Subtract(int32 A, int32 B, int32 Bias)
			{
				return A - B + Bias;
			}
		};
		const FCombineDelegate Subtract = FCombineDelegate::CreateStatic(&FMath::Subtract, 7);
		EXPECT_EQ(Subtract.Execute(10, 4), 13);
	}
}
