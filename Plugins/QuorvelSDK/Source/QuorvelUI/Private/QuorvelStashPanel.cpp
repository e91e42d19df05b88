#include "QuorvelStashPanel.h"

#include "Blueprint/WidgetTree.h"
#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Components/SizeBox.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "GenericPlatform/GenericPlatformStricmp.h"
#include "Internationalization/Regex.h"
#include "Policies/PrettyJsonPrintPolicy.h"
#include "QuorvelClient.h"
#include "QuorvelLog.h"
#include "QuorvelSettings.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtr.h"

#define LOCTEXT_NAMESPACE "QuorvelStashPanel"

namespace QuorvelStashPanel
{
	const FLinearColor StatusColour(1.0f, 1.0f, 1.0f, 0.55f);
	const FLinearColor ErrorColour(0.94f, 0.42f, 0.35f, 1.0f);
	const FLinearColor GridFrameColour(0.0f, 0.0f, 0.0f, 0.25f);
	const FLinearColor StackColour(1.0f, 1.0f, 1.0f, 0.06f);
	const FLinearColor FallbackLabelColour(1.0f, 1.0f, 1.0f, 0.5f);

	const TCHAR* const IconFieldNames[] = { TEXT("itemicon"), TEXT("icon"), TEXT("thumbnail"), TEXT("image") };

	/**
	 * The engine's pretty printing, except that every line ends in CR LF: the platform reads the same
	 * bytes from every client, while the engine's own line terminator follows the game's platform.
	 */
	struct FBodyPrintPolicy : public TPrettyJsonPrintPolicy<TCHAR>
	{
		static inline void WriteLineTerminator(FArchive* Stream)
		{
			WriteChar(Stream, TEXT('\r'));
			WriteChar(Stream, TEXT('\n'));
		}
	};

	/** The exact text the platform receives: members in the order they were added. */
	FString ToBodyText(const TSharedRef<FJsonObject>& Body)
	{
		FString Text;
		const TSharedRef<TJsonWriter<TCHAR, FBodyPrintPolicy>> Writer = TJsonWriterFactory<TCHAR, FBodyPrintPolicy>::Create(&Text);
		FJsonSerializer::Serialize(Body, Writer);
		return Text;
	}

	/** The optional "to" of a deposit or transfer: a slot index for a slot drawing, otherwise the cell. */
	void WritePlacement(const TSharedRef<FJsonObject>& Body, bool bSlots, int32 SlotIndex, int32 X, int32 Y)
	{
		if (X < 0 || Y < 0)
		{
			return;
		}
		const TSharedRef<FJsonObject> Placement = MakeShared<FJsonObject>();
		if (bSlots)
		{
			Placement->SetNumberField(TEXT("slot_index"), SlotIndex);
		}
		else
		{
			Placement->SetNumberField(TEXT("x"), X);
			Placement->SetNumberField(TEXT("y"), Y);
		}
		Body->SetObjectField(TEXT("to"), Placement);
	}

	/**
	 * Row structures are the project's own, so icon fields are matched loosely: letter case, underscores,
	 * spaces and the "_<n>_<guid>" suffix that script-defined structures give their members are ignored.
	 */
	FString NormaliseFieldName(const FString& Name)
	{
		static const FRegexPattern SuffixPattern(TEXT("_\\d+_[0-9A-Fa-f]{32}$"));

		FString Normal = Name;
		FRegexMatcher Matcher(SuffixPattern, Name);
		if (Matcher.FindNext())
		{
			Normal = Name.Left(Matcher.GetMatchBeginning());
		}
		Normal = Normal.ToLower();
		Normal.ReplaceInline(TEXT("_"), TEXT(""));
		Normal.ReplaceInline(TEXT(" "), TEXT(""));
		return Normal;
	}

	bool IsIconFieldName(const FString& NormalName)
	{
		for (const TCHAR* IconFieldName : IconFieldNames)
		{
			if (FGenericPlatformStricmp::Stricmp(*NormalName, IconFieldName) == 0)
			{
				return true;
			}
		}
		return false;
	}

