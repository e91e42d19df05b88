// Turns a doc comment into ToolTip text the way UnrealHeaderTool does.
#pragma once

#include <string>
#include <string_view>

namespace HeaderTool
{
	// Accepts "/** ... */", "/* ... */" and runs of "//" lines. Comment markers and each line's leading
	// '*' go, lines are trimmed and joined with '\n', blank lines at either end are dropped.
	std::string CleanDocComment(std::string_view Comment);
}
