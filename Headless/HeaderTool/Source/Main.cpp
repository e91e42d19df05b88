// HeaderTool --module <Name> --output <Dir> [--dump <DumpDir>] <headers...>
#include "Generator.h"
#include "Parser.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

namespace
{
	struct FArguments
	{
		std::string ModuleName;
		std::string OutputDir;
		std::string DumpDir;
		std::vector<std::string> Headers;
	};

	bool ParseArguments(int Count, char** Values, FArguments& Out)
	{
		for (int Index = 1; Index < Count; ++Index)
		{
			const std::string Argument = Values[Index];
			std::string* Option = Argument == "--module" ? &Out.ModuleName
				: Argument == "--output" ? &Out.OutputDir
				: Argument == "--dump" ? &Out.DumpDir
				: nullptr;
			if (Option)
			{
				if (Index + 1 >= Count)
				{
					std::cerr << "HeaderTool: error: " << Argument << " needs a value\n";
					return false;
				}
				*Option = Values[++Index];
			}
			else if (Argument.starts_with("--"))
			{
				std::cerr << "HeaderTool: error: unknown option " << Argument << "\n";
				return false;
			}
			else
			{
				Out.Headers.push_back(Argument);
			}
		}
		if (Out.ModuleName.empty() || Out.OutputDir.empty())
		{
			std::cerr << "usage: HeaderTool --module <Name> --output <Dir> [--dump <DumpDir>] <headers...>\n";
			return false;
		}
		return true;
	}

	bool WriteDump(const std::string& DumpDir, const HeaderTool::FHeaderModel& Header, std::vector<std::string>& OutErrors)
	{
		std::error_code Error;
		std::filesystem::create_directories(DumpDir, Error);
		const std::filesystem::path Path = std::filesystem::path(DumpDir) / (Header.BaseName + ".json");
		std::ofstream File(Path, std::ios::binary);
		File << HeaderTool::DumpAsJson(Header);
		if (!File)
		{
			OutErrors.push_back(Path.string() + ": error: cannot write the dump");
			return false;
		}
		return true;
	}
}

int main(int Count, char** Values)
{
	FArguments Arguments;
	if (!ParseArguments(Count, Values, Arguments))
	{
		return 1;
	}

	HeaderTool::FModuleModel Module;
	Module.ModuleName = Arguments.ModuleName;
	std::vector<std::string> Errors;
	std::set<std::string> BaseNames;
	for (const std::string& Path : Arguments.Headers)
	{
		HeaderTool::FHeaderModel Header;
		if (HeaderTool::ParseHeader(Path, Header, Errors))
		{
			// Generated files are named after the header alone, so two headers of a module cannot share a name.
			if (!BaseNames.insert(Header.BaseName).second)
			{
				Errors.push_back(HeaderTool::FormatError({Path, 1, 1}, "another header of module " + Module.ModuleName
					+ " is also named " + Header.BaseName));
				continue;
			}
			if (!Arguments.DumpDir.empty())
			{
				WriteDump(Arguments.DumpDir, Header, Errors);
			}
			Module.Headers.push_back(std::move(Header));
		}
	}
	// Generating from a module that failed to parse would only add noise to the real errors.
	if (Errors.empty() && HeaderTool::ValidateModule(Module, Errors))
	{
		std::error_code Error;
		std::filesystem::create_directories(Arguments.OutputDir, Error);
		HeaderTool::GenerateModule(Module, Arguments.OutputDir, Errors);
	}

	for (const std::string& Error : Errors)
	{
		std::cerr << Error << "\n";
	}
	return Errors.empty() ? 0 : 1;
}