	FText FailureText(const FQuorvelError& Error)
	{
		return FText::FromString(Error.Message.IsEmpty() ? Error.Code : Error.Message);
	}
}

UQuorvelStashPanel::UQuorvelStashPanel(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bLoadOnConstruct(true)
	, Provider(TEXT("anonymous"))
	, Ticket(TEXT("demo_account"))
	, ContainerKind(TEXT("stash"))
	, Layout(EQuorvelContainerLayout::Grid)
	, GridWidth(10)
	, GridHeight(8)
	, SlotCount(24)
	, SlotColumns(6)
	, CellSize(64.0f)
	, PanelColour(0.055f, 0.086f, 0.098f, 0.94f)
	, CellColour(1.0f, 1.0f, 1.0f, 0.04f)
	, AccentColour(0.94f, 0.64f, 0.19f, 1.0f)
	, Title(NSLOCTEXT("Tollmere", "StashTitle", "STASH"))
	, bLoading(false)
	, bDrawnAsSlots(false)
	, DrawnColumns(1)
{
	// The panel itself takes part in hit testing, not only its children.
	SetVisibility(ESlateVisibility::Visible);
}

// Lifecycle

TSharedRef<SWidget> UQuorvelStashPanel::RebuildWidget()
{
	if (!Root && WidgetTree)
	{
		BuildTree();
	}
	return Super::RebuildWidget();
}

void UQuorvelStashPanel::NativeConstruct()
{
	Super::NativeConstruct();

	const FSoftObjectPath& ItemTablePath = UQuorvelSettings::Get().ItemTablePath;
	if (!ItemTablePath.IsNull())
	{
		ItemTable = Cast<UDataTable>(ItemTablePath.TryLoad());
	}

	if (bLoadOnConstruct && !IsDesignTime())
	{
		LoadStash();
	}
}

void UQuorvelStashPanel::Reload()
{
	bLoading = false;
	LoadStash();
}

bool UQuorvelStashPanel::IsReady() const
{
	return !AccessToken.IsEmpty() && !ContainerId.IsEmpty();
}

// Sign-in, container ensure and the container reply

void UQuorvelStashPanel::LoadStash()
{
	if (bLoading)
	{
		return;
	}
	bLoading = true;
	SetStatus(LOCTEXT("SigningIn", "Signing in\u2026"), false);

	FWeakObjectPtr WeakThis(this);
	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("provider"), Provider);
	Body->SetStringField(TEXT("ticket"), Ticket);

	FQuorvelClient::Send(TEXT("POST"), TEXT("/v1/game/sessions"), QuorvelStashPanel::ToBodyText(Body), FString(), FString(),
		[WeakThis](bool bSuccess, TSharedPtr<FJsonObject> Reply, FQuorvelError Error)
		{
			UQuorvelStashPanel* Panel = Cast<UQuorvelStashPanel>(WeakThis.Get());
			if (!Panel)
			{
				return;
			}
			if (!bSuccess)
			{
				Panel->bLoading = false;
				Panel->ShowFailure(Error);
				return;
			}

			FString Token;
			const TSharedPtr<FJsonObject>* Tokens = nullptr;
			if (Reply->TryGetObjectField(TEXT("tokens"), Tokens))
			{
				(*Tokens)->TryGetStringField(TEXT("access_token"), Token);
			}
			const TSharedPtr<FJsonObject>* Player = nullptr;
			if (Reply->TryGetObjectField(TEXT("player"), Player))
			{
				(*Player)->TryGetStringField(TEXT("id"), Panel->PlayerId);
			}
			Panel->AccessToken = Token;
			if (Token.IsEmpty())
			{
				Panel->bLoading = false;
				Panel->SetStatus(LOCTEXT("NoToken", "Signed in but received no token"), true);
				return;
			}

			Panel->SetStatus(LOCTEXT("Loading", "Loading stash\u2026"), false);
			const TSharedRef<FJsonObject> EnsureBody = MakeShared<FJsonObject>();
			EnsureBody->SetStringField(TEXT("kind"), Panel->ContainerKind);
			if (Panel->Layout == EQuorvelContainerLayout::Slots)
			{
				EnsureBody->SetStringField(TEXT("layout"), TEXT("slots"));
				EnsureBody->SetNumberField(TEXT("slot_count"), FMath::Max(Panel->SlotCount, 1));
			}
			else
			{
				EnsureBody->SetStringField(TEXT("layout"), TEXT("grid"));
				// Sent as configured: the platform judges a grid size, the drawing clamps its own.
				EnsureBody->SetNumberField(TEXT("grid_width"), Panel->GridWidth);
				EnsureBody->SetNumberField(TEXT("grid_height"), Panel->GridHeight);
			}

			FQuorvelClient::Send(TEXT("POST"), TEXT("/v1/game/containers/ensure"), QuorvelStashPanel::ToBodyText(EnsureBody), Token, FString(),
				[WeakThis](bool bEnsured, TSharedPtr<FJsonObject> Container, FQuorvelError EnsureError)
				{
					UQuorvelStashPanel* Self = Cast<UQuorvelStashPanel>(WeakThis.Get());
					if (!Self)
					{
						return;
					}
					Self->bLoading = false;
					if (!bEnsured)
					{
						Self->ShowFailure(EnsureError);
						return;
					}

					FQuorvelContainer Record;
					Container->TryGetStringField(TEXT("id"), Record.ContainerId);
					Self->ContainerId = Record.ContainerId;
					Container->TryGetStringField(TEXT("kind"), Record.Kind);
					Container->TryGetStringField(TEXT("layout"), Record.Layout);

					const TArray<TSharedPtr<FJsonValue>>* Items = nullptr;
					if (Container->TryGetArrayField(TEXT("items"), Items))
					{
						Record.Items.Reserve(Items->Num());
						for (const TSharedPtr<FJsonValue>& Element : *Items)
						{
							const TSharedPtr<FJsonObject>* Stack = nullptr;
							if (!Element.IsValid() || !Element->TryGetObject(Stack))
							{
								continue;
							}
							FQuorvelItemInstance Instance;
							FString ItemId;
							(*Stack)->TryGetStringField(TEXT("item_id"), ItemId);
							Instance.ItemId = FName(*ItemId);
							(*Stack)->TryGetStringField(TEXT("id"), Instance.InstanceId);
							(*Stack)->TryGetNumberField(TEXT("quantity"), Instance.Quantity);
							(*Stack)->TryGetNumberField(TEXT("x"), Instance.X);
							(*Stack)->TryGetNumberField(TEXT("y"), Instance.Y);
							(*Stack)->TryGetNumberField(TEXT("slot_index"), Instance.SlotIndex);
							(*Stack)->TryGetStringField(TEXT("slot_key"), Instance.SlotKey);
							(*Stack)->TryGetNumberField(TEXT("grid_w"), Instance.GridW);
							(*Stack)->TryGetNumberField(TEXT("grid_h"), Instance.GridH);
							(*Stack)->TryGetBoolField(TEXT("rotated"), Instance.bRotated);
							Record.Items.Add(MoveTemp(Instance));
						}
					}

					UE_LOG(LogQuorvel, Display, TEXT("Stash panel loaded %d stack(s) for %s"), Record.Items.Num(), *Self->PlayerId);
					Self->ShowContainer(Record);
				});
		});
}

