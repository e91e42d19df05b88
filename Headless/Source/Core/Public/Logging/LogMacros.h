// UE_LOG and the category declaration macros. A line is formatted only when both the category's
// compile-time and run-time verbosity admit it; a Fatal line is always printed and then aborts.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"

#include <type_traits>

#ifndef COMPILED_IN_MINIMUM_VERBOSITY
#define COMPILED_IN_MINIMUM_VERBOSITY VeryVerbose
#endif

struct FMsg
{
	/** Sends a finished line to GLog; a Fatal line is flushed and the process aborts. */
	CORE_API static void LogString(const ANSICHAR* File, int32 Line, const FLogCategoryName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Message);

	template <typename FmtType, typename... Types>
	static void Logf(const ANSICHAR* File, int32 Line, const FLogCategoryName& Category, ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		LogString(File, Line, Category, Verbosity, *FString::Printf(Fmt, Args...));
	}
};

namespace UE::Logging::Private
{
	template <typename CategoryType>
	constexpr bool IsCompiledIn(ELogVerbosity::Type Verbosity)
	{
		const uint8 Level = Verbosity & ELogVerbosity::VerbosityMask;
		return Level == ELogVerbosity::Fatal
			|| (Level <= ELogVerbosity::COMPILED_IN_MINIMUM_VERBOSITY && Level <= CategoryType::CompileTimeVerbosity);
	}
}

#define UE_LOG(CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if constexpr (UE::Logging::Private::IsCompiledIn<std::remove_cvref_t<decltype(CategoryName)>>(ELogVerbosity::Verbosity)) \
		{ \
			if ((ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) == ELogVerbosity::Fatal \
				|| !CategoryName.IsSuppressed(ELogVerbosity::Verbosity)) \
			{ \
				FMsg::Logf(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity, Format, ##__VA_ARGS__); \
			} \
		} \
	} \
	while (false)

#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if (Condition) \
		{ \
			UE_LOG(CategoryName, Verbosity, Format, ##__VA_ARGS__); \
		} \
	} \
	while (false)

#define UE_LOG_ACTIVE(CategoryName, Verbosity) \
	(UE::Logging::Private::IsCompiledIn<std::remove_cvref_t<decltype(CategoryName)>>(ELogVerbosity::Verbosity) \
		&& !CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName;

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName;

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName;

/** A category as a static member of a class; define it with DEFINE_LOG_CATEGORY_CLASS. */
#define DECLARE_LOG_CATEGORY_CLASS(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)

#define DEFINE_LOG_CATEGORY_CLASS(Class, CategoryName) Class::FLogCategory##CategoryName Class::CategoryName;

/** The engine's catch-all category. */
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
