#include "TestReflectedTypes.h"

#include "UObject/UObjectArray.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

namespace
{
	// Keeps one object in the root set for the length of a test.
	struct FRooted
	{
		explicit FRooted(UObject* InObject)
			: Object(InObject)
		{
			Object->AddToRoot();
		}
		~FRooted()
		{
			Object->RemoveFromRoot();
		}
		UObject* Object;
	};
}

TEST(GarbageCollection, ReclaimsUnreferencedObjectsAndReturnsToTheBaselineCount)
{
	// Class default objects are made on first use and stay; make them before counting.
	GetTransientPackage();
	UTestBase::StaticClass()->GetDefaultObject();
	UTestWidget::StaticClass()->GetDefaultObject();
	CollectGarbage();
	const int32 Baseline = GUObjectArray.GetObjectArrayNumMinusAvailable();
	TWeakObjectPtr<UTestBase> Weak = NewObject<UTestBase>();
	NewObject<UTestWidget>();
	EXPECT_EQ(GUObjectArray.GetObjectArrayNumMinusAvailable(), Baseline + 2);

	CollectGarbage();

	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_EQ(GUObjectArray.GetObjectArrayNumMinusAvailable(), Baseline);
}

TEST(GarbageCollection, KeepsObjectsReachedThroughEveryKindOfStrongReference)
{
	UTestWidget* Root = NewObject<UTestWidget>();
	FRooted Guard(Root);
	TWeakObjectPtr<UObject> ByPtr = Root->Child = NewObject<UTestBase>();
	TWeakObjectPtr<UObject> BySuperMember = Root->BaseRef = NewObject<UTestBase>();
	UObject* InArray = NewObject<UTestBase>();
	Root->Items.Add(InArray);
	FTestRecord Record;
	Record.Held = NewObject<UTestBase>();
	TWeakObjectPtr<UObject> InStructInArray = Record.Held.Get();
	Root->Records.Add(Record);
	TWeakObjectPtr<UObject> InStruct = Root->Single.Held = NewObject<UTestBase>();
	TWeakObjectPtr<UObject> ByRawPointer = Root->RawRef = NewObject<UTestBase>();
	TWeakObjectPtr<UObject> InFixedArray = Root->Fixed[1] = NewObject<UTestBase>();
	// An object keeps its outer alive; an outer does not keep what it contains.
	UTestBase* Outer = NewObject<UTestBase>();
	TWeakObjectPtr<UObject> AsOuter = Outer;
	Root->Items.Add(NewObject<UTestBase>(Outer));
	TWeakObjectPtr<UObject> OnlyInner = NewObject<UTestBase>(Root);
	TWeakObjectPtr<UObject> OnlyWeak = NewObject<UTestBase>();
	Root->Weak = OnlyWeak.Get();
	TWeakObjectPtr<UObject> OnlySoft = NewObject<UTestBase>();
	Root->Soft = OnlySoft.Get();
	TWeakObjectPtr<UObject> ArrayWeak = InArray;

	CollectGarbage();

	EXPECT_TRUE(ByPtr.IsValid());
	EXPECT_TRUE(BySuperMember.IsValid());
	EXPECT_TRUE(ArrayWeak.IsValid());
	EXPECT_TRUE(InStructInArray.IsValid());
	EXPECT_TRUE(InStruct.IsValid());
	EXPECT_TRUE(ByRawPointer.IsValid());
	EXPECT_TRUE(InFixedArray.IsValid());
	EXPECT_TRUE(AsOuter.IsValid());
	EXPECT_FALSE(OnlyInner.IsValid());
	EXPECT_FALSE(OnlyWeak.IsValid());
	EXPECT_FALSE(OnlySoft.IsValid());
	EXPECT_EQ(Root->Weak.Get(), nullptr);
}

TEST(GarbageCollection, DestroysGarbageEvenWhenReferencedAndClearsTheReference)
{
	UTestWidget* Root = NewObject<UTestWidget>();
	FRooted Guard(Root);
	UTestBase* Doomed = NewObject<UTestBase>();
	Root->Child = Doomed;
	TWeakObjectPtr<UTestBase> Weak = Doomed;
	Doomed->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Doomed));

	CollectGarbage();

	EXPECT_EQ(Root->Child, nullptr);
	EXPECT_FALSE(Weak.IsValid(true));
}

TEST(WeakObjectPtr, NeverResolvesToTheNextObjectInAFreedSlot)
{
	UTestBase* First = NewObject<UTestBase>();
	const int32 Slot = First->GetUniqueID();
	TWeakObjectPtr<UTestBase> Weak = First;
	CollectGarbage();
	UTestBase* Second = nullptr;
	// Free slots are reused most recently freed first; the loop is bounded all the same.
	for (int32 Attempt = 0; Attempt < 64 && (Second == nullptr || Second->GetUniqueID() != Slot); ++Attempt)
	{
		Second = NewObject<UTestBase>();
	}
	ASSERT_EQ(Second->GetUniqueID(), Slot);

	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_FALSE(Weak == TWeakObjectPtr<UTestBase>(Second));
}