void UQuorvelStashPanel::ShowFailure(const FQuorvelError& Error)
{
	SetStatus(QuorvelStashPanel::FailureText(Error), true);
	OnStashFailed.Broadcast(Error);
}

// Layout reconciliation

bool UQuorvelStashPanel::LayOutForDisplay(FQuorvelContainer& Container) const
{
	if (!Container.Layout.Equals(TEXT("slots"), ESearchCase::IgnoreCase))
	{
		return false;
	}
	const int32 Columns = FMath::Max(SlotColumns, 1);
	for (FQuorvelItemInstance& Instance : Container.Items)
	{
		if (Instance.SlotIndex >= 0)
		{
			Instance.X = Instance.SlotIndex % Columns;
			Instance.Y = Instance.SlotIndex / Columns;
			Instance.GridW = 1;
			Instance.GridH = 1;
		}
	}
	return true;
}

void UQuorvelStashPanel::ShowContainer(const FQuorvelContainer& Container)
{
	FQuorvelContainer Working = Container;
	bDrawnAsSlots = LayOutForDisplay(Working);

	int32 Columns = 1;
	int32 Rows = 1;
	if (bDrawnAsSlots)
	{
		Columns = FMath::Max(SlotColumns, 1);
		Rows = (Columns - 1 + FMath::Max(SlotCount, 1)) / Columns;
	}
	else
	{
		Columns = FMath::Max(GridWidth, 1);
		Rows = FMath::Max(GridHeight, 1);
	}
	DrawnColumns = Columns;

	const bool bPanelWantsSlots = Layout == EQuorvelContainerLayout::Slots;
	if (!Working.Layout.IsEmpty() && bPanelWantsSlots != bDrawnAsSlots)
	{
		UE_LOG(LogQuorvel, Warning,
			TEXT("Stash panel asked for a %s container but '%s' already exists as %s. A container's layout is fixed when it is created; use a different kind, or a different player, to see the other one."),
			bPanelWantsSlots ? TEXT("slots") : TEXT("grid"), *ContainerKind, *Working.Layout);
	}

	Contents = Working.Items;
	DrawGrid(Columns, Rows, bDrawnAsSlots ? SlotCount : 0);
	DrawItems(Working);
}

