// What the stash panel's automation tests share: panels made and kept alive for one test, the
// panel's private state read through reflection, and a layout pass that needs no renderer.
#pragma once

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/TextBlock.h"
#include "Engine/DataTable.h"
#include "HAL/PlatformTime.h"
#include "QuorvelContainer.h"
#include "QuorvelItemInstance.h"
#include "QuorvelStashPanel.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

namespace UE::Quorvel::Tests
{
	/** Every test runs in the editor and in a game, and belongs to the product's own tests. */
	inline constexpr EAutomationTestFlags TestFlags = EAutomationTestFlags_ApplicationContextMask | EAutomationTestFlags::ProductFilter;

	inline const FLinearColor StatusColour(1.0f, 1.0f, 1.0f, 0.55f);
	inline const FLinearColor ErrorColour(0.94f, 0.42f, 0.35f, 1.0f);

	/** The value of a registered property of Object, private ones included. */
	template <typename ValueType>
	ValueType& PropertyValue(UObject* Object, const TCHAR* Name)
	{
		const FProperty* Property = Object->GetClass()->FindPropertyByName(FName(Name));
		check(Property);
		return *Property->ContainerPtrToValuePtr<ValueType>(Object);
	}

	inline UCanvasPanel* CanvasOf(UQuorvelStashPanel* Panel)
	{
		return PropertyValue<TObjectPtr<UCanvasPanel>>(Panel, TEXT("GridCanvas")).Get();
	}

	inline UTextBlock* StatusOf(UQuorvelStashPanel* Panel)
	{
		return PropertyValue<TObjectPtr<UTextBlock>>(Panel, TEXT("StatusText")).Get();
	}

	inline FString StatusTextOf(UQuorvelStashPanel* Panel)
	{
		return StatusOf(Panel)->GetText().ToString();
	}

	inline FLinearColor StatusColourOf(UQuorvelStashPanel* Panel)
	{
		return StatusOf(Panel)->GetColorAndOpacity().GetSpecifiedColor();
	}

	inline TArray<FQuorvelItemInstance>& ContentsOf(UQuorvelStashPanel* Panel)
	{
		return PropertyValue<TArray<FQuorvelItemInstance>>(Panel, TEXT("Contents"));
	}

	inline TArray<TObjectPtr<UWidget>>& ItemWidgetsOf(UQuorvelStashPanel* Panel)
	{
		return PropertyValue<TArray<TObjectPtr<UWidget>>>(Panel, TEXT("ItemWidgets"));
	}

	inline void SetItemTable(UQuorvelStashPanel* Panel, UDataTable* Table)
	{
		PropertyValue<TObjectPtr<UDataTable>>(Panel, TEXT("ItemTable")) = Table;
	}

	/** One child of the grid canvas as its slot placed it. */
	struct FDrawnChild
	{
		UWidget* Widget = nullptr;
		FVector2D Position;
		FVector2D Size;
		int32 ZOrder = 0;
		bool bAutoSize = false;
	};

	/** The canvas's children in the order they were added: cells first (z-order 0), then stacks (10) and labels (11). */
	inline TArray<FDrawnChild> DrawnOn(UQuorvelStashPanel* Panel)
	{
		TArray<FDrawnChild> Result;
		UCanvasPanel* Canvas = CanvasOf(Panel);
		for (int32 Index = 0; Index < Canvas->GetChildrenCount(); ++Index)
		{
			FDrawnChild& Child = Result.AddDefaulted_GetRef();
			Child.Widget = Canvas->GetChildAt(Index);
			const UCanvasPanelSlot* Slot = CastChecked<UCanvasPanelSlot>(Child.Widget->Slot);
			Child.Position = Slot->GetPosition();
			Child.Size = Slot->GetSize();
			Child.ZOrder = Slot->GetZOrder();
			Child.bAutoSize = Slot->GetAutoSize();
		}
		return Result;
	}

	inline int32 CellCountOf(UQuorvelStashPanel* Panel)
	{
		return DrawnOn(Panel).FilterByPredicate([](const FDrawnChild& Child) { return Child.ZOrder == 0; }).Num();
	}

	/** What is drawn for stacks only: their borders and quantity labels, in drawing order. */
	inline TArray<FDrawnChild> StacksOn(UQuorvelStashPanel* Panel)
	{
		return DrawnOn(Panel).FilterByPredicate([](const FDrawnChild& Child) { return Child.ZOrder > 0; });
	}

