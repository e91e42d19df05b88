#include "Containers/Set.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

namespace
{
	struct FBase
	{
		virtual ~FBase() = default;
		int32 Value = 1;
	};

	struct FDerived : FBase
	{
		explicit FDerived(int32* InDestroyed = nullptr)
			: Destroyed(InDestroyed)
		{
		}

		~FDerived() override
		{
			if (Destroyed)
			{
				++*Destroyed;
			}
		}

		int32* Destroyed;
	};

	class FWidget : public TSharedFromThis<FWidget>
	{
	public:
		virtual ~FWidget() = default;
	};

	class FButton : public FWidget
	{
	public:
		TSharedRef<FButton> Self()
		{
			return SharedThis(this);
		}
	};
}

TEST(SharedPointerTest, LastOwnerDestroysTheObjectOnce)
{
	int32 Destroyed = 0;
	{
		TSharedPtr<FBase> First = MakeShareable(new FDerived(&Destroyed));
		TSharedPtr<FBase> Second = First;
		EXPECT_EQ(First.GetSharedReferenceCount(), 2);
		First.Reset();
		EXPECT_FALSE(First.IsValid());
		EXPECT_EQ(Destroyed, 0);
		EXPECT_TRUE(Second.IsUnique());
	}
	EXPECT_EQ(Destroyed, 1);
}

TEST(SharedPointerTest, WeakPointerExpiresWithItsObject)
{
	TWeakPtr<FBase> Weak;
	EXPECT_FALSE(Weak.IsValid());
	{
		TSharedRef<FBase> Strong = MakeShared<FDerived>();
		Weak = Strong;
		EXPECT_TRUE(Weak.IsValid());
		TSharedPtr<FBase> Pinned = Weak.Pin();
		ASSERT_TRUE(Pinned.IsValid());
		EXPECT_EQ(Pinned.Get(), &Strong.Get());
		EXPECT_EQ(Strong.GetSharedReferenceCount(), 2);
	}
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
	EXPECT_TRUE(Weak == nullptr);
}

TEST(SharedPointerTest, WeakPointerHashSurvivesExpiry)
{
	TSet<TWeakPtr<FBase>> Seen;
	TSharedPtr<FBase> Strong = MakeShared<FBase>();
	const TWeakPtr<FBase> Weak = Strong;
	const uint32 HashWhileAlive = GetTypeHash(Weak);
	Seen.Add(Weak);
	EXPECT_TRUE(Seen.Contains(Weak));
	Strong.Reset();
	EXPECT_EQ(GetTypeHash(Weak), HashWhileAlive);
}

TEST(SharedPointerTest, SharedFromThisHandsOutTheOwningReference)
{
	TSharedRef<FButton> Button = MakeShared<FButton>();
	TSharedRef<FWidget> AsWidget = Button->AsShared();
	EXPECT_EQ(&AsWidget.Get(), &Button.Get());
	EXPECT_EQ(Button.GetSharedReferenceCount(), 2);
	EXPECT_EQ(&Button->Self().Get(), &Button.Get());
	EXPECT_TRUE(Button->AsWeak().IsValid());
	EXPECT_TRUE(Button->DoesSharedInstanceExist());

	const FButton& ConstButton = *Button;
	TSharedRef<const FWidget> ConstShared = ConstButton.AsShared();
	EXPECT_EQ(&ConstShared.Get(), &Button.Get());

	TSharedPtr<FWidget> Adopted = MakeShareable(new FButton());
	EXPECT_EQ(Adopted->AsShared().GetSharedReferenceCount(), 2);
}

TEST(SharedPointerTest, AsSharedWithoutAnOwnerIsAFatalCheck)
{
	FButton Unowned;
	EXPECT_FALSE(Unowned.DoesSharedInstanceExist());
	EXPECT_DEATH(Unowned.AsShared(), "AsShared");
}

TEST(SharedPointerTest, NullChecksAreFatalWhereTheEngineChecks)
{
	TSharedPtr<FBase> Null;
	EXPECT_DEATH(Null.ToSharedRef(), "IsValid");
	EXPECT_DEATH((void)Null->Value, "IsValid");
	EXPECT_DEATH(TSharedRef<FBase>(static_cast<FBase*>(nullptr)), "null pointer");
}

TEST(SharedPointerTest, MovingAReferenceLeavesTheSourceValid)
{
	TSharedRef<FBase> Source = MakeShared<FBase>();
	TSharedRef<FBase> Destination = MoveTemp(Source);
	EXPECT_EQ(&Source.Get(), &Destination.Get());

	TSharedPtr<FBase> Pointer = Destination;
	TSharedPtr<FBase> Moved = MoveTemp(Pointer);
	EXPECT_FALSE(Pointer.IsValid());
	EXPECT_TRUE(Moved == Destination);
}

TEST(SharedPointerTest, CastsKeepSharingOwnership)
{
	int32 Destroyed = 0;
	TSharedRef<FBase> Base = MakeShared<FDerived>(&Destroyed);
	TSharedRef<FDerived> Derived = StaticCastSharedRef<FDerived>(Base);
	EXPECT_EQ(Base.GetSharedReferenceCount(), 2);
	TSharedPtr<const FBase> ConstPtr = Base;
	TSharedPtr<FBase> Mutable = ConstCastSharedPtr<FBase>(ConstPtr);
	Mutable->Value = 5;
	EXPECT_EQ(Derived->Value, 5);
	TSharedPtr<FDerived> DerivedPtr = StaticCastSharedPtr<FDerived>(Mutable);
	EXPECT_TRUE(DerivedPtr == Derived);
	EXPECT_EQ(GetTypeHash(DerivedPtr), GetTypeHash(Base));
}

TEST(SharedPointerTest, CustomDeleterRunsInsteadOfDelete)
{
	int32 Deleted = 0;
	{
		TSharedPtr<FBase> Pointer = MakeShareable(new FBase(), [&Deleted](FBase* Object)
		{
			++Deleted;
			delete Object;
		});
	}
	EXPECT_EQ(Deleted, 1);
}

TEST(UniquePtrTest, OwnershipMovesAndResetDestroys)
{
	int32 Destroyed = 0;
	TUniquePtr<FBase> Owner = MakeUnique<FDerived>(&Destroyed);
	TUniquePtr<FBase> NewOwner = MoveTemp(Owner);
	EXPECT_FALSE(Owner.IsValid());
	EXPECT_TRUE(NewOwner.IsValid());
	NewOwner.Reset(new FDerived(&Destroyed));
	EXPECT_EQ(Destroyed, 1);
	FBase* Raw = NewOwner.Release();
	EXPECT_TRUE(NewOwner == nullptr);
	delete Raw;
	EXPECT_EQ(Destroyed, 2);

	TUniquePtr<int32[]> Values = MakeUnique<int32[]>(3);
	EXPECT_EQ(Values[2], 0);
}
