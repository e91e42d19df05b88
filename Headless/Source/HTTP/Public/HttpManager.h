#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "HttpFwd.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

class FCurlHttpTransport;
class FHttpGameThreadQueue;
class IHttpTransport;

enum class EHttpFlushReason : uint8
{
	/** The game asked for it. */
	Default,
	/** The application is going to the background. */
	Background,
	/** The module is shutting down: nothing is waited for. */
	Shutdown,
	/** Everything must finish. */
	FullFlush,
	Count
};

inline const TCHAR* LexToString(const EHttpFlushReason Reason)
{
	switch (Reason)
	{
	case EHttpFlushReason::Default:
		return TEXT("Default");
	case EHttpFlushReason::Background:
		return TEXT("Background");
	case EHttpFlushReason::Shutdown:
		return TEXT("Shutdown");
	case EHttpFlushReason::FullFlush:
		return TEXT("FullFlush");
	default:
		return TEXT("Invalid");
	}
}

/** Called from the thread that adds a request to the manager, as the request starts. */
DECLARE_DELEGATE_OneParam(FHttpManagerRequestAddedDelegate, const FHttpRequestRef& /*Request*/);

/**
 * Keeps every request in progress alive and hands the transports' results back to the game
 * thread: completions run only inside Tick, on the thread that calls it.
 */
class FHttpManager
{
public:
	FHttpManager();
	virtual ~FHttpManager();

	FHttpManager(const FHttpManager&) = delete;
	FHttpManager& operator=(const FHttpManager&) = delete;

	virtual void Initialize();

	virtual void AddRequest(const FHttpRequestRef& Request);
	virtual void RemoveRequest(const FHttpRequestRef& Request);
	bool IsValidRequest(const IHttpRequest* RequestPtr) const;

	/** Ticks until the requests in progress finish or a limit set by the reason passes, then cancels the rest. */
	virtual void Flush(EHttpFlushReason FlushReason);

	/** Runs the completions handed back since the last tick and expires requests past their timeout. */
	virtual bool Tick(float DeltaSeconds);

	/** From any thread; the task runs during the next Tick. */
	void AddGameThreadTask(TFunction<void()>&& Task);

	/** Replaces the one delegate told of every request added from now on; an unbound one stops it. */
	void SetRequestAddedDelegate(const FHttpManagerRequestAddedDelegate& Delegate);

protected:
	TArray<FHttpRequestRef> Requests;
	FHttpManagerRequestAddedDelegate RequestAddedDelegate;

private:
	friend class FHeadlessHttpRequest;
	friend struct FHeadlessHttp;

	TSharedRef<IHttpTransport, ESPMode::ThreadSafe> GetActiveTransport();

	TSharedRef<FHttpGameThreadQueue, ESPMode::ThreadSafe> GameThreadTasks;
	/** Started on the first request that goes to the network. */
	TSharedPtr<FCurlHttpTransport, ESPMode::ThreadSafe> CurlTransport;
};
