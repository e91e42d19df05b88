// Headless only: the engine loop of the stand-in. It makes a directory the project (config from its
// Config/, /Game/ assets from its Content/), starts the engine modules, owns the viewport and the
// image renderer, and ticks one frame at a time on the calling thread, which becomes the game thread.
#pragma once

#include "CoreMinimal.h"
#include "Headless/HeadlessImage.h"
#include "Templates/Function.h"
#include "Templates/UniquePtr.h"

class FHeadlessViewport;
class FSlateImageRenderer;

struct FHeadlessEngineOptions
{
	/** The project's root directory; empty keeps the current project. */
	FString ProjectDirectory;
	/** Modules of the project and its plugins, started after the engine's, in this order. */
	TArray<FName> ProjectModules;
	FVector2D ViewportSize = FVector2D(1280.0, 720.0);
	float DPIScale = 1.0f;
	/** Seconds of ticked time between garbage collections; zero or less collects only on request. */
	float GarbageCollectionInterval = 60.0f;
};

class LAUNCH_API FHeadlessEngine
{
public:
	explicit FHeadlessEngine(const FHeadlessEngineOptions& Options = FHeadlessEngineOptions());
	/** Takes the widgets off the screen, collects garbage and shuts the modules down. */
	~FHeadlessEngine();

	FHeadlessEngine(const FHeadlessEngine&) = delete;
	FHeadlessEngine& operator=(const FHeadlessEngine&) = delete;

	/**
	 * One frame: the core ticker, HTTP completions, the viewport (widgets added since the last frame
	 * are constructed, everything is laid out), then garbage collection when it is due or requested.
	 */
	void Tick(float DeltaSeconds);

	/**
	 * Ticks with the real time that passes until Predicate holds, MaxTicks frames have run or
	 * TimeoutSeconds have passed; true when Predicate holds. Between frames it waits for an HTTP
	 * completion, at most MaxFrameSeconds, instead of spinning.
	 */
	bool TickUntil(TFunctionRef<bool()> Predicate, int32 MaxTicks = 1000, float TimeoutSeconds = 10.0f, float MaxFrameSeconds = 0.05f);

	/** Collects garbage at the end of the next tick. */
	void RequestGarbageCollection()
	{
		bGarbageCollectionRequested = true;
	}

	/** Collects garbage now; game thread, outside a tick. */
	void CollectGarbageNow();

	FHeadlessViewport& GetViewport() const
	{
		return *Viewport;
	}

	FSlateImageRenderer& GetRenderer() const
	{
		return *Renderer;
	}

	/** Paints the viewport as laid out by the last tick and renders it. */
	FHeadlessImage RenderViewport() const;

	/** RenderViewport, written as a PNG file; false, with a log line, when it cannot be written. */
	bool SaveViewportAsPng(const FString& Filename) const;

	int64 GetFrameCount() const
	{
		return FrameCount;
	}

private:
	TSharedRef<FSlateImageRenderer> Renderer;
	TUniquePtr<FHeadlessViewport> Viewport;
	float GarbageCollectionInterval = 0.0f;
	float SecondsSinceGarbageCollection = 0.0f;
	bool bGarbageCollectionRequested = false;
	int64 FrameCount = 0;
};