// Drawing

void UQuorvelStashPanel::BuildTree()
{
	Root = WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass(), TEXT("StashPanel"));
	Root->SetBrushColor(PanelColour);
	Root->SetPadding(FMargin(16.0f));
	Root->SetHorizontalAlignment(HAlign_Center);
	Root->SetVerticalAlignment(VAlign_Center);
	WidgetTree->RootWidget = Root;

	UVerticalBox* Column = WidgetTree->ConstructWidget<UVerticalBox>(UVerticalBox::StaticClass(), TEXT("StashColumn"));
	Root->SetContent(Column);

	TitleText = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass(), TEXT("StashTitle"));
	TitleText->SetText(Title);
	TitleText->SetColorAndOpacity(FSlateColor(AccentColour));
	FSlateFontInfo TitleFont = TitleText->GetFont();
	TitleFont.Size = 15;
	TitleFont.LetterSpacing = 220;
	TitleText->SetFont(TitleFont);
	Column->AddChildToVerticalBox(TitleText);

	StatusText = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass(), TEXT("StashStatus"));
	StatusText->SetColorAndOpacity(FSlateColor(QuorvelStashPanel::StatusColour));
	FSlateFontInfo StatusFont = StatusText->GetFont();
	StatusFont.Size = 10;
	StatusText->SetFont(StatusFont);
	if (UVerticalBoxSlot* StatusSlot = Column->AddChildToVerticalBox(StatusText))
	{
		StatusSlot->SetPadding(FMargin(0.0f, 2.0f, 0.0f, 8.0f));
	}

	GridSizer = WidgetTree->ConstructWidget<USizeBox>(USizeBox::StaticClass(), TEXT("StashSizer"));
	Column->AddChildToVerticalBox(GridSizer);

	GridFrame = WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass(), TEXT("StashGridFrame"));
	GridFrame->SetBrushColor(QuorvelStashPanel::GridFrameColour);
	// No padding: the canvas origin is the frame's inner corner, which the hit test relies on.
	GridFrame->SetPadding(FMargin(0.0f));
	GridSizer->AddChild(GridFrame);

	GridCanvas = WidgetTree->ConstructWidget<UCanvasPanel>(UCanvasPanel::StaticClass(), TEXT("StashGrid"));
	GridFrame->SetContent(GridCanvas);

	if (Layout == EQuorvelContainerLayout::Slots)
	{
		const int32 Columns = FMath::Max(SlotColumns, 1);
		const int32 Rows = (FMath::Max(SlotCount, 1) - 1 + Columns) / Columns;
		DrawGrid(Columns, Rows, SlotCount);
	}
	else
	{
		DrawGrid(GridWidth, GridHeight, 0);
	}
	SetStatus(LOCTEXT("Idle", "Not loaded"), false);
}

