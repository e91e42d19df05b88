// Drives a panel the way a game does: constructed, put on screen, ticked, its requests answered
// through the headless HTTP test transport, so tests see exactly what leaves the platform client.
#pragma once

#include "CoreMinimal.h"
#include "Components/CanvasPanel.h"
#include "Components/TextBlock.h"
#include "Headless/HeadlessViewport.h"
#include "Headless/HttpTestTransport.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "QuorvelStashPanel.h"
#include "StashPanelTestSupport.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace StashPanelTest
{
	/** Remembers every line written to one log category while it exists. */
	class FLogCapture final : public FOutputDevice
	{
	public:
		explicit FLogCapture(const TCHAR* InCategory)
			: Category(InCategory)
		{
			GLog->AddOutputDevice(this);
		}

		virtual ~FLogCapture() override
		{
			GLog->RemoveOutputDevice(this);
		}

		virtual void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& InCategory) override
		{
			if (InCategory == Category)
			{
				Lines.Add(FString::Printf(TEXT("%s: %s"), ToString(Verbosity), Message));
			}
		}

		TArray<FString> Lines;

	private:
		FName Category;
	};

	inline const FString SignInPath = TEXT("/v1/game/sessions");
	inline const FString EnsurePath = TEXT("/v1/game/containers/ensure");

	/** A sign-in reply carrying a token and a player. */
	inline FString SignInReply(const FString& Token = TEXT("tok-1"), const FString& Player = TEXT("player-7"))
	{
		return FString::Printf(TEXT("{\"tokens\":{\"access_token\":\"%s\"},\"player\":{\"id\":\"%s\"}}"), *Token, *Player);
	}

	class FStashPanelTest : public ::testing::Test
	{
	protected:
		virtual void TearDown() override
		{
			for (UQuorvelStashPanel* Panel : Panels)
			{
				if (IsValid(Panel))
				{
					Panel->RemoveFromRoot();
				}
			}
			Panels.Reset();
			Viewport.Reset();
			CollectGarbage();
		}

		/** A panel whose tree is built; it loads only when the test says so. */
		UQuorvelStashPanel* MakePanel(bool bBuildTree = true)
		{
			UQuorvelStashPanel* Panel = CreateWidget<UQuorvelStashPanel>(GetTransientPackage());
			Panel->AddToRoot();
			Panel->bLoadOnConstruct = false;
			Panels.Add(Panel);
			if (bBuildTree)
			{
				Panel->TakeWidget();
			}
			return Panel;
		}

		/** Runs what an engine tick runs for requests: completions of answered requests, on this thread. */
		void Tick()
		{
			FHttpModule::Get().GetHttpManager().Tick(0.0f);
		}

		/** Answers request Index and ticks its completion through. */
		void Answer(int32 Index, int32 Status, const FString& Body)
		{
			ASSERT_TRUE(Transport.Respond(Index, Status, Body));
			Tick();
		}

		/** Signs Panel in and answers its ensure request with Container (request indices from First on). */
		void Load(UQuorvelStashPanel* Panel, const FString& Container, int32 First = -1)
		{
			First = First < 0 ? Transport.Num() : First;
			Panel->LoadStash();
			Answer(First, 200, SignInReply());
			Answer(First + 1, 200, Container);
		}

		/** Adds the panel to a viewport whose window sits away from the desktop origin, and lays it out. */
		void PutOnScreen(UUserWidget* Widget)
		{
			if (!Viewport)
			{
				Viewport = MakeUnique<FHeadlessViewport>(FVector2D(1600.0, 1200.0), FVector2D(200.0, 100.0));
			}
			Widget->AddToViewport();
			ArrangeViewport();
		}

		/** One frame of the viewport: widgets built, laid out, their geometry cached. */
		void ArrangeViewport()
		{
			if (Viewport)
			{
				Viewport->Tick(0.0f);
			}
		}

		void SetViewportDpiScale(float DPIScale)
		{
			if (!Viewport)
			{
				Viewport = MakeUnique<FHeadlessViewport>(FVector2D(1600.0, 1200.0), FVector2D(200.0, 100.0), DPIScale);
			}
			Viewport->SetDPIScale(DPIScale);
		}

		/** Where the grid canvas's top-left corner lies on the desktop, as of the last layout. */
		static FVector2D CanvasOrigin(const UQuorvelStashPanel* Panel)
		{
			const UCanvasPanel* Canvas = ValueOf<TObjectPtr<UCanvasPanel>>(Panel, TEXT("GridCanvas")).Get();
			return FVector2D(Canvas->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0)));
		}

		const FHttpTestTransport::FRecordedRequest& Request(int32 Index) const
		{
			return Transport.GetRequest(Index);
		}

		static UTextBlock* StatusOf(const UQuorvelStashPanel* Panel)
		{
			return ValueOf<TObjectPtr<UTextBlock>>(Panel, TEXT("StatusText")).Get();
		}

		static std::string StatusTextOf(const UQuorvelStashPanel* Panel)
		{
			return Utf8(StatusOf(Panel)->GetText().ToString());
		}

		static FLinearColor StatusColourOf(const UQuorvelStashPanel* Panel)
		{
			return StatusOf(Panel)->GetColorAndOpacity().GetSpecifiedColor();
		}

		FHttpTestTransport Transport;
		TArray<UQuorvelStashPanel*> Panels;
		TUniquePtr<FHeadlessViewport> Viewport;
	};
}
