// The headless stand-in for the game viewport: one window on a virtual desktop that holds the
// user widgets added with UUserWidget::AddToViewport. Only the engine loop, the renderer and
// tests use it; plugin code reaches it through AddToViewport and RemoveFromParent alone.
//
// Engine loop: create one viewport and call Tick once per frame. A widget added to it is built at
// once (TakeWidget, so RebuildWidget and then NativeConstruct run inside AddToViewport, as in the
// engine); a tick lays the window out and caches every widget's geometry, so hit tests after the
// tick see this frame's layout.
//
// Renderer: call Paint to receive the frame's draw elements. Coordinates are window pixels (the
// window's top-left is 0,0; the DPI scale is already applied). Draw by ascending layer, keeping
// list order within a layer.
#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FSlateWindowElementList;
class SConstraintCanvas;
class SWidget;
class SWindow;
class UUserWidget;

class UMG_API FHeadlessViewport
{
public:
	/**
	 * A window of the given size in pixels, with its top-left corner at ScreenPosition on the
	 * desktop, drawing one slate unit as DPIScale pixels. It becomes the current viewport; there
	 * can be only one at a time.
	 */
	explicit FHeadlessViewport(FVector2D SizeInPixels, FVector2D ScreenPosition = FVector2D(0.0, 0.0), float DPIScale = 1.0f);
	/** Takes every widget off the screen and stops being the current viewport. */
	~FHeadlessViewport();

	FHeadlessViewport(const FHeadlessViewport&) = delete;
	FHeadlessViewport& operator=(const FHeadlessViewport&) = delete;

	/** The viewport AddToViewport uses, or null when none exists. */
	static FHeadlessViewport* GetCurrent();

	/** Holds the widget (keeping it from garbage collection) until it is removed, and builds it now. */
	void AddWidget(UUserWidget* Widget, int32 ZOrder);
	/** Takes the widget off the screen and releases its Slate widgets (NativeDestruct runs if it was constructed). */
	void RemoveWidget(UUserWidget* Widget);
	bool HasWidget(const UUserWidget* Widget) const;
	TArray<UUserWidget*> GetWidgets() const;

	/** One frame: lay out, cache geometry. */
	void Tick(float DeltaSeconds = 0.0f);

	/** Lays out and paints the window into OutDrawElements, replacing what it held. */
	void Paint(FSlateWindowElementList& OutDrawElements);

	TSharedRef<SWindow> GetWindow() const
	{
		return Window;
	}

	FVector2D GetSizeInPixels() const;
	FVector2D GetScreenPosition() const;
	float GetDPIScale() const;
	void Resize(FVector2D SizeInPixels);
	void SetDPIScale(float DPIScale);

private:
	struct FEntry
	{
		UUserWidget* Widget = nullptr;
		int32 ZOrder = 0;
		TSharedPtr<SWidget> SlateWidget;
		bool bRootedByViewport = false;
		bool bBuilding = false;
	};

	void BuildPendingWidgets();
	void ReleaseEntry(FEntry& Entry);

	TSharedRef<SWindow> Window;
	TSharedRef<SConstraintCanvas> Layer;
	TArray<FEntry> Entries;
	double CurrentTime = 0.0;
	float LastDeltaTime = 0.0f;
};