void UQuorvelStashPanel::DrawGrid(int32 Columns, int32 Rows, int32 InSlotCount)
{
	if (!GridCanvas)
	{
		return;
	}
	GridCanvas->ClearChildren();
	ItemWidgets.Reset();

	Columns = FMath::Max(Columns, 1);
	Rows = FMath::Max(Rows, 1);
	const int64 CellCount = InSlotCount >= 1 ? int64(InSlotCount) : int64(Columns) * Rows;

	for (int32 Row = 0; Row < Rows; ++Row)
	{
		if (int64(Row) * Columns >= CellCount)
		{
			break;
		}
		for (int32 Column = 0; Column < Columns; ++Column)
		{
			if (int64(Row) * Columns + Column >= CellCount)
			{
				break;
			}
			UImage* Cell = WidgetTree->ConstructWidget<UImage>(UImage::StaticClass());
			Cell->SetColorAndOpacity(CellColour);
			if (UCanvasPanelSlot* CellSlot = GridCanvas->AddChildToCanvas(Cell))
			{
				CellSlot->SetPosition(FVector2D(float(Column) * CellSize + 1.0f, float(Row) * CellSize + 1.0f));
				CellSlot->SetSize(FVector2D(CellSize - 2.0f, CellSize - 2.0f));
			}
		}
	}

	if (GridSizer)
	{
		GridSizer->SetWidthOverride(float(Columns) * CellSize);
		GridSizer->SetHeightOverride(float(Rows) * CellSize);
	}
}

void UQuorvelStashPanel::ClearItems()
{
	for (UWidget* Widget : ItemWidgets)
	{
		if (Widget)
		{
			Widget->RemoveFromParent();
		}
	}
	ItemWidgets.Reset();
}

void UQuorvelStashPanel::DrawItems(const FQuorvelContainer& Container)
{
	if (!GridCanvas)
	{
		return;
	}
	ClearItems();

	int32 StackCount = 0;
	for (const FQuorvelItemInstance& Instance : Container.Items)
	{
		if (Instance.X < 0 || Instance.Y < 0)
		{
			continue;
		}
		const float Width = float(FMath::Max(Instance.GridW, 1)) * CellSize;
		const float Height = float(FMath::Max(Instance.GridH, 1)) * CellSize;
		const float Left = float(Instance.X) * CellSize;
		const float Top = float(Instance.Y) * CellSize;
		const FString ItemIdText = Instance.ItemId.ToString();

		UBorder* Stack = WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass());
		Stack->SetBrushColor(QuorvelStashPanel::StackColour);
		Stack->SetPadding(FMargin(2.0f));
		Stack->SetToolTipText(FText::FromString(Instance.Quantity > 1 ? FString::Printf(TEXT("%s x%d"), *ItemIdText, Instance.Quantity) : ItemIdText));

		if (UTexture2D* Icon = FindIcon(ItemIdText))
		{
			UImage* IconImage = WidgetTree->ConstructWidget<UImage>(UImage::StaticClass());
			IconImage->SetBrushFromTexture(Icon, false);
			Stack->SetContent(IconImage);
		}
		else
		{
			UTextBlock* Label = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass());
			Label->SetText(FText::FromName(Instance.ItemId));
			Label->SetColorAndOpacity(FSlateColor(QuorvelStashPanel::FallbackLabelColour));
			FSlateFontInfo LabelFont = Label->GetFont();
			LabelFont.Size = 8;
			Label->SetFont(LabelFont);
			Label->SetJustification(ETextJustify::Center);
			Label->SetAutoWrapText(true);
			Stack->SetContent(Label);
		}

		if (UCanvasPanelSlot* StackSlot = GridCanvas->AddChildToCanvas(Stack))
		{
			StackSlot->SetPosition(FVector2D(Left + 1.0f, Top + 1.0f));
			StackSlot->SetSize(FVector2D(Width - 2.0f, Height - 2.0f));
			StackSlot->SetZOrder(10);
		}
		ItemWidgets.Add(Stack);

		if (Instance.Quantity > 1)
		{
			UTextBlock* QuantityLabel = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass());
			QuantityLabel->SetText(FText::AsNumber(Instance.Quantity));
			QuantityLabel->SetColorAndOpacity(FSlateColor(AccentColour));
			FSlateFontInfo QuantityFont = QuantityLabel->GetFont();
			QuantityFont.Size = 10;
			QuantityLabel->SetFont(QuantityFont);
			if (UCanvasPanelSlot* QuantitySlot = GridCanvas->AddChildToCanvas(QuantityLabel))
			{
				QuantitySlot->SetAutoSize(true);
				QuantitySlot->SetPosition(FVector2D(Left + Width - 16.0f, Top + Height - 16.0f));
				QuantitySlot->SetZOrder(11);
			}
			ItemWidgets.Add(QuantityLabel);
		}
		++StackCount;
	}

	if (bDrawnAsSlots)
	{
		SetStatus(FText::Format(LOCTEXT("LoadedSlots", "{0} of {1} slots"), FText::AsNumber(StackCount), FText::AsNumber(FMath::Max(SlotCount, 1))), false);
	}
	else if (Layout == EQuorvelContainerLayout::Slots)
	{
		SetStatus(FText::Format(LOCTEXT("LoadedGridWanted", "{0} stack(s) \u00B7 {1}x{2} grid (this container was not created as slots)"),
			FText::AsNumber(StackCount), FText::AsNumber(GridWidth), FText::AsNumber(GridHeight)), false);
	}
	else
	{
		SetStatus(FText::Format(LOCTEXT("Loaded", "{0} stack(s) \u00B7 {1}x{2}"), FText::AsNumber(StackCount), FText::AsNumber(GridWidth), FText::AsNumber(GridHeight)), false);
	}
	OnStashLoaded.Broadcast(StackCount);
}

