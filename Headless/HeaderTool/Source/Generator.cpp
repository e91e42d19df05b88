#include "Generator.h"

namespace HeaderTool
{
	bool GenerateModule(const FModuleModel& Module, const std::string& OutputDir, std::vector<std::string>& OutErrors)
	{
		OutErrors.push_back(Module.ModuleName + ": error: code generation is not written yet");
		return false;
	}
}
