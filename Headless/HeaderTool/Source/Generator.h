// Back end: writes BaseName.generated.h and BaseName.gen.cpp for every header of the module, and
// ModuleName.init.gen.cpp, into OutputDir.
#pragma once

#include "Model.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	// Every file written carries the generator revision, HEADER_TOOL_REVISION.
	constexpr int HEADER_TOOL_REVISION = 1;

	bool GenerateModule(const FModuleModel& Module, const std::string& OutputDir, std::vector<std::string>& OutErrors);
}