UTexture2D* UQuorvelStashPanel::FindIcon(const FString& ItemId) const
{
	if (!ItemTable)
	{
		return nullptr;
	}
	const UScriptStruct* RowStruct = ItemTable->GetRowStruct();
	if (!RowStruct)
	{
		return nullptr;
	}
	// Looked up without adding to the name table: an id that no name was ever made of names no row.
	const FName RowName(*ItemId, FNAME_Find);
	if (RowName.IsNone() && !ItemId.IsEmpty() && ItemId != TEXT("None"))
	{
		return nullptr;
	}
	const uint8* Row = ItemTable->GetRowMap().FindRef(RowName);
	if (!Row)
	{
		return nullptr;
	}

	for (TFieldIterator<FProperty> It(RowStruct, EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::IncludeDeprecated); It; ++It)
	{
		const FProperty* Property = *It;
		if (!QuorvelStashPanel::IsIconFieldName(QuorvelStashPanel::NormaliseFieldName(Property->GetName())))
		{
			continue;
		}
		if (const FSoftObjectProperty* SoftProperty = CastField<FSoftObjectProperty>(Property))
		{
			// Resolved on a copy, so the table is never written to and every call looks again.
			const FSoftObjectPtr Soft = *SoftProperty->ContainerPtrToValuePtr<FSoftObjectPtr>(Row);
			return Cast<UTexture2D>(Soft.LoadSynchronous());
		}
		if (const FObjectPropertyBase* ObjectProperty = CastField<FObjectPropertyBase>(Property))
		{
			if (ObjectProperty->IsA<FWeakObjectProperty>() || ObjectProperty->IsA<FLazyObjectProperty>())
			{
				continue;
			}
			return Cast<UTexture2D>(ObjectProperty->GetObjectPropertyValue_InContainer(Row));
		}
	}
	return nullptr;
}

void UQuorvelStashPanel::SetStatus(const FText& Text, bool bError)
{
	if (!StatusText)
	{
		return;
	}
	StatusText->SetText(Text);
	StatusText->SetColorAndOpacity(FSlateColor(bError ? QuorvelStashPanel::ErrorColour : QuorvelStashPanel::StatusColour));
}

