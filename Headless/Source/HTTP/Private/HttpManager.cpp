#include "HttpManager.h"

#include "Curl/CurlHttpTransport.h"
#include "HeadlessHttpRequest.h"
#include "HttpGameThreadQueue.h"
#include "HttpTransport.h"

#include <chrono>

namespace
{
	// How long a flush waits for requests to finish on their own before cancelling them.
	double GetFlushLimitSeconds(EHttpFlushReason Reason)
	{
		switch (Reason)
		{
		case EHttpFlushReason::Shutdown:
			return 0.0;
		case EHttpFlushReason::FullFlush:
			return 30.0;
		default:
			return 2.0;
		}
	}

	constexpr double FlushWaitSliceSeconds = 0.02;
}

FHttpManager::FHttpManager()
	: GameThreadTasks(MakeShared<FHttpGameThreadQueue, ESPMode::ThreadSafe>())
{
}

FHttpManager::~FHttpManager()
{
	// Without a shutdown flush (the process is exiting), completions must not run any more:
	// whatever they would touch may already be gone.
	const TArray<FHttpRequestRef> Abandoned = MoveTemp(Requests);
	Requests.Reset();
	for (const FHttpRequestRef& Request : Abandoned)
	{
		static_cast<FHeadlessHttpRequest&>(*Request).Abandon();
	}
	if (CurlTransport.IsValid())
	{
		CurlTransport->Stop();
	}
}

void FHttpManager::Initialize()
{
}

void FHttpManager::AddRequest(const FHttpRequestRef& Request)
{
	Requests.AddUnique(Request);
	RequestAddedDelegate.ExecuteIfBound(Request);
}

void FHttpManager::SetRequestAddedDelegate(const FHttpManagerRequestAddedDelegate& Delegate)
{
	RequestAddedDelegate = Delegate;
}

void FHttpManager::RemoveRequest(const FHttpRequestRef& Request)
{
	Requests.Remove(Request);
}

bool FHttpManager::IsValidRequest(const IHttpRequest* RequestPtr) const
{
	for (const FHttpRequestRef& Request : Requests)
	{
		if (&Request.Get() == RequestPtr)
		{
			return true;
		}
	}
	return false;
}

void FHttpManager::Flush(EHttpFlushReason FlushReason)
{
	const auto Deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(GetFlushLimitSeconds(FlushReason));
	while (Requests.Num() > 0 && std::chrono::steady_clock::now() < Deadline)
	{
		Tick(0.0f);
		GameThreadTasks->WaitForTasks(FlushWaitSliceSeconds);
	}

	const TArray<FHttpRequestRef> Remaining = Requests;
	for (const FHttpRequestRef& Request : Remaining)
	{
		Request->CancelRequest();
	}
	Tick(0.0f);
}

bool FHttpManager::Tick(float DeltaSeconds)
{
	TArray<TUniqueFunction<void()>> Tasks = GameThreadTasks->TakeAll();
	for (TUniqueFunction<void()>& Task : Tasks)
	{
		Task();
	}

	// Completions may add or remove requests; tick the ones in progress when the tick began.
	const TArray<FHttpRequestRef> InProgress = Requests;
	for (const FHttpRequestRef& Request : InProgress)
	{
		Request->Tick(DeltaSeconds);
	}
	return true;
}

void FHttpManager::AddGameThreadTask(TFunction<void()>&& Task)
{
	GameThreadTasks->Add(MoveTemp(Task));
}

TSharedRef<IHttpTransport, ESPMode::ThreadSafe> FHttpManager::GetActiveTransport()
{
	const TSharedPtr<IHttpTransport, ESPMode::ThreadSafe>& Override = UE::Http::Private::GetTransportOverride();
	if (Override.IsValid())
	{
		return Override.ToSharedRef();
	}
	if (!CurlTransport.IsValid())
	{
		CurlTransport = MakeShared<FCurlHttpTransport, ESPMode::ThreadSafe>();
	}
	return CurlTransport.ToSharedRef();
}
