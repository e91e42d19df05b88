#include "PreviewScene.h"

#include "Components/CanvasPanel.h"
#include "Components/TextBlock.h"
#include "Containers/StringConv.h"
#include "DemoCharacterStrip.h"
#include "DemoInventory.h"
#include "DemoStashScreen.h"
#include "Engine/DataTable.h"
#include "Emulator.h"
#include "Headless/HeadlessEngine.h"
#include "Headless/HeadlessViewport.h"
#include "Headless/ScriptClass.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "QuorvelLog.h"
#include "QuorvelSettings.h"
#include "QuorvelStashPanel.h"
#include "StashPanelWatcher.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <httplib.h>

#include <chrono>
#include <deque>
#include <mutex>

namespace
{
	/** The notification log of the scene that is running, for the events of the script panel class. */
	UDemoNotificationLog* GEventLog = nullptr;

	std::string Utf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	FString FromUtf8(const std::string& Text)
	{
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	}

	double NowSeconds()
	{
		return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
	}

	template <typename T>
	T* Reflected(const UObject* Object, const TCHAR* Name)
	{
		const FProperty* Property = Object->GetClass()->FindPropertyByName(FName(Name));
		return Property ? Property->ContainerPtrToValuePtr<TObjectPtr<T>>(Object)->Get() : nullptr;
	}

	/**
	 * A panel class whose script events write to the log too, as a game's Blueprint subclass would
	 * implement them: OnDeposited, OnWithdrawn and OnTransferred after the matching delegates.
	 */
	UClass* PreviewPanelClass()
	{
		static UClass* Class = nullptr;
		if (Class)
		{
			return Class;
		}
		Class = UE::Headless::CreateScriptClass(UQuorvelStashPanel::StaticClass(), TEXT("BP_PreviewStashPanel"));
		struct FDepositParms
		{
			FName ItemId;
			int32 Quantity;
			int32 SourceSlot;
		};
		UE::Headless::ImplementScriptEvent<FDepositParms>(Class, FName(TEXT("OnDeposited")), [](UObject* Self, FDepositParms& Parms)
		{
			if (GEventLog)
			{
				GEventLog->Add(FString::Printf(TEXT("%s: event OnDeposited(%s, %d, slot %d)"), *Self->GetName().ToLower(), *Parms.ItemId.ToString(), Parms.Quantity, Parms.SourceSlot));
			}
		});
		for (const TCHAR* Event : { TEXT("OnWithdrawn"), TEXT("OnTransferred") })
		{
			const FString EventName(Event);
			UE::Headless::ImplementScriptEvent<FQuorvelItemInstance>(Class, FName(Event), [EventName](UObject* Self, FQuorvelItemInstance& Instance)
			{
				if (GEventLog)
				{
					GEventLog->Add(FString::Printf(TEXT("%s: event %s(%s x%d)"), *Self->GetName().ToLower(), *EventName, *Instance.ItemId.ToString(), Instance.Quantity));
				}
			});
		}
		return Class;
	}
}

/** The platform client's transport diagnostics (its retries), kept for the page. */
class FClientLogCapture final : public FOutputDevice
{
public:
	FClientLogCapture()
	{
		LogQuorvelClient.SetVerbosity(ELogVerbosity::Verbose);
		GLog->AddOutputDevice(this);
	}

	virtual ~FClientLogCapture() override
	{
		GLog->RemoveOutputDevice(this);
		LogQuorvelClient.ResetToDefault();
	}

	virtual void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		if (Category == LogQuorvelClient.GetCategoryName())
		{
			Lines.push_back(Utf8(Message));
			++Total;
			if (Lines.size() > 50)
			{
				Lines.pop_front();
			}
		}
	}

	std::deque<std::string> Lines;
	int64 Total = 0;
};

