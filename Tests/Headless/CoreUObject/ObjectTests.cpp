#include "TestPropertyTypes.h"

#include "UObject/Package.h"

#include <gtest/gtest.h>

TEST(Objects, UnnamedObjectsGetDistinctNamesFromTheirClass)
{
	UTestBase* First = NewObject<UTestBase>();
	UTestBase* Second = NewObject<UTestBase>();
	EXPECT_TRUE(First->GetName().StartsWith(TEXT("TestBase_")));
	EXPECT_TRUE(Second->GetName().StartsWith(TEXT("TestBase_")));
	EXPECT_NE(First->GetFName(), Second->GetFName());
	EXPECT_EQ(First->GetOuter(), GetTransientPackage());
	EXPECT_EQ(FindObject<UTestBase>(GetTransientPackage(), *First->GetName()), First);

	// A name taken by hand is skipped by the generator.
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/Naming"));
	const FName Next = MakeUniqueObjectName(Package, UTestValues::StaticClass());
	NewObject<UTestValues>(Package, Next);
	EXPECT_NE(MakeUniqueObjectName(Package, UTestValues::StaticClass()), Next);
}

TEST(Objects, PathsJoinOutersWithDotsAndTheFirstSubobjectWithAColon)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/Paths"));
	UTestBase* Asset = NewObject<UTestBase>(Package, FName(TEXT("Asset")));
	UTestBase* Sub = NewObject<UTestBase>(Asset, FName(TEXT("Sub")));
	UTestWidget* Inner = NewObject<UTestWidget>(Sub, FName(TEXT("Inner")));

	EXPECT_EQ(Package->GetPathName(), FString(TEXT("/Game/Tests/Paths")));
	EXPECT_EQ(Asset->GetPathName(), FString(TEXT("/Game/Tests/Paths.Asset")));
	EXPECT_EQ(Sub->GetPathName(), FString(TEXT("/Game/Tests/Paths.Asset:Sub")));
	EXPECT_EQ(Inner->GetPathName(), FString(TEXT("/Game/Tests/Paths.Asset:Sub.Inner")));
	EXPECT_EQ(Inner->GetFullName(), FString(TEXT("TestWidget /Game/Tests/Paths.Asset:Sub.Inner")));
	EXPECT_EQ(Inner->GetPathName(Asset), FString(TEXT("Sub.Inner")));
	EXPECT_EQ(Package->GetFullName(), FString(TEXT("Package /Game/Tests/Paths")));

	EXPECT_EQ(Inner->GetOutermost(), Package);
	EXPECT_EQ(Inner->GetPackage(), Package);
	EXPECT_TRUE(Inner->IsIn(Asset));
	EXPECT_FALSE(Asset->IsIn(Inner));
	EXPECT_EQ(Inner->GetTypedOuter<UPackage>(), Package);
	EXPECT_EQ(Inner->GetTypedOuter<UTestBase>(), Sub);
	EXPECT_EQ(CreatePackage(TEXT("/Game/Tests/Paths")), Package);
}

TEST(Objects, FindObjectResolvesNamesInAnOuterAndWholePaths)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/Finding"));
	UTestBase* Asset = NewObject<UTestBase>(Package, FName(TEXT("Asset")));
	UTestWidget* Sub = NewObject<UTestWidget>(Asset, FName(TEXT("Sub")));

	EXPECT_EQ(FindObject<UTestBase>(Package, TEXT("Asset")), Asset);
	EXPECT_EQ(FindObject<UTestBase>(Asset, TEXT("Sub")), Sub);
	EXPECT_EQ(FindObject<UTestBase>(Package, TEXT("Sub")), nullptr);
	EXPECT_EQ(FindObject<UTestBase>(nullptr, TEXT("/Game/Tests/Finding.Asset")), Asset);
	EXPECT_EQ(FindObject<UTestBase>(nullptr, TEXT("/game/tests/finding.asset")), Asset);
	EXPECT_EQ(FindObject<UTestWidget>(nullptr, TEXT("/Game/Tests/Finding.Asset:Sub")), Sub);
	EXPECT_EQ(FindObject<UTestWidget>(nullptr, TEXT("/Game/Tests/Finding.Asset.Sub")), Sub);
	EXPECT_EQ(FindObject<UPackage>(nullptr, TEXT("/Game/Tests/Finding")), Package);

	// The class filter: a subclass matches unless the class must be exact.
	EXPECT_EQ(FindObject<UTestWidget>(Package, TEXT("Asset")), nullptr);
	EXPECT_EQ(StaticFindObject(UTestBase::StaticClass(), Asset, TEXT("Sub"), false), Sub);
	EXPECT_EQ(StaticFindObject(UTestBase::StaticClass(), Asset, TEXT("Sub"), true), nullptr);
	EXPECT_EQ(StaticFindObject(nullptr, Asset, TEXT("Sub")), Sub);

	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/CoreUObjectTests.TestValues")), UTestValues::StaticClass());
	EXPECT_EQ(FindObject<UScriptStruct>(nullptr, TEXT("/Script/CoreUObjectTests.TestCell")), FTestCell::StaticStruct());
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/CoreUObjectTests.TestCell")), nullptr);
}

