// The process-wide log: every line goes to each attached output device. GLog starts with a console
// device that prints UTF-8 lines to standard output.
#pragma once

#include "Containers/Array.h"
#include "HAL/Platform.h"
#include "Misc/OutputDevice.h"

#include <mutex>

class FOutputDeviceRedirector final : public FOutputDevice
{
public:
	CORE_API static FOutputDeviceRedirector* Get();

	/** Devices are not owned; remove one before destroying it. Adding twice has no effect. */
	CORE_API void AddOutputDevice(FOutputDevice* OutputDevice);
	CORE_API void RemoveOutputDevice(FOutputDevice* OutputDevice);
	CORE_API bool IsRedirectingTo(FOutputDevice* OutputDevice);

	CORE_API virtual void Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category) override;
	CORE_API virtual void Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category, const double Time) override;
	CORE_API virtual void Flush() override;
	CORE_API virtual void TearDown() override;

	virtual bool CanBeUsedOnAnyThread() const override
	{
		return true;
	}

	virtual bool CanBeUsedOnMultipleThreads() const override
	{
		return true;
	}

private:
	FOutputDeviceRedirector() = default;

	// Recursive, so a device may itself log while it is being written to.
	std::recursive_mutex Mutex;
	TArray<FOutputDevice*> OutputDevices;
};

extern CORE_API FOutputDeviceRedirector* GLog;
