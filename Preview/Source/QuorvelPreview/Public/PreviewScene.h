// The preview's game: the headless engine with the demo stash screen on its viewport (a stash, a
// loadout and the character's own items), the platform the panels talk to, and the drag-and-drop
// moves a front end asks for, answered from the panels' own hit tests. It lives on the thread that
// made it, which is the game thread; nothing here may be called from another.
#pragma once

#include "CoreMinimal.h"
#include "PreviewOptions.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class FHeadlessEngine;
class UDemoInventory;
class UDemoNotificationLog;
class UDemoStashScreen;
class UQuorvelStashPanel;
class UStashPanelWatcher;

namespace quorvel::emulator
{
	class Emulator;
}

using FPreviewJson = nlohmann::ordered_json;

class FPreviewScene
{
public:
	explicit FPreviewScene(const FPreviewOptions& Options);
	~FPreviewScene();

	FPreviewScene(const FPreviewScene&) = delete;
	FPreviewScene& operator=(const FPreviewScene&) = delete;

	/**
	 * One frame: the engine ticks, a changed inventory is drawn again, a move whose outcome has
	 * arrived is answered, and a frame is rendered when anything on screen changed.
	 */
	void Tick();

	/** Ticks until both panels have finished loading, one way or the other; false after TimeoutSeconds. */
	bool WaitUntilLoaded(float TimeoutSeconds);

	/** Ticks until the move in progress, if any, has been answered; false after TimeoutSeconds. */
	bool WaitUntilSettled(float TimeoutSeconds);

	/** The last frame rendered, as a PNG file's bytes, and its number (0 before the first). */
	const TArray<uint8>& GetFramePng() const
	{
		return FramePng;
	}

	int64 GetFrameNumber() const
	{
		return FrameNumber;
	}

	/** Renders the viewport as the last tick laid it out. */
	void RenderFrame();

	/** Writes the last frame to a PNG file; false when it cannot. */
	bool SaveFrame(const std::filesystem::path& File) const;

	/** What the page shows beside the frame: status lines, the character's items, what the game heard, faults. */
	FPreviewJson State() const;

	/** Where the parts are on the frame, in frame pixels, from the last layout: for tests and tools, never needed by the page. */
	FPreviewJson Layout() const;

	/** What a drag starting at Pixel (frame pixels) would pick up: a stack of a panel, a carried stack, or nothing. */
	FPreviewJson Pick(const FVector2D& Pixel) const;

	/** Where a drag from From would land at To: the cell or slot, its rectangle, and whether a drop there can work. */
	FPreviewJson Hover(const FVector2D& From, const FVector2D& To) const;

	/**
	 * Moves what lies at From onto To (a transfer, a withdraw or a deposit, decided by the two
	 * places). Done receives the outcome once the platform answered and the panels redrew, or at
	 * once when there is nothing to move or another move is under way.
	 */
	void Drop(const FVector2D& From, const FVector2D& To, std::function<void(FPreviewJson)> Done);

	/** Turns the platform's faults on (a tenth of requests refused with 503, a tenth of replies dropped after commit) or off. */
	FPreviewJson SetFaults(bool bEnabled);

	/** The platform the panels talk to, and its inspection page. */
	std::string GetPlatformUrl() const;

	FHeadlessEngine& GetEngine() const
	{
		return *Engine;
	}

	UDemoStashScreen* GetScreen() const
	{
		return Screen;
	}

	/** Answers the move in progress, if any, as cut short: the program is closing. */
	void AbandonMove();

private:
	struct FMove;
	struct FPlace;

	FPlace PlaceAt(const FVector2D& Pixel) const;
	FPreviewJson Describe(const FPlace& Place) const;
	FPreviewJson CellRect(const UQuorvelStashPanel* Panel, int32 X, int32 Y, int32 Width, int32 Height) const;
	UStashPanelWatcher* WatcherOf(const UQuorvelStashPanel* Panel) const;
	FVector2D ToDesktop(const FVector2D& Pixel) const;
	FVector2D ToPixel(const FVector2D& Desktop) const;
	void FinishMove(const FString& Outcome, const FString& Message);
	void CheckMove();
	uint64 ScreenSignature() const;

	FPreviewOptions Options;
	std::unique_ptr<quorvel::emulator::Emulator> Emulator;
	std::unique_ptr<FHeadlessEngine> Engine;
	UDemoStashScreen* Screen = nullptr;
	UDemoInventory* Inventory = nullptr;
	UDemoNotificationLog* Log = nullptr;
	UStashPanelWatcher* StashWatcher = nullptr;
	UStashPanelWatcher* LoadoutWatcher = nullptr;
	std::unique_ptr<FMove> Move;
	std::unique_ptr<class FClientLogCapture> ClientLog;
	bool bFaults = false;
	int32 DrawnRevision = -1;
	uint64 RenderedSignature = 0;
	TArray<uint8> FramePng;
	int64 FrameNumber = 0;
};
