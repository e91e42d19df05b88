#include "JsonTestText.h"

#include <gtest/gtest.h>

namespace
{
	TSharedRef<FJsonObject> MakeStash()
	{
		TSharedRef<FJsonObject> Stash = MakeShared<FJsonObject>();
		Stash->SetStringField(TEXT("Name"), TEXT("stash"));
		Stash->SetNumberField(TEXT("Slots"), 24.6);
		Stash->SetBoolField(TEXT("Shared"), true);
		TSharedRef<FJsonObject> Size = MakeShared<FJsonObject>();
		Size->SetNumberField(TEXT("w"), 4);
		Stash->SetObjectField(TEXT("Size"), Size);
		Stash->SetArrayField(TEXT("Tags"), { MakeShared<FJsonValueString>(TEXT("rare")) });
		return Stash;
	}
}

TEST(JsonObject, FindsFieldsWhateverTheCaseOfTheirNames)
{
	const TSharedRef<FJsonObject> Stash = MakeStash();

	FString Name;
	EXPECT_TRUE(Stash->TryGetStringField(TEXT("NAME"), Name));
	EXPECT_EQ(ToUtf8(Name), "stash");
	EXPECT_TRUE(Stash->HasField(TEXT("slots")));
	EXPECT_TRUE(Stash->HasTypedField<EJson::Boolean>(TEXT("sHaReD")));
	EXPECT_TRUE(Stash->HasTypedField(TEXT("size"), EJson::Object));
	EXPECT_EQ(Stash->GetObjectField(TEXT("SIZE"))->GetIntegerField(TEXT("W")), 4);

	// A name cut out of a longer text, so not terminated where it ends.
	const FString Path(TEXT("SIZE.w"));
	EXPECT_TRUE(Stash->HasTypedField<EJson::Object>(FStringView(Path).Left(4)));
	EXPECT_FALSE(Stash->HasField(FStringView(Path).Left(3)));

	Stash->RemoveField(TEXT("name"));
	EXPECT_FALSE(Stash->HasField(TEXT("Name")));
}

TEST(JsonObject, KeepsAnOverwrittenFieldInItsOriginalPlace)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("first"), TEXT("1"));
	Object->SetStringField(TEXT("second"), TEXT("2"));
	Object->SetStringField(TEXT("third"), TEXT("3"));
	Object->SetNumberField(TEXT("FIRST"), 10);
	Object->SetBoolField(TEXT("second"), false);

	EXPECT_EQ(Object->Values.Num(), 3);
	EXPECT_EQ(CondensedText(Object), "{\"FIRST\":10,\"second\":false,\"third\":\"3\"}");
}

TEST(JsonObject, TryGettersReturnFalseForMissingFieldsAndLeaveTheirOutputsAlone)
{
	const TSharedRef<FJsonObject> Stash = MakeStash();

	FString String = TEXT("kept");
	double Double = 5.0;
	int32 Integer = 5;
	uint64 Unsigned = 5;
	bool bBool = true;
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	const TSharedPtr<FJsonObject>* ObjectPointer = nullptr;
	TSharedPtr<FJsonObject> Object;

	EXPECT_FALSE(Stash->TryGetStringField(TEXT("missing"), String));
	EXPECT_FALSE(Stash->TryGetNumberField(TEXT("missing"), Double));
	EXPECT_FALSE(Stash->TryGetNumberField(TEXT("missing"), Integer));
	EXPECT_FALSE(Stash->TryGetNumberField(TEXT("missing"), Unsigned));
	EXPECT_FALSE(Stash->TryGetBoolField(TEXT("missing"), bBool));
	EXPECT_FALSE(Stash->TryGetArrayField(TEXT("missing"), Array));
	EXPECT_FALSE(Stash->TryGetObjectField(TEXT("missing"), ObjectPointer));
	EXPECT_FALSE(Stash->TryGetObjectField(TEXT("missing"), Object));
	EXPECT_FALSE(Stash->TryGetField(TEXT("missing")).IsValid());
	EXPECT_FALSE(Stash->HasField(TEXT("missing")));

	EXPECT_EQ(ToUtf8(String), "kept");
	EXPECT_EQ(Double, 5.0);
	EXPECT_EQ(Integer, 5);
	EXPECT_EQ(Unsigned, 5u);
	EXPECT_TRUE(bBool);
	EXPECT_EQ(Array, nullptr);
	EXPECT_EQ(ObjectPointer, nullptr);
	EXPECT_FALSE(Object.IsValid());
}