/** A move under way: which panel reports its outcome, and which panels an acceptance reloads. */
struct FPreviewScene::FMove
{
	FString Operation;
	UStashPanelWatcher* Destination = nullptr;
	TArray<UStashPanelWatcher*> Reloaded;
	int32 AcceptedBefore = 0;
	int32 FailuresBefore = 0;
	TArray<int32> OutcomesBefore;
	bool bAccepted = false;
	double Deadline = 0.0;
	std::function<void(FPreviewJson)> Done;
};

/** What lies under a point of the frame. */
struct FPreviewScene::FPlace
{
	/** The panel whose grid is there, or null. */
	UQuorvelStashPanel* Panel = nullptr;
	int32 X = -1;
	int32 Y = -1;
	/** The panel's stack there, when there is one. */
	TOptional<FQuorvelItemInstance> Stack;
	/** The character's slot there, or INDEX_NONE. */
	int32 Slot = INDEX_NONE;
};

FPreviewScene::FPreviewScene(const FPreviewOptions& InOptions)
	: Options(InOptions)
{
	const std::filesystem::path Project = std::filesystem::absolute(Options.ProjectDirectory);
	if (Options.PlatformUrl.empty())
	{
		quorvel::emulator::EmulatorOptions EmulatorOptions;
		EmulatorOptions.port = 0;
		EmulatorOptions.database = Options.EmulatorDatabase == ":memory:" ? Options.EmulatorDatabase : (Project / Options.EmulatorDatabase).string();
		EmulatorOptions.catalog = (Project / "Content/Items/Catalog.json").string();
		EmulatorOptions.seed = true;
		Emulator = std::make_unique<quorvel::emulator::Emulator>(EmulatorOptions);
	}

	FHeadlessEngineOptions EngineOptions;
	EngineOptions.ProjectDirectory = FromUtf8(Project.string());
	EngineOptions.ProjectModules = { FName(TEXT("QuorvelCore")), FName(TEXT("QuorvelUI")), FName(TEXT("QuorvelDemo")) };
	EngineOptions.ViewportSize = FVector2D(1280.0, 800.0);
	EngineOptions.DPIScale = Options.DPIScale;
	EngineOptions.GarbageCollectionInterval = 5.0f;
	Engine = std::make_unique<FHeadlessEngine>(EngineOptions);

	// The project's settings name the item table; the platform is this run's. Retries come quickly
	// enough that a person sees them on the page, and patiently enough to ride out a run of faults.
	UQuorvelSettings& Settings = *GetMutableDefault<UQuorvelSettings>();
	Settings.BaseUrl = FromUtf8(GetPlatformUrl());
	Settings.MaxRetries = 6;
	Settings.RetryBaseDelaySeconds = 0.05f;
	Settings.RetryMaxDelaySeconds = 0.5f;
	ClientLog = std::make_unique<FClientLogCapture>();

	Log = NewObject<UDemoNotificationLog>(GetTransientPackage());
	Log->AddToRoot();
	GEventLog = Log;
	Inventory = NewObject<UDemoInventory>(GetTransientPackage());
	Inventory->AddToRoot();
	const TPair<const TCHAR*, int32> Carried[] = {
		{ TEXT("medkit"), 2 }, { TEXT("bandage"), 6 }, { TEXT("water"), 2 }, { TEXT("ration"), 3 }, { TEXT("ammo_556"), 30 }, { TEXT("pistol"), 1 },
	};
	for (const TPair<const TCHAR*, int32>& Stack : Carried)
	{
		Inventory->Slots.Add(FDemoCarriedStack{ FName(Stack.Key), Stack.Value });
	}

	Screen = CreateWidget<UDemoStashScreen>(GetTransientPackage());
	Screen->AddToRoot();
	Screen->Compose(PreviewPanelClass(), Inventory);
	for (UQuorvelStashPanel* Panel : { Screen->Stash.Get(), Screen->Loadout.Get() })
	{
		Panel->CellSize = Options.CellSize;
		if (Options.PanelColour)
		{
			Panel->PanelColour = *Options.PanelColour;
		}
		if (Options.CellColour)
		{
			Panel->CellColour = *Options.CellColour;
		}
		if (Options.AccentColour)
		{
			Panel->AccentColour = *Options.AccentColour;
		}
	}
	Screen->Stash->GridWidth = Options.GridWidth;
	Screen->Stash->GridHeight = Options.GridHeight;
	Screen->Loadout->ContainerKind = TEXT("loadout");
	Screen->Loadout->Layout = EQuorvelContainerLayout::Slots;
	Screen->Loadout->SlotCount = Options.SlotCount;
	Screen->Loadout->SlotColumns = Options.SlotColumns;
	Screen->Loadout->Title = NSLOCTEXT("QuorvelPreview", "LoadoutTitle", "LOADOUT");
	Screen->Strip->ItemTable = Cast<UDataTable>(Settings.ItemTablePath.TryLoad());
	Screen->Strip->SlotSize = Options.CellSize;

	StashWatcher = NewObject<UStashPanelWatcher>(GetTransientPackage());
	StashWatcher->AddToRoot();
	StashWatcher->Watch(Screen->Stash, TEXT("stash"), Log);
	LoadoutWatcher = NewObject<UStashPanelWatcher>(GetTransientPackage());
	LoadoutWatcher->AddToRoot();
	LoadoutWatcher->Watch(Screen->Loadout, TEXT("loadout"), Log);

	// On screen: built, constructed (each panel starts loading), laid out, then sized to fit.
	Screen->AddToViewport();
	Engine->Tick(0.0f);
	const FVector2D Size = Screen->Arrange();
	Engine->GetViewport().Resize(Size * Options.DPIScale);
	Engine->Tick(0.0f);
	DrawnRevision = Inventory->Revision;
}