	/** A stack of item Id (its instance id is Id in lower case) at a cell, with a footprint. */
	inline FQuorvelItemInstance MakeStack(const TCHAR* Id, int32 X, int32 Y, int32 Width = 1, int32 Height = 1, int32 Quantity = 1, int32 SlotIndex = -1)
	{
		FQuorvelItemInstance Stack;
		Stack.ItemId = FName(Id);
		Stack.InstanceId = FString(Id).ToLower();
		Stack.X = X;
		Stack.Y = Y;
		Stack.GridW = Width;
		Stack.GridH = Height;
		Stack.Quantity = Quantity;
		Stack.SlotIndex = SlotIndex;
		return Stack;
	}

	inline FQuorvelContainer MakeContainer(const TCHAR* Layout, TArray<FQuorvelItemInstance> Items = TArray<FQuorvelItemInstance>())
	{
		FQuorvelContainer Container;
		Container.Layout = Layout;
		Container.Items = MoveTemp(Items);
		return Container;
	}

	/**
	 * Panels for one test, kept from garbage collection until Reset (or destruction). Each is made as
	 * a menu would get it, but never loads by itself, and draws without the project's item table.
	 */
	class FTestPanels
	{
	public:
		FTestPanels() = default;
		FTestPanels(const FTestPanels&) = delete;
		FTestPanels& operator=(const FTestPanels&) = delete;

		~FTestPanels()
		{
			Reset();
		}

		/** A panel whose widget tree is built; Configure runs before the tree is. */
		UQuorvelStashPanel* Make(TFunctionRef<void(UQuorvelStashPanel&)> Configure)
		{
			UQuorvelStashPanel* Panel = MakeUnbuilt(Configure);
			// What the engine does when it first needs the panel's Slate widget: the tree is built and
			// the panel constructed, which loads the project's item table.
			Panel->TakeWidget();
			SetItemTable(Panel, nullptr);
			return Panel;
		}

		UQuorvelStashPanel* Make()
		{
			return Make([](UQuorvelStashPanel&) {});
		}

		/** A panel that has its widget tree object but has never built its widgets. */
		UQuorvelStashPanel* MakeUnbuilt(TFunctionRef<void(UQuorvelStashPanel&)> Configure)
		{
			UQuorvelStashPanel* Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
			Panel->AddToRoot();
			Panels.Add(Panel);
			Panel->bLoadOnConstruct = false;
			Configure(*Panel);
			Panel->Initialize();
			return Panel;
		}

		void Reset()
		{
			for (UQuorvelStashPanel* Panel : Panels)
			{
				Panel->RemoveFromRoot();
			}
			Panels.Reset();
		}

	private:
		TArray<UQuorvelStashPanel*> Panels;
	};

	/**
	 * A panel on screen, as far as hit tests can tell: the content of a window away from the desktop's
	 * origin, measured and painted into a list nobody draws, which arranges every widget and caches its
	 * geometry. It works without a renderer, unlike drawing the widget to a render target. The window
	 * holds the panel's Slate widget while this object lives.
	 */
	class FPanelOnScreen
	{
	public:
		explicit FPanelOnScreen(UQuorvelStashPanel* InPanel)
			: Panel(InPanel)
			, Window(SNew(SWindow).ScreenPosition(FVector2D(200.0, 100.0)).ClientSize(FVector2D(1600.0, 1200.0)))
		{
			Window->SetContent(Panel->TakeWidget());
			Arrange();
		}

		/** One frame's layout pass, after the panel has changed. */
		void Arrange()
		{
			Window->SlatePrepass(Window->GetDPIScaleFactor());
			FSlateWindowElementList Elements(Window);
			Window->PaintWindow(FPlatformTime::Seconds(), 0.0f, Elements, FWidgetStyle(), true);
		}

		/** Where the grid canvas's top-left corner lies on the desktop, as of the last layout pass. */
		FVector2D CanvasOrigin() const
		{
			return FVector2D(CanvasOf(Panel)->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0)));
		}

		/** Takes the panel off the window; its Slate widgets are released with the window's hold on them. */
		void TakeDown()
		{
			Window->SetContent(SNullWidget::NullWidget);
		}

	private:
		UQuorvelStashPanel* Panel;
		TSharedRef<SWindow> Window;
	};
}

#endif
