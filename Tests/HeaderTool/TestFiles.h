// File helpers shared by the suites that read the Cases/, Errors/ and Baselines/ folders.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace HeaderToolTests
{
	inline const std::filesystem::path TestDir = HEADER_TOOL_TEST_DIR;

	inline std::string ReadText(const std::filesystem::path& Path)
	{
		std::ifstream File(Path, std::ios::binary);
		std::ostringstream Text;
		Text << File.rdbuf();
		return Text.str();
	}

	inline void WriteText(const std::filesystem::path& Path, const std::string& Text)
	{
		std::ofstream(Path, std::ios::binary) << Text;
	}

	// The file stems with Extension in one folder of the suite, sorted.
	inline std::vector<std::string> Stems(const char* Folder, const char* Extension)
	{
		std::vector<std::string> Result;
		for (const auto& Entry : std::filesystem::directory_iterator(TestDir / Folder))
		{
			if (Entry.path().extension() == Extension)
			{
				Result.push_back(Entry.path().stem().string());
			}
		}
		std::sort(Result.begin(), Result.end());
		return Result;
	}

	// HEADER_TOOL_UPDATE_BASELINES=1 rewrites the stored expectations instead of comparing with them.
	inline bool UpdatingBaselines()
	{
		const char* Value = std::getenv("HEADER_TOOL_UPDATE_BASELINES");
		return Value && std::string(Value) == "1";
	}
}