FPreviewScene::~FPreviewScene()
{
	AbandonMove();
	GEventLog = nullptr;
	Screen->RemoveFromParent();
	for (UObject* Object : { static_cast<UObject*>(Screen), static_cast<UObject*>(Inventory), static_cast<UObject*>(Log),
			 static_cast<UObject*>(StashWatcher), static_cast<UObject*>(LoadoutWatcher) })
	{
		Object->RemoveFromRoot();
	}
	ClientLog.reset();
	// The engine goes first: its shutdown ends every request still addressed to the emulator.
	Engine.reset();
	Emulator.reset();
}

std::string FPreviewScene::GetPlatformUrl() const
{
	return Emulator ? Emulator->url() : Options.PlatformUrl;
}

void FPreviewScene::Tick()
{
	Engine->Tick(1.0f / 60.0f);
	if (Inventory->Revision != DrawnRevision)
	{
		DrawnRevision = Inventory->Revision;
		Screen->Strip->Refresh();
		Engine->Tick(0.0f);
	}
	CheckMove();
	// A move in progress is rendered once, when it is answered; what changes meanwhile (the reload's
	// "Signing in…") is not worth a frame that would delay the one the player waits for.
	if (!Move && ScreenSignature() != RenderedSignature)
	{
		RenderFrame();
	}
}

bool FPreviewScene::WaitUntilLoaded(float TimeoutSeconds)
{
	const double Deadline = NowSeconds() + TimeoutSeconds;
	const auto Settled = [](const UStashPanelWatcher* Watcher) { return Watcher->Loads + Watcher->Failures > 0; };
	while (!(Settled(StashWatcher) && Settled(LoadoutWatcher)) && NowSeconds() < Deadline)
	{
		Tick();
		Engine->TickUntil([this, &Settled]() { return Settled(StashWatcher) && Settled(LoadoutWatcher); }, 1, float(Deadline - NowSeconds()), 0.01f);
	}
	Tick();
	return Settled(StashWatcher) && Settled(LoadoutWatcher);
}

bool FPreviewScene::WaitUntilSettled(float TimeoutSeconds)
{
	const double Deadline = NowSeconds() + TimeoutSeconds;
	while (Move && NowSeconds() < Deadline)
	{
		Tick();
		Engine->TickUntil([this]() { return false; }, 1, 0.01f, 0.01f);
	}
	return !Move;
}

