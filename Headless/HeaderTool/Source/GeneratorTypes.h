// What the generator needs to know about a C++ type as written: its value form, the exec-thunk
// macro that reads it, and the class behind an object reference.
#pragma once

#include "Model.h"

#include <string>

namespace HeaderTool
{
	/** The type a parameter block stores: the written type without top-level const and reference. */
	std::string ValueTypeText(const FTypeRef& Type);

	/** The reflected class an object-typed value refers to ("UWidget" for TArray<TObjectPtr<UWidget>>), or "". */
	std::string ReferencedClassName(const FTypeRef& Type);

	/** The P_GET_* line that reads a parameter in an exec thunk, and the argument the call passes. */
	struct FThunkRead
	{
		std::string Statement;
		std::string Argument;
	};
	FThunkRead ThunkRead(const FParamDecl& Param);

	/** The name without its one-letter type prefix: "UQuorvelStashPanel" -> "QuorvelStashPanel". */
	std::string WithoutPrefix(const std::string& Name);

	/** A C++ string literal of the engine's wide-character kind: TEXT("..."). */
	std::string TextLiteral(const std::string& Value);
}