TEST(Objects, CastsFollowTheReflectedClassNotTheStaticType)
{
	UObject* AsObject = NewObject<UTestWidget>();
	UObject* Plain = NewObject<UTestBase>();
	EXPECT_EQ(Cast<UTestWidget>(AsObject), AsObject);
	EXPECT_EQ(Cast<UTestBase>(AsObject), AsObject);
	EXPECT_EQ(Cast<UTestWidget>(Plain), nullptr);
	EXPECT_EQ(Cast<UTestWidget>((UObject*)nullptr), nullptr);
	EXPECT_EQ(ExactCast<UTestBase>(AsObject), nullptr);
	EXPECT_EQ(ExactCast<UTestBase>(Plain), Plain);
	EXPECT_EQ(CastChecked<UTestBase>(AsObject), AsObject);
	EXPECT_EQ(CastChecked<UTestBase>((UObject*)nullptr, ECastCheckedType::NullAllowed), nullptr);
	TObjectPtr<UObject> Ptr = AsObject;
	EXPECT_EQ(Cast<UTestWidget>(Ptr), AsObject);
	EXPECT_TRUE(AsObject->IsA<UTestBase>());
	EXPECT_TRUE(AsObject->IsA(UObject::StaticClass()));
	EXPECT_FALSE(Plain->IsA<UTestWidget>());
	EXPECT_FALSE(Plain->IsA(nullptr));
}

TEST(Objects, GarbageIsInvalidUntilClearedAndWeakPointersSeeItAsGone)
{
	UTestBase* Object = NewObject<UTestBase>();
	TWeakObjectPtr<UTestBase> Weak = Object;
	EXPECT_TRUE(IsValid(Object));
	EXPECT_FALSE(IsValid(nullptr));

	Object->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Object));
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Weak.IsValid(true));
	EXPECT_EQ(Weak.Get(true), Object);

	Object->ClearGarbage();
	EXPECT_TRUE(IsValid(Object));
	EXPECT_EQ(Weak.Get(), Object);
}

TEST(Objects, ANameFreedByTheCollectorCanBeTakenAgain)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/Reuse"));
	Package->AddToRoot();
	TWeakObjectPtr<UTestBase> First = NewObject<UTestBase>(Package, FName(TEXT("Again")));
	CollectGarbage();
	ASSERT_FALSE(First.IsValid());
	EXPECT_EQ(FindObject<UTestBase>(Package, TEXT("Again")), nullptr);

	UTestBase* Second = NewObject<UTestBase>(Package, FName(TEXT("Again")));

	EXPECT_EQ(FindObject<UTestBase>(nullptr, TEXT("/Game/Tests/Reuse.Again")), Second);
	EXPECT_FALSE(First.IsValid());
	Package->RemoveFromRoot();
}

TEST(Objects, WeakPointersCompareByIdentityAndResetToNull)
{
	UTestBase* A = NewObject<UTestBase>();
	UTestBase* B = NewObject<UTestBase>();
	TWeakObjectPtr<UTestBase> WeakA = A;
	TWeakObjectPtr<UTestBase> AlsoA(A);
	TWeakObjectPtr<UTestBase> WeakB = B;
	TWeakObjectPtr<UTestBase> Null;
	EXPECT_TRUE(WeakA == AlsoA);
	EXPECT_FALSE(WeakA == WeakB);
	EXPECT_TRUE(WeakA == A);
	EXPECT_TRUE(Null == nullptr);
	EXPECT_FALSE(Null.IsStale());
	EXPECT_FALSE(Null.IsValid());
	WeakA.Reset();
	EXPECT_TRUE(WeakA == nullptr);
	EXPECT_FALSE(WeakA.IsStale());
}

TEST(Objects, TheClassDefaultObjectIsMadeOnceAndIsATemplate)
{
	UObject* Defaults = UTestValues::StaticClass()->GetDefaultObject();
	EXPECT_EQ(UTestValues::StaticClass()->GetDefaultObject(), Defaults);
	EXPECT_EQ(GetDefault<UTestValues>(), Defaults);
	EXPECT_TRUE(Defaults->IsTemplate());
	EXPECT_TRUE(Defaults->HasAnyFlags(RF_ClassDefaultObject));
	EXPECT_FALSE(NewObject<UTestValues>()->IsTemplate());
	EXPECT_EQ(GetDefault<UTestValues>()->Tiny, -8);
	EXPECT_EQ(GetDefault<UTestValues>()->Signed, ETestSigned::Above);
}

TEST(Objects, GeneratedNamesCountFromZeroPerBaseName)
{
	// No other test makes an unnamed UTestSpecifiers, so this is the first name handed out for it.
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/Counting"));
	const FName Name = MakeUniqueObjectName(Package, UTestSpecifiers::StaticClass());
	EXPECT_EQ(Name.ToString(), FString(TEXT("TestSpecifiers_0")));
	EXPECT_EQ(Name.GetPlainNameString(), FString(TEXT("TestSpecifiers")));
	const FName Based = MakeUniqueObjectName(Package, UTestSpecifiers::StaticClass(), FName(TEXT("Slot")));
	EXPECT_EQ(Based.GetPlainNameString(), FString(TEXT("Slot")));
}

TEST(Objects, ASoftReferenceFindsAnObjectRemadeAtItsPathWhereAWeakOneDoesNot)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/Remade"));
	Package->AddToRoot();
	UTestBase* First = NewObject<UTestBase>(Package, FName(TEXT("Thing")));
	const TSoftObjectPtr<UTestBase> Soft(First);
	const TWeakObjectPtr<UTestBase> Weak(First);
	EXPECT_EQ(Soft.Get(), First);
	CollectGarbage();
	EXPECT_EQ(Soft.Get(), nullptr);
	EXPECT_FALSE(Soft.IsNull());

	UTestBase* Second = NewObject<UTestBase>(Package, FName(TEXT("Thing")));

	EXPECT_EQ(Soft.Get(), Second);
	EXPECT_EQ(Weak.Get(), nullptr);
	Package->RemoveFromRoot();
}