uint64 FPreviewScene::ScreenSignature() const
{
	uint64 Signature = uint64(Inventory->Revision);
	for (const UStashPanelWatcher* Watcher : { StashWatcher, LoadoutWatcher })
	{
		Signature = Signature * 1000003u + uint64(Watcher->Loads * 7 + Watcher->Failures * 131 + Watcher->Accepted * 8191);
	}
	for (const UQuorvelStashPanel* Panel : { Screen->Stash.Get(), Screen->Loadout.Get() })
	{
		if (const UTextBlock* Status = Reflected<UTextBlock>(Panel, TEXT("StatusText")))
		{
			Signature = Signature * 1000003u + GetTypeHash(Status->GetText().ToString());
		}
	}
	return Signature;
}

void FPreviewScene::RenderFrame()
{
	FramePng = Engine->RenderViewport().EncodePng();
	++FrameNumber;
	RenderedSignature = ScreenSignature();
}

bool FPreviewScene::SaveFrame(const std::filesystem::path& File) const
{
	return Engine->SaveViewportAsPng(FromUtf8(File.string()));
}

FVector2D FPreviewScene::ToDesktop(const FVector2D& Pixel) const
{
	return Engine->GetViewport().GetScreenPosition() + Pixel;
}

FVector2D FPreviewScene::ToPixel(const FVector2D& Desktop) const
{
	return Desktop - Engine->GetViewport().GetScreenPosition();
}

UStashPanelWatcher* FPreviewScene::WatcherOf(const UQuorvelStashPanel* Panel) const
{
	return Panel == Screen->Stash ? StashWatcher : LoadoutWatcher;
}

FPreviewScene::FPlace FPreviewScene::PlaceAt(const FVector2D& Pixel) const
{
	FPlace Place;
	const FVector2D Desktop = ToDesktop(Pixel);
	for (UQuorvelStashPanel* Panel : { Screen->Stash.Get(), Screen->Loadout.Get() })
	{
		if (Panel->CellAtScreenPosition(Desktop, Place.X, Place.Y))
		{
			Place.Panel = Panel;
			FQuorvelItemInstance Stack;
			if (Panel->InstanceAtScreenPosition(Desktop, Stack))
			{
				Place.Stack = Stack;
			}
			return Place;
		}
	}
	Screen->Strip->SlotAtScreenPosition(Desktop, Place.Slot);
	return Place;
}

FPreviewJson FPreviewScene::CellRect(const UQuorvelStashPanel* Panel, int32 X, int32 Y, int32 Width, int32 Height) const
{
	const UCanvasPanel* Canvas = Reflected<UCanvasPanel>(Panel, TEXT("GridCanvas"));
	const double Pitch = Panel->CellSize;
	const FGeometry& Geometry = Canvas->GetCachedGeometry();
	const FVector2D TopLeft = ToPixel(FVector2D(Geometry.LocalToAbsolute(FVector2D(X * Pitch, Y * Pitch))));
	const FVector2D BottomRight = ToPixel(FVector2D(Geometry.LocalToAbsolute(FVector2D((X + Width) * Pitch, (Y + Height) * Pitch))));
	return FPreviewJson::array({ TopLeft.X, TopLeft.Y, BottomRight.X - TopLeft.X, BottomRight.Y - TopLeft.Y });
}

