// A new panel's configuration and state, and the widget tree it builds in code the first time the
// engine asks for its widget.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Blueprint/WidgetTree.h"
#include "Components/Border.h"
#include "Components/Image.h"
#include "Components/SizeBox.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Internationalization/Text.h"

BEGIN_DEFINE_SPEC(FQuorvelStashPanelDefaultsTests, "Quorvel.UI.Defaults", UE::Quorvel::Tests::TestFlags)
	UQuorvelStashPanel* Panel = nullptr;
END_DEFINE_SPEC(FQuorvelStashPanelDefaultsTests)

void FQuorvelStashPanelDefaultsTests::Define()
{
	using namespace UE::Quorvel::Tests;

	BeforeEach([this]
	{
		// Read within the step that makes it, so the collector never runs in between.
		Panel = NewObject<UQuorvelStashPanel>(GetTransientPackage());
	});

	It("loads on construction a 10 by 8 grid stash for the anonymous demo account", [this]
	{
		TestTrue(TEXT("bLoadOnConstruct"), PropertyValue<bool>(Panel, TEXT("bLoadOnConstruct")));
		TestEqual(TEXT("Provider"), PropertyValue<FString>(Panel, TEXT("Provider")), TEXT("anonymous"));
		TestEqual(TEXT("Ticket"), PropertyValue<FString>(Panel, TEXT("Ticket")), TEXT("demo_account"));
		TestEqual(TEXT("ContainerKind"), PropertyValue<FString>(Panel, TEXT("ContainerKind")), TEXT("stash"));
		TestTrue(TEXT("Layout is Grid"), PropertyValue<EQuorvelContainerLayout>(Panel, TEXT("Layout")) == EQuorvelContainerLayout::Grid);
		TestEqual(TEXT("GridWidth"), PropertyValue<int32>(Panel, TEXT("GridWidth")), 10);
		TestEqual(TEXT("GridHeight"), PropertyValue<int32>(Panel, TEXT("GridHeight")), 8);
		TestEqual(TEXT("SlotCount"), PropertyValue<int32>(Panel, TEXT("SlotCount")), 24);
		TestEqual(TEXT("SlotColumns"), PropertyValue<int32>(Panel, TEXT("SlotColumns")), 6);
		TestEqual(TEXT("CellSize"), PropertyValue<float>(Panel, TEXT("CellSize")), 64.0f, 0.0f);
	});

	It("uses the nearest floats to its decimal colours", [this]
	{
		TestTrue(TEXT("PanelColour"), PropertyValue<FLinearColor>(Panel, TEXT("PanelColour")) == FLinearColor(0.055f, 0.086f, 0.098f, 0.94f));
		TestTrue(TEXT("CellColour"), PropertyValue<FLinearColor>(Panel, TEXT("CellColour")) == FLinearColor(1.0f, 1.0f, 1.0f, 0.04f));
		TestTrue(TEXT("AccentColour"), PropertyValue<FLinearColor>(Panel, TEXT("AccentColour")) == FLinearColor(0.94f, 0.64f, 0.19f, 1.0f));
	});

	It("is titled with the localisable STASH text of the Tollmere namespace", [this]
	{
		const FText& Title = PropertyValue<FText>(Panel, TEXT("Title"));
		TestEqual(TEXT("Namespace"), FTextInspector::GetNamespace(Title).Get(FString()), TEXT("Tollmere"));
		TestEqual(TEXT("Key"), FTextInspector::GetKey(Title).Get(FString()), TEXT("StashTitle"));
		const FString* Source = FTextInspector::GetSourceString(Title);
		TestEqual(TEXT("Source"), Source ? *Source : FString(), TEXT("STASH"));
		TestFalse(TEXT("Culture invariant"), Title.IsCultureInvariant());
	});

	It("takes part in hit testing itself, where a user widget only lets its children be hit", [this]
	{
		TestTrue(TEXT("Visible"), Panel->GetVisibility() == ESlateVisibility::Visible);
	});

	It("holds no widgets, item table or contents and is not ready before its tree is built", [this]
	{
		for (const TCHAR* Name : { TEXT("Root"), TEXT("GridSizer"), TEXT("GridCanvas"), TEXT("GridFrame"), TEXT("TitleText"), TEXT("StatusText"), TEXT("ItemTable") })
		{
			const FObjectPropertyBase* Property = CastField<FObjectPropertyBase>(Panel->GetClass()->FindPropertyByName(FName(Name)));
			TestTrue(*FString::Printf(TEXT("%s is empty"), Name), Property && Property->GetObjectPropertyValue_InContainer(Panel) == nullptr);
		}
		TestEqual(TEXT("ItemWidgets"), ItemWidgetsOf(Panel).Num(), 0);
		TestEqual(TEXT("Contents"), ContentsOf(Panel).Num(), 0);
		TestFalse(TEXT("Ready"), Panel->IsReady());
	});
}

