#include "Misc/OutputDeviceRedirector.h"

#include "Containers/StringConv.h"
#include "Misc/OutputDeviceHelper.h"

#include <cstdio>

namespace
{
	/** Prints each line to standard output as UTF-8, as the engine's console shows it. */
	class FOutputDeviceStdOutput final : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			const FString Line = FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V);
			const FTCHARToUTF8 Utf8(*Line, Line.Len());
			std::fwrite(Utf8.Get(), 1, size_t(Utf8.Length()), stdout);
			std::fputc('\n', stdout);
		}

		virtual void Flush() override
		{
			std::fflush(stdout);
		}

		virtual bool CanBeUsedOnAnyThread() const override
		{
			return true;
		}
	};
}

FOutputDeviceRedirector* GLog = FOutputDeviceRedirector::Get();

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	// Never destroyed: modules log from their own static destructors.
	static FOutputDeviceRedirector* const Singleton = []
	{
		FOutputDeviceRedirector* Redirector = new FOutputDeviceRedirector();
		static FOutputDeviceStdOutput* const Console = new FOutputDeviceStdOutput();
		Redirector->AddOutputDevice(Console);
		return Redirector;
	}();
	return Singleton;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	if (OutputDevice)
	{
		std::lock_guard Lock(Mutex);
		OutputDevices.AddUnique(OutputDevice);
	}
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	std::lock_guard Lock(Mutex);
	OutputDevices.Remove(OutputDevice);
}

bool FOutputDeviceRedirector::IsRedirectingTo(FOutputDevice* OutputDevice)
{
	std::lock_guard Lock(Mutex);
	return OutputDevices.Contains(OutputDevice);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category)
{
	std::lock_guard Lock(Mutex);
	// A copy, so a device may add or remove devices from inside Serialize.
	const TArray<FOutputDevice*> Devices = OutputDevices;
	for (FOutputDevice* Device : Devices)
	{
		Device->Serialize(Data, Verbosity, Category);
	}
}

void FOutputDeviceRedirector::Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
{
	Serialize(Data, Verbosity, Category);
}

void FOutputDeviceRedirector::Flush()
{
	std::lock_guard Lock(Mutex);
	for (FOutputDevice* Device : OutputDevices)
	{
		Device->Flush();
	}
}

void FOutputDeviceRedirector::TearDown()
{
	std::lock_guard Lock(Mutex);
	const TArray<FOutputDevice*> Devices = OutputDevices;
	OutputDevices.Empty();
	for (FOutputDevice* Device : Devices)
	{
		Device->TearDown();
	}
}