TEST(JsonObject, TryGettersConvertPresentFieldsAsTheirValuesDo)
{
	const TSharedRef<FJsonObject> Stash = MakeStash();

	int32 Slots = 0;
	EXPECT_TRUE(Stash->TryGetNumberField(TEXT("Slots"), Slots));
	EXPECT_EQ(Slots, 25);
	uint8 SmallSlots = 0;
	EXPECT_TRUE(Stash->TryGetNumberField(TEXT("Slots"), SmallSlots));
	EXPECT_EQ(SmallSlots, 25);
	FString SlotsText;
	EXPECT_TRUE(Stash->TryGetStringField(TEXT("Slots"), SlotsText));
	EXPECT_EQ(ToUtf8(SlotsText), "24.6");
	double Shared = 0.0;
	EXPECT_TRUE(Stash->TryGetNumberField(TEXT("Shared"), Shared));
	EXPECT_EQ(Shared, 1.0);

	double NameNumber = 7.0;
	EXPECT_FALSE(Stash->TryGetNumberField(TEXT("Name"), NameNumber));
	EXPECT_EQ(NameNumber, 7.0);
	FString SizeText = TEXT("kept");
	EXPECT_FALSE(Stash->TryGetStringField(TEXT("Size"), SizeText));
	EXPECT_EQ(ToUtf8(SizeText), "kept");
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	EXPECT_FALSE(Stash->TryGetArrayField(TEXT("Size"), Array));
	EXPECT_TRUE(Stash->TryGetArrayField(TEXT("Tags"), Array));
	ASSERT_NE(Array, nullptr);
	EXPECT_EQ(Array->Num(), 1);

	const TSharedPtr<FJsonObject>* SizePointer = nullptr;
	EXPECT_TRUE(Stash->TryGetObjectField(TEXT("Size"), SizePointer));
	ASSERT_NE(SizePointer, nullptr);
	TSharedPtr<FJsonObject> Size;
	EXPECT_TRUE(Stash->TryGetObjectField(TEXT("Size"), Size));
	EXPECT_EQ(Size.Get(), SizePointer->Get());
	EXPECT_FALSE(Stash->TryGetObjectField(TEXT("Tags"), Size));
	EXPECT_EQ(Size.Get(), SizePointer->Get());
}

TEST(JsonObject, GettersFallBackToDefaultsForMissingOrMistypedFields)
{
	const TSharedRef<FJsonObject> Stash = MakeStash();

	EXPECT_EQ(ToUtf8(Stash->GetStringField(TEXT("missing"))), "");
	EXPECT_EQ(Stash->GetNumberField(TEXT("missing")), 0.0);
	EXPECT_EQ(Stash->GetIntegerField(TEXT("missing")), 0);
	EXPECT_FALSE(Stash->GetBoolField(TEXT("missing")));
	EXPECT_EQ(Stash->GetArrayField(TEXT("Name")).Num(), 0);
	ASSERT_TRUE(Stash->GetObjectField(TEXT("Tags")).IsValid());
	EXPECT_EQ(Stash->GetObjectField(TEXT("Tags"))->Values.Num(), 0);
	EXPECT_TRUE(Stash->GetField<EJson::String>(TEXT("Slots"))->IsNull());
	EXPECT_EQ(Stash->GetField<EJson::None>(TEXT("Slots"))->AsNumber(), 24.6);

	EXPECT_EQ(ToUtf8(Stash->GetStringField(TEXT("Shared"))), "true");
	EXPECT_EQ(Stash->GetArrayField(TEXT("Tags")).Num(), 1);
}

TEST(JsonObject, GetIntegerFieldTruncatesTowardZeroAndClampsToInt32)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetNumberField(TEXT("up"), 2.7);
	Object->SetNumberField(TEXT("down"), -2.7);
	Object->SetNumberField(TEXT("huge"), 1e12);
	Object->SetNumberField(TEXT("tiny"), -1e12);

	EXPECT_EQ(Object->GetIntegerField(TEXT("up")), 2);
	EXPECT_EQ(Object->GetIntegerField(TEXT("down")), -2);
	EXPECT_EQ(Object->GetIntegerField(TEXT("huge")), 2147483647);
	EXPECT_EQ(Object->GetIntegerField(TEXT("tiny")), -2147483647 - 1);
}

TEST(JsonObject, StoresAnInvalidObjectAsNull)
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetObjectField(TEXT("owner"), nullptr);

	EXPECT_TRUE(Object->HasTypedField<EJson::Null>(TEXT("owner")));
	TSharedPtr<FJsonObject> Owner;
	EXPECT_FALSE(Object->TryGetObjectField(TEXT("owner"), Owner));
}