BEGIN_DEFINE_SPEC(FQuorvelStashPanelTreeTests, "Quorvel.UI.Tree", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
END_DEFINE_SPEC(FQuorvelStashPanelTreeTests)

void FQuorvelStashPanelTreeTests::Define()
{
	using namespace UE::Quorvel::Tests;

	AfterEach([this]
	{
		Panels.Reset();
	});

	It("is a padded, centred border around the title, the status line and the sized grid frame", [this]
	{
		UQuorvelStashPanel* Panel = Panels.Make();
		UBorder* Root = PropertyValue<TObjectPtr<UBorder>>(Panel, TEXT("Root")).Get();
		if (!TestNotNull(TEXT("Root"), Root))
		{
			return;
		}
		TestTrue(TEXT("Root is the tree's root widget"), Panel->WidgetTree->RootWidget == Root);
		TestEqual(TEXT("Root name"), Root->GetName(), TEXT("StashPanel"));
		TestTrue(TEXT("Root belongs to the tree"), Root->GetOuter() == Panel->WidgetTree);
		TestTrue(TEXT("Root colour"), Root->GetBrushColor() == FLinearColor(0.055f, 0.086f, 0.098f, 0.94f));
		TestTrue(TEXT("Root padding"), Root->GetPadding() == FMargin(16.0f));
		TestTrue(TEXT("Root centres horizontally"), Root->GetHorizontalAlignment() == HAlign_Center);
		TestTrue(TEXT("Root centres vertically"), Root->GetVerticalAlignment() == VAlign_Center);

		UVerticalBox* Column = Cast<UVerticalBox>(Root->GetContent());
		if (!TestNotNull(TEXT("Column"), Column) || !TestEqual(TEXT("Column children"), Column->GetChildrenCount(), 3))
		{
			return;
		}
		TestEqual(TEXT("Column name"), Column->GetName(), TEXT("StashColumn"));
		UTextBlock* Title = Cast<UTextBlock>(Column->GetChildAt(0));
		UTextBlock* Status = Cast<UTextBlock>(Column->GetChildAt(1));
		USizeBox* Sizer = Cast<USizeBox>(Column->GetChildAt(2));
		if (!TestTrue(TEXT("Title, status line and size box in that order"), Title && Status && Sizer))
		{
			return;
		}
		TestEqual(TEXT("Title name"), Title->GetName(), TEXT("StashTitle"));
		TestEqual(TEXT("Status name"), Status->GetName(), TEXT("StashStatus"));
		TestEqual(TEXT("Sizer name"), Sizer->GetName(), TEXT("StashSizer"));
		TestTrue(TEXT("Status is the panel's status line"), Status == StatusOf(Panel));

		TestEqual(TEXT("Title text"), Title->GetText().ToString(), TEXT("STASH"));
		TestTrue(TEXT("Title colour"), Title->GetColorAndOpacity().GetSpecifiedColor() == FLinearColor(0.94f, 0.64f, 0.19f, 1.0f));
		TestEqual(TEXT("Title size"), Title->GetFont().Size, 15.0f, 0.0f);
		TestEqual(TEXT("Title letter spacing"), Title->GetFont().LetterSpacing, 220);
		TestEqual(TEXT("Status size"), Status->GetFont().Size, 10.0f, 0.0f);
		TestEqual(TEXT("Status letter spacing"), Status->GetFont().LetterSpacing, GetDefault<UTextBlock>()->GetFont().LetterSpacing);
		TestTrue(TEXT("Status keeps the title's typeface"), Status->GetFont().FontObject == Title->GetFont().FontObject);
		TestTrue(TEXT("Status padding"), CastChecked<UVerticalBoxSlot>(Status->Slot)->GetPadding() == FMargin(0.0f, 2.0f, 0.0f, 8.0f));
		TestTrue(TEXT("Title padding"), CastChecked<UVerticalBoxSlot>(Title->Slot)->GetPadding() == FMargin());

		UBorder* Frame = Sizer->GetChildrenCount() == 1 ? Cast<UBorder>(Sizer->GetChildAt(0)) : nullptr;
		if (!TestNotNull(TEXT("Frame, the size box's only child"), Frame))
		{
			return;
		}
		TestEqual(TEXT("Frame name"), Frame->GetName(), TEXT("StashGridFrame"));
		TestTrue(TEXT("Frame colour"), Frame->GetBrushColor() == FLinearColor(0.0f, 0.0f, 0.0f, 0.25f));
		// Unpadded, so the canvas origin is the frame's inner corner, which the hit tests rely on.
		TestTrue(TEXT("Frame padding"), Frame->GetPadding() == FMargin(0.0f));
		UCanvasPanel* Canvas = Cast<UCanvasPanel>(Frame->GetContent());
		TestTrue(TEXT("Canvas is the frame's content"), Canvas && Canvas == CanvasOf(Panel));
		TestEqual(TEXT("Canvas name"), Canvas ? Canvas->GetName() : FString(), TEXT("StashGrid"));
	});

	It("starts with the configured empty grid and Not loaded on the status line", [this]
	{
		UQuorvelStashPanel* Panel = Panels.Make();
		const TArray<FDrawnChild> Cells = DrawnOn(Panel);
		if (!TestEqual(TEXT("Cells"), Cells.Num(), 80))
		{
			return;
		}
		TestEqual(TEXT("First cell"), Cells[0].Position, FVector2D(1.0, 1.0));
		TestEqual(TEXT("Last cell"), Cells[79].Position, FVector2D(577.0, 449.0));
		TestEqual(TEXT("Cell size"), Cells[79].Size, FVector2D(62.0, 62.0));
		TestFalse(TEXT("Cells sized by their slots"), Cells[79].bAutoSize);
		TestTrue(TEXT("Cell colour"), CastChecked<UImage>(Cells[0].Widget)->GetColorAndOpacity() == FLinearColor(1.0f, 1.0f, 1.0f, 0.04f));
		const USizeBox* Sizer = PropertyValue<TObjectPtr<USizeBox>>(Panel, TEXT("GridSizer")).Get();
		TestEqual(TEXT("Sizer"), FVector2D(Sizer->GetWidthOverride(), Sizer->GetHeightOverride()), FVector2D(640.0, 512.0));
		TestEqual(TEXT("Status"), StatusTextOf(Panel), TEXT("Not loaded"));
		TestTrue(TEXT("Status colour"), StatusColourOf(Panel) == StatusColour);
	});

	It("starts a slot layout with the configured slots, row by row, a partial last row included", [this]
	{
		struct FCase
		{
			int32 SlotCount;
			int32 SlotColumns;
			int32 Cells;
			FVector2D Sizer;
			FVector2D LastCell;
		};
		const FCase Cases[] = {
			{ 24, 6, 24, FVector2D(384.0, 256.0), FVector2D(321.0, 193.0) },
			{ 25, 6, 25, FVector2D(384.0, 320.0), FVector2D(1.0, 257.0) },
			{ 0, 6, 6, FVector2D(384.0, 64.0), FVector2D(321.0, 1.0) },
			{ 3, 0, 3, FVector2D(64.0, 192.0), FVector2D(1.0, 129.0) },
		};
		for (const FCase& Case : Cases)
		{
			UQuorvelStashPanel* Panel = Panels.Make([&Case](UQuorvelStashPanel& Configured)
			{
				Configured.Layout = EQuorvelContainerLayout::Slots;
				Configured.SlotCount = Case.SlotCount;
				Configured.SlotColumns = Case.SlotColumns;
			});
			const FString Label = FString::Printf(TEXT("%d slots in %d columns"), Case.SlotCount, Case.SlotColumns);
			const TArray<FDrawnChild> Cells = DrawnOn(Panel);
			TestEqual(*(Label + TEXT(": cells")), Cells.Num(), Case.Cells);
			TestEqual(*(Label + TEXT(": last cell")), Cells.Num() > 0 ? Cells.Last().Position : FVector2D::ZeroVector, Case.LastCell);
			const USizeBox* Sizer = PropertyValue<TObjectPtr<USizeBox>>(Panel, TEXT("GridSizer")).Get();
			TestEqual(*(Label + TEXT(": sizer")), FVector2D(Sizer->GetWidthOverride(), Sizer->GetHeightOverride()), Case.Sizer);
		}
	});

	It("is built once: a second rebuild keeps every widget and a later title change", [this]
	{
		UQuorvelStashPanel* Panel = Panels.Make();
		UBorder* Root = PropertyValue<TObjectPtr<UBorder>>(Panel, TEXT("Root")).Get();
		UTextBlock* Status = StatusOf(Panel);
		Panel->Title = FText::FromString(TEXT("LOADOUT"));

		// The engine rebuilds a widget's Slate tree after releasing it, as when it leaves the screen and returns.
		Panel->ReleaseSlateResources(true);
		Panel->TakeWidget();

		TestTrue(TEXT("Same root"), PropertyValue<TObjectPtr<UBorder>>(Panel, TEXT("Root")).Get() == Root);
		TestTrue(TEXT("Same status line"), StatusOf(Panel) == Status);
		TestTrue(TEXT("Root is still the tree's root"), Panel->WidgetTree->RootWidget == Root);
		TestEqual(TEXT("Cells"), DrawnOn(Panel).Num(), 80);
		UTextBlock* Title = PropertyValue<TObjectPtr<UTextBlock>>(Panel, TEXT("TitleText")).Get();
		TestEqual(TEXT("Title"), Title->GetText().ToString(), TEXT("STASH"));
	});
}

#endif
