#pragma once

#include "CoreTypes.h"

/** What every engine module implements; the module manager calls these around loading and unloading. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface()
	{
	}

	virtual void StartupModule()
	{
	}

	virtual void PreUnloadCallback()
	{
	}

	virtual void PostLoadCallback()
	{
	}

	virtual void ShutdownModule()
	{
	}

	virtual bool SupportsDynamicReloading()
	{
		return true;
	}

	virtual bool SupportsAutomaticShutdown()
	{
		return true;
	}

	virtual bool IsGameModule() const
	{
		return false;
	}
};