FPreviewJson FPreviewScene::Describe(const FPlace& Place) const
{
	if (Place.Panel)
	{
		FPreviewJson Result{ { "panel", Utf8(WatcherOf(Place.Panel)->Name) }, { "cell", { Place.X, Place.Y } } };
		if (Place.Stack)
		{
			const FQuorvelItemInstance& Stack = *Place.Stack;
			Result["stack"] = {
				{ "instance", Utf8(Stack.InstanceId) },
				{ "item", Utf8(Stack.ItemId.ToString()) },
				{ "quantity", Stack.Quantity },
				{ "rect", CellRect(Place.Panel, Stack.X, Stack.Y, FMath::Max(Stack.GridW, 1), FMath::Max(Stack.GridH, 1)) },
			};
		}
		return Result;
	}
	if (Place.Slot != INDEX_NONE)
	{
		const UDemoCharacterStrip* Strip = Screen->Strip;
		const FGeometry& Geometry = Strip->GetSlotCanvas()->GetCachedGeometry();
		const FVector2D TopLeft = ToPixel(FVector2D(Geometry.LocalToAbsolute(Strip->SlotPosition(Place.Slot))));
		const FVector2D BottomRight = ToPixel(FVector2D(Geometry.LocalToAbsolute(Strip->SlotPosition(Place.Slot) + FVector2D(Strip->SlotSize, Strip->SlotSize))));
		FPreviewJson Result{ { "panel", "character" }, { "slot", Place.Slot },
			{ "rect", { TopLeft.X, TopLeft.Y, BottomRight.X - TopLeft.X, BottomRight.Y - TopLeft.Y } } };
		if (const FDemoCarriedStack* Stack = Inventory->GetStack(Place.Slot))
		{
			Result["stack"] = { { "item", Utf8(Stack->ItemId.ToString()) }, { "quantity", Stack->Quantity } };
		}
		return Result;
	}
	return FPreviewJson::object();
}

FPreviewJson FPreviewScene::Pick(const FVector2D& Pixel) const
{
	const FPreviewJson Place = Describe(PlaceAt(Pixel));
	return Place.contains("stack") ? Place : FPreviewJson::object();
}

FPreviewJson FPreviewScene::Hover(const FVector2D& From, const FVector2D& To) const
{
	const FPlace Source = PlaceAt(From);
	const FPlace Target = PlaceAt(To);
	FPreviewJson Result = Describe(Target);
	if (Result.empty())
	{
		return Result;
	}
	const bool bFromPanel = Source.Panel && Source.Stack;
	const bool bFromCharacter = !Source.Panel && Inventory->GetStack(Source.Slot) != nullptr;
	if (Target.Panel)
	{
		// The cell alone, as the panel's hit tests see it: free, or covered by a stack.
		Result["rect"] = CellRect(Target.Panel, Target.X, Target.Y, 1, 1);
		Result["occupied"] = Target.Stack.IsSet();
		Result["valid"] = !Target.Stack.IsSet() && (bFromCharacter || (bFromPanel && Source.Panel != Target.Panel));
	}
	else
	{
		Result["occupied"] = false;
		Result["valid"] = bFromPanel;
	}
	Result.erase("stack");
	return Result;
}

void FPreviewScene::Drop(const FVector2D& From, const FVector2D& To, std::function<void(FPreviewJson)> Done)
{
	if (Move)
	{
		Done({ { "operation", nullptr }, { "outcome", "busy" }, { "message", "Another move is still under way." }, { "state", State() } });
		return;
	}
	const FPlace Source = PlaceAt(From);
	const FPlace Target = PlaceAt(To);
	auto Start = [this, &Done](const TCHAR* Operation, UQuorvelStashPanel* Destination, TArray<UQuorvelStashPanel*> Reloaded)
	{
		Move = std::make_unique<FMove>();
		Move->Operation = Operation;
		Move->Destination = WatcherOf(Destination);
		Move->AcceptedBefore = Move->Destination->Accepted;
		Move->FailuresBefore = Move->Destination->Failures;
		for (UQuorvelStashPanel* Panel : Reloaded)
		{
			UStashPanelWatcher* Watcher = WatcherOf(Panel);
			Move->Reloaded.Add(Watcher);
			Move->OutcomesBefore.Add(Watcher->Loads + Watcher->Failures);
		}
		Move->Deadline = NowSeconds() + 20.0;
		Move->Done = MoveTemp(Done);
	};

	if (Source.Panel && Source.Stack && Target.Panel && Target.Panel != Source.Panel)
	{
		Start(TEXT("transfer"), Target.Panel, { Source.Panel, Target.Panel });
		Target.Panel->TransferFrom(Source.Panel, *Source.Stack, Target.X, Target.Y);
	}
	else if (Source.Panel && Source.Stack && !Target.Panel && Target.Slot != INDEX_NONE)
	{
		Start(TEXT("withdraw"), Source.Panel, { Source.Panel });
		Source.Panel->WithdrawInstance(*Source.Stack);
	}
	else if (!Source.Panel && Target.Panel && Inventory->GetStack(Source.Slot))
	{
		const FDemoCarriedStack Carried = *Inventory->GetStack(Source.Slot);
		Start(TEXT("deposit"), Target.Panel, { Target.Panel });
		Target.Panel->DepositItem(Carried.ItemId, Carried.Quantity, Target.X, Target.Y, Source.Slot);
	}
	else
	{
		const bool bSamePanel = Source.Panel && Source.Panel == Target.Panel;
		Done({ { "operation", nullptr }, { "outcome", "none" },
			{ "message", bSamePanel ? "A stack moves between panels; within one container the panel offers no move." : "Nothing to move there." },
			{ "state", State() } });
		return;
	}
	CheckMove();
}

