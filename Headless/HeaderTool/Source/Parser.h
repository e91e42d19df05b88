// Front end: reads one header into an FHeaderModel; checks a module's metadata references.
#pragma once

#include "Model.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	// Errors are complete lines in the form "file:line:col: error: message". Parsing a header stops at
	// its first error.
	bool ParseHeader(const std::string& Path, FHeaderModel& OutModel, std::vector<std::string>& OutErrors);

	// As ParseHeader, from text already in memory; Path only names the file in the model and errors.
	bool ParseHeaderText(const std::string& Path, const std::string& Text, FHeaderModel& OutModel,
		std::vector<std::string>& OutErrors);

	// "FID_" + the path below its nearest "Source" or "Tests" folder (the whole path when there is
	// none), every character that cannot be in an identifier made '_':
	// ".../Source/QuorvelUI/Public/QuorvelStashPanel.h" -> "FID_QuorvelUI_Public_QuorvelStashPanel_h".
	// Independent of where the tree is checked out, and unique per module since modules are folders.
	std::string MakeFileId(const std::string& Path);

	// Metadata that names something (EditCondition, ArrayParm, AutoCreateRefTerm, ...) must name a
	// property or parameter that exists.
	bool ValidateModule(const FModuleModel& Module, std::vector<std::string>& OutErrors);

	// The parsed model as JSON (stable key order, two-space indent), for --dump and the baselines.
	// Empty strings, empty lists and false flags are left out; locations print as "line:column"
	// without the file, so a dump does not depend on where the tree lives.
	std::string DumpAsJson(const FHeaderModel& Model);

	std::string FormatError(const FLocation& Location, const std::string& Message);
}
