#include "PreviewOptions.h"

#include <charconv>
#include <string_view>

namespace
{
	template <typename TNumber>
	bool ParseNumber(std::string_view Text, TNumber& Out)
	{
		const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Out);
		return Error == std::errc() && End == Text.data() + Text.size();
	}

	/** "#rrggbb" or "#rrggbbaa", in sRGB as colour pickers give them. */
	std::optional<FLinearColor> ParseColour(std::string_view Text)
	{
		if (Text.starts_with('#'))
		{
			Text.remove_prefix(1);
		}
		if (Text.size() != 6 && Text.size() != 8)
		{
			return std::nullopt;
		}
		uint8 Channels[4] = { 0, 0, 0, 255 };
		for (size_t Index = 0; Index < Text.size() / 2; ++Index)
		{
			const auto [End, Error] = std::from_chars(Text.data() + 2 * Index, Text.data() + 2 * Index + 2, Channels[Index], 16);
			if (Error != std::errc() || End != Text.data() + 2 * Index + 2)
			{
				return std::nullopt;
			}
		}
		return FLinearColor(FColor(Channels[0], Channels[1], Channels[2], Channels[3]));
	}

	/** "panel=#RRGGBB,cell=#RRGGBBAA,accent=#RRGGBB", any subset, in any order. */
	bool ParseColours(std::string_view Text, FPreviewOptions& Options)
	{
		while (!Text.empty())
		{
			const size_t Comma = Text.find(',');
			const std::string_view Entry = Text.substr(0, Comma);
			Text = Comma == std::string_view::npos ? std::string_view() : Text.substr(Comma + 1);
			const size_t Equals = Entry.find('=');
			if (Equals == std::string_view::npos)
			{
				return false;
			}
			const std::string_view Name = Entry.substr(0, Equals);
			const std::optional<FLinearColor> Colour = ParseColour(Entry.substr(Equals + 1));
			std::optional<FLinearColor>* Target = Name == "panel" ? &Options.PanelColour
				: Name == "cell" ? &Options.CellColour
				: Name == "accent" ? &Options.AccentColour
				: nullptr;
			if (!Target || !Colour)
			{
				return false;
			}
			*Target = Colour;
		}
		return true;
	}
}

const char* PreviewUsage()
{
	return "usage: QuorvelPreview [options]\n"
		"  --port N                 the page's port on 127.0.0.1 (default: one the system picks)\n"
		"  --png DIR                render the default scene into DIR/scene.png and exit\n"
		"  --platform URL           use this platform instead of starting the emulator here\n"
		"  --emulator-db FILE       the embedded emulator's database (default Saved/Emulator/Platform.db; :memory: for none)\n"
		"  --project DIR            the project directory (default: the current one)\n"
		"  --scale S                DPI scale of the viewport (default 1)\n"
		"  --grid WxH               the stash grid (default 10x8)\n"
		"  --slots N[xC]            the loadout's slots, C to a row (default 12x6)\n"
		"  --cell-size N            slate units per cell (default 64)\n"
		"  --colours LIST           panel=#RRGGBB,cell=#RRGGBBAA,accent=#RRGGBB (any of them)\n";
}

std::optional<FPreviewOptions> ParsePreviewOptions(int ArgC, const char* const* ArgV, std::string& Problem)
{
	FPreviewOptions Options;
	for (int Index = 1; Index < ArgC; ++Index)
	{
		const std::string_view Name = ArgV[Index];
		if (Index + 1 >= ArgC)
		{
			Problem = std::string(Name) + " needs a value";
			return std::nullopt;
		}
		const std::string_view Value = ArgV[++Index];
		bool bOk = true;
		if (Name == "--port")
		{
			bOk = ParseNumber(Value, Options.Port) && Options.Port >= 0 && Options.Port <= 65535;
		}
		else if (Name == "--png")
		{
			Options.PngDirectory = std::filesystem::path(Value);
		}
		else if (Name == "--platform")
		{
			Options.PlatformUrl = Value;
			while (Options.PlatformUrl.ends_with('/'))
			{
				Options.PlatformUrl.pop_back();
			}
			bOk = Options.PlatformUrl.starts_with("http://") || Options.PlatformUrl.starts_with("https://");
		}
		else if (Name == "--emulator-db")
		{
			Options.EmulatorDatabase = Value;
		}
		else if (Name == "--project")
		{
			Options.ProjectDirectory = std::filesystem::path(Value);
		}
		else if (Name == "--scale")
		{
			bOk = ParseNumber(Value, Options.DPIScale) && Options.DPIScale >= 0.25f && Options.DPIScale <= 4.0f;
		}
		else if (Name == "--grid")
		{
			const size_t X = Value.find('x');
			bOk = X != std::string_view::npos && ParseNumber(Value.substr(0, X), Options.GridWidth) && ParseNumber(Value.substr(X + 1), Options.GridHeight)
				&& Options.GridWidth >= 1 && Options.GridHeight >= 1 && Options.GridWidth <= 100 && Options.GridHeight <= 100;
		}
		else if (Name == "--slots")
		{
			const size_t X = Value.find('x');
			bOk = ParseNumber(Value.substr(0, X), Options.SlotCount) && (X == std::string_view::npos || ParseNumber(Value.substr(X + 1), Options.SlotColumns))
				&& Options.SlotCount >= 1 && Options.SlotCount <= 1000 && Options.SlotColumns >= 1;
		}
		else if (Name == "--cell-size")
		{
			bOk = ParseNumber(Value, Options.CellSize) && Options.CellSize >= 16.0f && Options.CellSize <= 256.0f;
		}
		else if (Name == "--colours")
		{
			bOk = ParseColours(Value, Options);
		}
		else
		{
			Problem = "unknown option " + std::string(Name);
			return std::nullopt;
		}
		if (!bOk)
		{
			Problem = "bad value for " + std::string(Name) + ": " + std::string(Value);
			return std::nullopt;
		}
	}
	return Options;
}
