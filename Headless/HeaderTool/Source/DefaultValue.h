// Default arguments of UFUNCTION parameters, in the text UnrealHeaderTool stores as CPP_Default_<Param>.
#pragma once

#include "Model.h"
#include "Token.h"

#include <optional>
#include <string>
#include <vector>

namespace HeaderTool
{
	// Integers stay as written ("-1"), booleans are "true"/"false", floats print as "%f" ("1.000000"),
	// names and strings lose TEXT() and quotes ("NAME_None" is "None"), enumerators lose their scope,
	// null pointers are "None", FText::GetEmpty() is "". Engine structs follow the engine's own
	// export text: FVector2D as "(X=1.000,Y=2.000)", FVector and FRotator as "1.000000,2.000000,3.000000",
	// FLinearColor as "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)".
	// Returns nothing for an expression the engine could not store either.
	std::optional<std::string> NormaliseDefaultValue(const FTypeRef& Type, const std::vector<FToken>& Expression);
}
