#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "HttpFwd.h"
#include "Interfaces/IHttpBase.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"

/** Runs once per processed request, on the game thread; the response is null unless a reply arrived. */
DECLARE_DELEGATE_ThreeParams(FHttpRequestCompleteDelegate, FHttpRequestPtr /*Request*/, FHttpResponsePtr /*Response*/, bool /*bConnectedSuccessfully*/);

/**
 * One HTTP request, created by FHttpModule::CreateRequest. Set it up, bind the completion, then
 * ProcessRequest; the module keeps it alive until the completion has run.
 */
class IHttpRequest : public IHttpBase, public TSharedFromThis<IHttpRequest, ESPMode::ThreadSafe>
{
public:
	virtual FString GetVerb() const = 0;

	virtual void SetVerb(const FString& Verb) = 0;
	virtual void SetURL(const FString& URL) = 0;
	virtual void SetContent(const TArray<uint8>& ContentPayload) = 0;
	virtual void SetContent(TArray<uint8>&& ContentPayload) = 0;

	/** Sent as UTF-8. */
	virtual void SetContentAsString(const FString& ContentString) = 0;

	/** Replaces any earlier value of the header. */
	virtual void SetHeader(const FString& HeaderName, const FString& HeaderValue) = 0;

	/** Adds to an existing header as a comma-separated list, or sets it. */
	virtual void AppendToHeader(const FString& HeaderName, const FString& AdditionalHeaderValue) = 0;

	/** Bounds the whole request, connection included; without it the module's total timeout applies. */
	virtual void SetTimeout(float InTimeoutSecs) = 0;
	virtual void ClearTimeout() = 0;
	virtual TOptional<float> GetTimeout() const = 0;

	/** The timeout in force: the request's own, else the module's default; 0 means none. */
	virtual float GetTimeoutOrDefault() const = 0;

	/**
	 * Starts the request. False when it cannot start (an empty or malformed URL): it has then already
	 * completed, as failed, inside this call, on the calling thread.
	 */
	virtual bool ProcessRequest() = 0;

	virtual FHttpRequestCompleteDelegate& OnProcessRequestComplete() = 0;

	/** Completes a request in progress as cancelled, at the next tick of the HTTP manager. */
	virtual void CancelRequest() = 0;

	virtual const FHttpResponsePtr GetResponse() const = 0;

	/** Called by the HTTP manager on the game thread while the request is in progress. */
	virtual void Tick(float DeltaSeconds) = 0;

	/** Seconds since ProcessRequest; frozen once the request has finished. */
	virtual float GetElapsedTime() const = 0;
};
