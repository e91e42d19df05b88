#include "Headless/HeadlessEngine.h"

#include "Containers/Ticker.h"
#include "Framework/Application/SlateApplication.h"
#include "HAL/FileManager.h"
#include "Headless/HeadlessHttp.h"
#include "Headless/HeadlessViewport.h"
#include "Headless/SlateImageRenderer.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "Rendering/DrawElements.h"
#include "UObject/UObjectGlobals.h"

#include <chrono>

DEFINE_LOG_CATEGORY_STATIC(LogHeadlessEngine, Log, All);

namespace
{
	// Each module comes after the modules it depends on.
	const TCHAR* const EngineModules[] = {
		TEXT("Json"),
		TEXT("SlateCore"),
		TEXT("Slate"),
		TEXT("Engine"),
		TEXT("UMG"),
		TEXT("HTTP"),
		TEXT("DeveloperSettings"),
	};

	double NowSeconds()
	{
		return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
	}

	// The project file names the project's root; a directory without one gets a name in it.
	FString FindProjectFile(const FString& Directory)
	{
		TArray<FString> ProjectFiles;
		IFileManager::Get().FindFiles(ProjectFiles, *(Directory / TEXT("*.uproject")), true, false);
		return Directory / (ProjectFiles.Num() > 0 ? ProjectFiles[0] : FString(TEXT("Headless.uproject")));
	}

	void StartModule(const FName Name)
	{
		if (FModuleManager::Get().LoadModule(Name) == nullptr)
		{
			UE_LOG(LogHeadlessEngine, Warning, TEXT("Module '%s' is not linked into this program; it was not started"), *Name.ToString());
		}
	}
}

FHeadlessEngine::FHeadlessEngine(const FHeadlessEngineOptions& Options)
	: Renderer(MakeShared<FSlateImageRenderer>())
	, GarbageCollectionInterval(Options.GarbageCollectionInterval)
{
	if (!Options.ProjectDirectory.IsEmpty())
	{
		if (!FPaths::DirectoryExists(Options.ProjectDirectory))
		{
			UE_LOG(LogHeadlessEngine, Warning, TEXT("Project directory %s does not exist: no config or content will be found"), *Options.ProjectDirectory);
		}
		FPaths::SetProjectFilePath(FindProjectFile(FPaths::ConvertRelativePathToFull(Options.ProjectDirectory)));
	}
	// Config read for an earlier project must not leak into this one.
	FConfigCacheIni::InitializeConfigSystem();
	UE_LOG(LogHeadlessEngine, Log, TEXT("Project %s"), *FPaths::ProjectDir());

	for (const TCHAR* Name : EngineModules)
	{
		StartModule(FName(Name));
	}
	// Text is measured with the renderer's fonts, so that it is drawn exactly where it was laid out.
	FSlateApplication::Create(Renderer);
	for (const FName& Name : Options.ProjectModules)
	{
		StartModule(Name);
	}
	Viewport = MakeUnique<FHeadlessViewport>(Options.ViewportSize, FVector2D(0.0, 0.0), Options.DPIScale);
}

FHeadlessEngine::~FHeadlessEngine()
{
	Viewport.Reset();
	CollectGarbageNow();
	FModuleManager::Get().UnloadModulesAtShutdown();
	FSlateApplication::Shutdown();
}

void FHeadlessEngine::Tick(float DeltaSeconds)
{
	++FrameCount;
	FTSTicker::GetCoreTicker().Tick(DeltaSeconds);
	FHttpModule::Get().GetHttpManager().Tick(DeltaSeconds);
	Viewport->Tick(DeltaSeconds);

	SecondsSinceGarbageCollection += DeltaSeconds;
	if (bGarbageCollectionRequested || (GarbageCollectionInterval > 0.0f && SecondsSinceGarbageCollection >= GarbageCollectionInterval))
	{
		CollectGarbageNow();
	}
}

bool FHeadlessEngine::TickUntil(TFunctionRef<bool()> Predicate, int32 MaxTicks, float TimeoutSeconds, float MaxFrameSeconds)
{
	const double Deadline = NowSeconds() + TimeoutSeconds;
	double LastTick = NowSeconds();
	for (int32 TickIndex = 0; TickIndex < MaxTicks; ++TickIndex)
	{
		if (Predicate())
		{
			return true;
		}
		const double Now = NowSeconds();
		Tick(float(Now - LastTick));
		LastTick = Now;
		if (Predicate())
		{
			return true;
		}
		const double Remaining = Deadline - NowSeconds();
		if (Remaining <= 0.0)
		{
			break;
		}
		// Wakes as soon as a reply waits for the game thread; the cap keeps tickers and timeouts moving.
		FHeadlessHttp::WaitForGameThreadWork(float(FMath::Min(Remaining, double(MaxFrameSeconds))));
	}
	return Predicate();
}

void FHeadlessEngine::CollectGarbageNow()
{
	bGarbageCollectionRequested = false;
	SecondsSinceGarbageCollection = 0.0f;
	// As in a cooked game: nothing is kept for being standalone.
	CollectGarbage(RF_NoFlags);
}

FHeadlessImage FHeadlessEngine::RenderViewport() const
{
	FSlateWindowElementList Elements(Viewport->GetWindow());
	Viewport->Paint(Elements);
	const FVector2D Size = Viewport->GetSizeInPixels();
	return Renderer->RenderElementList(Elements, FIntPoint(FMath::RoundToInt(Size.X), FMath::RoundToInt(Size.Y)), Renderer->WindowClearColor);
}

bool FHeadlessEngine::SaveViewportAsPng(const FString& Filename) const
{
	return RenderViewport().SaveAsPng(Filename);
}
