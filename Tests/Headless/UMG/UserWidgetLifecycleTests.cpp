#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Engine/Texture2D.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "UObject/Package.h"
#include "ViewportTestFixture.h"

using UserWidgetLifecycleTest = ViewportTest;

TEST_F(UserWidgetLifecycleTest, NativeConstructRunsOnceEachTimeTheWidgetIsBuiltForTheScreen)
{
	Screen->AddToViewport();
	EXPECT_EQ(Screen->RebuildCount, 1);
	EXPECT_EQ(Screen->ConstructCount, 1);

	Viewport->Tick();
	Viewport->Tick();
	EXPECT_EQ(Screen->RebuildCount, 1);
	EXPECT_EQ(Screen->ConstructCount, 1);

	Screen->RemoveFromParent();
	EXPECT_EQ(Screen->DestructCount, 1);
	Viewport->Tick();
	EXPECT_EQ(Screen->ConstructCount, 1);

	Screen->AddToViewport();
	EXPECT_EQ(Screen->RebuildCount, 2);
	EXPECT_EQ(Screen->ConstructCount, 2);
}

TEST_F(UserWidgetLifecycleTest, AWidgetMadeWithoutCreateWidgetGetsItsTreeOnItsFirstBuild)
{
	UTestUserWidget* Bare = NewObject<UTestUserWidget>(GetTransientPackage());
	EXPECT_EQ(Bare->WidgetTree, nullptr);
	Bare->AddToViewport();
	EXPECT_NE(Bare->WidgetTree, nullptr);
	EXPECT_EQ(Bare->ConstructCount, 1);
	Bare->RemoveFromParent();
}

TEST_F(UserWidgetLifecycleTest, InitializeGivesATreeOnceAndTellsNoWidgetWithoutAPlayerContext)
{
	EXPECT_NE(Screen->WidgetTree, nullptr);
	EXPECT_FALSE(Screen->Initialize());
	Screen->AddToViewport();
	Viewport->Tick();
	EXPECT_EQ(Screen->InitializedCount, 0);
}

TEST_F(UserWidgetLifecycleTest, AUserWidgetNestedInAnotherIsConstructedWithItsParent)
{
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	UTestUserWidget* Nested = Screen->WidgetTree->ConstructWidget<UTestUserWidget>(UTestUserWidget::StaticClass());
	Canvas->AddChildToCanvas(Nested);
	Screen->WidgetTree->RootWidget = Canvas;
	Screen->AddToViewport();
	Viewport->Tick();
	EXPECT_EQ(Nested->ConstructCount, 1);

	Nested->RemoveFromParent();
	EXPECT_EQ(Nested->DestructCount, 1);
	EXPECT_FALSE(Nested->GetCachedWidget().IsValid());
}

TEST_F(UserWidgetLifecycleTest, WidgetsOnTheViewportLiveUntilTheyAreTakenOff)
{
	TWeakObjectPtr<UTestUserWidget> Weak(Screen);
	Screen->AddToViewport();
	CollectGarbage();
	EXPECT_TRUE(Weak.IsValid());

	Screen->RemoveFromParent();
	CollectGarbage();
	EXPECT_FALSE(Weak.IsValid());
	Screen = nullptr;
}

TEST_F(UserWidgetLifecycleTest, GarbageCollectionReclaimsWidgetsOnceTheyLeaveTheCanvas)
{
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	TArray<TWeakObjectPtr<UImage>> Cells;
	TArray<TWeakObjectPtr<UPanelSlot>> Slots;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		UImage* Cell = Make<UImage>();
		Slots.Add(TWeakObjectPtr<UPanelSlot>(Canvas->AddChildToCanvas(Cell)));
		Cells.Add(Cell);
	}
	Show(Canvas);

	CollectGarbage();
	for (int32 Index = 0; Index < 3; ++Index)
	{
		EXPECT_TRUE(Cells[Index].IsValid());
		EXPECT_TRUE(Slots[Index].IsValid());
	}

	Canvas->ClearChildren();
	EXPECT_EQ(Canvas->GetChildrenCount(), 0);
	CollectGarbage();
	for (int32 Index = 0; Index < 3; ++Index)
	{
		EXPECT_FALSE(Cells[Index].IsValid());
		EXPECT_FALSE(Slots[Index].IsValid());
	}
	EXPECT_TRUE(Canvas->GetCachedWidget().IsValid());
}

TEST_F(UserWidgetLifecycleTest, AnImageKeepsItsTextureAliveAsLongAsTheImageLives)
{
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	UImage* Icon = Make<UImage>();
	TWeakObjectPtr<UTexture2D> Texture(UTexture2D::CreateTransient(2, 2));
	Icon->SetBrushFromTexture(Texture.Get());
	Canvas->AddChildToCanvas(Icon);
	Show(Canvas);

	CollectGarbage();
	EXPECT_TRUE(Texture.IsValid());

	Icon->RemoveFromParent();
	CollectGarbage();
	EXPECT_FALSE(Texture.IsValid());
}

TEST_F(UserWidgetLifecycleTest, AddingToTheViewportWithoutOneDoesNothing)
{
	Viewport.Reset();
	Screen->AddToViewport();
	EXPECT_FALSE(Screen->IsInViewport());
	EXPECT_FALSE(Screen->GetCachedWidget().IsValid());
}
