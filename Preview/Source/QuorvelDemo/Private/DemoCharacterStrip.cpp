#include "DemoCharacterStrip.h"

#include "Blueprint/WidgetTree.h"
#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "DemoInventory.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "StashItemRow.h"

namespace DemoCharacterStrip
{
	const FLinearColor Background(0.05f, 0.055f, 0.06f, 1.0f);
	const FLinearColor Square(1.0f, 1.0f, 1.0f, 0.07f);
	const FLinearColor Title(0.85f, 0.75f, 0.45f, 1.0f);
	const FLinearColor Quantity(1.0f, 1.0f, 1.0f, 0.85f);
	constexpr float Gap = 6.0f;
}

UDemoCharacterStrip::UDemoCharacterStrip(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, SlotCount(8)
	, SlotSize(64.0f)
{
}

TSharedRef<SWidget> UDemoCharacterStrip::RebuildWidget()
{
	if (!Root && WidgetTree)
	{
		BuildTree();
	}
	return Super::RebuildWidget();
}

void UDemoCharacterStrip::BuildTree()
{
	Root = WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass(), TEXT("StripRoot"));
	Root->SetBrushColor(DemoCharacterStrip::Background);
	Root->SetPadding(FMargin(16.0f));
	Root->SetHorizontalAlignment(HAlign_Left);
	Root->SetVerticalAlignment(VAlign_Top);
	WidgetTree->RootWidget = Root;

	UVerticalBox* Column = WidgetTree->ConstructWidget<UVerticalBox>(UVerticalBox::StaticClass(), TEXT("StripColumn"));
	Root->SetContent(Column);

	UTextBlock* Heading = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass(), TEXT("StripTitle"));
	Heading->SetText(NSLOCTEXT("QuorvelDemo", "CharacterTitle", "CHARACTER"));
	Heading->SetColorAndOpacity(FSlateColor(DemoCharacterStrip::Title));
	FSlateFontInfo HeadingFont = Heading->GetFont();
	HeadingFont.Size = 15;
	HeadingFont.LetterSpacing = 220;
	Heading->SetFont(HeadingFont);
	if (UVerticalBoxSlot* HeadingSlot = Column->AddChildToVerticalBox(Heading))
	{
		HeadingSlot->SetPadding(FMargin(0.0f, 0.0f, 0.0f, 8.0f));
	}

	SlotCanvas = WidgetTree->ConstructWidget<UCanvasPanel>(UCanvasPanel::StaticClass(), TEXT("StripSlots"));
	Column->AddChildToVerticalBox(SlotCanvas);
	Refresh();
}

FVector2D UDemoCharacterStrip::SlotPosition(int32 Slot) const
{
	return FVector2D(Slot * (SlotSize + DemoCharacterStrip::Gap), 0.0);
}

void UDemoCharacterStrip::Refresh()
{
	if (!SlotCanvas)
	{
		return;
	}
	for (UWidget* Widget : SlotWidgets)
	{
		Widget->RemoveFromParent();
	}
	SlotWidgets.Reset();

	const int32 Count = FMath::Max(SlotCount, Inventory ? Inventory->Slots.Num() : 0);
	for (int32 Slot = 0; Slot < Count; ++Slot)
	{
		UBorder* Square = WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass());
		Square->SetBrushColor(DemoCharacterStrip::Square);
		Square->SetPadding(FMargin(4.0f));
		const FDemoCarriedStack* Stack = Inventory ? Inventory->GetStack(Slot) : nullptr;
		if (Stack)
		{
			UVerticalBox* Content = WidgetTree->ConstructWidget<UVerticalBox>(UVerticalBox::StaticClass());
			if (UTexture2D* Icon = FindIcon(Stack->ItemId))
			{
				UImage* Image = WidgetTree->ConstructWidget<UImage>(UImage::StaticClass());
				Image->SetBrushFromTexture(Icon, false);
				Content->AddChildToVerticalBox(Image)->SetSize(FSlateChildSize(ESlateSizeRule::Fill));
			}
			else
			{
				UTextBlock* Label = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass());
				Label->SetText(FText::FromName(Stack->ItemId));
				FSlateFontInfo LabelFont = Label->GetFont();
				LabelFont.Size = 8;
				Label->SetFont(LabelFont);
				Content->AddChildToVerticalBox(Label)->SetSize(FSlateChildSize(ESlateSizeRule::Fill));
			}
			UTextBlock* Count = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass());
			Count->SetText(FText::Format(NSLOCTEXT("QuorvelDemo", "CarriedCount", "x{0}"), FText::AsNumber(Stack->Quantity)));
			Count->SetColorAndOpacity(FSlateColor(DemoCharacterStrip::Quantity));
			FSlateFontInfo CountFont = Count->GetFont();
			CountFont.Size = 9;
			Count->SetFont(CountFont);
			Count->SetJustification(ETextJustify::Right);
			Content->AddChildToVerticalBox(Count);
			Square->SetContent(Content);
		}
		if (UCanvasPanelSlot* SquareSlot = SlotCanvas->AddChildToCanvas(Square))
		{
			SquareSlot->SetPosition(SlotPosition(Slot));
			SquareSlot->SetSize(FVector2D(SlotSize, SlotSize));
		}
		SlotWidgets.Add(Square);
	}
}

bool UDemoCharacterStrip::SlotAtScreenPosition(const FVector2D& ScreenPosition, int32& OutSlot) const
{
	OutSlot = INDEX_NONE;
	if (!SlotCanvas || !SlotCanvas->GetCachedWidget().IsValid())
	{
		return false;
	}
	const FVector2D Local = FVector2D(SlotCanvas->GetCachedGeometry().AbsoluteToLocal(ScreenPosition));
	const double Pitch = SlotSize + DemoCharacterStrip::Gap;
	if (Local.X < 0.0 || Local.Y < 0.0 || Local.Y >= SlotSize || Pitch <= 0.0)
	{
		return false;
	}
	const int32 Slot = int32(Local.X / Pitch);
	if (Slot >= SlotWidgets.Num() || Local.X - Slot * Pitch >= SlotSize)
	{
		return false;
	}
	OutSlot = Slot;
	return true;
}

UTexture2D* UDemoCharacterStrip::FindIcon(FName ItemId) const
{
	if (!ItemTable || ItemId.IsNone())
	{
		return nullptr;
	}
	const FStashItemRow* Row = ItemTable->FindRow<FStashItemRow>(ItemId, TEXT("character strip"), false);
	return Row ? Row->Icon.LoadSynchronous() : nullptr;
}
