// The specifiers each reflection macro accepts, as UnrealHeaderTool knows them (case-blind).
#pragma once

#include <string_view>

namespace HeaderTool
{
	enum class ESpecifierOwner
	{
		Class,
		Interface,
		Struct,
		Enum,
		Property,
		Function,
		Delegate,
	};

	// "UCLASS", "UPROPERTY", ... as written in the header.
	std::string_view MacroName(ESpecifierOwner Owner);

	bool IsKnownSpecifier(ESpecifierOwner Owner, std::string_view Name);

	bool EqualsIgnoreCase(std::string_view A, std::string_view B);
}
