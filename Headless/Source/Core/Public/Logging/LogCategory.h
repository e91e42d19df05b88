// A log category: a name and the verbosity up to which its lines are printed.
#pragma once

#include "HAL/Platform.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

#include <atomic>

typedef FName FLogCategoryName;

struct FLogCategoryBase
{
	CORE_API FLogCategoryBase(const TCHAR* CategoryName, ELogVerbosity::Type DefaultVerbosity, ELogVerbosity::Type CompileTimeVerbosity);
	CORE_API FLogCategoryBase(const FLogCategoryName& CategoryName, ELogVerbosity::Type DefaultVerbosity, ELogVerbosity::Type CompileTimeVerbosity);

	FLogCategoryBase(const FLogCategoryBase&) = delete;
	FLogCategoryBase& operator=(const FLogCategoryBase&) = delete;

	/** Whether a line of this verbosity is dropped. Fatal is never dropped. */
	FORCEINLINE bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const
	{
		return !((VerbosityLevel & ELogVerbosity::VerbosityMask) <= Verbosity.load(std::memory_order_relaxed));
	}

	FORCEINLINE const FLogCategoryName& GetCategoryName() const
	{
		return CategoryName;
	}

	FORCEINLINE ELogVerbosity::Type GetVerbosity() const
	{
		return ELogVerbosity::Type(Verbosity.load(std::memory_order_relaxed));
	}

	FORCEINLINE ELogVerbosity::Type GetCompileTimeVerbosity() const
	{
		return CompileTimeVerbosity;
	}

	/** Clamped to the compile-time verbosity; Fatal lines always pass. */
	CORE_API void SetVerbosity(ELogVerbosity::Type Verbosity);

	CORE_API void ResetToDefault();

private:
	std::atomic<uint8> Verbosity;
	ELogVerbosity::Type DefaultVerbosity;
	ELogVerbosity::Type CompileTimeVerbosity;
	FLogCategoryName CategoryName;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static_assert((InDefaultVerbosity & ELogVerbosity::VerbosityMask) < ELogVerbosity::NumVerbosity, "Invalid default verbosity");
	static_assert(InCompileTimeVerbosity < ELogVerbosity::NumVerbosity, "Invalid compile-time verbosity");

	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	FORCEINLINE FLogCategory(const TCHAR* InCategoryName)
		: FLogCategoryBase(InCategoryName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