// Hit testing

bool UQuorvelStashPanel::CellAtScreenPosition(const FVector2D& ScreenPosition, int32& OutX, int32& OutY) const
{
	OutX = -1;
	OutY = -1;
	if (!GridCanvas || !GridCanvas->GetCachedWidget().IsValid())
	{
		return false;
	}

	const FVector2f Local = GridCanvas->GetCachedGeometry().AbsoluteToLocal(FVector2f(ScreenPosition));
	const double LocalX = Local.X;
	const double LocalY = Local.Y;
	if (LocalX < 0.0 || LocalY < 0.0)
	{
		return false;
	}

	// A transform that cannot be inverted, a CellSize of zero or a quotient past 32 bits has no cell;
	// the negated range tests also turn away NaN.
	const double ColumnValue = FMath::FloorToDouble(LocalX / double(CellSize));
	const double RowValue = FMath::FloorToDouble(LocalY / double(CellSize));
	if (!(ColumnValue >= 0.0 && ColumnValue <= double(MAX_int32)) || !(RowValue >= 0.0 && RowValue <= double(MAX_int32)))
	{
		return false;
	}
	const int32 Column = int32(ColumnValue);
	const int32 Row = int32(RowValue);

	if (bDrawnAsSlots)
	{
		const int32 Columns = FMath::Max(DrawnColumns, 1);
		if (Column >= Columns)
		{
			return false;
		}
		// In 64 bits: a row far below the drawing must not wrap round into a valid index.
		const int64 Index = int64(Columns) * Row + Column;
		if (Index >= FMath::Max(SlotCount, 1))
		{
			return false;
		}
	}
	else if (Column >= GridWidth || Row >= GridHeight)
	{
		return false;
	}

	OutX = Column;
	OutY = Row;
	return true;
}

bool UQuorvelStashPanel::InstanceAtScreenPosition(const FVector2D& ScreenPosition, FQuorvelItemInstance& OutInstance) const
{
	int32 Column = -1;
	int32 Row = -1;
	if (!CellAtScreenPosition(ScreenPosition, Column, Row))
	{
		return false;
	}
	for (const FQuorvelItemInstance& Instance : Contents)
	{
		// Footprints compared in 64 bits so a huge GridW or GridH cannot overflow into a miss or a false hit.
		if (Instance.X >= 0 && Instance.Y >= 0
			&& Instance.X <= Column && Column < int64(Instance.X) + FMath::Max(Instance.GridW, 1)
			&& Instance.Y <= Row && Row < int64(Instance.Y) + FMath::Max(Instance.GridH, 1))
		{
			OutInstance = Instance;
			return true;
		}
	}
	return false;
}

int32 UQuorvelStashPanel::SlotIndexAt(int32 X, int32 Y) const
{
	// Wraps as 32-bit arithmetic does, without the undefined overflow.
	return int32(int64(FMath::Max(DrawnColumns, 1)) * Y + X);
}

// Item operations

void UQuorvelStashPanel::DepositItem(FName ItemId, int32 Quantity, int32 X, int32 Y, int32 SourceSlot)
{
	if (!IsReady())
	{
		UE_LOG(LogQuorvel, Warning, TEXT("Deposit refused: the stash is not loaded yet."));
		return;
	}

	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("container_id"), ContainerId);
	Body->SetStringField(TEXT("item_id"), ItemId.ToString());
	const int32 SentQuantity = FMath::Max(Quantity, 1);
	Body->SetNumberField(TEXT("quantity"), SentQuantity);
	QuorvelStashPanel::WritePlacement(Body, bDrawnAsSlots, SlotIndexAt(X, Y), X, Y);

	FWeakObjectPtr WeakThis(this);
	const FString IdempotencyKey = FQuorvelClient::NewIdempotencyKey();
	FQuorvelClient::Send(TEXT("POST"), TEXT("/v1/game/inventory/grant"), QuorvelStashPanel::ToBodyText(Body), AccessToken, IdempotencyKey,
		[WeakThis, ItemId, SentQuantity, SourceSlot](bool bSuccess, TSharedPtr<FJsonObject> Reply, FQuorvelError Error)
		{
			UQuorvelStashPanel* Panel = Cast<UQuorvelStashPanel>(WeakThis.Get());
			if (!Panel)
			{
				return;
			}
			if (!bSuccess)
			{
				Panel->ShowFailure(Error);
				return;
			}
			Panel->OnDepositAccepted.Broadcast(ItemId, SentQuantity, SourceSlot);
			Panel->OnDeposited(ItemId, SentQuantity, SourceSlot);
			Panel->Reload();
		});
}

