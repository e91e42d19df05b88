#include "../Core/ProjectTreeFixture.h"
#include "EngineLoopTestWidget.h"

#include "Headless/HeadlessEngine.h"
#include "Headless/HeadlessViewport.h"
#include "Headless/HttpTestTransport.h"
#include "HttpModule.h"
#include "Interfaces/IHttpResponse.h"
#include "Misc/ConfigCacheIni.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtr.h"

#include <gtest/gtest.h>

#include <thread>

using QuorvelTest::Utf8;

namespace
{
	class HeadlessEngineTest : public QuorvelTest::FProjectTreeTest
	{
	protected:
		FHeadlessEngineOptions Options(float GarbageCollectionInterval = 60.0f)
		{
			FHeadlessEngineOptions Result;
			Result.ProjectDirectory = QuorvelTest::FromUtf8(Root.string());
			Result.ViewportSize = FVector2D(64.0, 48.0);
			Result.GarbageCollectionInterval = GarbageCollectionInterval;
			return Result;
		}
	};
}

TEST_F(HeadlessEngineTest, StartingMakesTheDirectoryTheProjectAndStartsTheEngineModules)
{
	WriteFile("Config/DefaultGame.ini", "[/Script/Test.Settings]\nBaseUrl=http://127.0.0.1:1\n");
	FPaths::SetProjectFilePath(FString());

	FHeadlessEngine Engine(Options());

	EXPECT_EQ(Utf8(FPaths::ProjectContentDir()), (Root / "Content/").string());
	FString BaseUrl;
	EXPECT_TRUE(GConfig->GetString(TEXT("/Script/Test.Settings"), TEXT("BaseUrl"), BaseUrl, GGameIni));
	EXPECT_EQ(Utf8(BaseUrl), "http://127.0.0.1:1");
	for (const TCHAR* Module : { TEXT("Engine"), TEXT("UMG"), TEXT("HTTP"), TEXT("DeveloperSettings") })
	{
		EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(FName(Module))) << Utf8(Module);
	}
	EXPECT_EQ(FHeadlessViewport::GetCurrent(), &Engine.GetViewport());
}

TEST_F(HeadlessEngineTest, WidgetsAddedToTheViewportAreConstructedOnceAtOnceAndTheRendererShowsThemAfterATick)
{
	FHeadlessEngine Engine(Options());
	UEngineLoopTestWidget* Widget = Cast<UEngineLoopTestWidget>(
		UUserWidget::CreateWidgetInstance(GetTransientPackage(), UEngineLoopTestWidget::StaticClass(), NAME_None));
	ASSERT_NE(Widget, nullptr);
	Widget->AddToViewport();
	EXPECT_EQ(Widget->Constructions, 1);

	Engine.Tick(0.016f);
	Engine.Tick(0.016f);

	EXPECT_EQ(Widget->Constructions, 1);
	const FHeadlessImage Image = Engine.RenderViewport();
	ASSERT_EQ(Image.GetSizeX(), 64);
	ASSERT_EQ(Image.GetSizeY(), 48);
	EXPECT_EQ(Image.GetPixel(32, 24), FColor(255, 0, 0, 255));
}

TEST_F(HeadlessEngineTest, TickUntilRunsHttpCompletionsOnTheTickingThreadAndGivesUpAfterMaxTicks)
{
	FHeadlessEngine Engine(Options());
	FHttpTestTransport Transport;
	int32 Completions = 0;
	std::thread::id CompletionThread;
	const TSharedRef<IHttpRequest, ESPMode::ThreadSafe> Request = FHttpModule::Get().CreateRequest();
	Request->SetURL(TEXT("http://127.0.0.1:1/ping"));
	Request->OnProcessRequestComplete().BindLambda([&](FHttpRequestPtr, FHttpResponsePtr, bool)
	{
		++Completions;
		CompletionThread = std::this_thread::get_id();
	});
	Request->ProcessRequest();
	ASSERT_EQ(Transport.Num(), 1);

	const int64 FramesBefore = Engine.GetFrameCount();
	EXPECT_FALSE(Engine.TickUntil([&] { return Completions > 0; }, 3, 10.0f, 0.001f));
	EXPECT_EQ(Engine.GetFrameCount(), FramesBefore + 3);

	ASSERT_TRUE(Transport.Respond(0, 200, TEXT("pong")));
	EXPECT_EQ(Completions, 0);
	EXPECT_TRUE(Engine.TickUntil([&] { return Completions > 0; }, 10, 10.0f));
	EXPECT_EQ(Completions, 1);
	EXPECT_EQ(CompletionThread, std::this_thread::get_id());
}

TEST_F(HeadlessEngineTest, GarbageIsCollectedWhenTheIntervalHasPassedOrWhenRequested)
{
	FHeadlessEngine Engine(Options(1.0f));
	const FWeakObjectPtr First(NewObject<UEngineLoopTestWidget>(GetTransientPackage()));

	Engine.Tick(0.5f);
	EXPECT_TRUE(First.IsValid());
	Engine.Tick(0.5f);
	EXPECT_FALSE(First.IsValid());

	const FWeakObjectPtr Second(NewObject<UEngineLoopTestWidget>(GetTransientPackage()));
	Engine.RequestGarbageCollection();
	EXPECT_TRUE(Second.IsValid());
	Engine.Tick(0.0f);
	EXPECT_FALSE(Second.IsValid());
}
