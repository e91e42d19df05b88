// The preview: a headless game that puts stash panels on screen against a running platform emulator,
// the way a studio's menu would, and saves what they show as PNG files and one HTML page.
//
//   QuorvelPreview --base-url http://127.0.0.1:8787 [--out Build/Preview] [--project .]
#include "Blueprint/UserWidget.h"
#include "Containers/StringConv.h"
#include "Headless/HeadlessEngine.h"
#include "QuorvelSettings.h"
#include "QuorvelStashPanel.h"
#include "StashPanelWatcher.h"
#include "UObject/Package.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace
{
	struct FOptions
	{
		std::string BaseUrl;
		std::filesystem::path OutputDir = "Build/Preview";
		std::filesystem::path ProjectDir = ".";
	};

	bool ParseOptions(int argc, char** argv, FOptions& Options)
	{
		for (int Index = 1; Index + 1 < argc; Index += 2)
		{
			const std::string Name = argv[Index];
			const std::string Value = argv[Index + 1];
			if (Name == "--base-url")
			{
				Options.BaseUrl = Value;
			}
			else if (Name == "--out")
			{
				Options.OutputDir = Value;
			}
			else if (Name == "--project")
			{
				Options.ProjectDir = Value;
			}
			else
			{
				return false;
			}
		}
		return !Options.BaseUrl.empty() && argc % 2 == 1;
	}

	FString ToFString(const std::string& Text)
	{
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	}

	/** One picture of the page: the file it was saved to and what the panel reported. */
	struct FShot
	{
		std::string File;
		std::string Caption;
	};

	/** Drives one panel and takes its pictures; the panel stays alive while the driver does. */
	class FPanelDriver
	{
	public:
		FPanelDriver(FHeadlessEngine& InEngine, UQuorvelStashPanel* InPanel)
			: Engine(InEngine)
			, Panel(InPanel)
			, Watcher(NewObject<UStashPanelWatcher>(GetTransientPackage()))
		{
			Panel->AddToRoot();
			Watcher->AddToRoot();
			Panel->OnStashLoaded.AddDynamic(Watcher, &UStashPanelWatcher::HandleLoaded);
			Panel->OnStashFailed.AddDynamic(Watcher, &UStashPanelWatcher::HandleFailed);
		}

		~FPanelDriver()
		{
			Panel->RemoveFromParent();
			Panel->RemoveFromRoot();
			Watcher->RemoveFromRoot();
		}

		/** Ticks until the panel reports one more outcome; false on a failure or when none comes. */
		bool WaitForOutcome()
		{
			const int32 Before = Watcher->Loads + Watcher->Failures;
			const bool bArrived = Engine.TickUntil([this, Before]() { return Watcher->Loads + Watcher->Failures > Before; }, 2000, 30.0f);
			// One more frame so that what the reply drew is laid out before it is painted.
			Engine.Tick(1.0f / 60.0f);
			if (!bArrived)
			{
				std::fprintf(stderr, "The panel reported nothing within 30 seconds.\n");
				return false;
			}
			if (Watcher->Failures > 0)
			{
				std::fprintf(stderr, "The panel failed: %s\n", TCHAR_TO_UTF8(*Watcher->LastError));
				return false;
			}
			return true;
		}

		bool Save(const FOptions& Options, const std::string& File, const std::string& Caption, std::vector<FShot>& Shots)
		{
			if (!Engine.SaveViewportAsPng(ToFString((Options.OutputDir / File).string())))
			{
				return false;
			}
			Shots.push_back({ File, Caption + " (" + std::to_string(Watcher->LastStackCount) + " stacks drawn)" });
			return true;
		}

		FHeadlessEngine& Engine;
		UQuorvelStashPanel* Panel;
		UStashPanelWatcher* Watcher;
	};

	void WritePage(const FOptions& Options, const std::vector<FShot>& Shots)
	{
		std::ofstream Page(Options.OutputDir / "index.html");
		Page << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>Quorvel stash panel preview</title>\n"
			 << "<style>body{background:#1b1d1f;color:#ddd;font-family:sans-serif;margin:2em}figure{display:inline-block;margin:1em}"
			 << "img{border:1px solid #444}</style>\n</head>\n<body>\n<h1>Stash panel preview</h1>\n"
			 << "<p>Panels rendered by the headless engine against the platform emulator at " << Options.BaseUrl << ".</p>\n";
		for (const FShot& Shot : Shots)
		{
			Page << "<figure><img src=\"" << Shot.File << "\" alt=\"" << Shot.Caption << "\"><figcaption>" << Shot.Caption << "</figcaption></figure>\n";
		}
		Page << "</body>\n</html>\n";
	}
}

int main(int argc, char** argv)
{
	FOptions Options;
	if (!ParseOptions(argc, argv, Options))
	{
		std::fprintf(stderr, "usage: QuorvelPreview --base-url URL [--out DIR] [--project DIR]\n");
		return 2;
	}
	std::filesystem::create_directories(Options.OutputDir);

	FHeadlessEngineOptions EngineOptions;
	EngineOptions.ProjectDirectory = ToFString(std::filesystem::absolute(Options.ProjectDir).string());
	EngineOptions.ProjectModules = { FName(TEXT("QuorvelCore")), FName(TEXT("QuorvelUI")), FName(TEXT("QuorvelDemo")) };
	EngineOptions.ViewportSize = FVector2D(760.0, 680.0);
	EngineOptions.GarbageCollectionInterval = 5.0f;
	FHeadlessEngine Engine(EngineOptions);
	// The project's settings name the item table; the address is the emulator this run started.
	GetMutableDefault<UQuorvelSettings>()->BaseUrl = ToFString(Options.BaseUrl);

	std::vector<FShot> Shots;
	bool bOk = true;
	{
		// The stash as a game's menu shows it: a 10 x 8 grid that loads as soon as it is on screen.
		FPanelDriver Stash(Engine, CreateWidget<UQuorvelStashPanel>(GetTransientPackage()));
		Stash.Panel->AddToViewport();
		bOk = Stash.WaitForOutcome() && Stash.Save(Options, "stash.png", "Stash, 10 x 8 grid", Shots);

		// A deposit at a named cell, told to the game only once the platform holds it; the stash reloads.
		if (bOk)
		{
			Stash.Panel->DepositItem(FName(TEXT("medkit")), 3, 6, 5);
			bOk = Stash.WaitForOutcome() && Stash.Save(Options, "stash-after-deposit.png", "Stash after depositing 3 medkits at (6, 5)", Shots);
		}
	}
	if (bOk)
	{
		// A loadout of twelve slots, six to a row.
		UQuorvelStashPanel* LoadoutPanel = CreateWidget<UQuorvelStashPanel>(GetTransientPackage());
		LoadoutPanel->ContainerKind = TEXT("loadout");
		LoadoutPanel->Layout = EQuorvelContainerLayout::Slots;
		LoadoutPanel->SlotCount = 12;
		LoadoutPanel->SlotColumns = 6;
		LoadoutPanel->Title = FText::FromString(TEXT("LOADOUT"));
		FPanelDriver Loadout(Engine, LoadoutPanel);
		Loadout.Panel->AddToViewport();
		bOk = Loadout.WaitForOutcome() && Loadout.Save(Options, "loadout.png", "Loadout, 12 slots", Shots);
	}

	WritePage(Options, Shots);
	std::printf("%s\n", std::filesystem::absolute(Options.OutputDir / "index.html").string().c_str());
	return bOk ? 0 : 1;
}
