// Front end: reads one header into an FHeaderModel; checks a module's metadata references.
#pragma once

#include "Model.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	// Errors are complete lines in the form "file:line:col: error: message".
	bool ParseHeader(const std::string& Path, FHeaderModel& OutModel, std::vector<std::string>& OutErrors);

	// Metadata that names something (EditCondition, ArrayParm, AutoCreateRefTerm, ...) must name a
	// property or parameter that exists.
	bool ValidateModule(const FModuleModel& Module, std::vector<std::string>& OutErrors);

	// The parsed model as JSON (stable key order, two-space indent), for --dump and the baselines.
	std::string DumpAsJson(const FHeaderModel& Model);
}
