#include "Logging/LogCategory.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY(LogTemp);

FLogCategoryBase::FLogCategoryBase(const TCHAR* InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: FLogCategoryBase(FLogCategoryName(InCategoryName), InDefaultVerbosity, InCompileTimeVerbosity)
{
}

FLogCategoryBase::FLogCategoryBase(const FLogCategoryName& InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: Verbosity(ELogVerbosity::NoLogging)
	, DefaultVerbosity(InDefaultVerbosity)
	, CompileTimeVerbosity(InCompileTimeVerbosity)
	, CategoryName(InCategoryName)
{
	ResetToDefault();
}

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type NewVerbosity)
{
	const uint8 Level = NewVerbosity & ELogVerbosity::VerbosityMask;
	Verbosity.store(Level < CompileTimeVerbosity ? Level : uint8(CompileTimeVerbosity), std::memory_order_relaxed);
}

void FLogCategoryBase::ResetToDefault()
{
	SetVerbosity(DefaultVerbosity);
}