void FPreviewScene::CheckMove()
{
	if (!Move)
	{
		return;
	}
	if (!Move->bAccepted)
	{
		if (Move->Destination->Accepted > Move->AcceptedBefore)
		{
			Move->bAccepted = true;
		}
		else if (Move->Destination->Failures > Move->FailuresBefore)
		{
			const FQuorvelError& Error = Move->Destination->LastError;
			FinishMove(TEXT("refused"), Error.Message.IsEmpty() ? Error.Code : Error.Message);
			return;
		}
	}
	if (Move->bAccepted)
	{
		bool bReloaded = true;
		for (int32 Index = 0; Index < Move->Reloaded.Num(); ++Index)
		{
			bReloaded &= Move->Reloaded[Index]->Loads + Move->Reloaded[Index]->Failures > Move->OutcomesBefore[Index];
		}
		if (bReloaded)
		{
			FinishMove(TEXT("accepted"), FString());
			return;
		}
	}
	if (NowSeconds() > Move->Deadline)
	{
		FinishMove(TEXT("pending"), TEXT("The platform has not answered yet; the panels will show its answer when it comes."));
	}
}

void FPreviewScene::FinishMove(const FString& Outcome, const FString& Message)
{
	const std::unique_ptr<FMove> Finished = MoveTemp(Move);
	// The answer carries the frame that shows the outcome.
	Engine->Tick(0.0f);
	if (Inventory->Revision != DrawnRevision)
	{
		DrawnRevision = Inventory->Revision;
		Screen->Strip->Refresh();
		Engine->Tick(0.0f);
	}
	RenderFrame();
	Finished->Done({ { "operation", Utf8(Finished->Operation) }, { "outcome", Utf8(Outcome) }, { "message", Utf8(Message) }, { "state", State() } });
}

void FPreviewScene::AbandonMove()
{
	if (Move)
	{
		const std::unique_ptr<FMove> Finished = MoveTemp(Move);
		Finished->Done({ { "operation", Utf8(Finished->Operation) }, { "outcome", "abandoned" }, { "message", "The preview is closing." } });
	}
}

FPreviewJson FPreviewScene::SetFaults(bool bEnabled)
{
	quorvel::emulator::FaultSettings Faults;
	if (bEnabled)
	{
		Faults.failRate = 0.1;
		Faults.retryAfterSeconds = 0;
		Faults.dropRate = 0.1;
	}
	if (Emulator)
	{
		Emulator->setFaultSettings(Faults);
		bFaults = bEnabled;
	}
	else
	{
		// Another platform: its admin endpoint, if it is this emulator on this machine.
		httplib::Client Client(Options.PlatformUrl);
		Client.set_connection_timeout(2, 0);
		const FPreviewJson Body{ { "fail_rate", Faults.failRate }, { "retry_after", Faults.retryAfterSeconds }, { "drop_rate", Faults.dropRate } };
		const httplib::Result Reply = Client.Put("/admin/faults", Body.dump(), "application/json");
		if (Reply && Reply->status == 200)
		{
			bFaults = bEnabled;
		}
	}
	return State();
}

