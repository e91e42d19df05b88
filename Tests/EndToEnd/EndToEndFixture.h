// The panel as a game runs it: the real platform client over the engine's HTTP module, against the
// platform emulator serving on a loopback port of its own in this process, ticked by the headless
// engine loop. Nothing is intercepted; every exchange crosses a socket.
#pragma once

#include "CoreMinimal.h"
#include "Components/CanvasPanel.h"
#include "Components/TextBlock.h"
#include "Containers/StringConv.h"
#include "Emulator.h"
#include "EndToEndListener.h"
#include "Headless/HeadlessEngine.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "QuorvelSettings.h"
#include "QuorvelStashPanel.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

namespace EndToEnd
{
	inline std::string Utf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	/** Every line written to the log while it exists, as "Category: Verbosity: message". */
	class FLogLines final : public FOutputDevice
	{
	public:
		FLogLines()
		{
			GLog->AddOutputDevice(this);
		}

		virtual ~FLogLines() override
		{
			GLog->RemoveOutputDevice(this);
		}

		virtual void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			Lines.Add(FString::Printf(TEXT("%s: %s: %s"), *Category.ToString(), ToString(Verbosity), Message));
		}

		int32 CountContaining(const TCHAR* Text) const
		{
			int32 Count = 0;
			for (const FString& Line : Lines)
			{
				Count += Line.Contains(Text) ? 1 : 0;
			}
			return Count;
		}

