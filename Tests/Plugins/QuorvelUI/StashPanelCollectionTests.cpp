// Panels and their widgets as the garbage collector sees them: collected once unreferenced, kept with
// what they reference while rooted, and a redraw leaves nothing behind.
#include "Engine/DataTable.h"
#include "StashPanelHarness.h"
#include "UObject/UObjectArray.h"
#include "UObject/WeakObjectPtrTemplates.h"

using namespace StashPanelTest;

TEST(StashPanelLifetime, AnUnreferencedPanelIsCollectedAndItsWeakPointerGoesNull)
{
	// The transient package and the class default object come with the first panel and stay: they are
	// made before counting.
	GetTransientPackage();
	GetDefault<UQuorvelStashPanel>();
	CollectGarbage();
	const int32 Baseline = GUObjectArray.GetObjectArrayNumMinusAvailable();

	TWeakObjectPtr<UQuorvelStashPanel> Weak = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	ASSERT_TRUE(Weak.IsValid());
	CollectGarbage();

	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_EQ(GUObjectArray.GetObjectArrayNumMinusAvailable(), Baseline);
}

TEST(StashPanelLifetime, ARootedPanelKeepsItsItemTableAliveUntilItIsReleased)
{
	UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	Panel->AddToRoot();
	UDataTable* Table = NewObject<UDataTable>(GetTransientPackage());
	*FindPropertyChecked(Panel->GetClass(), TEXT("ItemTable"))->ContainerPtrToValuePtr<TObjectPtr<UDataTable>>(Panel) = Table;
	TWeakObjectPtr<UDataTable> WeakTable = Table;
	TWeakObjectPtr<UQuorvelStashPanel> WeakPanel = Panel;

	CollectGarbage();
	EXPECT_TRUE(WeakTable.IsValid());
	EXPECT_TRUE(WeakPanel.IsValid());

	Panel->RemoveFromRoot();
	CollectGarbage();
	EXPECT_FALSE(WeakPanel.IsValid());
	EXPECT_FALSE(WeakTable.IsValid());
}

TEST_F(FStashPanelTest, EveryRedrawReplacesTheLastAndTheCollectorReclaimsWhatWasRemoved)
{
	UQuorvelStashPanel* Panel = MakePanel();
	FQuorvelContainer Three;
	Three.Layout = TEXT("grid");
	for (int32 Index = 0; Index < 3; ++Index)
	{
		FQuorvelItemInstance& Stack = Three.Items.AddDefaulted_GetRef();
		Stack.ItemId = FName(TEXT("Rope"));
		Stack.X = Index;
		Stack.Y = 0;
		Stack.Quantity = Index == 0 ? 2 : 1;
	}
	Panel->ShowContainer(Three);
	TWeakObjectPtr<UWidget> FirstStack = ValueOf<TArray<TObjectPtr<UWidget>>>(Panel, TEXT("ItemWidgets"))[0].Get();
	CollectGarbage();
	const int32 Baseline = GUObjectArray.GetObjectArrayNumMinusAvailable();

	for (int32 Round = 0; Round < 20; ++Round)
	{
		Panel->ShowContainer(Three);
		CollectGarbage();
	}
	EXPECT_FALSE(FirstStack.IsValid());
	EXPECT_EQ(GUObjectArray.GetObjectArrayNumMinusAvailable(), Baseline);
}
