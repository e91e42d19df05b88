// What the preview is started with: where the platform is, how the panels are configured, and
// whether it serves a page or renders one picture and exits.
#pragma once

#include "CoreMinimal.h"

#include <filesystem>
#include <optional>
#include <string>

struct FPreviewOptions
{
	/** Another platform to use instead of the emulator this process starts. */
	std::string PlatformUrl;
	/** The embedded emulator's database: a SQLite file (kept between runs) or ":memory:". */
	std::string EmulatorDatabase = "Saved/Emulator/Platform.db";
	/** Render the default scene into this directory and exit, instead of serving the page. */
	std::optional<std::filesystem::path> PngDirectory;
	/** The page's port on 127.0.0.1; 0 lets the system pick one. */
	int32 Port = 0;
	/** The project: config, content, and the page's files under Preview/Web. */
	std::filesystem::path ProjectDirectory = ".";
	float DPIScale = 1.0f;
	int32 GridWidth = 10;
	int32 GridHeight = 8;
	int32 SlotCount = 12;
	int32 SlotColumns = 6;
	float CellSize = 64.0f;
	std::optional<FLinearColor> PanelColour;
	std::optional<FLinearColor> CellColour;
	std::optional<FLinearColor> AccentColour;
};

/** Reads the command line; on a bad one, returns nothing and sets Problem to what a person should fix. */
std::optional<FPreviewOptions> ParsePreviewOptions(int ArgC, const char* const* ArgV, std::string& Problem);

/** One line per option, for a usage message. */
const char* PreviewUsage();
