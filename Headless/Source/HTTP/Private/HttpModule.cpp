#include "HttpModule.h"

#include "HeadlessHttpRequest.h"
#include "HttpLog.h"
#include "HttpManager.h"
#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogHttp);

IMPLEMENT_MODULE(FHttpModule, HTTP)

FHttpModule* FHttpModule::Singleton = nullptr;

FHttpModule& FHttpModule::Get()
{
	if (Singleton == nullptr)
	{
		FModuleManager::LoadModuleChecked<FHttpModule>(TEXT("HTTP"));
	}
	check(Singleton != nullptr);
	return *Singleton;
}

FHttpModule::~FHttpModule()
{
	// Reached without ShutdownModule only when the process exits with the module loaded.
	HttpManager.Reset();
	if (Singleton == this)
	{
		Singleton = nullptr;
	}
}

void FHttpModule::StartupModule()
{
	Singleton = this;
	HttpManager = MakeUnique<FHttpManager>();
	HttpManager->Initialize();
}

void FHttpModule::ShutdownModule()
{
	if (HttpManager.IsValid())
	{
		HttpManager->Flush(EHttpFlushReason::Shutdown);
		HttpManager.Reset();
	}
	if (Singleton == this)
	{
		Singleton = nullptr;
	}
}

TSharedRef<IHttpRequest, ESPMode::ThreadSafe> FHttpModule::CreateRequest()
{
	return MakeShared<FHeadlessHttpRequest, ESPMode::ThreadSafe>();
}

FHttpManager& FHttpModule::GetHttpManager()
{
	check(HttpManager.IsValid());
	return *HttpManager;
}
