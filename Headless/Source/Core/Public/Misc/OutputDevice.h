// Something log lines can be written to: the console, a file, a test's capture.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

class FOutputDevice
{
public:
	FOutputDevice() = default;
	FOutputDevice(FOutputDevice&&) = default;
	FOutputDevice(const FOutputDevice&) = default;
	FOutputDevice& operator=(FOutputDevice&&) = default;
	FOutputDevice& operator=(const FOutputDevice&) = default;
	CORE_API virtual ~FOutputDevice();

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
	{
		Serialize(V, Verbosity, Category);
	}

	virtual void Flush()
	{
	}

	/** Called once before the device is removed for good. */
	virtual void TearDown()
	{
	}

	/** Whether Serialize may be called from any thread rather than only the game thread. */
	virtual bool CanBeUsedOnAnyThread() const
	{
		return false;
	}

	virtual bool CanBeUsedOnMultipleThreads() const
	{
		return false;
	}

	virtual bool IsMemoryOnly() const
	{
		return false;
	}

	CORE_API void Log(const TCHAR* S);
	CORE_API void Log(ELogVerbosity::Type Verbosity, const TCHAR* S);
	CORE_API void Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Str);
	CORE_API void Log(const FString& S);

	template <typename FmtType, typename... Types>
	void Logf(const FmtType& Fmt, Types... Args)
	{
		Log(*FString::Printf(Fmt, Args...));
	}

	template <typename FmtType, typename... Types>
	void Logf(ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		Log(Verbosity, *FString::Printf(Fmt, Args...));
	}
};