FPreviewJson FPreviewScene::State() const
{
	FPreviewJson Panels = FPreviewJson::array();
	for (const UQuorvelStashPanel* Panel : { Screen->Stash.Get(), Screen->Loadout.Get() })
	{
		const UTextBlock* Status = Reflected<UTextBlock>(Panel, TEXT("StatusText"));
		const FLinearColor Colour = Status ? Status->GetColorAndOpacity().GetSpecifiedColor() : FLinearColor::White;
		Panels.push_back({
			{ "name", Utf8(WatcherOf(Panel)->Name) },
			{ "title", Utf8(Panel->Title.ToString()) },
			{ "status", Status ? Utf8(Status->GetText().ToString()) : std::string() },
			// The panel shows errors in a colour of its own; the page tells them apart the same way.
			{ "error", Colour.R > 0.9f && Colour.G < 0.5f },
			{ "ready", Panel->IsReady() },
		});
	}
	FPreviewJson Carried = FPreviewJson::array();
	for (int32 Slot = 0; Slot < Inventory->Slots.Num(); ++Slot)
	{
		if (const FDemoCarriedStack* Stack = Inventory->GetStack(Slot))
		{
			Carried.push_back({ { "slot", Slot }, { "item", Utf8(Stack->ItemId.ToString()) }, { "quantity", Stack->Quantity } });
		}
	}
	FPreviewJson Heard = FPreviewJson::array();
	for (const FString& Line : Log->Latest(40))
	{
		Heard.push_back(Utf8(Line));
	}
	FPreviewJson Faults{ { "enabled", bFaults } };
	if (Emulator)
	{
		const quorvel::emulator::FaultCounts Counts = Emulator->faultCounts();
		Faults["failed"] = Counts.failed;
		Faults["dropped"] = Counts.dropped;
	}
	return {
		{ "frame", FrameNumber },
		{ "panels", Panels },
		{ "character", Carried },
		{ "heard", Heard },
		{ "retries", ClientLog->Total },
		{ "transport", FPreviewJson(ClientLog->Lines) },
		{ "faults", Faults },
		{ "busy", Move != nullptr },
		{ "platform", GetPlatformUrl() },
	};
}

FPreviewJson FPreviewScene::Layout() const
{
	FPreviewJson Panels = FPreviewJson::array();
	for (const UQuorvelStashPanel* Panel : { Screen->Stash.Get(), Screen->Loadout.Get() })
	{
		const bool bSlots = Panel->Layout == EQuorvelContainerLayout::Slots;
		const int32 Columns = bSlots ? FMath::Max(Panel->SlotColumns, 1) : Panel->GridWidth;
		const int32 Rows = bSlots ? (FMath::Max(Panel->SlotCount, 1) + Columns - 1) / Columns : Panel->GridHeight;
		const FPreviewJson Origin = CellRect(Panel, 0, 0, 1, 1);
		Panels.push_back({ { "name", Utf8(WatcherOf(Panel)->Name) }, { "columns", Columns }, { "rows", Rows },
			{ "origin", { Origin[0], Origin[1] } }, { "pitch", Origin[2] } });
	}
	FPreviewJson Slots = FPreviewJson::array();
	for (int32 Slot = 0; Slot < FMath::Max(Screen->Strip->SlotCount, Inventory->Slots.Num()); ++Slot)
	{
		FPlace Place;
		Place.Slot = Slot;
		Slots.push_back(Describe(Place)["rect"]);
	}
	const FVector2D Size = Engine->GetViewport().GetSizeInPixels();
	return { { "size", { Size.X, Size.Y } }, { "panels", Panels }, { "character", Slots } };
}