void UQuorvelStashPanel::WithdrawInstance(const FQuorvelItemInstance& Instance)
{
	if (!IsReady() || Instance.InstanceId.IsEmpty())
	{
		UE_LOG(LogQuorvel, Warning, TEXT("Withdraw refused: no stash, or the stack has no instance id."));
		return;
	}

	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("instance_id"), Instance.InstanceId);
	Body->SetNumberField(TEXT("quantity"), FMath::Max(Instance.Quantity, 1));

	FWeakObjectPtr WeakThis(this);
	const FString IdempotencyKey = FQuorvelClient::NewIdempotencyKey();
	FQuorvelClient::Send(TEXT("POST"), TEXT("/v1/game/inventory/consume"), QuorvelStashPanel::ToBodyText(Body), AccessToken, IdempotencyKey,
		[WeakThis, Instance](bool bSuccess, TSharedPtr<FJsonObject> Reply, FQuorvelError Error)
		{
			UQuorvelStashPanel* Panel = Cast<UQuorvelStashPanel>(WeakThis.Get());
			if (!Panel)
			{
				return;
			}
			if (!bSuccess)
			{
				Panel->ShowFailure(Error);
				return;
			}
			Panel->OnWithdrawAccepted.Broadcast(Instance);
			Panel->OnWithdrawn(Instance);
			Panel->Reload();
		});
}

void UQuorvelStashPanel::TransferFrom(UQuorvelStashPanel* Source, const FQuorvelItemInstance& Instance, int32 X, int32 Y)
{
	if (!IsReady() || !Source || Instance.InstanceId.IsEmpty())
	{
		UE_LOG(LogQuorvel, Warning, TEXT("Transfer refused: destination not loaded, no source panel, or the stack has no instance id."));
		return;
	}
	if (Source == this)
	{
		UE_LOG(LogQuorvel, Warning, TEXT("Transfer refused: source and destination are the same panel."));
		return;
	}

	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("instance_id"), Instance.InstanceId);
	Body->SetStringField(TEXT("to_container_id"), ContainerId);
	QuorvelStashPanel::WritePlacement(Body, bDrawnAsSlots, SlotIndexAt(X, Y), X, Y);

	FWeakObjectPtr WeakThis(this);
	FWeakObjectPtr WeakSource(Source);
	const FString IdempotencyKey = FQuorvelClient::NewIdempotencyKey();
	FQuorvelClient::Send(TEXT("POST"), TEXT("/v1/game/inventory/move"), QuorvelStashPanel::ToBodyText(Body), AccessToken, IdempotencyKey,
		[WeakThis, WeakSource, Instance](bool bSuccess, TSharedPtr<FJsonObject> Reply, FQuorvelError Error)
		{
			UQuorvelStashPanel* Panel = Cast<UQuorvelStashPanel>(WeakThis.Get());
			if (!Panel)
			{
				return;
			}
			if (!bSuccess)
			{
				Panel->ShowFailure(Error);
				return;
			}
			if (UQuorvelStashPanel* SourcePanel = Cast<UQuorvelStashPanel>(WeakSource.Get()))
			{
				SourcePanel->Reload();
			}
			Panel->OnTransferAccepted.Broadcast(Instance);
			Panel->OnTransferred(Instance);
			Panel->Reload();
		});
}

#undef LOCTEXT_NAMESPACE
