#pragma once

#include "CoreMinimal.h"
#include "HttpFwd.h"
#include "Interfaces/IHttpRequest.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"

class FHttpManager;

/** The HTTP module: creates requests and owns the manager that completes them. */
class FHttpModule : public IModuleInterface
{
public:
	/** Loads the module on first use; game thread. */
	static FHttpModule& Get();

	virtual ~FHttpModule() override;

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	virtual bool SupportsDynamicReloading() override
	{
		return false;
	}

	TSharedRef<IHttpRequest, ESPMode::ThreadSafe> CreateRequest();

	FHttpManager& GetHttpManager();

	bool IsHttpEnabled() const
	{
		return true;
	}

	/** Applies to requests without a timeout of their own; 0 means none. */
	float GetHttpTotalTimeout() const
	{
		return HttpTotalTimeout;
	}

	void SetHttpTotalTimeout(float TimeoutInSeconds)
	{
		HttpTotalTimeout = TimeoutInSeconds;
	}

	float GetHttpConnectionTimeout() const
	{
		return HttpConnectionTimeout;
	}

	void SetHttpConnectionTimeout(float TimeoutInSeconds)
	{
		HttpConnectionTimeout = TimeoutInSeconds;
	}

private:
	TUniquePtr<FHttpManager> HttpManager;
	float HttpTotalTimeout = 0.0f;
	float HttpConnectionTimeout = 60.0f;

	static FHttpModule* Singleton;
};
