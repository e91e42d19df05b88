// check/verify/ensure as the engine behaves in development builds: a failed check is fatal; a
// failed ensure reports once per call site and lets the caller carry on.
#pragma once

#include "HAL/Platform.h"

struct FDebug
{
	[[noreturn]] static CORE_API void AssertFailed(const char* Expression, const char* File, int32 Line, const char* Message = nullptr);
	static CORE_API bool OptionallyLogEnsure(const char* Expression, const char* File, int32 Line, const char* Message = nullptr);
};

#define check(Expr) do { if (UNLIKELY(!(Expr))) { FDebug::AssertFailed(#Expr, __FILE__, __LINE__); } } while (false)
#define checkf(Expr, Format, ...) do { if (UNLIKELY(!(Expr))) { FDebug::AssertFailed(#Expr, __FILE__, __LINE__, #Format); } } while (false)
#define verify(Expr) check(Expr)
#define verifyf(Expr, Format, ...) checkf(Expr, Format, ##__VA_ARGS__)
#define checkNoEntry() FDebug::AssertFailed("Enclosing block should never be called", __FILE__, __LINE__)
#define checkSlow(Expr) check(Expr)

#define UE_ENSURE_IMPL(Expr, Message) \
	(LIKELY(!!(Expr)) || ([](const char* File, int32 Line) { \
		static bool bReported = false; \
		if (!bReported) { bReported = true; FDebug::OptionallyLogEnsure(#Expr, File, Line, Message); } \
		return false; }(__FILE__, __LINE__)))
#define ensure(Expr) UE_ENSURE_IMPL(Expr, nullptr)
#define ensureMsgf(Expr, Format, ...) UE_ENSURE_IMPL(Expr, #Format)
#define ensureAlways(Expr) ((Expr) || FDebug::OptionallyLogEnsure(#Expr, __FILE__, __LINE__))
