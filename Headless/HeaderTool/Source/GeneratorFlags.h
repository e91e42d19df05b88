// Flags the engine derives from specifiers, as numbers (the generated code casts them back).
#pragma once

#include "Model.h"

#include <cstdint>
#include <string>

namespace HeaderTool
{
	bool HasKey(const FKeyValues& Values, const std::string& Key);
	std::string FindValue(const FKeyValues& Values, const std::string& Key);

	uint64_t PropertyFlags(const FPropertyDecl& Property);
	uint64_t ParamFlags(const FTypeRef& Type, bool bReturnValue);
	uint32_t FunctionFlags(const FFunctionDecl& Function);
	uint32_t DelegateFunctionFlags(const FDelegateDecl& Delegate);
	uint32_t ClassFlags(const FClassDecl& Class);

	/** An event whose body the generator writes: it calls ProcessEvent. */
	bool IsEvent(const FFunctionDecl& Function);
	/** A function with a native body reached through an exec thunk. */
	bool IsNative(const FFunctionDecl& Function);
	bool IsNativeEvent(const FFunctionDecl& Function);

	std::string Hex64(uint64_t Value);
	std::string Hex32(uint32_t Value);
}