		TArray<FString> Lines;
	};

	/** One panel on the viewport and the listener bound to all five of its delegates. */
	struct FPanel
	{
		UQuorvelStashPanel* Widget = nullptr;
		/** Tells whether a test has destroyed the panel meanwhile. */
		TWeakObjectPtr<UQuorvelStashPanel> Alive;
		UEndToEndListener* Listener = nullptr;
	};

	class FPlatformTest : public ::testing::Test
	{
	protected:
		static quorvel::emulator::EmulatorOptions DefaultEmulatorOptions()
		{
			quorvel::emulator::EmulatorOptions Options;
			Options.port = 0;
			Options.database = ":memory:";
			Options.seed = true;
			return Options;
		}

		explicit FPlatformTest(const quorvel::emulator::EmulatorOptions& Options = DefaultEmulatorOptions())
			: Emulator(Options)
		{
		}

		virtual void SetUp() override
		{
			FHeadlessEngineOptions EngineOptions;
			EngineOptions.ProjectModules = { FName(TEXT("QuorvelCore")), FName(TEXT("QuorvelUI")), FName(TEXT("QuorvelDemo")) };
			EngineOptions.ViewportSize = FVector2D(1600.0, 1000.0);
			EngineOptions.GarbageCollectionInterval = 0.0f;
			Engine = std::make_unique<FHeadlessEngine>(EngineOptions);

			// The project's settings, pointed at this run's emulator, with retries quick enough for a test.
			UQuorvelSettings& Settings = *GetMutableDefault<UQuorvelSettings>();
			Settings.BaseUrl = UTF8_TO_TCHAR(Emulator.url().c_str());
			Settings.RequestTimeoutSeconds = 10.0f;
			Settings.MaxRetries = 8;
			Settings.RetryBaseDelaySeconds = 0.001f;
			Settings.RetryMaxDelaySeconds = 0.01f;
		}

		virtual void TearDown() override
		{
			for (FPanel& Panel : Panels)
			{
				if (UQuorvelStashPanel* Widget = Panel.Alive.Get())
				{
					Widget->RemoveFromParent();
					Widget->RemoveFromRoot();
				}
				Panel.Listener->RemoveFromRoot();
			}
			Panels.Reset();
			Engine.reset();
		}

		/** A panel of the demo player on the viewport, loaded as a game shows it: on construction. */
		FPanel& AddPanel(const TCHAR* Kind, EQuorvelContainerLayout Layout, const FVector2D& Position)
		{
			FPanel& Panel = Panels.AddDefaulted_GetRef();
			Panel.Widget = CreateWidget<UQuorvelStashPanel>(GetTransientPackage());
			Panel.Alive = Panel.Widget;
			Panel.Widget->AddToRoot();
			Panel.Widget->ContainerKind = Kind;
			Panel.Widget->Layout = Layout;
			Panel.Widget->SlotCount = 12;
			Panel.Widget->SlotColumns = 6;
			Panel.Widget->SetRenderTranslation(Position);
			Panel.Listener = NewObject<UEndToEndListener>(GetTransientPackage());
			Panel.Listener->AddToRoot();
			UQuorvelStashPanel* Widget = Panel.Widget;
			UEndToEndListener* Listener = Panel.Listener;
			Widget->OnStashLoaded.AddDynamic(Listener, &UEndToEndListener::HandleLoaded);
			Widget->OnStashFailed.AddDynamic(Listener, &UEndToEndListener::HandleFailed);
			Widget->OnDepositAccepted.AddDynamic(Listener, &UEndToEndListener::HandleDeposit);
			Widget->OnWithdrawAccepted.AddDynamic(Listener, &UEndToEndListener::HandleWithdraw);
			Widget->OnTransferAccepted.AddDynamic(Listener, &UEndToEndListener::HandleTransfer);
			Widget->AddToViewport();
			return Panel;
		}

		/** Ticks the engine until Predicate holds, for at most TimeoutSeconds of real time. */
		bool TickUntil(TFunctionRef<bool()> Predicate, float TimeoutSeconds = 20.0f)
		{
			return Engine->TickUntil(Predicate, 1000000, TimeoutSeconds, 0.002f);
		}

		/** Ticks until the panel has heard one more load or failure than Before, then lays the result out. */
		bool WaitForOutcome(const FPanel& Panel, int32 Before)
		{
			const bool bArrived = TickUntil([&]() { return Panel.Listener->Loads + Panel.Listener->Failures > Before; });
			Engine->Tick(0.0f);
			return bArrived;
		}

		static int32 Outcomes(const FPanel& Panel)
		{
			return Panel.Listener->Loads + Panel.Listener->Failures;
		}

		/** Adds the panel and waits for its first load to succeed. */
		FPanel& AddLoadedPanel(const TCHAR* Kind, EQuorvelContainerLayout Layout, const FVector2D& Position = FVector2D(0.0, 0.0))
		{
			FPanel& Panel = AddPanel(Kind, Layout, Position);
			EXPECT_TRUE(WaitForOutcome(Panel, 0));
			EXPECT_EQ(Panel.Listener->Failures, 0) << Utf8(Panel.Listener->LastError.Message);
			return Panel;
		}

		template <typename T>
		static const T& ValueOf(const UObject* Object, const TCHAR* Name)
		{
			const FProperty* Property = Object->GetClass()->FindPropertyByName(FName(Name));
			check(Property != nullptr);
			return *Property->ContainerPtrToValuePtr<T>(Object);
		}

		static const TArray<FQuorvelItemInstance>& ContentsOf(const FPanel& Panel)
		{
			return ValueOf<TArray<FQuorvelItemInstance>>(Panel.Widget, TEXT("Contents"));
		}

		static std::string StatusOf(const FPanel& Panel)
		{
			return Utf8(ValueOf<TObjectPtr<UTextBlock>>(Panel.Widget, TEXT("StatusText"))->GetText().ToString());
		}

		static FLinearColor StatusColourOf(const FPanel& Panel)
		{
			return ValueOf<TObjectPtr<UTextBlock>>(Panel.Widget, TEXT("StatusText"))->GetColorAndOpacity().GetSpecifiedColor();
		}

		/** The desktop position of the middle of a cell, from the grid canvas's last layout. */
		static FVector2D CellCentre(const FPanel& Panel, int32 X, int32 Y)
		{
			const UCanvasPanel* Canvas = ValueOf<TObjectPtr<UCanvasPanel>>(Panel.Widget, TEXT("GridCanvas")).Get();
			const double Pitch = Panel.Widget->CellSize;
			return FVector2D(Canvas->GetCachedGeometry().LocalToAbsolute(FVector2D((X + 0.5) * Pitch, (Y + 0.5) * Pitch)));
		}

		/** The stack the panel's hit test finds at a cell; fails the test when there is none. */
		static FQuorvelItemInstance StackAt(const FPanel& Panel, int32 X, int32 Y)
		{
			FQuorvelItemInstance Instance;
			EXPECT_TRUE(Panel.Widget->InstanceAtScreenPosition(CellCentre(Panel, X, Y), Instance)) << "no stack at " << X << ", " << Y;
			return Instance;
		}

		/** Stacks the platform holds for one container kind of the demo player, from its exported state. */
		std::vector<quorvel::emulator::Json> PlatformStacks(const std::string& Kind)
		{
			const quorvel::emulator::Json State = Emulator.exportState();
			std::string ContainerId;
			for (const quorvel::emulator::Json& Container : State.at("containers"))
			{
				if (Container.at("kind") == Kind)
				{
					ContainerId = Container.at("id").get<std::string>();
				}
			}
			std::vector<quorvel::emulator::Json> Stacks;
			for (const quorvel::emulator::Json& Stack : State.at("stacks"))
			{
				if (Stack.at("container_id") == ContainerId)
				{
					Stacks.push_back(Stack);
				}
			}
			return Stacks;
		}

		/** Items the platform holds, item id to quantity, over every container. */
		std::map<std::string, int> PlatformTotals()
		{
			std::map<std::string, int> Totals;
			const quorvel::emulator::Json State = Emulator.exportState();
			for (const quorvel::emulator::Json& Stack : State.at("stacks"))
			{
				Totals[Stack.at("item_id").get<std::string>()] += Stack.at("quantity").get<int>();
			}
			return Totals;
		}

		quorvel::emulator::Emulator Emulator;
		std::unique_ptr<FHeadlessEngine> Engine;
		TArray<FPanel> Panels;
	};
}
